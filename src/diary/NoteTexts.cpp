// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/NoteTexts.h"

#include "diary/DiaryFiles.h"
#include "diary/EventNote.h"

#include <mutex>
#include <system_error>
#include <thread>

namespace kestrova {

NoteTexts ReadNoteTexts(const FileStore& files, const std::string& diaryFolder,
                        const std::set<std::string>& names, const std::stop_token& stop,
                        const NoteLimits& limits) {
    NoteTexts notes;
    const std::string folder = NoteFolder(files, diaryFolder);
    std::size_t size = 0;
    for (const auto& [name, variants] : NoteFiles(files, folder)) {
        if (stop.stop_requested()) {
            break;
        }
        if (!names.contains(name)) {
            continue;
        }
        const auto bytes = files.Read(folder + variants.front(), limits.Each);
        auto text = bytes ? NoteTextOf(bytes.Value()) : std::nullopt;
        // One that has been deleted since the folder was listed is none.
        const bool gone = !bytes && bytes.Failure().Code == ErrorCode::NotFound;
        if (!text || size + text->size() > limits.All) {
            notes.Complete = notes.Complete && gone;
            continue;
        }
        size += text->size();
        if (!text->empty()) {
            notes.Texts.emplace(name, SearchedNote(std::move(*text)));
        }
    }
    return notes;
}

struct NoteReading::Slip {
    std::mutex Guard;
    std::optional<NoteTexts> Notes;

    void Give(NoteTexts notes) {
        const std::lock_guard lock(Guard);
        Notes = std::move(notes);
    }
};

NoteReading::NoteReading(Read read) : slip_(std::make_shared<Slip>()) {
    try {
        std::thread([slip = slip_, stop = stop_.get_token(), read = std::move(read)] {
            slip->Give(read(stop));
        }).detach();
    } catch (const std::system_error&) {
        // The machine has no room for another thread: no note is read, and whoever asks is told.
        slip_->Give({{}, false});
    }
}

std::optional<NoteTexts> NoteReading::Take() {
    const std::lock_guard lock(slip_->Guard);
    return std::exchange(slip_->Notes, std::nullopt);
}

} // namespace kestrova
