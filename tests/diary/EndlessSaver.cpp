// SPDX-License-Identifier: GPL-3.0-or-later
// Saves one event after the other into the diary of the folder that it is given, and says after
// each one that it was accepted. It is there to be killed.
#include "diary/DiaryStore.h"
#include "diary/EventList.h"
#include "fakes/ScriptedDialogs.h"
#include "fakes/SetClock.h"
#include "platform/posix/PosixFileStore.h"

#include <cstdlib>
#include <iostream>
#include <string>

using namespace kestrova;

int main(int argc, char** argv) {
    if (argc != 3) {
        return 2;
    }
    const std::string folder = argv[1];
    PosixFileStore files;
    const SetClock clock;
    ScriptedDialogs dialogs;
    const StringTable texts = MsgDefaults();
    DiaryFiles diaryFiles(files, clock);
    FolderProbe probe(folder, [](const std::string& /*other*/) { return false; });
    DiaryStore store(diaryFiles, dialogs, texts, probe, [] { std::exit(3); });
    store.GetData(folder);
    if (!dialogs.Shown.empty()) {
        return 4; // a damaged diary, which is what the test is after
    }
    for (int number = std::atoi(argv[2]);; ++number) {
        const int day = number % 28 + 1;
        const int month = number / 28 % 12;
        const ChangeResult result = store.Change([&](EventList& events) {
            const DayPlace place{day, month, 0};
            if (events.IsFull(place)) {
                events.DeleteMsg({1, place});
                events.ReSortMsg(place);
            }
            const SlotPlace scratch(kScratchSlot, place);
            DiaryEvent event;
            event.Hour = static_cast<std::int16_t>(number % 24);
            event.Msg = "event " + std::to_string(number);
            event.Rpt = "Never";
            event.Rmd = "Screen";
            events.Table().At(scratch) = event;
            events.Notes().Put(scratch, "note of event " + std::to_string(number));
            events.SortMsg(place);
            return EditVerdict::Save;
        });
        if (result != ChangeResult::Saved) {
            return 5;
        }
        std::cout << number << std::endl;
    }
}
