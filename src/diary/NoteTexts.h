// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/FileStore.h"
#include "text/Folding.h"

#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <stop_token>
#include <string>
#include <utility>

namespace kestrova {

// A note to be searched: its text, lines parted by '\n', and the same folded.
struct SearchedNote {
    std::string Text;
    std::string Folded;

    SearchedNote() = default;
    explicit SearchedNote(std::string text) : Text(std::move(text)), Folded(Fold(Text)) {}
};

// The notes of a diary.
struct NoteTexts {
    std::map<std::string, SearchedNote> Texts; // by the name that GetFile gives
    bool Complete = true; // no note was left out: unreadable, no text, or beyond the limits
};

// How much is read: what people write is far less, and it is all held in memory.
struct NoteLimits {
    std::size_t Each = std::size_t{1} << 20U; // bytes
    std::size_t All = std::size_t{16} << 20U;
};

// Reads those of these notes that are there and hold anything. Until it is stopped.
[[nodiscard]] NoteTexts ReadNoteTexts(const FileStore& files, const std::string& diaryFolder,
                                      const std::set<std::string>& names,
                                      const std::stop_token& stop = {},
                                      const NoteLimits& limits = {});

// Reads notes in a thread of its own: there may be thousands of them, or a disc that is asleep, or
// a server that has gone. Whoever does not want to wait any more lets it go.
class NoteReading {
public:
    // May take for ever. It is called from another thread, also when this object has gone, so it
    // must own everything that it needs.
    using Read = std::function<NoteTexts(const std::stop_token& stop)>;

    explicit NoteReading(Read read);
    ~NoteReading() { stop_.request_stop(); }
    NoteReading(const NoteReading&) = delete;
    NoteReading& operator=(const NoteReading&) = delete;

    // What has been read; nothing while it is still being read, or when it has been taken already.
    [[nodiscard]] std::optional<NoteTexts> Take();

private:
    struct Slip;

    std::stop_source stop_;
    std::shared_ptr<Slip> slip_; // shared with the thread, which may outlive this object
};

} // namespace kestrova
