// SPDX-License-Identifier: GPL-3.0-or-later
// What repeating events cost: when one is made, and when a year ends.
#include "BoundedWork.h"
#include "FullDiary.h"

#include "diary/Repeats.h"
#include "diary/RollOver.h"

#include <memory>

namespace kestrova::bench {

namespace {

constexpr int kBaseYear = 2026;

// Times an edit of a diary, each time on a fresh copy, whose making and unmaking do not count.
void TimeEdit(benchmark::State& state, const DiaryTable& start,
              const std::function<void(EventList&)>& edit) {
    std::unique_ptr<DiaryTable> table;
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        table = std::make_unique<DiaryTable>(start);
        NotePlan notes;
        EventList events(*table, notes);
        state.ResumeTiming();
        edit(events);
        benchmark::ClobberMemory();
    }
}

void WriteForward(benchmark::State& state) {
    const StringTable texts = MsgDefaults();
    DiaryTable start;
    const SlotPlace source(1, 20, 0, 0);
    DiaryEvent& event = start.At(source);
    event.Hour = 8;
    event.Msg = "Feed the cat";
    event.Rpt = RepeatCaption(texts, RepeatKind::Daily);
    event.Rmd = ReminderCaption(texts, ReminderKind::Screen);
    TimeEdit(state, start, [&](EventList& events) { RepeatMsg(events, texts, kBaseYear, source); });
}

void RollOver(benchmark::State& state) {
    const StringTable texts = MsgDefaults();
    const DiaryTable start = FullDiary(texts);
    TimeEdit(state, start,
             [&](EventList& events) { BringForward(events, texts, kBaseYear, kBaseYear + 1); });
}

const AtMost kForward = AtMost::Seconds(1e-3, "write a daily event forward", WriteForward);
const AtMost kRollOver = AtMost::Seconds(60e-3, "roll a full diary over", RollOver);

} // namespace

} // namespace kestrova::bench
