// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ui/PrintOffice.h"

#include "language/ProgramTexts.h"
#include "language/Texts.h"
#include "media/ui/BusyCursor.h"

#include <QScopedValueRollback>

namespace kestrova {

namespace {

constexpr const char* kPdfFilter = "PDF|*.pdf";

} // namespace

PrintOffice::PrintOffice(const Rooms& rooms, std::function<void()> keepChoices)
    : rooms_(rooms), keepChoices_(std::move(keepChoices)), printers_(PrintModule::ShippedPath()),
      pdf_(rooms.Files), desk_({rooms.Files, [this]() -> Printer& { return Chosen(); }, pictures_,
                                measure_, rooms.Dates, rooms.Texts, rooms.Settings, rooms.Pictures,
                                [this]() -> const DiaryTable& { return rooms_.Store.Table(); },
                                [this] {
                                    std::array<std::string, kDaysOfWeek> names;
                                    for (int column = 0; column < kDaysOfWeek; ++column) {
                                        names[static_cast<std::size_t>(column)] =
                                            rooms_.Texts.DayName(column, rooms_.Settings.Week);
                                    }
                                    return names;
                                }}) {}

Printer& PrintOffice::Chosen() {
    if (PrintsToPdf()) {
        return pdf_;
    }
    return printers_;
}

// A file in the printer's place is asked for before each document. False when the user thinks
// better of it.
bool PrintOffice::AskTarget() {
    if (printing_) {
        return false; // one document at a time
    }
    if (!PrintsToPdf()) {
        return true;
    }
    const auto path = rooms_.Boxes.SaveFile(rooms_.DataFolder, kPdfFilter);
    if (path) {
        pdf_.SetTarget(*path);
    }
    return path.has_value();
}

void PrintOffice::MNU_Preview_Click() {
    if (printing_) {
        return;
    }
    if (!preview_) {
        preview_ = std::make_unique<Preview>(
            Preview::Rooms{desk_, rooms_.Texts, rooms_.Settings, rooms_.Boxes, rooms_.DataFolder,
                           measure_},
            Preview::Hooks{[this](const std::string& path) {
                               PdfPrinter file(rooms_.Files);
                               file.SetTarget(path);
                               return desk_.PrintTo(file);
                           },
                           [this] { return AskTarget(); }, [this] { keepChoices_(); }});
    }
    preview_->OpenMonth();
}

void PrintOffice::MNU_PrDiary_Click() {
    if ((preview_ && preview_->IsBusy()) || !AskTarget()) {
        return;
    }
    const QScopedValueRollback<bool> guard(printing_, true);
    Status printed = Done{};
    {
        const BusyCursor cursor;
        printed = desk_.PrintDiaryAfresh();
    }
    if (!printed) {
        const std::string text =
            PrintsToPdf() ? TextOf(rooms_.Texts, ProgramText::PdfNotSaved, printed.Failure().Text)
                          : rooms_.Texts.Text(texts::kNoPrinter);
        rooms_.Boxes.Show({rooms_.Texts.Text(texts::kProgramTitle), text, DialogIcon::Critical});
    }
}

void PrintOffice::MNU_Pdf_Click(bool on) {
    rooms_.Settings.PrintNumber1 = on ? 1 : 0;
    keepChoices_();
}

bool PrintOffice::Close() {
    return !printing_ && (!preview_ || !preview_->isVisible() || preview_->TryLeave());
}

void PrintOffice::LoadCaptions() {
    if (preview_) {
        preview_->LoadCaptions();
    }
}

} // namespace kestrova
