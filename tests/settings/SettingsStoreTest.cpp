// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/SettingsStore.h"

#include "fakes/MemoryFileStore.h"
#include "fakes/ScriptedDialogs.h"
#include "fakes/SetClock.h"
#include "settings/SettingsFile.h"
#include "settings/WholeFile.h"

#include <gtest/gtest.h>

namespace kestrova {
namespace {

class SettingsStoreTest : public testing::Test {
protected:
    SettingsStoreTest() { clock_.Time = {2026, 10, 22, 23, 59, 1}; }

    // The one message that a file that cannot be used gives.
    void ExpectCorruptMessage(const Message& message) {
        EXPECT_EQ(message.Title, "Kestrova Messenger");
        EXPECT_EQ(message.Text, "Your Settings File Is Corrupt : Restoring Defaults");
        EXPECT_EQ(message.Icon, DialogIcon::Critical);
    }

    AppSettings ReadBack() {
        AppSettings settings;
        EXPECT_TRUE(ReadSettings(files_.Content(kPath).value_or(""), settings));
        return settings;
    }

    static constexpr const char* kPath = "/k/Settings.dat";
    static constexpr const char* kAside = "/k/Settings damaged 2026-11-22 23.59.01.dat";
    MemoryFileStore files_;
    SetClock clock_;
    ScriptedDialogs dialogs_;
    StringTable table_ = MsgDefaults();
    SettingsStore store_{files_, clock_, dialogs_, table_, kPath};
    AppSettings settings_;
};

TEST_F(SettingsStoreTest, AWholeFileIsReadWithoutAWord) {
    files_.Put(kPath, JoinLines(WholeFileLines()));
    store_.GetSettings(settings_);
    EXPECT_EQ(settings_, WholeFileSettings());
    EXPECT_TRUE(dialogs_.Shown.empty());
    EXPECT_EQ(files_.Writes(), 0);
}

TEST_F(SettingsStoreTest, AFirstStartSaysSoAndWritesAWholeFile) {
    settings_ = FirstSettings(table_);
    store_.GetSettings(settings_);
    ASSERT_EQ(dialogs_.Shown.size(), 1U);
    ExpectCorruptMessage(dialogs_.Shown[0]);
    EXPECT_EQ(files_.Paths(), std::set<std::string>{kPath});
    EXPECT_EQ(ReadBack(), settings_);
    EXPECT_EQ(settings_.ModemPort, "None");
    EXPECT_EQ(settings_.ModemDescription, "Generic Modem Found");
    EXPECT_NE(settings_.Reserved1, "");

    AppSettings again;
    store_.GetSettings(again);
    EXPECT_EQ(dialogs_.Shown.size(), 1U);
    EXPECT_EQ(again, settings_);
}

TEST_F(SettingsStoreTest, AFileCutShortIsKeptAndReplacedByTheDefaults) {
    auto lines = WholeFileLines();
    lines.resize(30);
    const std::string cut = JoinLines(lines);
    files_.Put(kPath, cut);
    settings_.ChimeType = "Chime";
    store_.GetSettings(settings_);

    ASSERT_EQ(dialogs_.Shown.size(), 1U);
    ExpectCorruptMessage(dialogs_.Shown[0]);
    EXPECT_EQ(files_.Content(kAside), cut);
    const std::string written = files_.Content(kPath).value_or("");
    EXPECT_EQ(std::count(written.begin(), written.end(), '\n'), 70);
    EXPECT_EQ(ReadBack(), settings_);

    // What has a default has it now; what has none keeps what was read, or had before.
    EXPECT_EQ(settings_.Colours[0], (Colour{193, 193, 193}));
    EXPECT_EQ(settings_.KeepAspect, 0);
    EXPECT_EQ(settings_.SpeechPitch, 50);
    EXPECT_EQ(settings_.SpeechSpeed, 100);
    EXPECT_EQ(settings_.Greeting, "The time is");
    EXPECT_EQ(settings_.Reserved1, "someone else's");
    EXPECT_EQ(settings_.DataYear, 2026);
    EXPECT_EQ(settings_.StoredNumbers[0], "01234 567890");
    EXPECT_EQ(settings_.VideoRepeat, 1);
    EXPECT_EQ(settings_.DiaryViewName, "My Diary");
    EXPECT_EQ(settings_.ChimeType, "Chime");
}

TEST_F(SettingsStoreTest, EveryDamagedFileIsKeptUnderANameOfItsOwn) {
    const std::string huge(kSettingsFileLimit + 1, ' ');
    const std::string damaged[] = {"", "first\r\n", "second\r\n"};
    for (const std::string& bytes : damaged) {
        files_.Put(kPath, bytes);
        store_.GetSettings(settings_);
    }
    EXPECT_EQ(files_.Content(kAside), "");
    EXPECT_EQ(files_.Content("/k/Settings damaged 2026-11-22 23.59.01 2.dat"), "first\r\n");
    EXPECT_EQ(files_.Content("/k/Settings damaged 2026-11-22 23.59.01 3.dat"), "second\r\n");
    files_.Put(kPath, huge);
    store_.GetSettings(settings_);
    EXPECT_EQ(files_.Content("/k/Settings damaged 2026-11-22 23.59.01 4.dat"), huge);
}

TEST_F(SettingsStoreTest, ADamagedFileThatCannotBeKeptIsNotOverwritten) {
    files_.Put(kPath, "damaged");
    files_.FailWrites(Error{ErrorCode::Busy, "not permitted"});
    store_.GetSettings(settings_);
    ASSERT_EQ(dialogs_.Shown.size(), 2U);
    ExpectCorruptMessage(dialogs_.Shown[0]);
    EXPECT_NE(dialogs_.Shown[1].Text.find("not permitted"), std::string::npos);
    EXPECT_EQ(files_.Content(kPath), "damaged");
    EXPECT_EQ(settings_.Greeting, "The time is");

    // A crash between keeping the old file and writing the new one loses neither.
    files_.FailWrites({});
    files_.CrashAfter(1);
    store_.GetSettings(settings_);
    EXPECT_EQ(files_.Content(kAside), "damaged");
    EXPECT_EQ(files_.Content(kPath), std::nullopt);
}

TEST_F(SettingsStoreTest, SavingFillsWhatMayNotBeEmpty) {
    settings_ = WholeFileSettings();
    EXPECT_TRUE(store_.SaveSettings(settings_));
    EXPECT_EQ(files_.Content(kPath), JoinLines(WholeFileLines()));

    settings_.Reserved1.clear();
    settings_.ModemPort.clear();
    settings_.ModemDescription.clear();
    EXPECT_TRUE(store_.SaveSettings(settings_));
    const AppSettings read = ReadBack();
    EXPECT_NE(read.Reserved1, "");
    EXPECT_EQ(read.ModemPort, "None");
    EXPECT_EQ(read.ModemDescription, "Generic Modem Found");
    EXPECT_EQ(read, settings_);
    EXPECT_TRUE(dialogs_.Shown.empty());
}

TEST_F(SettingsStoreTest, ASaveThatFailsIsShownAndTheOldFileStands) {
    files_.Put(kPath, "old");
    files_.FailWrites(Error{ErrorCode::Full, "No space left on device"});
    settings_ = WholeFileSettings();
    const Status saved = store_.SaveSettings(settings_);
    ASSERT_FALSE(saved);
    EXPECT_EQ(saved.Failure().Code, ErrorCode::Full);
    ASSERT_EQ(dialogs_.Shown.size(), 1U);
    EXPECT_EQ(dialogs_.Shown[0].Title, "Kestrova Messenger");
    EXPECT_EQ(dialogs_.Shown[0].Text, "A File Handling Error Occured\nNo space left on device");
    EXPECT_EQ(dialogs_.Shown[0].Icon, DialogIcon::Critical);
    EXPECT_EQ(files_.Content(kPath), "old");
}

} // namespace
} // namespace kestrova
