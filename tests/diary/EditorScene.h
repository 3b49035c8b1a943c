// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diary/DiaryScene.h"
#include "diary/EventEditor.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kestrova {

inline constexpr DayPlace kDay{14, 4, 0};

// Channels that work or do not, as a test wants it.
struct SetDetails : ReminderDetails {
    ModemState ModemIs = ModemState::Off;
    bool Mail = true;
    DetailsAnswer MailAnswer = DetailsAnswer::Given;
    bool Sound = false;
    bool Cd = false;
    std::vector<std::string> Previews;
    ReminderExtra Asked; // as the window of the telephone began with it

    ModemState Modem() const override { return ModemIs; }
    bool MailWorks() const override { return Mail; }
    bool SoundWorks() const override { return Sound; }
    bool VideoWorks() const override { return Sound; }
    bool CdWorks() const override { return Cd; }
    DetailsAnswer AskPhoneNumbers(ReminderExtra& extra) override {
        Asked = extra;
        extra[1] = "5551234";
        return ModemIs == ModemState::On ? DetailsAnswer::Given : DetailsAnswer::SwitchedOff;
    }
    DetailsAnswer AskMailAddress(ReminderExtra& extra) override {
        extra[2] = "bob@example.org";
        return MailAnswer;
    }
    void Preview(const std::string& path) override { Previews.push_back(path); }
};

// The editor of the events of 14 May 2026.
struct EditorScene : DiaryScene {
    Selection Dates{2026, 2026, kDay.Month, kDay.Day, 0, 1};
    AppSettings Settings = FirstSettings(Texts);
    SetDetails Details;
    EventEditor Editor{{Store, Dates, Texts, Settings, Boxes, Details}};

    AcceptResult Add(const std::string& hour, const std::string& msg,
                     const std::string& rpt = "Never", const std::string& rmd = "Screen") {
        EXPECT_EQ(Editor.BeginNew(), AcceptResult::Accepted);
        EventDraft draft{hour, "00", msg, rpt, rmd, false};
        return Editor.Accept(draft);
    }

    AcceptResult Change(int slot, const std::string& hour, const std::string& msg,
                        const std::string& rpt = "Never") {
        EXPECT_EQ(Editor.BeginEdit(slot), AcceptResult::Accepted);
        EventDraft draft{hour, "00", msg, rpt, "Screen", false};
        return Editor.Accept(draft);
    }

    [[nodiscard]] std::string Day() const { return Messages(OnFile(), kDay); }
};

} // namespace kestrova
