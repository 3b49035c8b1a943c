// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/Selection.h"
#include "diary/DiaryStore.h"
#include "media/PictureTable.h"
#include "platform/Clock.h"
#include "settings/AppSettings.h"
#include "speech/Speaker.h"

#include <QTimer>

#include <functional>
#include <string>

namespace kestrova {

// What the main window has read aloud: the time, the clipboard, a date's events, the text of the
// month's picture. Each only where the settings say so.
class MonthVoice {
public:
    struct Rooms {
        const Selection& Dates;
        const StringTable& Texts;
        const AppSettings& Settings;
        const DiaryStore& Store;
        const PictureTable& Pictures;
        const FileStore& Files;
        const Clock& Time;
        Speaker& Speech;
    };

    explicit MonthVoice(const Rooms& rooms);

    // The time and today's date; `month` is the title of the month on show.
    void SayTime(const std::string& month);

    void SayClipboard();

    // A date's events, unless a second click follows, which opens the day.
    void SayDaySoon(int day);

    // The text of the picture on show, once the user has stopped turning pages.
    void SayPictureSoon();

    // What waits is not said.
    void SayNothing() { wait_.stop(); }

private:
    void SayDay(int day);
    void SayPicture();
    void SayAfter(int milliseconds, std::function<void()> say);

    Rooms rooms_;
    QTimer wait_;
    std::function<void()> waiting_;
    bool saysPicture_ = false;
};

} // namespace kestrova
