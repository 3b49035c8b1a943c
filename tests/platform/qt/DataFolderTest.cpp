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
    Ship("Help.htm", "newer manual");
    // A package is made long before it is installed.
    const auto longAgo = std::chrono::floor<std::chrono::hours>(fs::file_time_type::clock::now()) -
                         std::chrono::hours(1000);
    fs::last_write_time(Shipped / "Help.htm", longAgo);
    Start();
    EXPECT_EQ(fs::last_write_time(Own + "Help.htm"), longAgo) << "else it is copied at every start";
    EXPECT_EQ(Home.Content("share/kestrova/Help.htm"), "newer manual");
    EXPECT_TRUE(Has("Help/day.png"));
}

TEST_F(DataFolderTest, TheFolderOfTheProgramIsLeftAloneWhenItWasInstalled) {
    // Writable, as it is for root; but then a program that was not installed keeps its data there.
    EXPECT_EQ(DataFolderOf(Shipped.Path(), Own), Shipped.Path());
    EXPECT_FALSE(Has(""));

    Ship("libexec/kestrova/Kestrova", "program");
    Ship("share/kestrova/shipped/Lan.dat", "installed languages");
    EXPECT_EQ(DataFolderOf(Shipped / "libexec/kestrova/", Own), Own);
    EXPECT_EQ(Home.Content("share/kestrova/Lan.dat"), "installed languages");
    EXPECT_FALSE(Has("Kestrova"));
}

TEST_F(DataFolderTest, TheSessionStartsAnInstalledProgramByItsLink) {
    const std::string program = Shipped / "libexec/kestrova/Kestrova";
    Ship("libexec/kestrova/Kestrova", "program");
    EXPECT_EQ(LauncherOf(program), program);
    Ship("bin/kestrova", "somebody else's");
    EXPECT_EQ(LauncherOf(program), program);
    fs::remove(Shipped / "bin/kestrova");
    fs::create_symlink("../libexec/kestrova/Kestrova", Shipped / "bin/kestrova");
    EXPECT_EQ(LauncherOf(program), Shipped / "bin/kestrova");
}

} // namespace
} // namespace kestrova
