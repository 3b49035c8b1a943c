// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/PageRenderer.h"

#include "fakes/FakeSurface.h"
#include "print/PrintedMonth.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrova {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

using Edges = std::array<int, 4>; // left, top, right, bottom

// The rectangles that lines were drawn around.
std::vector<Edges> Frames(const FakeSurface& surface) {
    std::vector<Edges> frames;
    const auto lines = surface.Only(Drawn::What::Line);
    for (std::size_t i = 0; i + 3 < lines.size(); i += 4) {
        for (std::size_t k = 0; k < 4; ++k) {
            const Drawn& next = lines[i + (k + 1) % 4];
            EXPECT_EQ(lines[i + k].X2, next.X);
            EXPECT_EQ(lines[i + k].Y2, next.Y);
        }
        frames.push_back({lines[i].X, lines[i].Y, lines[i + 2].X, lines[i + 2].Y});
    }
    EXPECT_EQ(lines.size(), frames.size() * 4);
    return frames;
}

std::vector<std::string> Captions(const FakeSurface& surface) {
    std::vector<std::string> captions;
    for (const Drawn& drawn : surface.Texts()) {
        captions.push_back(drawn.Text);
    }
    return captions;
}

TEST(PageRendererTest, BorderLinesLieEvenlyInTheMargin) {
    PageLayout page;
    page.Surface = {12000, 16000};
    page.Image1.Left = 500;
    page.Image1.Top = 2000;
    page.Image1.Width = 11200;
    page.Image1.Height = 12000;
    const Edges box{500, 2000, 11700, 14000};
    const std::vector<std::vector<Edges>> expected = {
        {},
        {box},
        // 2/3 of 500 are 333.3, of 2000 1333.3, of 300 on the right 200.
        {box, {333, 1333, 11800, 14667}},
        {box, {250, 1000, 11850, 15000}, {375, 1500, 11775, 14500}},
        {box, {200, 800, 11880, 15200}, {300, 1200, 11820, 14800}, {400, 1600, 11760, 14400}}};
    for (std::size_t lines = 0; lines < expected.size(); ++lines) {
        FakeSurface surface;
        page.BorderLines = static_cast<int>(lines);
        page.BorderColor = 0x00FF00;
        page.BorderDrawStyle = LineStyle::Dotted;
        page.BorderWidth = 4;
        DoBorder(page, surface);
        EXPECT_EQ(Frames(surface), expected[lines]) << lines;
        for (const Drawn& line : surface.All) {
            EXPECT_EQ(line.Colour, 0x00FF00);
            EXPECT_EQ(line.Style, LineStyle::Dotted);
            EXPECT_EQ(line.PenWidth, 4);
        }
    }
}

TEST(PageRendererTest, ObjectsAreDrawnFromTheLowestToTheOneOnTop) {
    PrintedMonth month(2026, 1, WeekStart::Sunday);
    month.Add(1, 1, "Dentist");
    const auto picture = std::make_shared<FakePicture>(400, 300);
    PageLayout page = month.Composed(picture);
    page.Image1.Picture = std::make_shared<FakePicture>(1, 1);
    page.ImgUser.resize(2);
    page.ImgUser[1].Picture = std::make_shared<FakePicture>(2, 2);
    page.ImgUser[1].Width = page.ImgUser[1].Height = 100;
    page.LabUser.push_back(page.LabEvent[0]);
    page.LabUser[0].Caption = "Mine";
    FakeSurface surface;
    DoPrint(page, 28, surface);
    const auto pictures = surface.Only(Drawn::What::Picture);
    ASSERT_EQ(pictures.size(), 3U) << "one without a picture is skipped";
    EXPECT_EQ(pictures[0].Picture, page.Image1.Picture.get());
    EXPECT_EQ(pictures[1].Picture, picture.get());
    EXPECT_EQ(pictures[1].X2, page.Image2.Width);
    EXPECT_EQ(pictures[2].Picture, page.ImgUser[1].Picture.get());
    EXPECT_EQ(surface.All[3].Kind, Drawn::What::Text);
    std::vector<std::string> expected = {
        page.LabCurMth.Caption, "C0", "C1", "C2", "C3", "C4", "C5", "C6"};
    for (int day = 1; day <= 28; ++day) {
        expected.push_back(std::to_string(day));
    }
    expected.insert(expected.end(), {"Dentist", "Mine"});
    EXPECT_EQ(Captions(surface), expected);
    const Drawn name = surface.Texts()[1];
    // Two letters of 120 twips in the middle of 1515.
    EXPECT_EQ(name.X, 500 + 638);
    EXPECT_EQ(name.Y, page.LabDays[0].Top);
    EXPECT_EQ(surface.Texts()[8].X, 500 + 688); // one of 140
    EXPECT_EQ(surface.Texts()[36].Colour, 255);
    EXPECT_TRUE(surface.Texts()[8].Font.Size == 14);
}

TEST(PageRendererTest, DeletedObjectsAndOtherDaysAreNotDrawn) {
    PageLayout page = PrintedMonth(2026, 1, WeekStart::Sunday).Composed();
    page.LabCurMth.Enabled = false;
    page.LabDays[2].Enabled = false;
    page.LabDates[4].Enabled = false;
    page.GridOn = true;
    page.LabDates[0].ForeColor = 0x123456;
    page.LabDates[1].Visible = false; // as while the preview shows
    FakeSurface surface;
    DoPrint(page, 28, surface);
    const auto captions = Captions(surface);
    EXPECT_EQ(captions.size(), 6U + 27U);
    EXPECT_THAT(captions, Not(Contains("C2")));
    EXPECT_THAT(captions, Not(Contains("5")));
    EXPECT_THAT(captions, Contains("2"));
    const auto frames = Frames(surface);
    ASSERT_EQ(frames.size(), 27U);
    EXPECT_EQ(frames[0], (Edges{500, 3720, 500 + 1515, 3720 + 1793}));
    const Drawn line = surface.Only(Drawn::What::Line)[0];
    EXPECT_EQ(line.Colour, 0x123456);
    EXPECT_EQ(line.PenWidth, 1);
}

TEST(PageRendererTest, LinesFollowEachOtherAtTheLeftEdge) {
    PageLayout page;
    page.LabCurMth.Enabled = false;
    LayoutItem text;
    text.Left = 700;
    text.Top = 16000;
    text.FontSize = 10;
    text.Caption = "one\r\n\r\nthree\r\nfour\r\nfive";
    page.LabUser.push_back(text);
    FakeSurface surface;
    DoPrint(page, 0, surface);
    const auto texts = surface.Texts();
    EXPECT_THAT(Captions(surface), ElementsAre("one", "three")) << "the page ends at 16538";
    EXPECT_EQ(texts[1].X, 700);
    EXPECT_EQ(texts[1].Y, 16400);

    page.LabUser[0].Top = -1000; // the first lines are above the page
    surface.All.clear();
    DoPrint(page, 0, surface);
    EXPECT_THAT(Captions(surface), ElementsAre("four", "five"));
    EXPECT_EQ(surface.Texts()[0].Y, -400);
}

} // namespace
} // namespace kestrova
