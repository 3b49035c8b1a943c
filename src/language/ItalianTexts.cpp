// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/ProgramTextColumn.h"

namespace kestrova {

namespace {

using enum ProgramText;

constexpr ProgramTextRow kRows[] = {
    {DiaryBusy, "L’agenda è in uso"},
    {YearPrompt, "Anno?"},
    {DayFull,
     "Questo giorno contiene già dieci eventi. Eliminarne uno prima di aggiungerne un altro."},
    {SaveEdit, "L’evento in corso di modifica non è stato salvato."},
    {KeepEdit, "Salva"},
    {GoOnEditing, "Continua la modifica"},
    {ClockBehind, "L’orologio del computer segna l’anno %1, precedente a quello dell’agenda.\n\nSe "
                  "l’orologio è sbagliato, mantenere l’anno dell’agenda e regolare l’orologio: "
                  "fino ad allora non vengono dati avvisi. Se l’orologio è giusto, l’agenda può "
                  "seguirlo; viene conservata una copia dell’agenda nello stato attuale."},
    {GoByTheClock, "Segui l’orologio"},
    {KeepTheYear, "Mantieni l’anno dell’agenda"},
    {Retry, "Riprova"},
    {CloseProgram, "Chiudi Kestrova"},
    {DiaryOutOfReach,
     "La cartella di questa agenda non è raggiungibile. Non è stato ancora salvato nulla."},

    {MenuFile, "&File"},
    {MenuMonth, "&Mese"},
    {MenuWeekStart, "&Inizio settimana"},
    {MenuLanguage, "&Lingua"},
    {MenuThisMonth, "Mese corrente"},
    {MenuPreviousMonth, "Mese precedente"},
    {MenuNextMonth, "Mese successivo"},
    {MenuYear, "Anno..."},
    {MenuFullScreen, "&Schermo intero"},
    {MenuRepeatMode, "&Ripeti video"},
    {MenuSettings, "&Impostazioni..."},
    {MenuManual, "&Manuale"},
    {MenuAbout, "&Informazioni"},
    {MenuExit, "&Esci"},
    {MenuDelete, "&Elimina evento"},
    {MenuDeleteAll, "Elimina &tutti gli uguali"},
    {MenuUndo, "&Annulla eliminazione"},
    {MenuNewEvent, "&Nuovo evento"},
    {MenuAddNetUser, "A&ggiungi utente di rete..."},
    {MenuRemoveNetUser, "&Rimuovi utente di rete"},
    {MenuCloseDay, "&Chiudi"},
    {AboutText, "Calendario illustrato e agenda personale.\n\nSoftware libero con licenza GNU "
                "General Public License, versione 3 o successiva."},
    {NoHelp, "La pagina di aiuto non è stata trovata: %1"},

    {PreviousYear, "Anno precedente"},
    {NextYear, "Anno successivo"},
    {EventHour, "Ora"},
    {EventMinute, "Minuto"},
    {HideFromMonth, "Nascondi nel calendario"},
    {PictureOfMonth, "Immagine del mese"},
    {MediaFilter,
     "File multimediali "
     "(*.mpg;*.avi;*.mov;*.wav;*.mp2;*.mp3)|*.mpg;*.mpeg;*.avi;*.mov;*.wav;*.mp2;*.mp3"},
    {WaveFilter, "*.wav|*.wav"},
    {ReminderService, "Servizio avvisi di Kestrova."},
    {SpokenAt, "Alle."},

    {MyDiary, "La mia agenda"},
    {AddNetUser, "Aggiungi utente di rete"},
    {InputUserName, "Inserire il nome dell’utente"},
    {NetUserRemoved, "L’utente di rete %1 è stato rimosso"},
    {NoDiaryThere, "Questa non è un’agenda. Scegliere il file Data.dat nella cartella DiaryDat "
                   "della cartella del programma dell’altro utente."},
    {NameTaken, "Esiste già un’agenda di nome %1."},
    {MyDiaryStays, "«La mia agenda» non può essere rimossa."},
    {DiaryShown, "Agenda mostrata"},

    {TalkToMe, "Leggi ad alta voce"},
    {SpeechNotInstalled, "Sintesi vocale non installata"},
    {NoteIsNoText, "Questa nota contiene byte che non sono testo. Viene lasciata così com’è."},
    {NoteTooLarge,
     "Questa nota è troppo grande per essere modificata qui. Viene lasciata così com’è."},
    {NoteWithoutEvent, "L’evento di questa nota non è più nell’agenda. Il testo resta nella "
                       "finestra; copiarlo prima di chiuderla."},
    {DiscardNote, "Il nuovo evento ha una nota. Scartarla insieme all’evento?"},
    {Discard, "Scarta"},
    {HasNote, "Con nota"},

    {SettingsTitle, "Impostazioni"},
    {TestModem, "Prova modem"},
    {ModemFound, "Modem trovato: %1"},
    {SpeechSample, "Questa è una prova della sintesi vocale"},
    {LanguageLabel, "Lingua"},
    {Red, "Rosso"},
    {Green, "Verde"},
    {Blue, "Blu"},
    {ColourShown, "Il colore così come è impostato"},
    {TextToSpeak, "Testo da leggere"},
    {UndoDefaults, "Ripristina tutti i valori predefiniti. Ctrl+Z annulla il ripristino."},
    {DesktopComment, "Calendario illustrato e agenda personale"},
    {StartEntryFailed, "Impossibile scrivere la voce di avvio automatico."},
    {CopyKeptIn, "Una copia della vecchia agenda è conservata nella cartella %1"},

    {LanguageEditor, "Editor delle lingue"},
    {LanguageName, "Nome della lingua"},
    {MonthsAndMenu, "Mesi e relative voci di menu"},
    {DaysOfTheWeek, "Giorni della settimana"},
    {TextsOfWindows, "Testi"},
    {EnglishText, "Inglese: %1"},
    {NameTheLanguage, "Dare un nome alla lingua prima di salvarla."},
    {ReplaceLanguage, "Esiste già una lingua di nome %1. Sostituirla?"},
    {Replace, "Sostituisci"},
    {SameItems, "Due voci dello stesso elenco hanno lo stesso testo, per cui una scelta non si "
                "distinguerebbe dall’altra: %1"},
    {LanguageNotSaved, "Impossibile salvare la lingua."},
    {LanguageUnsaved, "Le modifiche a questa lingua non sono state salvate."},

    {StartHidden, "Attendi nascosto"},
    {StartHiddenTip,
     "Il calendario attende senza mostrarsi finché non scade un avviso o non lo si avvia."},
    {OtherYear, "Questa agenda appartiene all’anno %1. Si potrà mostrare quando il programma del "
                "suo proprietario l’avrà portata a quest’anno."},

    {MenuGame, "&Gioco"},
    {MenuGameStart, "Gioco del &quindici"},
    {MenuGameJigSaw, "&Puzzle"},
    {MenuGameSize, "&Dimensione"},
    {MenuGamePicture, "&Cambia immagine"},
    {MenuGameQuit, "&Esci dal gioco"},
    {PuzzleName, "Puzzle"},
    {PuzzleMoves, "Mosse: %1"},
    {PuzzleTime, "Tempo: %1"},
    {PuzzleSolved, "Risolto!"},
    {JigSawKeys, "Trascini un pezzo su un altro. Tasti: frecce, Spazio per prendere e posare, H "
                 "mostra l’immagine."},
    {MovingKeys, "Faccia clic su un pezzo accanto al vuoto. Tasti: frecce, H mostra l’immagine."},
    {PictureFilter, "Immagini|*.jpg;*.bmp;*.gif;*.wmf;*.emf;*.ico"},
    {PuzzleUnsuitable, "L’immagine non è adatta a un puzzle"},
    {MenuHalfScreen, "&Mezzo schermo"},
    {MenuMedia, "Ripro&duci un file..."},
    {MenuSavePicture, "Sal&va immagine..."},
    {MenuMonthPicture, "&Cambia l'immagine del mese..."},
    {MediaPrevious, "Indietro"},
    {MediaNext, "Avanti"},
    {MediaPlay, "Riproduci"},
    {MediaPause, "Pausa"},
    {MediaStop, "Ferma"},
    {MediaEject, "Espelli"},
    {MediaPosition, "Posizione"},
    {CdPlayer, "Lettore CD"},
    {MediaGone, "Il file «%1» di un promemoria non c'è più."},
    {MediaFailed, "Impossibile riprodurre il file «%1»."},
    {CdMissing, "Nell'unità non c'è un CD audio."},
    {CdFailed, "Impossibile riprodurre il CD."},
    {BitmapFilter, "Immagine (*.bmp)|*.bmp"},
    {PictureNotSaved, "Impossibile salvare l'immagine."},
    {PictureNotReplaced, "Impossibile sostituire l'immagine."},
    {NotAPicture, "Il file «%1» non è un'immagine che si possa mostrare."},
};
static_assert(IsWhole(kRows));

} // namespace

ProgramTextColumn ItalianTexts() {
    return kRows;
}

} // namespace kestrova
