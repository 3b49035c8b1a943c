// SPDX-License-Identifier: GPL-3.0-or-later
#include "FullDiary.h"

#include "language/Kinds.h"

namespace kestrova::bench {

DiaryTable FullDiary(const StringTable& texts) {
    constexpr std::array kRepeats = {RepeatKind::Never, RepeatKind::Daily, RepeatKind::Weekly,
                                     RepeatKind::Monthly, RepeatKind::Annually};
    constexpr std::array kReminders = {ReminderKind::Screen, ReminderKind::Phone,
                                       ReminderKind::Email};
    DiaryTable table;
    std::size_t number = 0;
    EachStoredSlot([&](const SlotPlace& place) {
        DiaryEvent& event = table.At(place);
        event.Hour = static_cast<std::int16_t>(8 + place.Slot);
        event.Minute = static_cast<std::int16_t>(number % 60);
        // One text in eight is not plain ASCII.
        event.Msg =
            (number % 8 == 0 ? "Déjeuner chez Zoë et André, nº " : "Meeting in the town hall, ") +
            std::to_string(number);
        event.Rpt = RepeatCaption(texts, kRepeats[number % kRepeats.size()]);
        event.Rmd = ReminderCaption(texts, kReminders[number % kReminders.size()]);
        event.Extra = {"+44 1632 960" + std::to_string(100 + number % 900),
                       "garden.club@example.org", "/home/somebody/Music/A quiet reminder.wav",
                       "15"};
        event.Hide = static_cast<std::int16_t>(number % 2);
        ++number;
    });
    return table;
}

} // namespace kestrova::bench
