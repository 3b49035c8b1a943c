// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/StartUp.h"

#include <gtest/gtest.h>

namespace kestrova {
namespace {

TEST(StartUpTest, StepsRunInTheirOrderHoweverTheyWereFilled) {
    // The order is written out once more here: what leans on what.
    const std::vector<StartUpStep> order = {
        StartUpStep::Going,           StartUpStep::GetPaths,
        StartUpStep::FirstLanguage,   StartUpStep::MsgDefaults,
        StartUpStep::ReadSettings,    StartUpStep::GetLanguage,
        StartUpStep::FileCleanUp,     StartUpStep::CurrentMonthName,
        StartUpStep::CheckCharacter,  StartUpStep::SpeechIdentifiers,
        StartUpStep::LoadCaptions,    StartUpStep::AgentIni,
        StartUpStep::ApplySettings,   StartUpStep::GetShortCut,
        StartUpStep::ModemCheck,      StartUpStep::BaseYear,
        StartUpStep::OrdinalNames,    StartUpStep::PictureTables,
        StartUpStep::SettingsBars,    StartUpStep::GetData,
        StartUpStep::YearUpdate,      StartUpStep::PastRemindersOff,
        StartUpStep::SaveDiary,       StartUpStep::Today,
        StartUpStep::PictureSoundsCd, StartUpStep::Character,
        StartUpStep::TitleToTop,      StartUpStep::SharedDiaries,
    };
    ASSERT_EQ(order.size(), kStartUpSteps);
    std::vector<StartUpStep> run;
    StartUp startUp;
    for (auto step = order.rbegin(); step != order.rend(); ++step) {
        startUp.Fill(*step, [&run, step] { run.push_back(*step); });
    }
    startUp.Run([] { return true; });
    EXPECT_EQ(run, order);
}

TEST(StartUpTest, StepsThatNobodyFilledArePassedOver) {
    std::string run;
    StartUp startUp;
    startUp.Run([] { return true; });
    startUp.Fill(StartUpStep::SharedDiaries, [&run] { run += "last"; });
    startUp.Fill(StartUpStep::GetPaths, [&run] { run += "first "; });
    startUp.Run([] { return true; });
    EXPECT_EQ(run, "first last");
}

TEST(StartUpTest, NoStepFollowsOnceTheProgramHasEnded) {
    StartUp startUp;
    std::vector<int> ran;
    bool ended = false;
    startUp.Fill(StartUpStep::Going, [&] { ran.push_back(1); });
    startUp.Fill(StartUpStep::GetData, [&] {
        ran.push_back(2);
        ended = true;
    });
    startUp.Fill(StartUpStep::Today, [&] { ran.push_back(3); });
    startUp.Run([&] { return !ended; });
    EXPECT_EQ(ran, (std::vector<int>{1, 2}));
}

} // namespace
} // namespace kestrova
