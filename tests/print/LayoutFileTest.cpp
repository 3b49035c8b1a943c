// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/LayoutFile.h"

#include "fakes/FakePictures.h"
#include "print/LayoutPictures.h"
#include "print/PrintedMonth.h"
#include "text/Lines.h"

#include <ctime>
#include <gtest/gtest.h>
#include <thread>

namespace kestrova {
namespace {

// A page with something in every field.
PageLayout FullPage() {
    PageLayout page;
    page.BackgroundPath = "/p/back.jpg";
    page.Image1.Left = 500;
    page.Image1.Top = -2000;
    page.Image1.Width = 10606;
    page.Image1.Height = 12538;
    page.Image2.Enabled = false;
    const auto text = [](const std::string& caption) {
        LayoutItem item;
        item.Left = 1;
        item.Top = 2;
        item.Width = 3;
        item.Height = 4;
        item.ForeColor = 255;
        item.FontName = "Arial";
        item.FontSize = 8.25;
        item.FontBold = true;
        item.Caption = caption;
        return item;
    };
    page.LabCurMth = text("May  2026");
    page.LabDays.fill(text("Mon"));
    page.LabDates.fill(text("1"));
    page.ImgUser.resize(3);
    page.ImgUser[0].Enabled = false;
    page.ImgUser[2].Left = 77;
    page.ImagePaths[2] = "/p/two.jpg";
    page.ImagePaths[3] = "/p/three.jpg";
    page.LabEvent = {text("Dentist")};
    page.LabUser = {text("gone"), text("two\r\nlines, \"said\" he \"\xC3\xA9\"")};
    page.LabUser[0].Enabled = false;
    page.GridOn = true;
    page.BorderLines = 4;
    return page;
}

std::vector<std::string> LinesOf(std::string_view bytes) {
    std::vector<std::string> lines;
    LineReader reader(bytes);
    while (const auto line = reader.Next()) {
        lines.emplace_back(*line);
    }
    return lines;
}

std::string Repeated(int times, const std::string& text) {
    std::string all;
    for (int i = 0; i < times; ++i) {
        all += text;
    }
    return all;
}

class LayoutFileTest : public testing::Test {
protected:
    LayoutFileTest() {
        pictures_.Files = {
            {"/p/back.jpg", {9, 9}}, {"/p/two.jpg", {100, 100}}, {"/p/three.jpg", {100, 100}}};
    }

    LayoutReading Read(std::string_view bytes) {
        page_ = {};
        return ReadLayout(bytes, page_, pictures_);
    }

    // What is wrong with the bytes; empty when nothing is.
    std::string Fault(std::string_view bytes) {
        const LayoutReading reading = Read(bytes);
        return reading.Trouble ? std::string() : reading.Trouble.Failure().Text;
    }

    FakePictures pictures_;
    PageLayout page_;
};

TEST_F(LayoutFileTest, IsWrittenByteForByte) {
    const auto record = [](const std::string& caption) {
        return "-1\r\n1\r\n2\r\n3\r\n4\r\n-1\r\n255\r\n\"Arial\"\r\n8\r\n-1\r\n0\r\n\"" + caption +
               "\"\r\n";
    };
    const std::string expected =
        "\"/p/back.jpg\"\r\n-1\r\n500\r\n-2000\r\n10606\r\n12538\r\n"
        "\"\"\r\n0\r\n0\r\n0\r\n0\r\n0\r\n"
        "\"/p/two.jpg\"\r\n-1\r\n0\r\n0\r\n0\r\n0\r\n"
        "\"/p/three.jpg\"\r\n-1\r\n77\r\n0\r\n0\r\n0\r\n"
        "\"End of Pictures\"\r\n" +
        record("May  2026") + Repeated(7, record("Mon")) + Repeated(31, record("1")) +
        "\"Label\"\r\n" + record("Dentist") + "\"Label\"\r\n" +
        record("two\r\nlines, \xE2\x80\x9Csaid\xE2\x80\x9D he \xE2\x80\x9C\xC3\xA9\xE2\x80\x9D") +
        "\"End of Labels\"\r\n-1\r\n4\r\n";
    EXPECT_EQ(WriteLayout(FullPage()), expected);
}

TEST_F(LayoutFileTest, APageWithoutPicturesAndLabelsHas484Lines) {
    PageLayout page;
    page.LabDates[0].FontSize = 8.5;
    page.LabDates[1].FontSize = 9.5;
    const auto lines = LinesOf(WriteLayout(page));
    ASSERT_EQ(lines.size(), 484U);
    EXPECT_EQ(lines[12], "\"End of Pictures\"");
    EXPECT_EQ(lines[481], "\"End of Labels\"");
    EXPECT_EQ(lines[13 + 8 * 12 + 8], "8") << "halves go to the even number";
    EXPECT_EQ(lines[13 + 9 * 12 + 8], "10");
}

TEST_F(LayoutFileTest, ComesBackAsItWasWritten) {
    const LayoutReading reading = Read(WriteLayout(FullPage()));
    ASSERT_TRUE(reading.Trouble) << reading.Trouble.Failure().Text;
    EXPECT_TRUE(reading.ToTheEnd);
    EXPECT_NE(page_.Image1.Picture, nullptr);
    EXPECT_EQ(page_.Image1.Top, -2000);
    EXPECT_FALSE(page_.Image2.Enabled);
    ASSERT_EQ(page_.ImgUser.size(), 2U);
    EXPECT_EQ(page_.ImgUser[1].Left, 77);
    EXPECT_EQ(page_.ImgUser[1].Width, 0);
    EXPECT_EQ(page_.ImagePaths[2], "/p/three.jpg");
    EXPECT_EQ(page_.LabDates[30].Caption, "1");
    EXPECT_TRUE(page_.LabEvent.empty());
    ASSERT_EQ(page_.LabUser.size(), 2U);
    EXPECT_EQ(page_.LabUser[0].Caption, "Dentist");
    EXPECT_TRUE(page_.LabUser[1].Caption.starts_with("two\r\nlines, \xE2\x80\x9Csaid"));
    EXPECT_TRUE(page_.GridOn);
    EXPECT_EQ(page_.BorderLines, 4);
    // Read and written again it is the same, but for the messages that are texts now.
    EXPECT_EQ(WriteLayout(page_), WriteLayout(FullPage()));
}

TEST_F(LayoutFileTest, FilesOfOtherHandsAreRead) {
    std::string bytes = WriteLayout(FullPage());
    const auto replace = [&](const std::string& from, const std::string& to) {
        const std::size_t at = bytes.find(from);
        ASSERT_NE(at, std::string::npos) << from;
        bytes.replace(at, from.size(), to);
    };
    replace("\"May  2026\"", "\"M\xE4rz\n2026\"");
    replace("\r\n500\r\n-2000\r\n", "\r\n 500 , -2000\n");
    replace("\"Dentist\"", "  \"Dentist\"  ");
    replace("\"End of Labels\"\r\n-1\r\n4\r\n", "\"End of Labels\"\n7\n4");
    EXPECT_EQ(Fault("\xEF\xBB\xBF" + bytes), "");
    EXPECT_EQ(page_.Image1.Top, -2000);
    EXPECT_EQ(page_.LabCurMth.Caption, "M\xC3\xA4rz\r\n2026");
    EXPECT_EQ(page_.LabUser[0].Caption, "Dentist");
    EXPECT_TRUE(page_.GridOn);
}

TEST_F(LayoutFileTest, WhatIsNoValueEndsTheReadingAtItsLine) {
    struct Row {
        std::size_t Line; // as people count
        std::string Value;
    };
    const auto good = LinesOf(WriteLayout(PageLayout()));
    for (const Row& row : {Row{1, ""},
                           Row{1, "no quotes"},
                           Row{1, "\"a\" b"},
                           Row{2, "\"-1\""},
                           Row{2, "true"},
                           Row{3, "1.5"},
                           Row{3, "1000001"},
                           Row{3, "-1000001"},
                           Row{3, "99999999999"},
                           Row{5, "-1"},
                           Row{7, "\"a\"b\"c\""},
                           Row{7, std::string("\"a\0\"", 4)},
                           Row{13, "\"end of pictures\""},
                           Row{20, "-1"},
                           Row{20, "16777216"},
                           Row{21, "12"},
                           Row{22, "0"},
                           Row{22, "nan"},
                           Row{22, "1639"},
                           Row{25, '"' + std::string(40'000, 'x') + '"'},
                           Row{483, "yes"},
                           Row{484, "5"},
                           Row{484, "-1"}}) {
        SCOPED_TRACE(row.Value.substr(0, 40));
        auto lines = good;
        lines[row.Line - 1] = row.Value;
        std::string bytes;
        for (const std::string& line : lines) {
            bytes += line + "\r\n";
        }
        EXPECT_EQ(Fault(bytes),
                  row.Line == 13 ? "line 13: end of pictures" : "line " + std::to_string(row.Line));
        EXPECT_FALSE(Read(bytes).ToTheEnd);
    }
}

TEST_F(LayoutFileTest, CutAnywhereItKeepsWhatWasRead) {
    const std::string bytes = WriteLayout(FullPage());
    const std::size_t whole = bytes.size() - 2; // the last line may lack its end
    for (std::size_t end = 0; end < whole; ++end) {
        ASSERT_FALSE(Read(bytes.substr(0, end)).ToTheEnd) << end;
        const auto read = [&](std::string_view mark) { return end > bytes.find(mark) + 300; };
        ASSERT_TRUE(!read("/p/back.jpg") || page_.Image1.Width == 10606) << end;
        ASSERT_TRUE(!read("May  2026") || page_.LabCurMth.Caption == "May  2026") << end;
        ASSERT_TRUE(!read("Dentist") || page_.LabUser.size() == 1) << end;
        ASSERT_TRUE(page_.LabUser.empty() || page_.LabUser[0].FontSize == 8) << end;
    }
    EXPECT_TRUE(Read(bytes.substr(0, whole)).ToTheEnd);
}

TEST_F(LayoutFileTest, TooManyTextsAndPicturesAreReadPastAndTold) {
    const PageLayout full = FullPage();
    PageLayout page = full;
    page.LabEvent.assign(300, full.LabEvent[0]);
    page.LabUser.assign(200, full.LabEvent[0]);
    LayoutReading reading = Read(WriteLayout(page));
    ASSERT_FALSE(reading.Trouble);
    EXPECT_EQ(reading.Trouble.Failure().Code, ErrorCode::TooLarge);
    EXPECT_EQ(reading.Trouble.Failure().Text, "line " + std::to_string(493 + 400 * 13 + 1));
    EXPECT_TRUE(reading.ToTheEnd);
    EXPECT_EQ(page_.LabUser.size(), 400U);
    EXPECT_EQ(page_.BorderLines, 4);

    std::string bytes = WriteLayout(full);
    const std::string record = "\"/p/two.jpg\"\r\n-1\r\n0\r\n0\r\n0\r\n0\r\n";
    bytes.insert(bytes.find("\"End of Pictures"), Repeated(300, record));
    reading = Read(bytes);
    EXPECT_EQ(reading.Trouble.Failure().Code, ErrorCode::TooLarge);
    EXPECT_TRUE(reading.ToTheEnd);
    EXPECT_EQ(page_.ImgUser.size(), 100U);
}

TEST_F(LayoutFileTest, AMissingPictureEndsTheReadingAMissingBackgroundDoesNot) {
    pictures_.Files.erase("/p/back.jpg");
    const auto before = std::make_shared<FakePicture>(1, 1);
    page_.Image1.Picture = before;
    EXPECT_TRUE(ReadLayout(WriteLayout(FullPage()), page_, pictures_).Trouble);
    EXPECT_EQ(page_.Image1.Picture, before);
    EXPECT_EQ(page_.BackgroundPath, "/p/back.jpg");

    pictures_.Files.erase("/p/three.jpg");
    const LayoutReading reading = Read(WriteLayout(FullPage()));
    ASSERT_FALSE(reading.Trouble);
    EXPECT_EQ(reading.Trouble.Failure().Code, ErrorCode::NotFound);
    EXPECT_EQ(reading.Trouble.Failure().Text, "line 19: /p/three.jpg");
    EXPECT_EQ(page_.ImgUser.size(), 2U);
    EXPECT_EQ(page_.LabCurMth.Caption, "");
}

TEST_F(LayoutFileTest, PicturesAreBoundedInTimeAndPixels) {
    pictures_.Files = {{"a", {1000, 1000}}, {"b", {1000, 1000}}, {"c", {1, 1}}};
    LayoutPictures small(pictures_, {std::chrono::hours(1), 1'500'000});
    EXPECT_TRUE(small.Load("a"));
    EXPECT_TRUE(small.Load("a"));
    EXPECT_EQ(pictures_.Asked.size(), 1U) << "each file is read once";
    EXPECT_TRUE(small.Load("b"));
    EXPECT_EQ(small.Load("c").Failure().Code, ErrorCode::TooLarge);
    EXPECT_TRUE(small.Load("b"));

    pictures_.WhileLoading = [] { std::this_thread::sleep_for(std::chrono::milliseconds(2)); };
    LayoutPictures hurried(pictures_, {std::chrono::milliseconds(1), 1'000'000'000});
    EXPECT_FALSE(hurried.Load("missing"));
    EXPECT_EQ(hurried.Load("a").Failure().Code, ErrorCode::TooLarge);
}

TEST_F(LayoutFileTest, WhatCannotBeReadAgainIsKnown) {
    PageLayout page = FullPage();
    EXPECT_TRUE(IsReadable(WriteLayout(page)));
    page.LabEvent.assign(310, page.LabEvent[0]);
    page.LabUser.assign(90, page.LabEvent[0]);
    EXPECT_TRUE(IsReadable(WriteLayout(page)));
    page.LabUser.push_back(page.LabEvent[0]);
    EXPECT_FALSE(IsReadable(WriteLayout(page))) << "one would be left out";
    page.LabUser.resize(90);
    page.LabUser[89].Caption.assign(kLayoutTextLimit + 1, 'x');
    EXPECT_FALSE(IsReadable(WriteLayout(page)));
}

TEST_F(LayoutFileTest, TenThousandLabelsAreReadPastInNoTime) {
    PageLayout page = FullPage();
    page.LabUser.assign(10'000, page.LabEvent[0]);
    const std::string bytes = WriteLayout(page);
    const std::clock_t begin = std::clock();
    const LayoutReading reading = Read(bytes);
    EXPECT_LT(std::clock() - begin, 2 * CLOCKS_PER_SEC);
    ASSERT_FALSE(reading.Trouble);
    EXPECT_EQ(reading.Trouble.Failure().Code, ErrorCode::TooLarge);
    EXPECT_TRUE(reading.ToTheEnd);
    EXPECT_EQ(page_.LabUser.size(), 400U);
    EXPECT_FALSE(IsReadable(bytes));
}

// Boxes end where positions do, and what was composed in the farthest ones can be written.
TEST_F(LayoutFileTest, EdgesBeyondTheFarthestTwipAreNeitherReadNorWritten) {
    PageLayout page = FullPage();
    page.Image1.Left = 900'000;
    page.Image1.Top = -kFarthestTwip;
    page.Image1.Width = 100'000;
    page.Image1.Height = kFarthestTwip;
    std::string bytes = WriteLayout(page);
    EXPECT_EQ(Fault(bytes), "");
    EXPECT_EQ(page_.Image1.Left, 900'000);
    EXPECT_EQ(page_.Image1.Height, kFarthestTwip);
    const std::string width = "\r\n100000\r\n";
    bytes.replace(bytes.find(width), width.size(), "\r\n100001\r\n");
    EXPECT_EQ(Fault(bytes), "line 5");

    page.Image1.Top = 999'000;
    page.Image1.Height = 1'000;
    page.LabDays.fill(page.LabDays[0]);
    for (LayoutItem& name : page.LabDays) {
        name.Height = kFarthestTwip;
    }
    const PrintedMonth month(2026, 1, WeekStart::Monday);
    DoControls(page, month.Source(), month.Measure, FirstLayout::No);
    EXPECT_GT(page.LabDates[0].Top, kFarthestTwip);
    bytes = WriteLayout(page);
    EXPECT_TRUE(IsReadable(bytes));
    EXPECT_EQ(Fault(bytes), "");
    EXPECT_EQ(page_.LabDates[0].Top, kFarthestTwip);
    EXPECT_EQ(page_.LabDates[0].Height, 0);
}

} // namespace
} // namespace kestrova
