// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diary/DiaryTable.h"

#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <variant>

namespace kestrova {

// What becomes of a note file when a plan is carried out.
struct NoteGone {
    bool operator==(const NoteGone&) const = default;
};
struct NoteFrom {
    std::string Name; // the content that the file of this name has before the plan is carried out
    bool Copied = false; // a second copy, not worth a file when the content turns out to be empty
    bool operator==(const NoteFrom&) const = default;
};
struct NoteText {
    NoteText() = default;
    explicit NoteText(std::string text)
        : Text(std::make_shared<const std::string>(std::move(text))) {}
    explicit NoteText(std::shared_ptr<const std::string> text) : Text(std::move(text)) {}

    // This content, which all copies of the note share: a repeated event has hundreds.
    std::shared_ptr<const std::string> Text = std::make_shared<const std::string>();

    bool operator==(const NoteText& other) const { return *Text == *other.Text; }
};
using NoteFate = std::variant<NoteGone, NoteFrom, NoteText>;

// Notes follow their events from slot to slot. While events are moved in memory, nothing on the
// disc changes: the plan gathers what each note file is to hold in the end, and whoever saves the
// diary carries it out together with it.
class NotePlan {
public:
    // `existing` are the names of the note files that are there now.
    explicit NotePlan(std::set<std::string> existing = {}) : existing_(std::move(existing)) {}

    // The note goes with its event; one that stood at the target is replaced. No note at `from`
    // leaves none at `to`.
    void Move(const SlotPlace& from, const SlotPlace& to);

    // Both places have the note afterwards. An empty note is not worth a second file.
    void Copy(const SlotPlace& from, const SlotPlace& to);

    void Remove(const SlotPlace& at);

    // A note with this text.
    void Put(const SlotPlace& at, std::string text);
    void Put(const SlotPlace& at, std::shared_ptr<const std::string> text);

    [[nodiscard]] bool Has(const SlotPlace& at) const;

    // What stands at a place as the plan goes so far.
    [[nodiscard]] NoteFate Fate(const SlotPlace& at) const;

    // The files that end up other than they are, by name.
    [[nodiscard]] std::map<std::string, NoteFate> Changes() const;

private:
    [[nodiscard]] bool NoNotes() const { return existing_.empty() && planned_.empty(); }

    std::set<std::string> existing_;
    std::map<std::string, NoteFate> planned_;
};

} // namespace kestrova
