// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/ProgramTextColumn.h"

namespace kestrova {

namespace {

using enum ProgramText;

constexpr ProgramTextRow kRows[] = {
    {DiaryBusy, "Diary Busy"},
    {YearPrompt, "Year ?"},
    {DayFull, "This day holds ten events already. Delete one before adding another."},
    {SaveEdit, "The event being edited has not been saved."},
    {KeepEdit, "Save It"},
    {GoOnEditing, "Go On Editing"},
    {ClockBehind,
     "The computer's clock shows the year %1, which is before the year of your diary.\n\nIf the "
     "clock is wrong, keep the diary's year and set the clock: until then no reminders are given. "
     "If the clock is right, the diary can go by it; a copy of it as it is now is kept."},
    {GoByTheClock, "Go by the Clock"},
    {KeepTheYear, "Keep the Diary's Year"},
    {Retry, "Try Again"},
    {CloseProgram, "Close Kestrova"},
    {DiaryOutOfReach, "The folder of this diary cannot be reached. Nothing has been saved yet."},

    {MenuFile, "&File"},
    {MenuMonth, "&Month"},
    {MenuWeekStart, "&Week Start"},
    {MenuLanguage, "&Language"},
    {MenuThisMonth, "Current Month"},
    {MenuPreviousMonth, "Previous Month"},
    {MenuNextMonth, "Next Month"},
    {MenuYear, "Year ..."},
    {MenuFullScreen, "&Full Screen"},
    {MenuRepeatMode, "&Repeat Mode"},
    {MenuSettings, "&Settings ..."},
    {MenuManual, "&Manual"},
    {MenuAbout, "&About"},
    {MenuExit, "E&xit"},
    {MenuDelete, "&Delete Event"},
    {MenuDeleteAll, "Delete &All Alike"},
    {MenuUndo, "&Undo Delete"},
    {MenuNewEvent, "&New Event"},
    {MenuAddNetUser, "Add Net U&ser ..."},
    {MenuRemoveNetUser, "&Remove Net User"},
    {MenuCloseDay, "E&xit"},
    {AboutText, "Picture calendar and personal diary.\n\nFree software under the GNU General "
                "Public License, version 3 or later."},
    {NoHelp, "The help page cannot be found: %1"},

    {PreviousYear, "Previous year"},
    {NextYear, "Next year"},
    {EventHour, "Hour"},
    {EventMinute, "Minute"},
    {HideFromMonth, "Hide on the calendar"},
    {PictureOfMonth, "Picture of the month"},
    {MediaFilter, "Media Files (*.mpg;*.avi;*.mov;*.wav;*.mp2;*.mp3)|"
                  "*.mpg;*.mpeg;*.avi;*.mov;*.wav;*.mp2;*.mp3"},
    {WaveFilter, "*.wav|*.wav"},
    {ReminderService, "Messenger Reminder Service."},
    {SpokenAt, "At."},

    {MyDiary, "My Diary"},
    {AddNetUser, "Add Net User"},
    {InputUserName, "Input User Name"},
    {NetUserRemoved, "Net User %1 Removed"},
    {NoDiaryThere,
     "This is not a diary. Choose the file Data.dat in the folder DiaryDat of the other "
     "user's program folder."},
    {NameTaken, "A diary named %1 already exists."},
    {MyDiaryStays, "My Diary cannot be removed."},
    {DiaryShown, "Diary shown"},

    {TalkToMe, "Talk To Me"},
    {SpeechNotInstalled, "Speech Not Installed"},
    {NoteIsNoText, "This note contains bytes that are not text. It is left unchanged."},
    {NoteTooLarge, "This note is too large to be edited here. It is left unchanged."},
    {NoteWithoutEvent, "The event of this note is no longer in the diary. The text stays in the "
                       "window; copy it before you close it."},
    {DiscardNote, "The new event has a note. Discard it together with the event?"},
    {Discard, "Discard"},
    {HasNote, "Has a note"},

    {SettingsTitle, "Settings"},
    {TestModem, "Test Modem"},
    {ModemFound, "Modem found: %1"},
    {SpeechSample, "Testing Text To Speech System"},
    {LanguageLabel, "Language"},
    {Red, "Red"},
    {Green, "Green"},
    {Blue, "Blue"},
    {ColourShown, "The colour as it is set"},
    {TextToSpeak, "Text to speak"},
    {UndoDefaults, "Restores all default settings. Ctrl+Z undoes this."},
    {DesktopComment, "Picture calendar and personal diary"},
    {StartEntryFailed, "The start-up entry could not be written."},
    {CopyKeptIn, "A copy of your old diary is kept in the folder %1"},

    {LanguageEditor, "Language Editor"},
    {LanguageName, "Name of the language"},
    {MonthsAndMenu, "Months and their menu entries"},
    {DaysOfTheWeek, "Days of the week"},
    {TextsOfWindows, "Texts"},
    {EnglishText, "English: %1"},
    {NameTheLanguage, "Give the language a name before saving it."},
    {ReplaceLanguage, "A language named %1 already exists. Replace it?"},
    {Replace, "Replace"},
    {SameItems, "Two items in one list have the same text, so one choice could not be told from "
                "the other: %1"},
    {LanguageNotSaved, "The language could not be saved."},
    {LanguageUnsaved, "The changes to this language have not been saved."},

    {StartHidden, "Wait Hidden"},
    {StartHiddenTip, "The calendar waits out of sight until a reminder is due or you start it."},
    {OtherYear, "This diary belongs to the year %1. It can be shown when its owner's program has "
                "brought it to this year."},

    {MenuGame, "&Game"},
    {MenuGameStart, "&Start Game"},
    {MenuGameJigSaw, "&Jig Saw Puzzle"},
    {MenuGameSize, "&Puzzle Size"},
    {MenuGamePicture, "&Change Picture"},
    {MenuGameQuit, "&Quit Game"},
    {PuzzleName, "Puzzle"},
    {PuzzleMoves, "Moves: %1"},
    {PuzzleTime, "Time: %1"},
    {PuzzleSolved, "Solved!"},
    {JigSawKeys, "Drag a piece onto another. Keys: arrows, Space to pick up and put down, H shows "
                 "the picture."},
    {MovingKeys, "Click a piece beside the gap. Keys: arrows, H shows the picture."},
    {PictureFilter, "Pictures|*.jpg;*.bmp;*.gif;*.wmf;*.emf;*.ico"},
    {PuzzleUnsuitable, "Picture Not Suitable for Jig Saw Puzzle"},
    {MenuHalfScreen, "&Half Screen"},
    {MenuMedia, "&Play a File..."},
    {MenuSavePicture, "Save Pictue"},
    {MenuMonthPicture, "&Change Monthly Picture"},
    {MediaPrevious, "Back"},
    {MediaNext, "Forward"},
    {MediaPlay, "Play"},
    {MediaPause, "Pause"},
    {MediaStop, "Stop"},
    {MediaEject, "Eject"},
    {MediaPosition, "Position"},
    {CdPlayer, "CD player"},
    {MediaGone, "The file \"%1\" of a reminder is no longer there."},
    {MediaFailed, "The file \"%1\" cannot be played."},
    {CdMissing, "There is no audio CD in the drive."},
    {CdFailed, "The CD cannot be played."},
    {BitmapFilter, "Media Image (*.bmp)|*.bmp"},
    {PictureNotSaved, "The picture could not be saved."},
    {PictureNotReplaced, "The picture could not be replaced."},
    {NotAPicture, "The file \"%1\" is not a picture that can be shown."},
};
static_assert(IsWhole(kRows));

} // namespace

ProgramTextColumn EnglishTexts() {
    return kRows;
}

} // namespace kestrova
