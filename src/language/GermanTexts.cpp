// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/ProgramTextColumn.h"

namespace kestrova {

namespace {

using enum ProgramText;

constexpr ProgramTextRow kRows[] = {
    {DiaryBusy, "Der Terminplaner wird gerade benutzt"},
    {YearPrompt, "Jahr?"},
    {DayFull,
     "Dieser Tag hat schon zehn Termine. Löschen Sie einen, bevor Sie einen weiteren hinzufügen."},
    {SaveEdit, "Der Termin, den Sie bearbeiten, ist noch nicht gespeichert."},
    {KeepEdit, "Speichern"},
    {GoOnEditing, "Weiter bearbeiten"},
    {ClockBehind,
     "Die Uhr des Computers zeigt das Jahr %1; das liegt vor dem Jahr Ihres Terminplaners.\n\nWenn "
     "die Uhr falsch geht, behalten Sie das Jahr des Terminplaners und stellen Sie die Uhr: Bis "
     "dahin gibt es keine Erinnerungen. Wenn die Uhr richtig geht, kann sich der Terminplaner nach "
     "ihr richten; eine Kopie seines jetzigen Standes wird aufbewahrt."},
    {GoByTheClock, "Nach der Uhr richten"},
    {KeepTheYear, "Jahr des Terminplaners behalten"},
    {Retry, "Erneut versuchen"},
    {CloseProgram, "Kestrova beenden"},
    {DiaryOutOfReach,
     "Der Ordner dieses Terminplaners ist nicht erreichbar. Es wurde noch nichts gespeichert."},

    {MenuFile, "&Datei"},
    {MenuMonth, "&Monat"},
    {MenuWeekStart, "&Wochenbeginn"},
    {MenuLanguage, "&Sprache"},
    {MenuThisMonth, "Aktueller Monat"},
    {MenuPreviousMonth, "Voriger Monat"},
    {MenuNextMonth, "Nächster Monat"},
    {MenuYear, "Jahr ..."},
    {MenuFullScreen, "&Vollbild"},
    {MenuRepeatMode, "Video &wiederholen"},
    {MenuSettings, "&Einstellungen ..."},
    {MenuManual, "&Handbuch"},
    {MenuAbout, "Ü&ber Kestrova"},
    {MenuExit, "&Beenden"},
    {MenuDelete, "Termin &löschen"},
    {MenuDeleteAll, "&Alle gleichen löschen"},
    {MenuUndo, "Löschen &rückgängig machen"},
    {MenuNewEvent, "&Neuer Termin"},
    {MenuAddNetUser, "Netzwerkbenutzer &hinzufügen ..."},
    {MenuRemoveNetUser, "Netzwerkbenutzer &entfernen"},
    {MenuCloseDay, "&Schließen"},
    {AboutText, "Bildkalender und persönlicher Terminplaner.\n\nFreie Software unter der GNU "
                "General Public License, Version 3 oder später."},
    {NoHelp, "Die Hilfeseite fehlt: %1"},

    {PreviousYear, "Voriges Jahr"},
    {NextYear, "Nächstes Jahr"},
    {EventHour, "Stunde"},
    {EventMinute, "Minute"},
    {HideFromMonth, "Im Kalender verbergen"},
    {PictureOfMonth, "Bild des Monats"},
    {MediaFilter,
     "Mediendateien "
     "(*.mpg;*.avi;*.mov;*.wav;*.mp2;*.mp3)|*.mpg;*.mpeg;*.avi;*.mov;*.wav;*.mp2;*.mp3"},
    {WaveFilter, "*.wav|*.wav"},
    {ReminderService, "Erinnerungsdienst von Kestrova."},
    {SpokenAt, "Um."},

    {MyDiary, "Mein Terminplaner"},
    {AddNetUser, "Benutzer hinzufügen"},
    {InputUserName, "Benutzernamen eingeben"},
    {NetUserRemoved, "Netzwerkbenutzer %1 wurde entfernt"},
    {NoDiaryThere, "Das ist kein Terminplaner. Wählen Sie die Datei Data.dat aus dem Ordner "
                   "DiaryDat im Programmordner des anderen Benutzers."},
    {NameTaken, "Es gibt schon einen Terminplaner namens %1."},
    {MyDiaryStays, "„Mein Terminplaner“ kann nicht entfernt werden."},
    {DiaryShown, "Angezeigter Terminplaner"},

    {TalkToMe, "Vorlesen"},
    {SpeechNotInstalled, "Sprachausgabe nicht installiert"},
    {NoteIsNoText, "Diese Notiz enthält Bytes, die kein Text sind. Sie bleibt, wie sie ist."},
    {NoteTooLarge,
     "Diese Notiz ist zu groß, um hier bearbeitet zu werden. Sie bleibt, wie sie ist."},
    {NoteWithoutEvent, "Der Termin zu dieser Notiz steht nicht mehr im Terminplaner. Der Text "
                       "bleibt im Fenster; kopieren Sie ihn, bevor Sie es schließen."},
    {DiscardNote,
     "Der neue Termin hat eine Notiz. Soll sie zusammen mit dem Termin verworfen werden?"},
    {Discard, "Verwerfen"},
    {HasNote, "Mit Notiz"},

    {SettingsTitle, "Einstellungen"},
    {TestModem, "Modem testen"},
    {ModemFound, "Modem gefunden: %1"},
    {SpeechSample, "Dies ist ein Test der Sprachausgabe"},
    {LanguageLabel, "Sprache"},
    {Red, "Rot"},
    {Green, "Grün"},
    {Blue, "Blau"},
    {ColourShown, "Die eingestellte Farbe"},
    {TextToSpeak, "Zu sprechender Text"},
    {UndoDefaults, "Setzt alles auf die Standardwerte zurück. Strg+Z macht das rückgängig."},
    {DesktopComment, "Bildkalender und persönlicher Terminplaner"},
    {StartEntryFailed, "Der Autostart-Eintrag konnte nicht geschrieben werden."},
    {CopyKeptIn, "Eine Kopie Ihres alten Terminplaners liegt im Ordner %1"},

    {LanguageEditor, "Spracheditor"},
    {LanguageName, "Name der Sprache"},
    {MonthsAndMenu, "Monate und ihre Menüeinträge"},
    {DaysOfTheWeek, "Wochentage"},
    {TextsOfWindows, "Texte"},
    {EnglishText, "Englisch: %1"},
    {NameTheLanguage, "Geben Sie der Sprache einen Namen, bevor Sie sie speichern."},
    {ReplaceLanguage, "Es gibt schon eine Sprache namens %1. Soll sie ersetzt werden?"},
    {Replace, "Ersetzen"},
    {SameItems, "Zwei Einträge einer Liste haben denselben Text, sodass sich eine Auswahl nicht "
                "von der anderen unterscheiden ließe: %1"},
    {LanguageNotSaved, "Die Sprache konnte nicht gespeichert werden."},
    {LanguageUnsaved, "Die Änderungen an dieser Sprache sind nicht gespeichert."},

    {StartHidden, "Verborgen warten"},
    {StartHiddenTip,
     "Der Kalender wartet unsichtbar, bis eine Erinnerung fällig ist oder Sie ihn starten."},
    {OtherYear, "Dieser Terminplaner gehört zum Jahr %1. Er lässt sich anzeigen, sobald das "
                "Programm seines Besitzers ihn in dieses Jahr gebracht hat."},

    {MenuGame, "S&piel"},
    {MenuGameStart, "&Schiebepuzzle"},
    {MenuGameJigSaw, "&Puzzle"},
    {MenuGameSize, "Anzahl der &Teile"},
    {MenuGamePicture, "&Bild wechseln"},
    {MenuGameQuit, "Spiel b&eenden"},
    {PuzzleName, "Puzzle"},
    {PuzzleMoves, "Züge: %1"},
    {PuzzleTime, "Zeit: %1"},
    {PuzzleSolved, "Geschafft!"},
    {JigSawKeys, "Ziehen Sie ein Teil auf ein anderes. Tasten: Pfeile, Leertaste zum Aufnehmen und "
                 "Ablegen, H zeigt das Bild."},
    {MovingKeys, "Klicken Sie auf ein Teil neben der Lücke. Tasten: Pfeile, H zeigt das Bild."},
    {PictureFilter, "Bilder|*.jpg;*.bmp;*.gif;*.wmf;*.emf;*.ico"},
    {PuzzleUnsuitable, "Dieses Bild eignet sich nicht für ein Puzzle"},
    {MenuHalfScreen, "&Halber Bildschirm"},
    {MenuMedia, "&Datei abspielen ..."},
    {MenuSavePicture, "Bild &speichern ..."},
    {MenuMonthPicture, "&Monatsbild ändern ..."},
    {MediaPrevious, "Zurück"},
    {MediaNext, "Vor"},
    {MediaPlay, "Wiedergabe"},
    {MediaPause, "Pause"},
    {MediaStop, "Stopp"},
    {MediaEject, "Auswerfen"},
    {MediaPosition, "Position"},
    {CdPlayer, "CD-Spieler"},
    {MediaGone, "Die Datei „%1“ einer Erinnerung ist nicht mehr da."},
    {MediaFailed, "Die Datei „%1“ kann nicht abgespielt werden."},
    {CdMissing, "Im Laufwerk liegt keine Audio-CD."},
    {CdFailed, "Die CD kann nicht abgespielt werden."},
    {BitmapFilter, "Bild (*.bmp)|*.bmp"},
    {PictureNotSaved, "Das Bild konnte nicht gespeichert werden."},
    {PictureNotReplaced, "Das Bild konnte nicht ersetzt werden."},
    {NotAPicture, "Die Datei „%1“ ist kein Bild, das sich anzeigen lässt."},
};
static_assert(IsWhole(kRows));

} // namespace

ProgramTextColumn GermanTexts() {
    return kRows;
}

} // namespace kestrova
