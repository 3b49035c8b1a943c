// SPDX-License-Identifier: GPL-3.0-or-later
// The real module with a real printing system, which does everything right or one thing wrong.
#include "platform/qt/PrintModule.h"
#include "PdfPages.h"
#include "PrivateCups.h"
#include "SlowCups.h"
#include "platform/qt/PageImage.h"
#include "platform/qt/QtEventLoop.h"
#include "platform/qt/QtText.h"

#include <QTimer>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

namespace kestrova {
namespace {

using namespace std::chrono_literals;
using testing::HasSubstr;
using testing::Not;

const FontChoice kPlain{"Liberation Sans", 12, false, false};

class PrintModuleTest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        if (PrivateCups::IsInstalled()) {
            cups_ = std::make_unique<PrivateCups>();
        }
    }
    static void TearDownTestSuite() { cups_.reset(); }

    void SetUp() override {
        if (!cups_) {
            GTEST_SKIP() << "cups is not installed";
        }
        ASSERT_TRUE(cups_->Runs()) << cups_->Log().toStdString();
        PrivateCups::Use(cups_->Port());
    }

    // Gives up to the queue what it is about, and says how long that took.
    template<typename Act> static std::chrono::milliseconds TimeOf(Act act) {
        const auto begin = std::chrono::steady_clock::now();
        act();
        return std::chrono::duration_cast<std::chrono::milliseconds>(
            std::chrono::steady_clock::now() - begin);
    }

    static Status Print(PrintModule& printer, const PrinterSetup& setup = {}) {
        const auto job = printer.Begin(setup, "M\xC3\xA4rz  2026\nx");
        job->NewPage();
        job->DrawText(0, 0, kPlain, 0, "Corner");
        job->DrawText(2000, 3000, kPlain, 0, "Middle");
        job->NewPage();
        job->DrawText(job->PageWidth() - 1440, job->PageHeight() - 1440, kPlain, 255, "Second");
        return job->Finish();
    }

    static inline std::unique_ptr<PrivateCups> cups_;
};

struct Paper {
    PrinterSetup Setup;
    const char* Media;
    const char* Quality;
    const char* Colours;
};

void ExpectAt(const std::vector<PdfWord>& words, const char* text, int page, double left,
              double top) {
    const PdfWord word = FindWord(words, text);
    EXPECT_EQ(word.Page, page) << text;
    EXPECT_NEAR(word.Left, left, 0.5) << text;
    EXPECT_NEAR(word.Top, top, 0.5) << text;
}

TEST_F(PrintModuleTest, WhatArrivesIsThePageOnItsPaper) {
    ASSERT_TRUE(cups_->AddQueue(QStringLiteral("paper"))) << cups_->Log().toStdString();
    using enum Orientation;
    for (const Paper& row : {Paper{{9, Portrait, PrintQuality::High, PrintColour::Colour},
                                   "iso_a4_210x297mm",
                                   "high",
                                   "color"},
                             Paper{{9, Landscape, PrintQuality::Draft, PrintColour::Monochrome},
                                   "iso_a4_210x297mm",
                                   "draft",
                                   "monochrome"},
                             Paper{{1, Landscape, PrintQuality::Medium, PrintColour::Colour},
                                   "na_letter_8.5x11in",
                                   "normal",
                                   "color"},
                             Paper{{4, Portrait, PrintQuality::Low, PrintColour::Colour},
                                   "na_ledger_11x17in",
                                   "draft",
                                   "color"},
                             Paper{{13, Portrait, PrintQuality::High, PrintColour::Monochrome},
                                   "jis_b5_182x257mm",
                                   "high",
                                   "monochrome"}}) {
        SCOPED_TRACE(row.Media);
        PrintModule printer(KESTROVA_PRINT);
        ASSERT_TRUE(printer.Check());
        const auto sent = Print(printer, row.Setup);
        ASSERT_TRUE(sent) << sent.Failure().Text;
        const int number = cups_->LastJob();
        auto job = cups_->Job(number);
        EXPECT_EQ(job["job-name"], "M\xC3\xA4rz  2026 x");
        EXPECT_EQ(job["media"], row.Media);
        EXPECT_EQ(job["print-quality"], row.Quality);
        EXPECT_EQ(job["print-color-mode"], row.Colours);
        EXPECT_EQ(job["print-scaling"], "none");
        EXPECT_EQ(job.count("orientation-requested"), 0U);

        const PageSize paper = PaperSizeOf(row.Setup);
        const double width = paper.Width / 20.0;
        const double height = paper.Height / 20.0;
        const QString arrived = cups_->Arrived(number);
        ASSERT_FALSE(arrived.isEmpty());
        const QString about = DescriptionOf(arrived);
        EXPECT_TRUE(about.contains(QStringLiteral("Pages:           2"))) << FromQt(about);
        EXPECT_TRUE(about.contains(QStringLiteral("Page rot:        0"))) << FromQt(about);
        const std::string box = "MediaBox:            0.00     0.00";
        EXPECT_THAT(FromQt(about), HasSubstr(box));
        const auto words = WordsOf(arrived);
        const double area = kPaperEdge / 20.0;
        ExpectAt(words, "Corner", 1, area, area);
        ExpectAt(words, "Middle", 1, area + 100, area + 150);
        ExpectAt(words, "Second", 2, width - area - 72, height - area - 72);
        const PdfWord word = FindWord(words, "Middle");
        EXPECT_NEAR(word.Bottom - word.Top, 13.4, 0.05); // of 12 points in this font

        // On the sheet as the printer feeds it, which may lie on its side.
        const auto printed = WordsOf(cups_->Printed(QStringLiteral("paper")));
        if (width < height) {
            ExpectAt(printed, "Middle", 1, area + 100, area + 150);
        } else {
            ExpectAt(printed, "Middle", 1, height - area - 150 - 13.4, area + 100);
        }
    }
}

TEST_F(PrintModuleTest, WhatTheUserHasSetForAllDocumentsIsKept) {
    ASSERT_TRUE(cups_->AddQueue(QStringLiteral("paper")));
    ASSERT_TRUE(cups_->AddQueue(QStringLiteral("other")));
    ASSERT_TRUE(cups_->Tool(QStringLiteral("lpoptions"),
                            {QStringLiteral("-d"), QStringLiteral("paper"), QStringLiteral("-o"),
                             QStringLiteral("sides=two-sided-long-edge"), QStringLiteral("-o"),
                             QStringLiteral("orientation-requested=4"), QStringLiteral("-o"),
                             QStringLiteral("fit-to-page=true")}));
    PrintModule printer(KESTROVA_PRINT);
    ASSERT_TRUE(Print(printer));
    auto job = cups_->Job(cups_->LastJob());
    EXPECT_THAT(job["job-printer-uri"], testing::EndsWith("/paper"));
    EXPECT_EQ(job["sides"], "two-sided-long-edge");
    EXPECT_EQ(job.count("orientation-requested"), 0U);
    EXPECT_EQ(job.count("fit-to-page"), 0U);
    cups_->ForgetUserChoices();
    EXPECT_TRUE(
        cups_->Tool(QStringLiteral("lpadmin"), {QStringLiteral("-x"), QStringLiteral("other")}));
}

TEST_F(PrintModuleTest, AQueueThatRefusesIsAFailureAndOneThatWaitsIsNone) {
    ASSERT_TRUE(cups_->AddQueue(QStringLiteral("moody")));
    PrintModule printer(KESTROVA_PRINT);
    ASSERT_TRUE(cups_->Tool(QStringLiteral("cupsreject"), {QStringLiteral("moody")}));
    EXPECT_TRUE(printer.Check()); // it is there
    const int before = cups_->LastJob();
    const auto refused = Print(printer);
    ASSERT_FALSE(refused);
    EXPECT_EQ(refused.Failure().Code, ErrorCode::Failed);
    EXPECT_THAT(refused.Failure().Text, HasSubstr("not accepting"));
    EXPECT_EQ(cups_->LastJob(), before);

    ASSERT_TRUE(cups_->Tool(QStringLiteral("cupsaccept"), {QStringLiteral("moody")}));
    ASSERT_TRUE(cups_->Tool(QStringLiteral("cupsdisable"), {QStringLiteral("moody")}));
    EXPECT_TRUE(Print(printer));
    EXPECT_EQ(cups_->LastJob(), before + 1);
    EXPECT_TRUE(
        cups_->Tool(QStringLiteral("lpadmin"), {QStringLiteral("-x"), QStringLiteral("moody")}));
}

TEST_F(PrintModuleTest, WithoutAQueueOrASchedulerThereIsNoPrinter) {
    PrivateCups none;
    ASSERT_TRUE(none.Runs()) << none.Log().toStdString();
    PrintModule printer(KESTROVA_PRINT);
    const auto job = printer.Begin({}, "x");
    job->NewPage();
    for (const bool stopped : {false, true}) {
        SCOPED_TRACE(stopped);
        if (stopped) {
            none.Stop();
        }
        for (const bool asked : {true, false}) {
            const auto time = TimeOf([&] {
                const Status outcome = asked ? printer.Check() : Print(printer);
                ASSERT_FALSE(outcome);
                EXPECT_EQ(outcome.Failure().Code, ErrorCode::NotFound);
            });
            EXPECT_LT(time, 5500ms) << asked;
        }
    }
    PrivateCups::Use(cups_->Port());
}

TEST_F(PrintModuleTest, TheFirstQueueServesWhereNoneIsTheDefault) {
    ASSERT_TRUE(cups_->AddQueue(QStringLiteral("paper")));
    qputenv("LPDEST", "gone");
    PrintModule printer(KESTROVA_PRINT);
    EXPECT_TRUE(printer.Check());
    EXPECT_TRUE(Print(printer));
    qunsetenv("LPDEST");
}

// The whole of the limit, and events go on.
TEST_F(PrintModuleTest, AnybodyWhoNeverAnswersIsGivenUpOnInTime) {
    ASSERT_TRUE(cups_->AddQueue(QStringLiteral("paper")));
    SlowCups silent(cups_->Port(), 0);
    PrivateCups::Use(silent.Port());
    PrintModule printer(KESTROVA_PRINT);
    int ticks = 0;
    std::optional<Status> second;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        if (++ticks == 10) {
            const auto time = TimeOf([&] { second = printer.Check(); });
            EXPECT_LT(time, 1s); // while another question is put
        }
    });
    timer.start(50);
    const auto time = TimeOf([&] {
        const auto checked = printer.Check();
        ASSERT_FALSE(checked);
        EXPECT_EQ(checked.Failure().Code, ErrorCode::Busy);
    });
    EXPECT_GT(time, 4s);
    EXPECT_LE(time, 5200ms);
    EXPECT_GT(ticks, 50);
    ASSERT_TRUE(second);
    EXPECT_EQ(second->Failure().Code, ErrorCode::Busy);
    // It is asked anew when it may have recovered.
    PrivateCups::Use(cups_->Port());
    const auto again = printer.Check();
    EXPECT_TRUE(again) << again.Failure().Text;
}

// A document that nobody can read on the way through a network: it cannot be made smaller.
PagePicturePtr Noise() {
    QImage image(3000, 2000, QImage::Format_RGB32);
    std::mt19937 random(7);
    for (int y = 0; y < image.height(); ++y) {
        auto* const row = reinterpret_cast<QRgb*>(image.scanLine(y));
        std::generate(row, row + image.width(), [&] { return static_cast<QRgb>(random()); });
    }
    return std::make_shared<PageImage>(image);
}

TEST_F(PrintModuleTest, ADocumentThatGetsStuckIsNoSuccessAndIsWithdrawn) {
    ASSERT_TRUE(cups_->AddQueue(QStringLiteral("paper")));
    struct Row {
        qint64 At;
        SlowCups::Then Then;
        ErrorCode Code;
    };
    using enum SlowCups::Then;
    const auto noise = Noise();
    for (const Row& row :
         {Row{100'000, Silence, ErrorCode::Busy}, Row{3'000'000, Silence, ErrorCode::Busy},
          Row{100'000, HangUp, ErrorCode::Failed}, Row{3'000'000, HangUp, ErrorCode::Failed}}) {
        SCOPED_TRACE(row.At);
        SlowCups slow(cups_->Port(), row.At, row.Then);
        PrivateCups::Use(slow.Port());
        PrintModule printer(KESTROVA_PRINT, 2000ms);
        const auto job = printer.Begin({}, "stuck");
        job->NewPage();
        job->DrawPicture(0, 0, 6000, 4000, *noise);
        const auto time = TimeOf([&] {
            const auto sent = job->Finish();
            ASSERT_FALSE(sent);
            EXPECT_EQ(sent.Failure().Code, row.Code) << sent.Failure().Text;
        });
        EXPECT_LT(time, 4s); // and what it takes to make so large a document
        EXPECT_TRUE(slow.IsStuck());
        const int number = cups_->LastJob();
        EXPECT_EQ(cups_->Job(number)["job-name"], "stuck");
        EXPECT_TRUE(QtEventLoop().WaitUntil(
            [&] { return cups_->Job(number)["job-state"] == "canceled"; }, 20s))
            << cups_->Job(number)["job-state"];
        EXPECT_TRUE(QtEventLoop().WaitUntil([&] { return printer.Check().Ok(); }, 20s));
    }
}

// A thread that cannot be called back is left behind, and only one.
TEST_F(PrintModuleTest, OneThatIsHeldUpIsLeftBehind) {
    ASSERT_TRUE(cups_->AddQueue(QStringLiteral("paper")));
    auto silent = std::make_unique<SlowCups>(cups_->Port(), 0);
    PrivateCups::Use(silent->Port());
    qputenv("CUPS_ENCRYPTION", "Always"); // the library waits for the other side's greeting
    {
        PrintModule printer(KESTROVA_PRINT, 500ms);
        EXPECT_EQ(printer.Check().Failure().Code, ErrorCode::Busy);
    }
    qunsetenv("CUPS_ENCRYPTION");
    PrivateCups::Use(cups_->Port());
    PrintModule printer(KESTROVA_PRINT);
    const auto time = TimeOf([&] { EXPECT_EQ(printer.Check().Failure().Code, ErrorCode::Busy); });
    EXPECT_LT(time, 200ms);
    silent.reset(); // hangs up
    EXPECT_TRUE(QtEventLoop().WaitUntil([&] { return printer.Check().Ok(); }, 20s));
}

TEST(PrintModuleAloneTest, WithoutTheModuleThereIsNoPrinterAndASentenceWhy) {
    PrintModule printer("/nowhere/kestrova_print.so");
    const auto checked = printer.Check();
    ASSERT_FALSE(checked);
    EXPECT_EQ(checked.Failure().Code, ErrorCode::NotFound);
    EXPECT_THAT(checked.Failure().Text, HasSubstr("kestrova_print"));
    const auto job = printer.Begin({}, "x");
    job->NewPage();
    EXPECT_EQ(job->Finish().Failure().Code, ErrorCode::NotFound);
}

} // namespace
} // namespace kestrova
