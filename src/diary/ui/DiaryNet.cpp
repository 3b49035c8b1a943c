// SPDX-License-Identifier: GPL-3.0-or-later
// The list of diaries on the day page: the user's own and those of others.
#include "diary/ui/Diary.h"

#include "language/ProgramTexts.h"
#include "language/Texts.h"
#include "platform/qt/QtText.h"
#include "text/Numbers.h"

#include <QScopedValueRollback>

#include <algorithm>

namespace kestrova {

namespace {

constexpr const char* kDiaryFilter = "Data.dat |*Data.dat;*data.dat;*DATA.DAT";

} // namespace

void Diary::DoNetUsers() {
    if (FillDiaries()) {
        DrawMainPage();
        hooks_.Changed();
    }
}

// Whether the diary shown has become another. Nobody is asked or told anything: this also happens
// while nobody is there, and again and again.
bool Diary::FillDiaries() {
    if (fillsDiaries_) {
        return false; // the list is being filled
    }
    const QScopedValueRollback<bool> guard(fillsDiaries_, true);
    gone_ = false;
    offered_ = rooms_.Shared.DoNetUsers();
    bool changed = false;
    if (!rooms_.Store.IsShared()) {
        NetUserName = kMyDiary; // the turn of the year brings it back, too
    }
    const bool offered = std::find(offered_.begin(), offered_.end(), NetUserName) != offered_.end();
    if (!offered || rooms_.Store.IsSpoilt()) {
        gone_ = IsEditing();
        // An own diary that is busy is tried again with the next look.
        changed = !gone_ &&
                  rooms_.Store.TryShow(rooms_.Shared.FolderOf(std::string(kMyDiary)).value_or(""));
        if (changed) {
            NetUserName = kMyDiary;
        } else if (!offered) {
            offered_.push_back(NetUserName); // it is shown still
        }
    }
    ShowDiaries();
    return changed;
}

// Items are known by their places: the first is the own diary, the last adds one.
void Diary::ShowDiaries() {
    CombNet->clear();
    for (std::size_t i = 0; i < offered_.size(); ++i) {
        CombNet->addItem(ToQt(i == 0 ? TextOf(rooms_.Texts, ProgramText::MyDiary) : offered_[i]));
    }
    CombNet->addItem(ToQt(TextOf(rooms_.Texts, ProgramText::AddNetUser)));
    const auto shown = std::find(offered_.begin(), offered_.end(), NetUserName);
    CombNet->setCurrentIndex(static_cast<int>(shown - offered_.begin()));
    MNU_Remove->setEnabled(NetUserName != kMyDiary);
}

void Diary::SwitchTo(const std::string& name) {
    const auto folder = rooms_.Shared.FolderOf(name);
    if (!folder) {
        DoNetUsers(); // another program has taken it off the register
        return;
    }
    rooms_.Store.GetData(*folder, rooms_.Dates.BaseYear);
    if (rooms_.Store.Folder() == *folder) {
        NetUserName = name;
    }
    ShowDiaries();
    DrawMainPage();
    hooks_.Changed();
}

void Diary::CombNet_Click(int index) {
    const bool adds = index == CombNet->count() - 1;
    const std::string name =
        adds || index < 0 ? NetUserName : offered_[static_cast<std::size_t>(index)];
    ShowDiaries(); // until the choice has been carried out
    if (adds) {
        MNU_New_Click();
    } else if (EndsEdit()) {
        SwitchTo(name);
    }
}

void Diary::Refuse(RegisterResult result, const std::string& name) {
    std::string title = rooms_.Texts.Text(texts::kProgramTitle);
    std::string text;
    switch (result) {
    case RegisterResult::Done: return;
    case RegisterResult::NoDiary: text = TextOf(rooms_.Texts, ProgramText::NoDiaryThere); break;
    case RegisterResult::NameTaken:
        text = TextOf(rooms_.Texts, ProgramText::NameTaken, name);
        break;
    case RegisterResult::MyDiaryStays:
        text = TextOf(rooms_.Texts, ProgramText::MyDiaryStays);
        break;
    case RegisterResult::NotSaved:
        title = rooms_.Texts.Text(texts::kMessengerTitle);
        text = rooms_.Texts.Text(texts::kFileHandlingError);
        break;
    }
    rooms_.Boxes.Show({title, text, DialogIcon::Critical});
}

void Diary::MNU_New_Click() {
    if (!EndsEdit()) {
        return;
    }
    const auto path = rooms_.Boxes.OpenFile(rooms_.Shared.FirstFolder(), kDiaryFilter);
    if (!path) {
        return;
    }
    if (!rooms_.Shared.IsDiary(*path)) {
        Refuse(RegisterResult::NoDiary, {});
        return;
    }
    const auto name =
        rooms_.Boxes.Input(rooms_.Texts.Text(texts::kDiaryTitle),
                           TextOf(rooms_.Texts, ProgramText::InputUserName), std::string());
    if (name && !Trim(*name).empty()) {
        const RegisterResult result = rooms_.Shared.Add(*path, *name);
        if (result != RegisterResult::Done) {
            Refuse(result, *name);
            return;
        }
    }
    if (rooms_.Store.IsShared()) {
        SwitchTo(std::string(kMyDiary));
    }
    DoNetUsers();
}

void Diary::MNU_Remove_Click() {
    if (!EndsEdit()) {
        return;
    }
    const std::string name = NetUserName;
    const RegisterResult result = rooms_.Shared.Remove(name);
    if (result != RegisterResult::Done) {
        Refuse(result, name);
        return;
    }
    rooms_.Boxes.Show({rooms_.Texts.Text(texts::kProgramTitle),
                       TextOf(rooms_.Texts, ProgramText::NetUserRemoved, name), DialogIcon::None});
    // It is no longer in the register, so the own diary comes back.
    DoNetUsers();
}

} // namespace kestrova
