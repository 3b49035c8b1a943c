// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/StringTable.h"

namespace kestrova::texts {

// Names for the entries that code asks for; what windows show by themselves stands in the caption
// table. Runs of entries that fill a list are named by their first.

inline constexpr TextId kProgramTitle{TextGroup::Captions, 0};
inline constexpr TextId kMessengerTitle{TextGroup::Captions, 1};
inline constexpr TextId kDiaryTitle{TextGroup::Captions, 2};
inline constexpr TextId kPhoneTitle{TextGroup::Captions, 4};
inline constexpr TextId kPrintPreviewTitle{TextGroup::Captions, 6};

inline constexpr TextId kChimeTypes{TextGroup::Selectors, 0};
inline constexpr TextId kChimeIntervals{TextGroup::Selectors, 10};
inline constexpr TextId kModemPorts{TextGroup::Selectors, 20};
inline constexpr TextId kReminderKinds{TextGroup::Selectors, 30};
inline constexpr TextId kRepeatKinds{TextGroup::Selectors, 40};

inline constexpr TextId kChangeMonthPicture{TextGroup::Buttons, 1};
inline constexpr TextId kCancel{TextGroup::Buttons, 9};
inline constexpr TextId kSave{TextGroup::Buttons, 10};

inline constexpr TextId kAddLine{TextGroup::Labels, 0};
inline constexpr TextId kOn{TextGroup::Labels, 29};
inline constexpr TextId kOff{TextGroup::Labels, 30};

inline constexpr TextId kFullScreenTip{TextGroup::Tips, 35};

inline constexpr TextId kNoPrinter{TextGroup::Messages, 1};
inline constexpr TextId kDownloadSpeechParts{TextGroup::Messages, 3};
inline constexpr TextId kNoMonthlyAbove28{TextGroup::Messages, 4};
inline constexpr TextId kNoAnnualLeapDay{TextGroup::Messages, 5};
inline constexpr TextId kSaveFailed{TextGroup::Messages, 6};
inline constexpr TextId kFileHandlingError{TextGroup::Messages, 10};
inline constexpr TextId kInvalidNumber{TextGroup::Messages, 12};
inline constexpr TextId kNoModemList{TextGroup::Messages, 13};
inline constexpr TextId kNumbersToCall{TextGroup::Messages, 14};
inline constexpr TextId kCheckNumbers{TextGroup::Messages, 15};
inline constexpr TextId kNumbersCost{TextGroup::Messages, 16};
inline constexpr TextId kCdInactive{TextGroup::Messages, 19};
inline constexpr TextId kAtTheMoment{TextGroup::Messages, 20};
inline constexpr TextId kNoWaveSounds{TextGroup::Messages, 21};
inline constexpr TextId kNoCallModemDisabled{TextGroup::Messages, 22};
inline constexpr TextId kEnableModem{TextGroup::Messages, 23};
inline constexpr TextId kNoSpeech{TextGroup::Messages, 24};
inline constexpr TextId kDownloadSpeech{TextGroup::Messages, 25};
inline constexpr TextId kEnableSpeech{TextGroup::Messages, 26};
inline constexpr TextId kSettingsCorrupt{TextGroup::Messages, 30};
inline constexpr TextId kDiaryCorrupt{TextGroup::Messages, 31};
inline constexpr TextId kFilesReformatted{TextGroup::Messages, 32};
inline constexpr TextId kOnlyTwoYears{TextGroup::Messages, 33};
inline constexpr TextId kFillInBothBoxes{TextGroup::Messages, 50};

} // namespace kestrova::texts
