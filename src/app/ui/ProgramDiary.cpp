// SPDX-License-Identifier: GPL-3.0-or-later
// The diary's windows: the day page, and the search that leads to it.
#include "app/ui/Program.h"

#include "language/Texts.h"

namespace kestrova {

void Program::OpenDiary(int day) {
    dates_.PageDay = day;
    if (!dates_.PageYearIndex()) {
        dialogs_.Show({texts_.Text(texts::kProgramTitle), texts_.Text(texts::kOnlyTwoYears),
                       DialogIcon::None});
        return;
    }
    if (screenReminder_) {
        screenReminder_->StandBack();
        reminderNotice_.Withdraw();
    }
    if (!diary_) {
        diary_ = std::make_unique<Diary>(
            &formCal_,
            Diary::Rooms{dates_, texts_, settings_, store_, shared_, editor_, clock_, dialogs_},
            Diary::Hooks{
                [this] { ShowDiaryChanges(); },
                [this](const std::string& text) { speech_.Talk(text, AfterSpeaking::Hide); },
                [this] { ChPic({}); }, [this] { ChPic(dates_.PageDay); }, [this] { OpenFinder(); },
                [this] { exchangeDialogs_.Export(); }, [this] { exchangeDialogs_.Import(); }});
    }
    diary_->OpenPage();
}

// What shows the diary beside its page follows it.
void Program::ShowDiaryChanges() {
    formCal_.Redraw(FormCal::kSameMonth);
    if (finder_) {
        finder_->Reload();
    }
}

void Program::DiaryReloaded() {
    ShowDiaryChanges();
    if (DayPageVisible() && !diary_->IsEditing()) {
        diary_->Reload();
    }
}

void Program::DiaryFolderGone() {
    if (diary_) {
        diary_->DoNetUsers();
    }
}

void Program::OpenFinder() {
    if (!finder_) {
        finder_ = std::make_unique<DiaryFinder>(
            nullptr, DiaryFinder::Rooms{dates_, texts_, store_},
            DiaryFinder::Hooks{[this](const DiarySearch::Event& event) { ShowFound(event); },
                               [](const std::string& folder, const std::set<std::string>& names,
                                  const std::stop_token& stop) {
                                   const PosixFileStore files; // the thread's own
                                   return ReadNoteTexts(files, folder, names, stop);
                               }});
    }
    finder_->Open(DayPageVisible() ? static_cast<QWidget*>(diary_.get()) : &formCal_);
}

void Program::ShowFound(const DiarySearch::Event& event) {
    if (DayPageVisible() && !diary_->EndsEdit()) {
        return; // the row that is being written comes first
    }
    tick_.SetReturnCountdown(0); // the user has gone there to stay
    dates_.PageYear = event.Date.Year;
    dates_.PageMonth = event.Date.Month;
    formCal_.GetPicture();
    OpenDiary(event.Date.Day);
    formCal_.Redraw(FormCal::kSameMonth);
    if (DayPageVisible()) {
        diary_->ShowEvent(event.Holds, event.Slot);
    }
}

} // namespace kestrova
