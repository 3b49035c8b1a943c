// SPDX-License-Identifier: GPL-3.0-or-later
#include "speech/ui/DesktopStage.h"

#include "language/ProgramTexts.h"
#include "platform/posix/PosixFileStore.h"
#include "platform/qt/QtText.h"
#include "platform/qt/SpeechModule.h"

#include <QApplication>
#include <QPalette>
#include <QScreen>
#include <QTest>

#include <gtest/gtest.h>

namespace kestrova {
namespace {

constexpr int kLongestWait = 10000;

template<typename Condition> bool WaitFor(const Condition& condition) {
    return QTest::qWaitFor(condition, kLongestWait);
}

CharacterFigure Shipped(const std::string& name) {
    const auto bytes =
        PosixFileStore().Read(SHIPPED_CHARACTERS + std::string("/") + name, kCharacterLimit);
    auto read = ReadFigure(bytes ? bytes.Value() : "");
    auto* const figure = std::get_if<CharacterFigure>(&read);
    EXPECT_NE(figure, nullptr) << name;
    return figure != nullptr ? std::move(*figure) : CharacterFigure();
}

template<typename T> T* Find(const char* name) {
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        if (window->objectName() == QLatin1String(name)) {
            return dynamic_cast<T*>(window);
        }
    }
    return nullptr;
}

QPoint Middle(const QWidget& window) {
    return window.rect().center();
}

class DesktopStageTest : public testing::Test {
protected:
    DesktopStageTest() {
        Stage.SetEvents({[this] { ++Clicks; }, [this] { ++TimesUp; }});
        Stage.Load(Shipped("Olva.acs"));
    }
    ~DesktopStageTest() override { Stage.Unload(); }

    void ShowAtRest() {
        Stage.Show();
        Figure = Find<CharacterWidget>("Character");
        Balloon = Find<SpeechBalloon>("Balloon");
        ASSERT_NE(Figure, nullptr);
        ASSERT_TRUE(WaitFor([this] { return Figure->Pose().GestureFrame == 0; }));
    }

    SpeechModule Module{KESTROVA_SPEECH};
    DesktopStage Stage{Module};
    CharacterWidget* Figure = nullptr;
    SpeechBalloon* Balloon = nullptr;
    int Clicks = 0;
    int TimesUp = 0;
};

TEST_F(DesktopStageTest, ItGreetsStandsOnTheScreenAndTakesNoFocus) {
    EXPECT_EQ(Find<CharacterWidget>("Character"), nullptr);
    Stage.Show();
    Figure = Find<CharacterWidget>("Character");
    ASSERT_NE(Figure, nullptr);
    EXPECT_TRUE(Stage.IsVisible() && Figure->isVisible());
    EXPECT_GT(Figure->Pose().GestureFrame, 0);
    EXPECT_TRUE(QGuiApplication::primaryScreen()->geometry().contains(Figure->geometry()));
    EXPECT_TRUE(Figure->testAttribute(Qt::WA_ShowWithoutActivating));
    EXPECT_TRUE(Figure->windowFlags().testFlag(Qt::WindowDoesNotAcceptFocus));
    EXPECT_TRUE(Figure->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    ASSERT_TRUE(WaitFor([this] { return Figure->Pose().GestureFrame == 0; }));
    // What is to be seen through the window belongs to the windows below.
    EXPECT_FALSE(Figure->mask().contains(QPoint(1, 1)));
    EXPECT_TRUE(Figure->mask().contains(Middle(*Figure)));
}

TEST_F(DesktopStageTest, TheMouthFollowsThePhonemesAndClosesAtTheEnd) {
    ShowAtRest();
    const auto seen = [this] { return Figure->grab().toImage(); };
    const QImage closed = seen();
    Stage.Say({"Ah, oh.",
               {{0.0, MouthShape::Open}, {0.1, MouthShape::Round}, {0.25, MouthShape::Closed}},
               0.3},
              0.3);
    EXPECT_EQ(Figure->Pose().Mouth, MouthShape::Open);
    EXPECT_NE(seen(), closed);
    ASSERT_TRUE(WaitFor([this] { return Figure->Pose().Mouth == MouthShape::Round; }));
    ASSERT_TRUE(WaitFor([this] { return Figure->Pose().Mouth == MouthShape::Closed; }));
    ASSERT_TRUE(WaitFor([this] { return TimesUp == 1; }));

    // The sound says how far it is: behind what the clock says, and then ahead.
    Stage.Say(
        {"Hm.", {{0.0, MouthShape::Wide}, {5, MouthShape::Teeth}, {60, MouthShape::Closed}}, 70},
        70);
    Stage.SetPosition(5.1);
    EXPECT_EQ(Figure->Pose().Mouth, MouthShape::Teeth);
    Stage.SetPosition(0.5);
    EXPECT_EQ(Figure->Pose().Mouth, MouthShape::Wide);
    Stage.EndSaying();
    EXPECT_EQ(Figure->Pose().Mouth, MouthShape::Closed);
    EXPECT_EQ(TimesUp, 1);
}

TEST_F(DesktopStageTest, ItBlinksAndIsQuietWhenItHasGone) {
    ShowAtRest();
    ASSERT_TRUE(WaitFor([this] { return !Figure->Pose().EyesOpen; }));
    ASSERT_TRUE(WaitFor([this] { return Figure->Pose().EyesOpen; }));
    Stage.Say({"Bye.", {}, 5}, 5);
    EXPECT_TRUE(Balloon->isVisible());
    Stage.Hide();
    EXPECT_FALSE(Stage.IsVisible());
    ASSERT_TRUE(WaitFor([this] { return !Figure->isVisible(); }));
    EXPECT_FALSE(Balloon->isVisible());
    QTest::qWait(50);
    EXPECT_EQ(TimesUp, 0);
    Stage.Show();
    EXPECT_TRUE(Figure->isVisible());
}

TEST_F(DesktopStageTest, AClickIsToldAndADragIsRemembered) {
    ShowAtRest();
    QTest::mouseClick(Figure, Qt::LeftButton, {}, Middle(*Figure));
    EXPECT_EQ(Clicks, 1);
    const QPoint before = Figure->pos();
    const QPoint grip = Middle(*Figure);
    QTest::mousePress(Figure, Qt::LeftButton, {}, grip);
    QTest::mouseMove(Figure, grip - QPoint(90, 60));
    QTest::mouseRelease(Figure, Qt::LeftButton, {}, grip);
    const QPoint after = Figure->pos();
    EXPECT_EQ(after, before - QPoint(90, 60));
    EXPECT_EQ(Clicks, 1);
    Stage.Hide();
    QTest::mouseClick(Figure, Qt::LeftButton, {}, Middle(*Figure));
    EXPECT_EQ(Clicks, 2) << "it is about to go";
    QTest::mouseDClick(Figure, Qt::LeftButton, {}, Middle(*Figure));
    QTest::mouseRelease(Figure, Qt::LeftButton, {}, Middle(*Figure));
    EXPECT_EQ(Clicks, 2) << "the second half of a double click is none";
    ASSERT_TRUE(WaitFor([this] { return !Figure->isVisible(); }));
    Stage.Show();
    EXPECT_EQ(Figure->pos(), after);
}

TEST_F(DesktopStageTest, ALongTextMovesOnAsItIsSpoken) {
    ShowAtRest();
    std::string words;
    for (int i = 0; i < 60; ++i) {
        words += "All the words of a long note. ";
    }
    Stage.Say({words, {}, 60}, 60);
    ASSERT_GT(Balloon->Lines(), SpeechBalloon::kMostLines);
    EXPECT_TRUE(QGuiApplication::primaryScreen()->geometry().contains(Balloon->geometry()));
    EXPECT_LT(Balloon->height(), 300);
    EXPECT_EQ(Balloon->TopLine(), 0);
    const QImage top = Balloon->grab().toImage();
    Stage.SetPosition(30);
    EXPECT_NEAR(Balloon->TopLine(), Balloon->Lines() / 2 - 3, 1);
    EXPECT_NE(Balloon->grab().toImage(), top);
    Stage.SetPosition(59.9);
    EXPECT_EQ(Balloon->TopLine(), Balloon->Lines() - SpeechBalloon::kMostLines);
}

TEST_F(DesktopStageTest, ACharacterThatNobodyCanDrawStaysAway) {
    SpeechModule none("/nowhere/speech.so");
    DesktopStage stage(none);
    stage.Load(Shipped("Ruska.acs"));
    stage.Show();
    EXPECT_FALSE(stage.IsVisible());
    stage.Say({"Hello.", {{0, MouthShape::Open}}, 1}, 1);
    stage.EndSaying();
    stage.Hide();
}

// The balloon cuts no word in any language, in light and in dark.
class BalloonRenderTest : public DesktopStageTest, public testing::WithParamInterface<int> {};

TEST_P(BalloonRenderTest, WordsHaveTheirRoomAndAreReadable) {
    StringTable table = MsgDefaults();
    table.ProgramLanguage = GetParam();
    Stage.Show();
    Balloon = Find<SpeechBalloon>("Balloon");
    for (const bool dark : {false, true}) {
        QPalette palette;
        palette.setColor(QPalette::Base, dark ? QColor(30, 30, 34) : QColor(Qt::white));
        palette.setColor(QPalette::Text, dark ? QColor(235, 235, 235) : QColor(Qt::black));
        Balloon->setPalette(palette);
        for (const ProgramText text : {ProgramText::ReminderService, ProgramText::SpeechSample,
                                       ProgramText::CallAccepted, ProgramText::SpeechSetUpAdvice}) {
            Stage.Say({TextOf(table, text), {}, 1}, 60);
            const QImage image = Balloon->grab().toImage();
            const QRect body = Balloon->BodyRect();
            // Letters stand apart from the rim, and there are some.
            const QColor ground = palette.color(QPalette::Base);
            int inked = 0;
            for (int y = body.top() + 4; y < body.bottom() - 4; ++y) {
                for (int x = body.left() + 20; x < body.right() - 20; ++x) {
                    inked += qAbs(image.pixelColor(x, y).lightness() - ground.lightness()) > 120;
                }
                for (const int x : {body.left() + 6, body.right() - 6}) {
                    const bool corner = y < body.top() + 16 || y > body.bottom() - 16;
                    EXPECT_TRUE(corner || image.pixelColor(x, y) == ground) << x << "," << y;
                }
            }
            EXPECT_GT(inked, 50);
            EXPECT_TRUE(QGuiApplication::primaryScreen()->geometry().contains(Balloon->geometry()));
        }
    }
}

INSTANTIATE_TEST_SUITE_P(AllLanguages, BalloonRenderTest, testing::Range(0, 8));

} // namespace
} // namespace kestrova
