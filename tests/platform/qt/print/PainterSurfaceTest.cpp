// SPDX-License-Identifier: GPL-3.0-or-later
// The page in a window and the page on paper, as another program sees that.
#include "platform/qt/PainterSurface.h"
#include "PdfPages.h"
#include "fakes/MemoryFileStore.h"
#include "platform/qt/PageImage.h"
#include "platform/qt/PdfPrinter.h"
#include "platform/qt/QtText.h"

#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace kestrova {
namespace {

using testing::HasSubstr;

constexpr std::int32_t kRed = 0x0000FF;
constexpr std::int32_t kBlue = 0xFF0000;
const FontChoice kPlain{"Liberation Sans", 12, false, false};

// A document in a file that goes with this object.
class PdfFile {
public:
    explicit PdfFile(const PrinterSetup& setup = {}) : job_(printer_.Begin(setup, "x")) {
        job_->NewPage();
    }

    PrintJob& Page() { return *job_; }

    QString Finish() {
        EXPECT_TRUE(job_->Finish());
        QFile file(folder_.filePath(QStringLiteral("page.pdf")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray::fromStdString(*files_.Content("/x.pdf")));
        return file.fileName();
    }

private:
    MemoryFileStore files_;
    PdfPrinter printer_ = [this] {
        PdfPrinter printer(files_);
        printer.SetTarget("/x.pdf");
        return printer;
    }();
    std::unique_ptr<PrintJob> job_;
    QTemporaryDir folder_;
};

// The whole paper in pixels, drawn as a window does it.
template<typename Draw> QImage InWindow(int dotsPerInch, const PrinterSetup& setup, Draw draw) {
    const PageSize paper = PaperSizeOf(setup);
    const double scale = dotsPerInch / 1440.0;
    QImage image(QSize(static_cast<int>(std::ceil(paper.Width * scale)),
                       static_cast<int>(std::ceil(paper.Height * scale))),
                 QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(scale, scale);
    painter.translate(kPaperEdge, kPaperEdge);
    const PaperMeasure measure;
    PainterSurface surface(painter, measure, PrintableArea(setup), setup.Colours);
    draw(surface);
    return image;
}

// A picture that is transparent at its left and shows a ramp and a grating.
PageImage Sample() {
    QImage image(900, 600, QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const int stripe = x / 100 % 2 * 160;
            image.setPixel(x, y, qRgba(stripe, y * 255 / 600, 90, x < 300 ? 0 : 255));
        }
    }
    return PageImage(image);
}

void DrawMonth(DrawingSurface& page, const PagePicture& picture) {
    page.DrawPicture(1000, 2000, page.PageWidth() - 2000, 4000, picture);
    page.DrawText(3000, 600, {"Liberation Serif", 36, true, true}, kBlue, "November  2026");
    for (int day = 0; day < 30; ++day) {
        const int x = 600 + day % 7 * (page.PageWidth() - 1200) / 7;
        const int y = 6500 + day / 7 * 1200;
        page.DrawText(x, y, {"Liberation Sans", 16, true, false}, 0, std::to_string(day + 1));
        page.DrawText(x, y + 400, {"Liberation Sans", 7, false, false}, kRed,
                      "10:00 Caf\xC3\xA9 \xCE\xB1\xCE\xB2\xCE\xB3");
    }
    const int right = page.PageWidth() - 300;
    const int bottom = page.PageHeight() - 300;
    page.DrawLine(300, 300, right, 300, {kBlue, LineStyle::Solid, 4});
    page.DrawLine(300, 300, 300, bottom, {kBlue, LineStyle::Solid, 4});
    page.DrawLine(right, 300, right, bottom, {kRed, LineStyle::Dotted, 1});
    page.DrawLine(300, bottom, right, bottom, {0, LineStyle::Solid, 1});
}

// Of three by three pixels the middle one.
int Blurred(const QImage& image, int x, int y) {
    int sum = 0;
    for (int dy = -1; dy <= 1; ++dy) {
        for (int dx = -1; dx <= 1; ++dx) {
            sum += qGray(image.pixel(x + dx, y + dy));
        }
    }
    return sum / 9;
}

// The part of the pixels that differ by a fifth of what lies between black and white, or more,
// after each has been mixed with its neighbours.
double Difference(const QImage& a, const QImage& b) {
    const QSize size = a.size().boundedTo(b.size());
    int differing = 0;
    for (int y = 1; y + 1 < size.height(); ++y) {
        for (int x = 1; x + 1 < size.width(); ++x) {
            differing += std::abs(Blurred(a, x, y) - Blurred(b, x, y)) > 51 ? 1 : 0;
        }
    }
    return static_cast<double>(differing) / size.width() / size.height();
}

// Paper has many more pixels than a window, and is looked at from farther away.
QImage OnPaper(const QImage& fine, const QImage& window, int times) {
    QImage sheet =
        fine.convertToFormat(QImage::Format_RGB32).copy(QRect({}, window.size() * times));
    return sheet.scaled(window.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

bool IsGrey(QRgb pixel) {
    return qRed(pixel) == qGreen(pixel) && qGreen(pixel) == qBlue(pixel);
}

TEST(PainterSurfaceTest, WindowAndPaperAgree) {
    constexpr int kFine = 384;
    const PageImage picture = Sample();
    const auto draw = [&](DrawingSurface& page) { DrawMonth(page, picture); };
    for (const PrinterSetup& setup :
         {PrinterSetup{9, Orientation::Portrait}, PrinterSetup{1, Orientation::Landscape},
          PrinterSetup{11, Orientation::Portrait, PrintQuality::Draft, PrintColour::Monochrome}}) {
        PdfFile file(setup);
        draw(file.Page());
        const QImage fine = PictureOf(file.Finish(), kFine);
        ASSERT_FALSE(fine.isNull());
        EXPECT_EQ(setup.Colours == PrintColour::Monochrome,
                  IsGrey(fine.pixel(fine.width() / 2, fine.height() / 4)));
        for (const int dotsPerInch : {96, 192}) {
            SCOPED_TRACE(std::to_string(setup.Paper) + " at " + std::to_string(dotsPerInch));
            const QImage window = InWindow(dotsPerInch, setup, draw);
            const int times = kFine / dotsPerInch;
            ASSERT_LT(std::abs(window.width() * times - fine.width()), 2 * times);
            ASSERT_LT(std::abs(window.height() * times - fine.height()), 2 * times);
            const QImage paper = OnPaper(fine, window, times);
            EXPECT_LT(Difference(window, paper), 0.001);
            // What is a pixel away would be seen.
            EXPECT_GT(Difference(window.copy(1, 0, window.width(), window.height()), paper), 0.005);
        }
    }
}

TEST(PainterSurfaceTest, TextIsAsWideEverywhereAndStandsWhereItWasPut) {
    const std::string text = "AV To wagon, fifty";
    const PaperMeasure measure;
    PdfFile file;
    EXPECT_EQ(file.Page().TextWidth(kPlain, text), measure.TextWidth(kPlain, text));
    InWindow(96, {}, [&](const DrawingSurface& window) {
        EXPECT_EQ(window.TextWidth(kPlain, text), measure.TextWidth(kPlain, text));
    });
    for (int i = 0; i < 20; ++i) {
        file.Page().DrawText(100 + 7 * i, 600 * i, kPlain, 0, "W" + std::to_string(i));
        file.Page().DrawText(5000, 600 * i, kPlain, 0, "end");
    }
    const auto words = WordsOf(file.Finish());
    for (int i = 0; i < 20; ++i) {
        const std::string label = "W" + std::to_string(i);
        const PdfWord word = FindWord(words, label);
        EXPECT_NEAR(word.Left, (kPaperEdge + 100 + 7 * i) / 20.0, 0.1);
        EXPECT_NEAR(word.Top, (kPaperEdge + 600 * i) / 20.0, 0.1);
        EXPECT_NEAR((word.Right - word.Left) * 20, measure.TextWidth(kPlain, label), 2);
        EXPECT_NEAR((word.Bottom - word.Top) / 12, 1.117, 0.002); // this font's height
    }
}

TEST(PainterSurfaceTest, MeasuresGoWithTheSizeOfTheFont) {
    const PaperMeasure measure;
    FontChoice large = kPlain;
    large.Size = 120;
    const std::string text = "Monday 31";
    EXPECT_NEAR(measure.TextWidth(large, text), 10 * measure.TextWidth(kPlain, text), 10);
    EXPECT_NEAR(measure.LineHeight(large), 10 * measure.LineHeight(kPlain), 10);
    EXPECT_NEAR(measure.AverageWidth(large), 10 * measure.AverageWidth(kPlain), 10);
    EXPECT_GT(measure.AverageWidth(kPlain), measure.TextWidth(kPlain, "i"));
    EXPECT_LT(measure.AverageWidth(kPlain), measure.TextWidth(kPlain, "W"));
    EXPECT_EQ(measure.TextWidth(kPlain, ""), 0);
    EXPECT_EQ(measure.TextWidth(kPlain, "a\tb\n"), measure.TextWidth(kPlain, "a b "));
}

TEST(PainterSurfaceTest, SizesThatNoFontHasDoNoHarm) {
    const PaperMeasure measure;
    for (const float size : {0.0F, -5.0F, 1e30F, std::numeric_limits<float>::quiet_NaN(),
                             std::numeric_limits<float>::infinity()}) {
        const FontChoice font{"No such font", size, true, true};
        EXPECT_GT(measure.LineHeight(font), 0);
        InWindow(96, {}, [&](DrawingSurface& page) {
            page.DrawText(0, 0, font, 0, "x\xFF\x01y");
            page.DrawText(INT_MAX, INT_MIN, font, 0, "far");
            page.DrawLine(INT_MIN, 10, INT_MAX, 10, {0, LineStyle::Dotted, INT_MAX});
            page.DrawPicture(INT_MAX, INT_MIN, INT_MAX, INT_MAX, Sample());
            page.DrawPicture(-5, -5, 1, 100'000'000, Sample());
        });
    }
}

TEST(PainterSurfaceTest, EveryFontIsInsideTheDocument) {
    PdfFile file;
    file.Page().DrawText(0, 0, {"Liberation Serif", 20, true, false}, 0, "Plain");
    file.Page().DrawText(0, 900, {"URW Bookman", 20, false, false}, 0,
                         "Greek \xCE\x93\xCE\xB5\xCE\xB9\xCE\xAC \xE2\x98\x83");
    const QString pdf = file.Finish();
    const QStringList rows = DescriptionOf(pdf)
                                 .section(QStringLiteral("object ID"), 1)
                                 .split(u'\n', Qt::SkipEmptyParts)
                                 .mid(1);
    ASSERT_GE(rows.size(), 2);
    for (const QString& row : rows) {
        EXPECT_TRUE(row.contains(QStringLiteral(" yes "))) << FromQt(row); // the first is "emb"
    }
    EXPECT_EQ(FindWord(WordsOf(pdf), "\xCE\x93\xCE\xB5\xCE\xB9\xCE\xAC").Page, 1);
}

// Pixels of 1/96 inch along a line of the given pen.
std::string PixelsAlong(const Pen& pen, int across) {
    const QImage image =
        InWindow(96, {}, [&](DrawingSurface& page) { page.DrawLine(150, 150, 3000, 150, pen); });
    std::string dots;
    for (int i = 0; i < 9; ++i) {
        const QPoint at = across != 0 ? QPoint(60, 20 - 4 + i) : QPoint(30 + i, 20);
        const int grey = qGray(image.pixel(at));
        dots += grey < 20 ? '#' : grey > 235 ? '.' : '?';
    }
    return dots;
}

TEST(PainterSurfaceTest, LinesLieOnWholePixels) {
    EXPECT_EQ(PixelsAlong({0, LineStyle::Solid, 1}, 1), "....#....");
    EXPECT_EQ(PixelsAlong({0, LineStyle::Solid, 4}, 1), "..####...");
    EXPECT_EQ(PixelsAlong({0, LineStyle::Solid, 1}, 0), "#########");
    EXPECT_THAT(PixelsAlong({0, LineStyle::Dotted, 1}, 0),
                testing::AnyOf("#..#..#..", ".#..#..#.", "..#..#..#"));
}

TEST(PainterSurfaceTest, WhatIsTransparentShowsWhatLiesBelow) {
    const PageImage picture = Sample();
    const auto draw = [&](DrawingSurface& page) {
        page.DrawLine(0, 1000, 6000, 1000, {kRed, LineStyle::Solid, 4});
        page.DrawPicture(1000, 500, 3000, 1000, picture);
    };
    PdfFile file;
    draw(file.Page());
    for (const QImage& image : {InWindow(96, {}, draw), PictureOf(file.Finish(), 96)}) {
        const auto at = [&](int x, int y) { return QColor(image.pixel(10 + x / 15, 10 + y / 15)); };
        EXPECT_GT(at(1500, 1000).red(), 240);
        EXPECT_LT(at(1500, 1000).green(), 20);
        EXPECT_EQ(at(1500, 1300), QColor(Qt::white));
        EXPECT_NEAR(at(3500, 1000).blue(), 90, 12);
    }
}

TEST(PainterSurfaceTest, APictureIsMadeSmallerOnceAndPaperGetsItWhole) {
    QImage large(4000, 3000, QImage::Format_RGB32);
    large.fill(Qt::darkGreen);
    const PageImage picture(large);
    const QImage first = picture.Scaled({700, 500});
    EXPECT_EQ(first.size(), QSize(700, 500));
    EXPECT_EQ(picture.Scaled({700, 500}).cacheKey(), first.cacheKey());
    EXPECT_EQ(picture.Scaled({9000, 100}).size(), QSize(4000, 100)); // never larger
    EXPECT_EQ(picture.Scaled({700, 500}).cacheKey(), first.cacheKey());
    PdfFile file;
    file.Page().DrawPicture(0, 0, 1400, 1000, picture);
    const QImage paper = PictureOf(file.Finish(), 96);
    EXPECT_NEAR(QColor(paper.pixel(50, 40)).green(), 128, 6);
}

TEST(PdfPrinterTest, TheOldFileStandsUntilTheNewOneIsWhole) {
    MemoryFileStore files;
    ASSERT_TRUE(files.Replace("/x.pdf", "old"));
    PdfPrinter printer(files);
    EXPECT_TRUE(printer.Check());
    const auto aimless = printer.Begin({}, "x");
    aimless->NewPage();
    EXPECT_EQ(aimless->Finish().Failure().Code, ErrorCode::NotFound);
    printer.SetTarget("/x.pdf");
    const auto job = printer.Begin({}, "A title");
    EXPECT_EQ(job->PageNumber(), 0);
    job->NewPage();
    job->NewPage();
    EXPECT_EQ(job->PageNumber(), 2);
    printer.Begin({}, "thrown away")->NewPage();
    EXPECT_EQ(*files.Content("/x.pdf"), "old");
    ASSERT_TRUE(job->Finish());
    EXPECT_TRUE(files.Content("/x.pdf")->starts_with("%PDF-"));
}

} // namespace
} // namespace kestrova
