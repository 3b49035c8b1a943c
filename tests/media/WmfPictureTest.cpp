// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/WmfPicture.h"

#include "media/WmfBytes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

namespace kestrova {
namespace {

// Writes down what it is asked to draw.
class Notes : public WmfCanvas {
public:
    [[nodiscard]] bool GoesOn() override { return true; }
    void Areas(const std::vector<WmfPoints>& areas, const WmfContext& context) override {
        const WmfPoint& first = areas.front().front();
        Note("area", first.X, first.Y, static_cast<double>(areas.size()), context.Brush.Colour);
    }
    void Line(const WmfPoints& points, const WmfContext& context) override {
        Note("line", points.back().X, points.back().Y, context.Pen.Width, context.Pen.Colour);
    }
    void Fill(const WmfBox& box, WmfMix mix, const WmfContext& context) override {
        Note("fill", box.Left, box.Top, static_cast<int>(mix), context.Brush.Colour);
    }
    void Image(const DibImage& image, const WmfBox& part, const WmfBox& box, WmfMix mix,
               const WmfContext& /*context*/) override {
        Note("image", part.Top, box.Top, static_cast<int>(mix), image.Pixels.front());
    }
    double Text(const WmfText& text, const WmfContext& context) override {
        Note(std::string(text.Bytes), text.At.X, text.At.Y, context.Font.Height,
             context.TextColour);
        return 10;
    }

    std::vector<std::string> Lines;

private:
    void Note(const std::string& what, double a, double b, double c, std::uint32_t colour) {
        char text[100];
        std::snprintf(text, sizeof text, "%s %g %g %g %06X", what.c_str(), a, b, c,
                      colour & 0xFFFFFFU);
        Lines.emplace_back(text);
    }
};

std::vector<std::string> Played(const std::string& bytes, double width = 100, double height = 50) {
    Notes notes;
    const auto picture = OpenWmf(bytes);
    if (picture) {
        PlayWmf(picture.Value(), width, height, notes);
    }
    return notes.Lines;
}

using testing::ElementsAre;

TEST(WmfPictureTest, ItsSizeIsThatOfItsFrameOrItsWindowOrWhatIsDrawn) {
    struct Row {
        const char* Name;
        std::string Bytes;
        double Width;
        double Height;
    };
    const Row rows[] = {
        {"a frame", WmfBytes().Window(10, 10).Placeable(1440, 720, 1440), 96, 48},
        {"a window", WmfBytes().Window(200, 100).Plain(), 1024, 512},
        {"an upturned window", WmfBytes().Window(200, -100).Plain(), 1024, 512},
        {"neither", WmfBytes().Box(100, 100, 300, 200).Plain(), 1024, 512},
        {"a frame without extent", WmfBytes().Window(2, 4).Placeable(0, 7, 96), 512, 1024},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Name);
        const auto picture = OpenWmf(row.Bytes);
        ASSERT_TRUE(picture);
        EXPECT_DOUBLE_EQ(picture.Value().Width, row.Width);
        EXPECT_DOUBLE_EQ(picture.Value().Height, row.Height);
    }
}

TEST(WmfPictureTest, OrdersAreObeyed) {
    struct Row {
        const char* Name;
        WmfBytes Orders;
        std::vector<std::string> Drawn; // in a window of 1000 x 500 units on 100 x 50 pixels
    };
    const std::string dib = DibOf(1, 2, {0x0000FF, 0xFF0000});
    const Row rows[] = {
        {"a box", WmfBytes().Brush(0, 0x0000FF).Box(100, 200, 300, 400), {"area 10 20 1 FF0000"}},
        {"a line from here to there",
         WmfBytes()
             .Add(0x02FA, Words({0, 7, 0}) + Longs({0x00FF00}))
             .Add(0x012D, Words({0}))
             .Add(0x0214, Words({0, 0}))
             .Add(0x0213, Words({50, 60})),
         {"line 6 5 7 00FF00"}},
        {"two polygons as one",
         WmfBytes().Add(0x0538, Words({2, 2, 2, 10, 20, 30, 40, 50, 60, 70, 80})),
         {"area 1 2 2 FFFFFF"}},
        {"text",
         WmfBytes().Add(0x0521, Words({3}) + "abc" + '\0' + Words({100, 200})),
         {"abc 20 10 0 000000"}},
        {"text that moves along",
         WmfBytes()
             .Add(0x012E, Words({1}))
             .Add(0x0214, Words({100, 200}))
             .Add(0x0A32, Words({0, 0, 2, 0}) + "ab")
             .Add(0x0A32, Words({0, 0, 2, 0}) + "cd"),
         {"ab 20 10 0 000000", "cd 30 10 0 000000"}},
        {"what was saved comes back",
         WmfBytes()
             .Add(0x001E, "")
             .Brush(0, 0x0000FF)
             .Add(0x0127, Words({-1}))
             .Box(0, 0, 10, 10)
             .Add(0x0127, Words({-1})),
         {"area 0 0 1 FFFFFF"}},
        {"a place that is free is taken first",
         WmfBytes()
             .Brush(0, 1)
             .Brush(1, 2)
             .Add(0x01F0, Words({0}))
             .Brush(0, 0x0000FF)
             .Box(0, 0, 10, 10),
         {"area 0 0 1 FF0000"}},
        {"objects that mean nothing keep their place",
         WmfBytes().Add(0x00F7, "").Add(0x06FF, "").Brush(2, 0x0000FF).Box(0, 0, 10, 10),
         {"area 0 0 1 FF0000"}},
        {"operations on the brush",
         WmfBytes()
             .Add(0x061D, Longs({0x00F00021}) + Words({10, 10, 20, 30}))
             .Add(0x061D, Longs({0x00000042}) + Words({10, 10, 20, 30}))
             .Add(0x061D, Longs({0x00FF0062}) + Words({10, 10, 20, 30}))
             .Add(0x061D, Longs({0x005A0049}) + Words({10, 10, 20, 30}))
             .Add(0x0940, Longs({0x00550009}) + Words({0, 0, 0, 10, 10, 20, 30})),
         {"fill 3 2 12 FFFFFF", "fill 3 2 0 FFFFFF", "fill 3 2 15 FFFFFF", "fill 3 2 6 FFFFFF",
          "fill 3 2 5 FFFFFF"}},
        {"images, by their upper or lower edge",
         WmfBytes()
             .Add(0x0B41, Longs({0x00CC0020}) + Words({1, 1, 0, 0, 9, 9, 50, 0}) + dib)
             .Add(0x0940, Longs({0x008800C6}) + Words({1, 0, 1, 1, 50, 0}) + dib)
             .Add(0x0F43, Longs({0x00EE0086}) + Words({0, 1, 1, 0, 0, 9, 9, 50, 0}) + dib),
         {"image 0 5 12 FF0000", "image 1 5 8 FF0000", "image 1 5 14 FF0000"}},
        {"a pixel",
         WmfBytes().Add(0x041F, Longs({0x0000FF}) + Words({100, 200})),
         {"fill 20 10 12 FF0000"}},
        {"a window that is moved",
         WmfBytes().Add(0x020F, Words({-100, -200})).Box(0, 0, 10, 10),
         {"area 20 10 1 FFFFFF"}},
        {"orders nobody knows",
         WmfBytes().Add(0x7777, Words({1})).Box(0, 0, 10, 10),
         {"area 0 0 1 FFFFFF"}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Name);
        EXPECT_EQ(Played(row.Orders.Placeable(1000, 500, 1000)), row.Drawn);
    }
}

TEST(WmfPictureTest, ADamagedOrderEndsTheDrawingAndWhatWasDrawnStands) {
    const std::string huge = Longs({40, 30000, 30000, 1U | 24U << 16U, 0, 0, 0, 0, 0, 0});
    const std::pair<const char*, WmfBytes> rows[] = {
        {"more points than there are", WmfBytes().Add(0x0324, Words({9000, 1, 1}))},
        {"fewer than no points", WmfBytes().Add(0x0325, Words({-1, 1, 1}))},
        {"many polygons", WmfBytes().Add(0x0538, Words({0xFFFF, 1, 1}))},
        {"a box without corners", WmfBytes().Add(0x041B, Words({1}))},
        {"a text that is not there", WmfBytes().Add(0x0521, Words({300, 1, 1}))},
        {"a text of no length", WmfBytes().Add(0x0A32, Words({0, 0, -5, 0}))},
        {"an image too large",
         WmfBytes().Add(0x0B41, Longs({0x00CC0020}) + Words({1, 1, 0, 0, 9, 9, 0, 0}) + huge)},
        {"an image of no kind",
         WmfBytes().Add(0x0F43, Longs({0x00CC0020}) + Words({0, 1, 1, 0, 0, 9, 9, 0, 0, 1, 2}))},
    };
    for (const auto& [name, damaged] : rows) {
        SCOPED_TRACE(name);
        WmfBytes orders = WmfBytes().Window(100, 50).Box(1, 1, 2, 2);
        const std::string good = orders.Plain();
        std::string bytes = good.substr(0, good.size() - 6) + damaged.Plain().substr(18);
        bytes.insert(bytes.size() - 6, WmfBytes().Box(5, 5, 6, 6).Plain().substr(18, 14));
        EXPECT_THAT(Played(bytes), ElementsAre("area 1 1 1 FFFFFF"));
    }
}

TEST(WmfPictureTest, AFileWithoutAnOrderIsNone) {
    const std::string whole = WmfBytes().Box(0, 0, 1, 1).Placeable(10, 10, 10);
    for (const std::string& bytes :
         {std::string(), std::string(500, '\0'), WmfBytes().Plain(), whole.substr(0, 22),
          whole.substr(0, 41), whole.substr(0, 50), std::string("\xD7\xCD\xC6\x9A")}) {
        const auto picture = OpenWmf(bytes);
        ASSERT_FALSE(picture) << bytes.size();
        EXPECT_EQ(picture.Failure().Code, ErrorCode::Damaged);
    }
}

TEST(WmfPictureTest, BitmapsOfEveryDepthAreRead) {
    const auto header = [](int width, int height, unsigned bits, unsigned packing, unsigned used) {
        return Longs({40, static_cast<unsigned>(width), static_cast<unsigned>(height),
                      1U | bits << 16U, packing, 0, 0, 0, used, 0});
    };
    const std::string two = Longs({0x000000FF, 0x00FF0000}); // blue and red
    struct Row {
        const char* Name;
        std::string Bytes;
        std::vector<std::uint32_t> Pixels;
    };
    constexpr std::uint32_t kBlue = 0xFF0000FF;
    constexpr std::uint32_t kRed = 0xFFFF0000;
    const Row rows[] = {
        {"1 bit", header(3, 1, 1, 0, 2) + two + Longs({0x40}), {kBlue, kRed, kBlue}},
        {"4 bits", header(3, 1, 4, 0, 2) + two + Longs({0x1010}), {kRed, kBlue, kRed}},
        {"8 bits", header(2, 1, 8, 0, 2) + two + Longs({0x0001}), {kRed, kBlue}},
        {"16 bits", header(2, 1, 16, 0, 0) + Longs({0x001F7C00}), {kRed, kBlue}},
        {"16 bits by masks",
         header(2, 1, 16, 3, 0) + Longs({0xF800, 0x07E0, 0x001F, 0x001FF800}),
         {kRed, kBlue}},
        {"24 bits", DibOf(1, 2, {0x0000FF, 0xFF0000}), {kRed, kBlue}},
        {"32 bits", header(1, 1, 32, 0, 0) + Longs({0x00FF0000}), {kRed}},
        {"rows downwards", header(1, -2, 32, 0, 0) + Longs({0xFF0000, 0xFF}), {kRed, kBlue}},
        {"runs of 8 bits",
         header(2, 2, 8, 1, 2) + two + std::string("\x01\x01\x00\x00\xFF\x00\x00\x01", 8),
         {kBlue, kBlue, kRed, kBlue}},
        {"runs of 4 bits",
         header(4, 1, 4, 2, 2) + two + std::string("\x00\x03\x10\x10\x00\x01", 6),
         {kRed, kBlue, kRed, kBlue}},
        {"an old header", Longs({12}) + Words({1, 1, 1, 24}) + Longs({0xFF0000}), {kRed}},
        {"a row too few", header(1, 2, 32, 0, 0) + Longs({0}), {}},
        {"no width", header(0, 2, 32, 0, 0) + Longs({0}), {}},
        {"no known depth", header(1, 1, 7, 0, 0) + Longs({0}), {}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Name);
        const auto image = DecodeDib(row.Bytes, DibColours::Rgb, 100);
        EXPECT_EQ(image ? image->Pixels : std::vector<std::uint32_t>(), row.Pixels);
    }
}

TEST(WmfPictureTest, NoBytesHarm) {
    const std::string whole = WmfBytes()
                                  .Window(100, 50)
                                  .Brush(0, 0x00FF00)
                                  .Box(1, 1, 90, 40)
                                  .Add(0x061C, Words({5, 5, 40, 90, 1, 1}))
                                  .Add(0x081A, Words({1, 1, 9, 9, 40, 90, 1, 1}))
                                  .Add(0x0521, Words({2}) + "ab" + Words({1, 2}))
                                  .Placeable(100, 50, 96);
    std::mt19937 random(20261123);
    for (int round = 0; round < 3000; ++round) {
        std::string bytes = whole;
        for (int i = 0; i < 4; ++i) {
            bytes[random() % bytes.size()] = static_cast<char>(random());
        }
        (void)Played(bytes.substr(0, 22 + random() % bytes.size()));
    }
}

} // namespace
} // namespace kestrova
