// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/DataFolder.h"

#include "platform/posix/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace kestrova {
namespace {

namespace fs = std::filesystem;

// A program that is installed for everybody, and one user's own folder.
struct DataFolderTest : testing::Test {
    DataFolderTest() {
        Ship("Lan.dat", "languages");
        Ship("Images/May.jpg", "May");
        Ship("Help.htm", "manual");
        Ship("Help/day.png", "picture");
        Ship("Kestrova", "program");
        fs::permissions(Shipped / "Kestrova", fs::perms::owner_all);
        Ship("kestrova_mail.so", "module");
    }

    void Ship(const std::string& name, const std::string& bytes) const {
        fs::create_directories(fs::path(Shipped / name).parent_path());
        Shipped.Write(name, bytes);
    }
    void Start() const { FillOwnFolder(Shipped.Path(), Own); }
    [[nodiscard]] bool Has(const std::string& name) const { return fs::exists(Own + name); }

    TemporaryFolder Shipped;
    TemporaryFolder Home;
    std::string Own = Home / "share/kestrova/";
};

TEST_F(DataFolderTest, ANewFolderIsGivenAllButTheProgram) {
    Start();
    EXPECT_EQ(Home.Content("share/kestrova/Images/May.jpg"), "May");
    EXPECT_EQ(Home.Content("share/kestrova/Lan.dat"), "languages");
    EXPECT_EQ(Home.Content("share/kestrova/Help/day.png"), "picture");
    EXPECT_FALSE(Has("Kestrova") || Has("kestrova_mail.so"));
}

TEST_F(DataFolderTest, ANewerProgramBringsWhatItIsTheFirstToShip) {
    Start();
    Ship("Characters/Olva.acs", "figure");
    Ship("Modem.Dat", "modems");
    Start();
    EXPECT_EQ(Home.Content("share/kestrova/Characters/Olva.acs"), "figure");
    EXPECT_EQ(Home.Content("share/kestrova/Modem.Dat"), "modems");
}

TEST_F(DataFolderTest, AFolderOfAProgramThatKeptNoListIsGivenWhatItLacks) {
    fs::create_directories(Own + "Images");
    Home.Write("share/kestrova/Lan.dat", "my languages");
    Start();
    EXPECT_EQ(Home.Content("share/kestrova/Lan.dat"), "my languages");
    EXPECT_FALSE(Has("Images/May.jpg")) << "the user may have deleted it";
    EXPECT_TRUE(Has("Help.htm"));
}

TEST_F(DataFolderTest, WhatTheUserHasChangedOrDeletedStaysSo) {
    Ship("Modem.Dat", "modems");
    Start();
    Home.Write("share/kestrova/Images/May.jpg", "my May");
    fs::remove(Own + "Modem.Dat");
    Ship("Speech/May.txt", "new");
    for (int start = 0; start < 2; ++start) {
        Start();
        EXPECT_EQ(Home.Content("share/kestrova/Images/May.jpg"), "my May");
        EXPECT_FALSE(Has("Modem.Dat"));
        EXPECT_TRUE(Has("Speech/May.txt"));
    }
}

TEST_F(DataFolderTest, AStartThatWasBrokenOffIsMadeGood) {
    fs::create_directories(Own + "Images.part");
    Home.Write("share/kestrova/Images.part/Half.jpg", "Ha");
    Home.Write("share/kestrova/Lan.dat.part", "lang");
    Start();
    EXPECT_TRUE(Has("Images/May.jpg"));
    EXPECT_FALSE(Has("Images/Half.jpg") || Has("Images.part") || Has("Lan.dat.part"));
    EXPECT_EQ(Home.Content("share/kestrova/Lan.dat"), "languages");
}

TEST_F(DataFolderTest, TheManualIsAlwaysThatOfTheProgram) {
    Start();
    fs::remove(Own + "Help/day.png");
    fs::last_write_time(Own + "Help.htm", fs::file_time_type::clock::now() - std::chrono::hours(1));
    Ship("Help.htm", "newer manual");
    Start();
    EXPECT_EQ(Home.Content("share/kestrova/Help.htm"), "newer manual");
    EXPECT_TRUE(Has("Help/day.png"));
}

} // namespace
} // namespace kestrova
