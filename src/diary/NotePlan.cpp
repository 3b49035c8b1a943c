// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/NotePlan.h"

#include "diary/NoteName.h"

namespace kestrova {

namespace {

bool IsEmptyText(const NoteFate& fate) {
    const auto* text = std::get_if<NoteText>(&fate);
    return text != nullptr && text->Text->empty();
}

} // namespace

NoteFate NotePlan::Fate(const SlotPlace& at) const {
    if (NoNotes()) {
        return NoteGone{};
    }
    std::string name = GetFile(at);
    if (const auto planned = planned_.find(name); planned != planned_.end()) {
        return planned->second;
    }
    if (existing_.contains(name)) {
        return NoteFrom{std::move(name)};
    }
    return NoteGone{};
}

bool NotePlan::Has(const SlotPlace& at) const {
    return !std::holds_alternative<NoteGone>(Fate(at));
}

void NotePlan::Move(const SlotPlace& from, const SlotPlace& to) {
    if (NoNotes() || from == to) {
        return;
    }
    planned_[GetFile(to)] = Fate(from);
    planned_[GetFile(from)] = NoteGone{};
}

void NotePlan::Copy(const SlotPlace& from, const SlotPlace& to) {
    if (NoNotes() || from == to) {
        return;
    }
    NoteFate fate = Fate(from);
    if (IsEmptyText(fate)) {
        fate = NoteGone{};
    } else if (auto* source = std::get_if<NoteFrom>(&fate)) {
        source->Copied = true;
    }
    planned_[GetFile(to)] = std::move(fate);
}

void NotePlan::Remove(const SlotPlace& at) {
    if (!NoNotes()) {
        planned_[GetFile(at)] = NoteGone{};
    }
}

void NotePlan::Put(const SlotPlace& at, std::string text) {
    planned_[GetFile(at)] = NoteText{std::move(text)};
}

void NotePlan::Put(const SlotPlace& at, std::shared_ptr<const std::string> text) {
    planned_[GetFile(at)] = NoteText{std::move(text)};
}

std::map<std::string, NoteFate> NotePlan::Changes() const {
    std::map<std::string, NoteFate> changes;
    for (const auto& [name, fate] : planned_) {
        const NoteFate before =
            existing_.contains(name) ? NoteFate(NoteFrom{name}) : NoteFate(NoteGone{});
        if (fate != before) {
            changes.emplace(name, fate);
        }
    }
    return changes;
}

} // namespace kestrova
