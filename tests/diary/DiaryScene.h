// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diary/DiaryStore.h"
#include "diary/NoteName.h"
#include "fakes/MemoryFileStore.h"
#include "fakes/ScriptedDialogs.h"
#include "fakes/SetClock.h"
#include "language/Kinds.h"

#include <atomic>
#include <memory>
#include <string>

namespace kestrova {

inline constexpr const char* kFolder = "/home/me/";
inline constexpr const char* kDataPath = "/home/me/DiaryDat/Data.dat";
inline constexpr const char* kBobsFolder = "/net/bob/";
inline constexpr const char* kBobsPath = "/net/bob/DiaryDat/Data.dat";

inline DiaryEvent MakeEvent(int hour, int minute, const std::string& msg,
                            const std::string& rpt = "Never", const std::string& rmd = "Screen") {
    DiaryEvent event;
    event.Hour = static_cast<std::int16_t>(hour);
    event.Minute = static_cast<std::int16_t>(minute);
    event.Msg = msg;
    event.Rpt = rpt;
    event.Rmd = rmd;
    return event;
}

// A diary in memory with its store, empty and saved. The folders of others answer as long as the
// network works.
struct DiaryScene {
    MemoryFileStore Files;
    SetClock Clock;
    ScriptedDialogs Boxes;
    StringTable Texts = MsgDefaults();
    DiaryFiles OnDisc{Files, Clock};
    int Stops = 0;
    std::shared_ptr<std::atomic<bool>> Network = std::make_shared<std::atomic<bool>>(true);
    FolderProbe Probe{
        kFolder, [network = Network](const std::string& /*folder*/) { return network->load(); },
        std::chrono::seconds(20)};
    DiaryStore Store{OnDisc, Boxes, Texts, Probe, [this] { ++Stops; }};

    DiaryScene() {
        Files.Put(kDataPath, WriteDiary(DiaryTable()));
        Store.GetData(kFolder);
    }

    // Another program writes these events into slots 1, 2, ... of a day.
    void WriteFromOutside(const DayPlace& day, const std::vector<DiaryEvent>& events,
                          const char* path = kDataPath) {
        DiaryTable table = OnFile(path);
        for (int slot = 1; slot <= kEventsPerDay; ++slot) {
            const auto i = static_cast<std::size_t>(slot - 1);
            table.At({slot, day}) = i < events.size() ? events[i] : DiaryEvent{};
        }
        Files.Put(path, WriteDiary(table));
    }

    [[nodiscard]] DiaryTable OnFile(const char* path = kDataPath) const {
        DiaryTable table;
        const auto bytes = Files.Content(path);
        const auto read = ReadDiary(bytes.value_or(""), table);
        return read ? table : DiaryTable();
    }

    [[nodiscard]] std::string NotePath(const SlotPlace& place) const {
        return NoteFolder(Files, kFolder) + GetFile(place);
    }

    // Puts an event with a note into a day.
    ChangeResult Insert(const DayPlace& day, const DiaryEvent& event) {
        return Store.Change([&](EventList& events) {
            events.Table().At({kScratchSlot, day}) = event;
            events.SortMsg(day);
            return EditVerdict::Save;
        });
    }

    [[nodiscard]] std::optional<std::string> FindPathWith(const std::string& mark) const {
        for (const std::string& path : Files.Paths()) {
            if (path.find(mark) != std::string::npos) {
                return path;
            }
        }
        return std::nullopt;
    }
};

// The messages of a day in slot order, "-" for a free slot before the last event.
inline std::string Messages(const DiaryTable& table, const DayPlace& day) {
    std::string all;
    std::string gap;
    for (int slot = 1; slot <= kEventsPerDay; ++slot) {
        const DiaryEvent& event = table.At({slot, day});
        if (event.IsFree()) {
            gap += "-";
        } else {
            all += gap + (all.empty() ? "" : " ") + event.Msg;
            gap.clear();
        }
    }
    return all;
}

} // namespace kestrova
