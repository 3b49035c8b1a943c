// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ui/MonthVoice.h"

#include "platform/qt/QtText.h"
#include "settings/ListChoices.h"
#include "speech/SpokenDay.h"
#include "text/Encoding.h"
#include "text/Numbers.h"

#include <QApplication>
#include <QClipboard>

#include <utility>

namespace kestrova {

namespace {

constexpr int kPageTurning = 700;           // milliseconds
constexpr std::size_t kLongestText = 65536; // of a picture, bytes: an hour of words

} // namespace

MonthVoice::MonthVoice(const Rooms& rooms) : rooms_(rooms) {
    wait_.setSingleShot(true);
    QObject::connect(&wait_, &QTimer::timeout, &wait_, [this] { waiting_(); });
}

void MonthVoice::SayTime(const std::string& month) {
    if (ChimeTypeOf(rooms_.Settings, rooms_.Texts) != ChimeType::Speech) {
        return;
    }
    const WallTime now = rooms_.Time.Now();
    rooms_.Speech.TellTime(rooms_.Settings.Greeting + ". " + TwoDigits(now.Hour) + ":" +
                               TwoDigits(now.Minute) + ". On. " +
                               std::to_string(rooms_.Dates.TodayDay) + ". " + month + ". " +
                               rooms_.Settings.Farewell,
                           AfterSpeaking::Hide);
}

void MonthVoice::SayClipboard() {
    const QString text = QApplication::clipboard()->text();
    if (rooms_.Settings.SpeakWeekDay != 0 && !text.isEmpty()) {
        rooms_.Speech.Talk(FromQt(text), AfterSpeaking::Hide);
    }
}

void MonthVoice::SayDaySoon(int day) {
    if (rooms_.Settings.SpeakDate != 0) {
        SayAfter(QApplication::doubleClickInterval(), [this, day] { SayDay(day); });
    }
}

void MonthVoice::SayPictureSoon() {
    SayNothing();
    if (saysPicture_) {
        rooms_.Speech.SetStopSpeaking(true); // that page has been turned
    }
    if (rooms_.Settings.SpeakPicture != 0) {
        SayAfter(kPageTurning, [this] { SayPicture(); });
    }
}

void MonthVoice::SayDay(int day) {
    if (const auto year = rooms_.Dates.PageYearIndex()) {
        const std::string text =
            SpokenDay(rooms_.Store.Table(), {day, rooms_.Dates.PageMonth, *year}, rooms_.Texts);
        if (!text.empty()) {
            rooms_.Speech.Talk(text, AfterSpeaking::Hide);
        }
    }
}

// A month without a text, or with one that cannot be read, is passed over: nobody has asked for
// more than the picture.
void MonthVoice::SayPicture() {
    const auto month = static_cast<std::size_t>(rooms_.Dates.PageMonth);
    const std::string& path = rooms_.Pictures.MonthSpeech[month];
    if (path.empty()) {
        return;
    }
    if (const auto bytes = rooms_.Files.Read(path, kLongestText)) {
        const bool said = std::exchange(saysPicture_, true); // the next page may come meanwhile
        rooms_.Speech.Talk(AsUtf8(bytes.Value()), AfterSpeaking::Hide);
        saysPicture_ = said;
    }
}

void MonthVoice::SayAfter(int milliseconds, std::function<void()> say) {
    waiting_ = std::move(say);
    wait_.start(milliseconds);
}

} // namespace kestrova
