// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/ExchangeDialogs.h"

#include "language/ProgramTexts.h"
#include "language/Texts.h"

namespace kestrova {

void ExchangeDialogs::Tell(const std::string& text) {
    rooms_.Boxes.Show({rooms_.Texts.Text(texts::kProgramTitle), text, DialogIcon::None});
}

void ExchangeDialogs::Refuse(const Error& error) {
    rooms_.Boxes.Show(
        {rooms_.Texts.Text(texts::kMessengerTitle), error.Text, DialogIcon::Critical});
}

void ExchangeDialogs::Export() {
    const auto path = rooms_.Boxes.SaveFile({}, TextOf(rooms_.Texts, ProgramText::CalendarFilter));
    if (!path) {
        return;
    }
    const auto tally = rooms_.Exchange.Export(*path, rooms_.Dates.BaseYear);
    if (tally) {
        Tell(ReportOf(rooms_.Texts, tally.Value()));
    } else {
        Refuse(tally.Failure());
    }
}

bool ExchangeDialogs::Asks(const ImportTally& tally) {
    return rooms_.Boxes.Ask({rooms_.Texts.Text(texts::kMessengerTitle),
                             QuestionOf(rooms_.Texts, tally), DialogIcon::Question},
                            {TextOf(rooms_.Texts, ProgramText::ImportAdd), {}});
}

bool ExchangeDialogs::Import() {
    const auto path = rooms_.Boxes.OpenFile({}, TextOf(rooms_.Texts, ProgramText::CalendarFilter));
    if (!path) {
        return false;
    }
    int year = rooms_.Dates.BaseYear;
    auto plan = rooms_.Exchange.Read(*path, year);
    if (plan) {
        const ImportTally tally = rooms_.Exchange.Preview(plan.Value());
        if (tally.Added == 0) {
            Tell(ReportOf(rooms_.Texts, tally));
            return false;
        }
        if (!Asks(tally)) {
            return false;
        }
        if (year != rooms_.Dates.BaseYear) { // it was New Year's night
            year = rooms_.Dates.BaseYear;
            plan = rooms_.Exchange.Read(*path, year);
        }
    }
    if (!plan) {
        Refuse(plan.Failure());
        return false;
    }
    const auto tally = rooms_.Exchange.Import(plan.Value(), year);
    if (!tally) {
        Refuse(tally.Failure());
        return false;
    }
    if (!tally.Value()) {
        return false;
    }
    Tell(ReportOf(rooms_.Texts, *tally.Value()));
    return true;
}

} // namespace kestrova
