// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/ProgramTextColumn.h"

namespace kestrova {

namespace {

using enum ProgramText;

constexpr ProgramTextRow kRows[] = {
    {DiaryBusy, "De agenda is in gebruik"},
    {YearPrompt, "Jaar?"},
    {DayFull, "Deze dag heeft al tien afspraken. Verwijder er één voordat u een andere toevoegt."},
    {SaveEdit, "De afspraak die u bewerkt, is nog niet opgeslagen."},
    {KeepEdit, "Opslaan"},
    {GoOnEditing, "Verder bewerken"},
    {ClockBehind,
     "De klok van de computer geeft het jaar %1 aan; dat ligt vóór het jaar van uw agenda.\n\nAls "
     "de klok verkeerd staat, behoud dan het jaar van de agenda en zet de klok gelijk: tot die "
     "tijd worden er geen meldingen gegeven. Als de klok goed staat, kan de agenda zich ernaar "
     "richten; een kopie van de agenda zoals die nu is, wordt bewaard."},
    {GoByTheClock, "De klok volgen"},
    {KeepTheYear, "Jaar van de agenda behouden"},
    {Retry, "Opnieuw proberen"},
    {CloseProgram, "Kestrova afsluiten"},
    {DiaryOutOfReach, "De map van deze agenda is niet bereikbaar. Er is nog niets opgeslagen."},

    {MenuFile, "&Bestand"},
    {MenuMonth, "&Maand"},
    {MenuWeekStart, "Begin van de &week"},
    {MenuLanguage, "&Taal"},
    {MenuThisMonth, "Huidige maand"},
    {MenuPreviousMonth, "Vorige maand"},
    {MenuNextMonth, "Volgende maand"},
    {MenuYear, "Jaar..."},
    {MenuFullScreen, "&Volledig scherm"},
    {MenuRepeatMode, "Video &herhalen"},
    {MenuSettings, "&Instellingen..."},
    {MenuManual, "&Handleiding"},
    {MenuAbout, "&Over Kestrova"},
    {MenuExit, "&Afsluiten"},
    {MenuDelete, "Afspraak &verwijderen"},
    {MenuDeleteAll, "&Alle gelijke verwijderen"},
    {MenuUndo, "Verwijderen &ongedaan maken"},
    {MenuNewEvent, "&Nieuwe afspraak"},
    {MenuAddNetUser, "Netwerkgebruiker &toevoegen..."},
    {MenuRemoveNetUser, "Netwerkgebruiker ver&wijderen"},
    {MenuCloseDay, "&Sluiten"},
    {AboutText, "Geïllustreerde kalender en persoonlijke agenda.\n\nVrije software onder de GNU "
                "General Public License, versie 3 of later."},
    {NoHelp, "De hulppagina is niet gevonden: %1"},

    {PreviousYear, "Vorig jaar"},
    {NextYear, "Volgend jaar"},
    {EventHour, "Uur"},
    {EventMinute, "Minuut"},
    {HideFromMonth, "Verbergen in de kalender"},
    {PictureOfMonth, "Afbeelding van de maand"},
    {MediaFilter,
     "Mediabestanden "
     "(*.mpg;*.avi;*.mov;*.wav;*.mp2;*.mp3)|*.mpg;*.mpeg;*.avi;*.mov;*.wav;*.mp2;*.mp3"},
    {WaveFilter, "*.wav|*.wav"},
    {ReminderService, "Meldingendienst van Kestrova."},
    {SpokenAt, "Om."},

    {MyDiary, "Mijn agenda"},
    {AddNetUser, "Gebruiker toevoegen"},
    {InputUserName, "Voer de gebruikersnaam in"},
    {NetUserRemoved, "Netwerkgebruiker %1 is verwijderd"},
    {NoDiaryThere, "Dit is geen agenda. Kies het bestand Data.dat in de map DiaryDat in de "
                   "programmamap van de andere gebruiker."},
    {NameTaken, "Er is al een agenda met de naam %1."},
    {MyDiaryStays, "‘Mijn agenda’ kan niet worden verwijderd."},
    {DiaryShown, "Getoonde agenda"},

    {TalkToMe, "Voorlezen"},
    {SpeechNotInstalled, "Spraak niet geïnstalleerd"},
    {NoteIsNoText, "Deze notitie bevat bytes die geen tekst zijn. De notitie blijft ongewijzigd."},
    {NoteTooLarge, "Deze notitie is te groot om hier te bewerken. De notitie blijft ongewijzigd."},
    {NoteWithoutEvent, "De afspraak bij deze notitie staat niet meer in de agenda. De tekst blijft "
                       "in het venster staan; kopieer de tekst voordat u het sluit."},
    {DiscardNote,
     "De nieuwe afspraak heeft een notitie. Wilt u die samen met de afspraak weggooien?"},
    {Discard, "Weggooien"},
    {HasNote, "Met notitie"},

    {SettingsTitle, "Instellingen"},
    {TestModem, "Modem testen"},
    {ModemFound, "Modem gevonden: %1"},
    {SpeechSample, "Dit is een test van de spraak"},
    {LanguageLabel, "Taal"},
    {Red, "Rood"},
    {Green, "Groen"},
    {Blue, "Blauw"},
    {ColourShown, "De kleur zoals die is ingesteld"},
    {TextToSpeak, "Voor te lezen tekst"},
    {UndoDefaults, "Zet alles terug op de standaardwaarden. Ctrl+Z maakt dit ongedaan."},
    {DesktopComment, "Geïllustreerde kalender en persoonlijke agenda"},
    {StartEntryFailed, "De automatische start kon niet worden ingesteld."},
    {CopyKeptIn, "Een kopie van uw oude agenda wordt bewaard in de map %1"},

    {LanguageEditor, "Taaleditor"},
    {LanguageName, "Naam van de taal"},
    {MonthsAndMenu, "Maanden en hun menu-items"},
    {DaysOfTheWeek, "Dagen van de week"},
    {TextsOfWindows, "Teksten"},
    {EnglishText, "Engels: %1"},
    {NameTheLanguage, "Geef de taal een naam voordat u die opslaat."},
    {ReplaceLanguage, "Er is al een taal met de naam %1. Wilt u die vervangen?"},
    {Replace, "Vervangen"},
    {SameItems, "Twee items van één lijst hebben dezelfde tekst, zodat de ene keuze niet van de "
                "andere te onderscheiden zou zijn: %1"},
    {LanguageNotSaved, "De taal kon niet worden opgeslagen."},
    {LanguageUnsaved, "De wijzigingen in deze taal zijn niet opgeslagen."},

    {StartHidden, "Verborgen wachten"},
    {StartHiddenTip, "De kalender wacht buiten beeld tot er een melding is of tot u hem start."},
    {OtherYear, "Deze agenda hoort bij het jaar %1. Ze kan worden getoond zodra het programma van "
                "de eigenaar haar naar dit jaar heeft gebracht."},

    {MenuGame, "&Spel"},
    {MenuGameStart, "&Schuifpuzzel"},
    {MenuGameJigSaw, "&Legpuzzel"},
    {MenuGameSize, "Aantal s&tukjes"},
    {MenuGamePicture, "&Afbeelding wijzigen"},
    {MenuGameQuit, "Spel st&oppen"},
    {PuzzleName, "Puzzel"},
    {PuzzleMoves, "Zetten: %1"},
    {PuzzleTime, "Tijd: %1"},
    {PuzzleSolved, "Opgelost!"},
    {JigSawKeys, "Sleep een stukje op een ander. Toetsen: pijlen, spatie om op te pakken en neer "
                 "te leggen, H toont de afbeelding."},
    {MovingKeys, "Klik op een stukje naast het gat. Toetsen: pijlen, H toont de afbeelding."},
    {PictureFilter, "Afbeeldingen|*.jpg;*.bmp;*.gif;*.wmf;*.emf;*.ico"},
    {PuzzleUnsuitable, "Deze afbeelding is niet geschikt voor een legpuzzel"},
    {MenuHalfScreen, "Hal&f scherm"},
    {MenuMedia, "Bestand afspe&len..."},
    {MenuSavePicture, "Afbeelding &opslaan..."},
    {MenuMonthPicture, "&Maandafbeelding wijzigen..."},
    {MediaPrevious, "Terug"},
    {MediaNext, "Vooruit"},
    {MediaPlay, "Afspelen"},
    {MediaPause, "Pauze"},
    {MediaStop, "Stoppen"},
    {MediaEject, "Uitwerpen"},
    {MediaPosition, "Positie"},
    {CdPlayer, "Cd-speler"},
    {MediaGone, "Het bestand ‘%1’ van een herinnering is er niet meer."},
    {MediaFailed, "Het bestand ‘%1’ kan niet worden afgespeeld."},
    {CdMissing, "Er zit geen audio-cd in het station."},
    {CdFailed, "De cd kan niet worden afgespeeld."},
    {BitmapFilter, "Afbeelding (*.bmp)|*.bmp"},
    {PictureNotSaved, "De afbeelding kon niet worden opgeslagen."},
    {PictureNotReplaced, "De afbeelding kon niet worden vervangen."},
    {NotAPicture, "Het bestand ‘%1’ is geen afbeelding die kan worden getoond."},
};
static_assert(IsWhole(kRows));

} // namespace

ProgramTextColumn DutchTexts() {
    return kRows;
}

} // namespace kestrova
