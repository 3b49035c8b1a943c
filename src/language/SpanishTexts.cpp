// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/ProgramTextColumn.h"

namespace kestrova {

namespace {

using enum ProgramText;

constexpr ProgramTextRow kRows[] = {
    {DiaryBusy, "La agenda está en uso"},
    {YearPrompt, "¿Año?"},
    {DayFull, "Este día ya tiene diez eventos. Elimine uno antes de añadir otro."},
    {SaveEdit, "El evento que está editando no se ha guardado."},
    {KeepEdit, "Guardar"},
    {GoOnEditing, "Seguir editando"},
    {ClockBehind, "El reloj del equipo indica el año %1, anterior al de su agenda.\n\nSi el reloj "
                  "no está en hora, conserve el año de la agenda y póngalo en hora: hasta entonces "
                  "no se darán avisos. Si el reloj está en hora, la agenda puede guiarse por él; "
                  "se conserva una copia de la agenda tal como está ahora."},
    {GoByTheClock, "Guiarse por el reloj"},
    {KeepTheYear, "Conservar el año de la agenda"},
    {Retry, "Reintentar"},
    {CloseProgram, "Cerrar Kestrova"},
    {DiaryOutOfReach,
     "No se puede acceder a la carpeta de esta agenda. Todavía no se ha guardado nada."},

    {MenuFile, "&Archivo"},
    {MenuMonth, "&Mes"},
    {MenuWeekStart, "&Inicio de semana"},
    {MenuLanguage, "I&dioma"},
    {MenuThisMonth, "Mes actual"},
    {MenuPreviousMonth, "Mes anterior"},
    {MenuNextMonth, "Mes siguiente"},
    {MenuYear, "Año..."},
    {MenuFullScreen, "&Pantalla completa"},
    {MenuRepeatMode, "&Repetir vídeo"},
    {MenuSettings, "&Configuración..."},
    {MenuManual, "&Manual"},
    {MenuAbout, "&Acerca de"},
    {MenuExit, "&Salir"},
    {MenuDelete, "&Eliminar evento"},
    {MenuDeleteAll, "Eliminar &todos los iguales"},
    {MenuUndo, "&Deshacer eliminación"},
    {MenuNewEvent, "&Nuevo evento"},
    {MenuAddNetUser, "&Añadir usuario de red..."},
    {MenuRemoveNetUser, "&Quitar usuario de red"},
    {MenuCloseDay, "&Cerrar"},
    {AboutText, "Calendario ilustrado y agenda personal.\n\nSoftware libre bajo la Licencia "
                "Pública General de GNU, versión 3 o posterior."},
    {NoHelp, "No se encuentra la página de ayuda: %1"},

    {PreviousYear, "Año anterior"},
    {NextYear, "Año siguiente"},
    {EventHour, "Hora"},
    {EventMinute, "Minuto"},
    {HideFromMonth, "Ocultar en el calendario"},
    {PictureOfMonth, "Imagen del mes"},
    {MediaFilter,
     "Archivos multimedia "
     "(*.mpg;*.avi;*.mov;*.wav;*.mp2;*.mp3)|*.mpg;*.mpeg;*.avi;*.mov;*.wav;*.mp2;*.mp3"},
    {WaveFilter, "*.wav|*.wav"},
    {ReminderService, "Servicio de avisos de Kestrova."},
    {SpokenAt, "A las."},

    {MyDiary, "Mi agenda"},
    {AddNetUser, "Añadir usuario de red"},
    {InputUserName, "Introduzca el nombre del usuario"},
    {NetUserRemoved, "Se ha quitado el usuario de red %1"},
    {NoDiaryThere, "Esto no es una agenda. Elija el archivo Data.dat de la carpeta DiaryDat, en la "
                   "carpeta del programa del otro usuario."},
    {NameTaken, "Ya existe una agenda llamada %1."},
    {MyDiaryStays, "«Mi agenda» no se puede quitar."},
    {DiaryShown, "Agenda mostrada"},

    {TalkToMe, "Leer en voz alta"},
    {SpeechNotInstalled, "Síntesis de voz no instalada"},
    {NoteIsNoText, "Esta nota contiene bytes que no son texto. Se deja como está."},
    {NoteTooLarge, "Esta nota es demasiado larga para editarla aquí. Se deja como está."},
    {NoteWithoutEvent, "El evento de esta nota ya no está en la agenda. El texto permanece en la "
                       "ventana; cópielo antes de cerrarla."},
    {DiscardNote, "El nuevo evento tiene una nota. ¿Desea descartarla junto con el evento?"},
    {Discard, "Descartar"},
    {HasNote, "Con nota"},

    {SettingsTitle, "Configuración"},
    {TestModem, "Probar módem"},
    {ModemFound, "Módem encontrado: %1"},
    {SpeechSample, "Esto es una prueba de la síntesis de voz"},
    {LanguageLabel, "Idioma"},
    {Red, "Rojo"},
    {Green, "Verde"},
    {Blue, "Azul"},
    {ColourShown, "El color tal como está ajustado"},
    {TextToSpeak, "Texto para leer"},
    {UndoDefaults, "Restablece todos los valores predeterminados. Ctrl+Z lo deshace."},
    {DesktopComment, "Calendario ilustrado y agenda personal"},
    {StartEntryFailed, "No se ha podido escribir la entrada de inicio automático."},
    {CopyKeptIn, "Se conserva una copia de su agenda anterior en la carpeta %1"},

    {LanguageEditor, "Editor de idiomas"},
    {LanguageName, "Nombre del idioma"},
    {MonthsAndMenu, "Meses y sus entradas de menú"},
    {DaysOfTheWeek, "Días de la semana"},
    {TextsOfWindows, "Textos"},
    {EnglishText, "Inglés: %1"},
    {NameTheLanguage, "Dé un nombre al idioma antes de guardarlo."},
    {ReplaceLanguage, "Ya existe un idioma llamado %1. ¿Desea reemplazarlo?"},
    {Replace, "Reemplazar"},
    {SameItems, "Dos elementos de una lista tienen el mismo texto, de modo que no se podría "
                "distinguir cuál se ha elegido: %1"},
    {LanguageNotSaved, "No se ha podido guardar el idioma."},
    {LanguageUnsaved, "Los cambios de este idioma no se han guardado."},

    {StartHidden, "Esperar oculto"},
    {StartHiddenTip,
     "El calendario espera sin mostrarse hasta que llegue la hora de un aviso o usted lo inicie."},
    {OtherYear, "Esta agenda pertenece al año %1. Se podrá mostrar cuando el programa de su dueño "
                "la haya traído a este año."},

    {MenuGame, "&Juego"},
    {MenuGameStart, "Puzle &deslizante"},
    {MenuGameJigSaw, "&Rompecabezas"},
    {MenuGameSize, "&Tamaño"},
    {MenuGamePicture, "&Cambiar imagen"},
    {MenuGameQuit, "&Salir del juego"},
    {PuzzleName, "Rompecabezas"},
    {PuzzleMoves, "Jugadas: %1"},
    {PuzzleTime, "Tiempo: %1"},
    {PuzzleSolved, "¡Resuelto!"},
    {JigSawKeys, "Arrastre una pieza sobre otra. Teclas: flechas, Espacio para coger y soltar, H "
                 "muestra la imagen."},
    {MovingKeys, "Haga clic en una pieza junto al hueco. Teclas: flechas, H muestra la imagen."},
    {PictureFilter, "Imágenes|*.jpg;*.bmp;*.gif;*.wmf;*.emf;*.ico"},
    {PuzzleUnsuitable, "La imagen no sirve para un rompecabezas"},
    {MenuHalfScreen, "&Media pantalla"},
    {MenuMedia, "Repro&ducir un archivo..."},
    {MenuSavePicture, "&Guardar imagen..."},
    {MenuMonthPicture, "Cam&biar la imagen del mes..."},
    {MediaPrevious, "Atrás"},
    {MediaNext, "Adelante"},
    {MediaPlay, "Reproducir"},
    {MediaPause, "Pausa"},
    {MediaStop, "Detener"},
    {MediaEject, "Expulsar"},
    {MediaPosition, "Posición"},
    {CdPlayer, "Reproductor de CD"},
    {MediaGone, "El archivo «%1» de un recordatorio ya no existe."},
    {MediaFailed, "No se puede reproducir el archivo «%1»."},
    {CdMissing, "No hay ningún CD de audio en la unidad."},
    {CdFailed, "No se puede reproducir el CD."},
    {BitmapFilter, "Imagen (*.bmp)|*.bmp"},
    {PictureNotSaved, "No se pudo guardar la imagen."},
    {PictureNotReplaced, "No se pudo reemplazar la imagen."},
    {NotAPicture, "El archivo «%1» no es una imagen que se pueda mostrar."},
};
static_assert(IsWhole(kRows));

} // namespace

ProgramTextColumn SpanishTexts() {
    return kRows;
}

} // namespace kestrova
