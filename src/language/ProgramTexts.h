// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/StringTable.h"

#include <string>
#include <string_view>

namespace kestrova {

// Texts that the 306 entries of a language block have no room for: the block's layout is fixed, and
// language files that people have made must go on fitting. They are built in, in every language of
// the fixed list; a language that is not on it has the English ones. In menu captions "&" marks the
// access key; "%1" is the place of a value.
enum class ProgramText {
    // the diary
    DiaryBusy,
    YearPrompt,
    DayFull,
    SaveEdit,
    KeepEdit,
    GoOnEditing,
    ClockBehind,
    GoByTheClock,
    KeepTheYear,
    Retry,
    CloseProgram,
    DiaryOutOfReach,

    // menus
    MenuFile,
    MenuMonth,
    MenuWeekStart,
    MenuLanguage,
    MenuThisMonth,
    MenuPreviousMonth,
    MenuNextMonth,
    MenuYear,
    MenuFullScreen,
    MenuRepeatMode,
    MenuSettings,
    MenuManual,
    MenuAbout,
    MenuExit,
    MenuDelete,
    MenuDeleteAll,
    MenuUndo,
    MenuNewEvent,
    MenuSearch,
    MenuAddNetUser,
    MenuRemoveNetUser,
    MenuCloseDay,
    AboutText,
    NoHelp,

    // the windows of the month and of the day
    PreviousYear,
    NextYear,
    EventHour,
    EventMinute,
    HideFromMonth,
    SearchTitle,
    SearchPrompt,
    SearchAdvice,
    SearchFound,
    SearchNothing,
    SearchEmptyDiary,
    SearchReadingNotes,
    SearchNotesLeftOut,
    PictureOfMonth,
    MediaFilter,
    WaveFilter,
    Snooze,
    SnoozeMinutes,
    SnoozeOther,
    SnoozeAsk,
    NoticeShow,
    NoticeSnooze,
    ReminderService,
    SpokenAt,

    // diaries of other users
    MyDiary,
    AddNetUser,
    InputUserName,
    NetUserRemoved,
    NoDiaryThere,
    NameTaken,
    MyDiaryStays,
    DiaryShown,

    // notes
    TalkToMe,
    SpeechNotInstalled,
    NoteIsNoText,
    NoteTooLarge,
    NoteWithoutEvent,
    DiscardNote,
    Discard,
    HasNote,

    // the settings window
    SettingsTitle,
    TestModem,
    ModemFound,
    SpeechSample,
    LanguageLabel,
    Red,
    Green,
    Blue,
    ColourShown,
    TextToSpeak,
    UndoDefaults,
    DesktopComment,
    StartEntryFailed,
    CopyKeptIn,

    // the language editor
    LanguageEditor,
    LanguageName,
    MonthsAndMenu,
    DaysOfTheWeek,
    TextsOfWindows,
    EnglishText,
    NameTheLanguage,
    ReplaceLanguage,
    Replace,
    SameItems,
    LanguageNotSaved,
    LanguageUnsaved,

    StartHidden,
    StartHiddenTip,
    OtherYear,

    // the puzzle
    MenuGame,
    MenuGameStart,
    MenuGameJigSaw,
    MenuGameSize,
    MenuGamePicture,
    MenuGameQuit,
    MenuGameLarge,
    PuzzleName,
    PuzzleMoves,
    PuzzleTime,
    PuzzleSolved,
    JigSawKeys,
    MovingKeys,
    PictureFilter,
    PuzzleUnsuitable,

    // pictures, sounds, films and the CD
    MenuHalfScreen,
    MenuMedia,
    MenuSavePicture,
    MenuMonthPicture,
    MediaPrevious,
    MediaNext,
    MediaPlay,
    MediaPause,
    MediaStop,
    MediaEject,
    MediaPosition,
    CdPlayer,
    MediaGone,
    MediaFailed,
    CdMissing,
    CdFailed,
    BitmapFilter,
    PictureNotSaved,
    PictureNotReplaced,
    NotAPicture,

    // the telephone
    CallAsksToReceive,
    CallMessage,
    CallAccepted,
    CallGoodbye,
    CallModemFailure,
    CallInitialised,
    CallNoRing,
    CallRinging,
    CallNoContact,
    CallContact,
    CallNotReceived,
    CallGiven,
    CallNoGoodbye,
    CallSaidGoodbye,
    CallBeepsDone,
    CallStopped,
    StopCall,
    CallLog,

    // mail
    MenuTellFriend,
    MenuMailAccount,
    MailAccountTitle,
    MailAccountIntro,
    MailServerName,
    MailPort,
    MailEncryption,
    MailNoEncryption,
    MailPlainWarning,
    MailUser,
    MailPassword,
    MailPasswordKept,
    MailSenderName,
    MailSenderAddress,
    MailSend,
    MailSigningOn,
    MailSending,
    MailInvitationSent,
    MailNobody,
    MailBadAddress,
    MailBadServer,
    MailBadPort,
    MailNeedsPassword,
    MailKeyringMissing,
    MailBusy,
    MailNoLibrary,
    MailUnreachable,
    MailSilent,
    MailNotSecure,
    MailUntrusted,
    MailPasswordRefused,
    MailSenderRefused,
    MailRecipientRefused,
    MailRefused,
    MailRemindersWait,

    // speech
    CharacterLeftOut,
    CharacterUnreadable,
    CharacterTooLarge,
    CharacterForbidden,
    CharacterLacksLayer,
    SpeechPagesFailed,
    SpeechSetUpAdvice,

    Count
};
inline constexpr std::size_t kProgramTexts = static_cast<std::size_t>(ProgramText::Count);

// The text in the table's language.
[[nodiscard]] std::string TextOf(const StringTable& table, ProgramText text);

// The text with `value` in the place of its "%1".
[[nodiscard]] std::string TextOf(const StringTable& table, ProgramText text,
                                 std::string_view value);

} // namespace kestrova
