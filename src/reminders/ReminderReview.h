// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/Selection.h"
#include "diary/DiaryStore.h"
#include "language/Kinds.h"
#include "mail/ReminderMail.h"
#include "media/MediaPanel.h"
#include "phone/PhoneCaller.h"
#include "platform/Beeper.h"
#include "platform/Clock.h"
#include "platform/EventLoop.h"
#include "settings/AppSettings.h"
#include "speech/Speaker.h"

#include <string>
#include <string_view>
#include <vector>

namespace kestrova {

// Why a pass runs.
enum class PassKind {
    Ordinary,
    FirstDraw, // before the month has been drawn for the first time: nothing is delivered
    Clearing   // the user has cleared the reminder window: what it showed has been delivered
};

// The line of an event in the reminder window: "09:05    Dentist".
[[nodiscard]] std::string ReminderLine(const DiaryEvent& event);

// How long the user can send the listed reminders away.
inline constexpr int kLongestSnooze = 24 * 60 - 1; // minutes

// Goes through today's events once a minute and delivers every reminder whose time has come. One
// that has been delivered is used up: its kind becomes None, in memory at once and in the file with
// the next save. One that could not be delivered stays due for the rest of the day.
class ReminderReview {
public:
    struct Rooms {
        DiaryStore& Store;
        const Selection& Dates;
        const StringTable& Texts;
        const AppSettings& Settings;
        Speaker& Speech;
        PhoneCaller& Phone;
        ReminderMail& Mail;
        MediaPanel& Media;
        EventLoop& Loop;
        Beeper& Bell;
    };

    explicit ReminderReview(const Rooms& rooms) : rooms_(rooms) {}

    // Reviews today's events. Deliveries may wait and handle events meanwhile; the review finds its
    // event again by what it holds. Returns the lines for the reminder window, in order.
    std::vector<std::string> Review(const WallTime& now, PassKind kind);

    // The reminders that the window shows are to come back in so many minutes, 1 to kLongestSnooze,
    // and at the latest in the last minute of the day, with which they end. Nothing is marked and
    // nothing saved: an event that is changed meanwhile is another, and a program that is started
    // anew knows of none. A clock that is set back brings them at once.
    void Snooze(const WallTime& now, int minutes);

    // The program is ending: a review that is under way delivers nothing more.
    void End() { ended_ = true; }

    // Whether a review has marked events of the diary shown that its file does not have marked.
    [[nodiscard]] bool HasChanges() const;

    // Writes what has been used up to the file of the diary shown, and re-sorts today. What cannot
    // be written now, or belongs to another diary, is written with a later call.
    ChangeResult Save(SaveMessages messages);

private:
    enum class Delivery { UsedUp, Pending };

    // An event of some day in the diary of some folder: another may be shown meanwhile.
    struct Known {
        std::string Folder;
        CalendarDate Date;
        DiaryEvent Event;

        bool operator==(const Known&) const = default;
    };

    struct Snoozed {
        Known What;
        int From = 0; // minutes since midnight
        int Until = 0;
    };

    [[nodiscard]] DayPlace Today() const;
    [[nodiscard]] CalendarDate TodaysDate() const;
    Delivery Deliver(const DiaryEvent& event, PassKind kind);
    Delivery Screen(const DiaryEvent& event, PassKind kind);
    Delivery Speak(const DiaryEvent& event, PassKind kind);
    bool Announce(const DiaryEvent& event);
    Delivery Call(const DiaryEvent& event, PassKind kind);
    bool CallNumbers(const DiaryEvent& event);
    void MarkUsedUp(const std::string& folder, const DiaryEvent& event);
    void ApplyMarks(DiaryTable& table) const;
    [[nodiscard]] bool IsSnoozed(const Known& what) const;
    void WakeSnoozed(int minute);
    std::vector<std::string> List();

    Rooms rooms_;
    bool ended_ = false;
    int speakRepeatCount_ = 0;  // SpeakRepeatCount
    int phoneRepeatCount_ = 0;  // PhoneRepeatCount
    std::vector<Known> shown_;  // what the reminder window shows
    std::vector<Known> listed_; // what the review under way has listed for it
    std::vector<Snoozed> snoozed_;
    std::vector<Known> usedUp_; // what the files do not have yet, as it was before
};

} // namespace kestrova
