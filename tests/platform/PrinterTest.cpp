// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Printer.h"

#include <gtest/gtest.h>

namespace kestrova {
namespace {

TEST(PrinterTest, PapersHaveTheirSizes) {
    struct Row {
        int Paper;
        double Width; // inches, or millimetres where `Unit` says so
        double Height;
        double Unit;
    };
    for (const Row& row :
         {Row{1, 8.5, 11, 1440}, Row{2, 8.5, 11, 1440}, Row{3, 11, 17, 1440}, Row{4, 17, 11, 1440},
          Row{5, 8.5, 14, 1440}, Row{6, 5.5, 8.5, 1440}, Row{7, 7.25, 10.5, 1440},
          Row{8, 297, 420, 1440 / 25.4}, Row{9, 210, 297, 1440 / 25.4},
          Row{10, 210, 297, 1440 / 25.4}, Row{11, 148, 210, 1440 / 25.4},
          Row{12, 257, 364, 1440 / 25.4}, Row{13, 182, 257, 1440 / 25.4}}) {
        SCOPED_TRACE(row.Paper);
        PrinterSetup setup;
        setup.Paper = row.Paper;
        const PageSize size = PaperSizeOf(setup);
        EXPECT_NEAR(size.Width, row.Width * row.Unit, 0.5);
        EXPECT_NEAR(size.Height, row.Height * row.Unit, 0.5);
        setup.Turned = Orientation::Landscape;
        EXPECT_EQ(PaperSizeOf(setup), (PageSize{size.Height, size.Width}));
    }
}

TEST(PrinterTest, TheEdgeIsLeftOutOnEverySide) {
    EXPECT_EQ(PrintableArea({}), (PageSize{11606, 16538}));
    for (const int unknown : {0, -1, 14}) {
        PrinterSetup setup;
        setup.Paper = unknown;
        EXPECT_EQ(PrintableArea(setup), (PageSize{11606, 16538})) << unknown;
    }
}

} // namespace
} // namespace kestrova
