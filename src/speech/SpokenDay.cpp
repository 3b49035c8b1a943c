// SPDX-License-Identifier: GPL-3.0-or-later
#include "speech/SpokenDay.h"

#include "language/ProgramTexts.h"
#include "text/Numbers.h"

namespace kestrova {

std::string SpokenDay(const DiaryTable& table, const DayPlace& day, const StringTable& texts) {
    std::string text;
    int number = 0;
    for (int slot = 1; slot <= kEventsPerDay; ++slot) {
        const DiaryEvent& event = table.At({slot, day});
        if (event.IsFree() || event.Hide != 0) {
            continue;
        }
        // A voice reads the hour as a number, the minutes as two digits after it.
        text += (text.empty() ? "" : "\r\n") +
                TextOf(texts, ProgramText::SpokenMessage, std::to_string(++number)) + "\r\n" +
                std::to_string(event.Hour) + ":" + TwoDigits(event.Minute) + ", " + event.Msg;
    }
    return text;
}

} // namespace kestrova
