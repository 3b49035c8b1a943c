// SPDX-License-Identifier: GPL-3.0-or-later
// What a key stroke costs in the search through the diary.
#include "BoundedWork.h"
#include "FullDiary.h"

#include "diary/DiarySearch.h"
#include "diary/NoteName.h"

#include <array>

namespace kestrova::bench {

namespace {

// Words as they grow under the fingers: such as every second event has, such as one has, such as
// none has although many begin alike.
constexpr std::array<std::string_view, 3> kTyped = {"meeting hall", "zoé andré 48", "meerkat"};

// A note of about a kilobyte, in which nothing is found before its end.
std::string Note() {
    std::string note;
    while (note.size() < 1024) {
        note += "The minutes of the last meeting are in the blue folder beside the door.\n";
    }
    return note;
}

void Type(benchmark::State& state, const DiarySearch& search) {
    std::size_t text = 0;
    std::size_t length = 0;
    for ([[maybe_unused]] auto _ : state) {
        if (++length > kTyped[text].size()) {
            length = 1;
            text = (text + 1) % kTyped.size();
        }
        benchmark::DoNotOptimize(search.Find(DiarySearch::WordsOf(kTyped[text].substr(0, length))));
    }
}

void FindInMessages(benchmark::State& state) {
    Type(state, DiarySearch(FullDiary(MsgDefaults()), 2026));
}

void FindInNotes(benchmark::State& state) {
    DiarySearch search(FullDiary(MsgDefaults()), 2026);
    NoteTexts notes;
    for (const std::string& name : search.NoteNames()) {
        notes.Texts[name] = SearchedNote(Note());
    }
    search.TakeNotes(std::move(notes));
    Type(state, search);
}

void TakeIn(benchmark::State& state) {
    const DiaryTable table = FullDiary(MsgDefaults());
    for ([[maybe_unused]] auto _ : state) {
        const DiarySearch search(table, 2026);
        benchmark::DoNotOptimize(search.IsEmpty());
    }
}

const AtMost kMessages =
    AtMost::Seconds(1e-3, "find in the messages of a full diary, a key stroke", FindInMessages);
const AtMost kNotes =
    AtMost::Seconds(5e-3, "find in its messages and 7 MB of notes, a key stroke", FindInNotes);
const AtMost kTakeIn = AtMost::Seconds(10e-3, "take in a full diary to be searched", TakeIn);

} // namespace

} // namespace kestrova::bench
