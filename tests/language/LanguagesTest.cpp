// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/Languages.h"

#include "fakes/MemoryFileStore.h"
#include "language/LanguageBlock.h"

#include <gtest/gtest.h>

namespace kestrova {
namespace {

using Enabled = std::array<bool, kFixedLanguages>;

class LanguagesTest : public testing::Test {
protected:
    void PutFile(const std::string& bytes) { files_.Put("/k/Lan.dat", bytes); }

    static std::string Block(const std::string& heading, const std::string& mark) {
        return FileOf(LanguageBlock(heading, mark));
    }

    [[nodiscard]] const std::string& FirstText() const {
        return table_.Text({TextGroup::Captions, 0});
    }

    MemoryFileStore files_;
    StringTable table_ = MsgDefaults();
    Languages languages_{files_, "/k/Lan.dat", table_};
};

TEST_F(LanguagesTest, WithoutAFileThereIsOnlyEnglish) {
    for (const bool unreadable : {false, true}) {
        SCOPED_TRACE(unreadable);
        if (unreadable) {
            PutFile(Block("Deutsch Language", "De"));
            files_.FailReads(Error{ErrorCode::Busy, "not permitted"});
        }
        table_.Texts[0][0] = "left from another language";
        int index = 0;
        languages_.GetLanguage(index);
        EXPECT_EQ(table_, MsgDefaults());
        EXPECT_EQ(languages_.Choices().Names, std::vector<std::string>{"English"});
        EXPECT_EQ(languages_.Choices().Enabled, Enabled{});
        EXPECT_EQ(languages_.Choices().Checked, std::nullopt);
    }
}

TEST_F(LanguagesTest, AFileThatHoldsNoBlockGivesEnglish) {
    for (const char* const bytes :
         {"", "not a language file\r\n", "English Language\r\nArial\r\n"}) {
        SCOPED_TRACE(bytes);
        PutFile(bytes);
        int index = 0;
        languages_.GetLanguage(index);
        EXPECT_EQ(table_, MsgDefaults());
        EXPECT_EQ(languages_.Choices().Names, std::vector<std::string>{"English"});
    }
}

TEST_F(LanguagesTest, TheBlockOfTheIndexIsLoadedAndChecked) {
    PutFile(Block("English Language", "En") + Block("Fran\xE7"
                                                    "ais Language",
                                                    "Fr"));
    int index = 1;
    languages_.GetLanguage(index);
    EXPECT_EQ(index, 1);
    EXPECT_EQ(FirstText(), "Fr 0.0");
    EXPECT_EQ(languages_.Choices().Names, (std::vector<std::string>{"English ", "Fran\xC3\xA7"
                                                                                "ais "}));
    EXPECT_EQ(languages_.Choices().Enabled, (Enabled{true, true}));
    EXPECT_EQ(languages_.Choices().Checked, 1);
}

TEST_F(LanguagesTest, ALanguageIsCheckedOnlyInItsOwnPlaceOfTheList) {
    struct Row {
        const char* Heading; // of the file's second block
        Enabled Items;
        std::optional<int> Checked;
    };
    const Row rows[] = {
        {"Fran\xC3\xA7"
         "ais Language",
         {true, true},
         1},
        {"Deutsch Language", {true, false, true}, std::nullopt},
        {"Greek Language", {true, false, false, false, false, false, false, true}, std::nullopt},
        {"  Espanol    Language", {true, false, false, true}, std::nullopt},
        {"Klingon Language", {true}, std::nullopt},
        {"english Language", {true}, std::nullopt},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Heading);
        PutFile(Block("English Language", "En") + Block(row.Heading, "Second"));
        int index = 1;
        languages_.GetLanguage(index);
        EXPECT_EQ(FirstText(), "Second 0.0");
        EXPECT_EQ(languages_.Choices().Names.size(), 2U);
        EXPECT_EQ(languages_.Choices().Enabled, row.Items);
        EXPECT_EQ(languages_.Choices().Checked, row.Checked);
    }
}

TEST_F(LanguagesTest, AnIndexWithoutABlockLeavesTheTextsAsTheyAre) {
    PutFile(Block("English Language", "En") + Block("Deutsch Language", "De"));
    int index = 0;
    languages_.GetLanguage(index);
    ASSERT_EQ(FirstText(), "En 0.0");
    EXPECT_TRUE(languages_.Choices().Enabled[2]);

    index = 2;
    languages_.ChangeLanguage(index);
    EXPECT_EQ(index, 2);
    EXPECT_EQ(FirstText(), "En 0.0");
    EXPECT_EQ(languages_.Choices().Checked, 2);

    table_ = MsgDefaults();
    languages_.GetLanguage(index);
    EXPECT_EQ(index, 2);
    EXPECT_EQ(table_, MsgDefaults());
    EXPECT_EQ(languages_.Choices().Names.size(), 2U);
    EXPECT_EQ(languages_.Choices().Checked, std::nullopt);
}

TEST_F(LanguagesTest, ADamagedBlockGoesBackToEnglish) {
    auto damaged = LanguageBlock("Fran\xC3\xA7"
                                 "ais Language",
                                 "Fr");
    damaged[2] = "twelve";
    auto cut = LanguageBlock("Fran\xC3\xA7"
                             "ais Language",
                             "Fr");
    cut.resize(200);
    for (const auto& block : {damaged, cut}) {
        SCOPED_TRACE(block.size());
        PutFile(Block("English Language", "En") + FileOf(block));
        int index = 1;
        languages_.GetLanguage(index);
        EXPECT_EQ(index, 0);
        EXPECT_EQ(table_, MsgDefaults());
        EXPECT_EQ(languages_.Choices().Checked, 0);

        table_.Texts[0][0] = "left from another language";
        index = 1;
        languages_.ChangeLanguage(index);
        EXPECT_EQ(index, 0);
        EXPECT_EQ(table_, MsgDefaults());
        EXPECT_EQ(languages_.Choices().Checked, 0);
    }
}

TEST_F(LanguagesTest, AFileThatIsGoneAtTheChoiceGoesBackToEnglish) {
    PutFile(Block("English Language", "En") + Block("Fran\xC3\xA7"
                                                    "ais Language",
                                                    "Fr"));
    int index = 0;
    languages_.GetLanguage(index);
    (void)files_.Remove("/k/Lan.dat");
    index = 1;
    languages_.ChangeLanguage(index);
    EXPECT_EQ(index, 0);
    EXPECT_EQ(table_, MsgDefaults());
}

TEST_F(LanguagesTest, ACrashWhileSavingLeavesTheOldFile) {
    const std::string old = Block("English Language", "En") + Block("Deutsch Language", "De");
    for (const int writes : {0, 1}) {
        SCOPED_TRACE(writes);
        PutFile(old);
        files_.CrashAfter(writes);
        const Status saved = languages_.Save("Deutsch", MsgDefaults());
        files_.Recover();
        EXPECT_EQ(saved.Ok(), writes > 0);
        int index = 1;
        languages_.GetLanguage(index);
        EXPECT_EQ(FirstText(), writes > 0 ? "Kestrova" : "De 0.0");
        EXPECT_EQ(files_.Content("/k/Lan.dat") == old, writes == 0);
    }
}

TEST_F(LanguagesTest, AFileThatCannotBeReadIsNotReplaced) {
    PutFile(Block("English Language", "En"));
    files_.FailReads(Error{ErrorCode::Busy, "not permitted"});
    EXPECT_FALSE(languages_.Save("Deutsch", MsgDefaults()));
    files_.FailReads({});
    EXPECT_EQ(files_.Content("/k/Lan.dat"), Block("English Language", "En"));
    EXPECT_TRUE(languages_.Has(" English"));
    EXPECT_FALSE(languages_.Has("Deutsch"));
}

} // namespace
} // namespace kestrova
