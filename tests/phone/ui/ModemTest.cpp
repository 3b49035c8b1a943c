// SPDX-License-Identifier: GPL-3.0-or-later
#include "phone/ui/Modem.h"

#include "language/FixedLanguages.h"
#include "language/LanguageFile.h"
#include "language/Languages.h"
#include "phone/CallScene.h"
#include "platform/posix/PosixFileStore.h"
#include "platform/qt/QtEventLoop.h"
#include "platform/qt/QtText.h"

#include <QTest>
#include <QTimer>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrova {
namespace {

using testing::ElementsAre;

struct ModemScene : CallScene {
    ModemScene() { Settings.StoredNumbers = {"", "111", "222", ""}; }

    QtEventLoop Real;
    int Saved = 0;
    VoiceCaller Phone{{Port, Loop, Speech, Files, Boxes, Texts, Settings, Folder,
                       [this]() -> CallScreen& { return Window; }}};
    Modem Window{nullptr,
                 {Settings, Texts, Boxes, Real, Phone},
                 {[] { return std::string("Test words"); }, [this] { ++Saved; }}};

    QComboBox& Box() { return *Window.findChild<QComboBox*>(QStringLiteral("CombPhone")); }
    QLineEdit& Repeat() { return *Window.findChild<QLineEdit*>(QStringLiteral("TextRpt")); }
    QAbstractButton& Button(const char* name) {
        return *Window.findChild<QAbstractButton*>(QLatin1String(name));
    }
    [[nodiscard]] std::vector<std::string> List() {
        std::vector<std::string> list;
        for (int i = 0; i < Box().count(); ++i) {
            list.push_back(FromQt(Box().itemText(i)));
        }
        return list;
    }
    void Type(const char* keys) {
        Box().lineEdit()->selectAll();
        QTest::keyClick(Box().lineEdit(), Qt::Key_Delete);
        QTest::keyClicks(Box().lineEdit(), QLatin1String(keys));
    }

    // Opens the window for a reminder, and does this in it.
    bool Ask(std::array<std::string, 4>& extra, const std::function<void()>& user) {
        QTimer::singleShot(0, &Window, user);
        return Window.AskPhoneNumbers(extra) == DetailsAnswer::Given;
    }
};

using Numbers = std::array<std::string, 4>;

constexpr const char* kWarning =
    "Kestrova will attempt to call the following numbers\n111\n222\n\nCheck carefully as wrong "
    "numbers will cause a nuisance \nAnd can be Costly!";

TEST(ModemTest, NumbersAreConfirmedAndLeftInTheReminder) {
    ModemScene scene;
    Numbers extra;
    scene.Boxes.Answers = {false, true};
    EXPECT_TRUE(scene.Ask(extra, [&] {
        EXPECT_THAT(scene.List(), ElementsAre("111", "222"));
        EXPECT_EQ(scene.Window.windowTitle(), QStringLiteral("Kestrova Communications"));
        scene.Button("ComSave").click();
        EXPECT_TRUE(scene.Window.isVisible()); // the user has cancelled
        QTest::keyClick(&scene.Box(), Qt::Key_Return);
    }));
    EXPECT_THAT(extra, ElementsAre("", "111", "222", ""));
    ASSERT_EQ(scene.Boxes.Asked.size(), 2U);
    EXPECT_EQ(scene.Boxes.Asked[0].Text, kWarning);
    EXPECT_EQ(scene.Boxes.Asked[0].Title, "Kestrova Messenger");
    EXPECT_EQ(scene.Saved, 1);
    EXPECT_FALSE(scene.Window.isVisible());
}

TEST(ModemTest, AReminderThatHasNumbersKeepsThemAndClosingAsksToo) {
    ModemScene scene;
    Numbers extra = {"", "333", "", ""};
    scene.Boxes.Answers = {false, true};
    EXPECT_TRUE(scene.Ask(extra, [&] {
        EXPECT_THAT(scene.List(), ElementsAre("333"));
        scene.Type("444");
        scene.Window.close();
        EXPECT_TRUE(scene.Window.isVisible());
        QTest::keyClick(&scene.Window, Qt::Key_Escape);
    }));
    EXPECT_THAT(extra, ElementsAre("", "333", "444", ""));
    EXPECT_THAT(scene.Settings.StoredNumbers, ElementsAre("", "333", "444", ""));
}

TEST(ModemTest, WrongNumbersAreCorrectedOrTelephoningIsSwitchedOff) {
    ModemScene scene;
    Numbers extra = {"", "12x", "", ""};
    scene.Boxes.Answers = {true, false};
    EXPECT_FALSE(scene.Ask(extra, [&] {
        scene.Button("ComSave").click();
        scene.Button("ComTestCall").click();
        EXPECT_EQ(scene.Boxes.Shown.size(), 2U);
        EXPECT_EQ(scene.Boxes.Shown[0].Text, "Invalid Phone Number");
        EXPECT_EQ(scene.Boxes.Shown[0].Icon, DialogIcon::Critical);
        scene.Window.close();
        EXPECT_TRUE(scene.Window.isVisible());
        scene.Window.close();
    }));
    EXPECT_EQ(scene.Boxes.Asked[0].Text, "Invalid Phone Number");
    EXPECT_EQ(extra, Numbers());
    EXPECT_EQ(scene.Settings.StoredNumbers, Numbers());
    EXPECT_EQ(scene.Phone.Modem(), ModemState::Off);
    EXPECT_THAT(scene.Port.Sent, testing::IsEmpty());
}

TEST(ModemTest, TheBoxTakesDigitsOnly) {
    ModemScene scene;
    scene.Window.show();
    scene.Type("5a6 7+");
    EXPECT_EQ(scene.Box().currentText(), QStringLiteral("567"));
    scene.Box().lineEdit()->setText(QStringLiteral("pasted"));
    EXPECT_EQ(scene.Box().currentText(), QStringLiteral("567"));
}

TEST(ModemTest, OpeningTheListAddsReplacesAndRemoves) {
    ModemScene scene;
    scene.Window.show();
    scene.Type("333");
    scene.Box().showPopup();
    scene.Box().hidePopup();
    EXPECT_THAT(scene.List(), ElementsAre("111", "222", "333"));
    scene.Box().activated(1);
    EXPECT_EQ(scene.Box().currentText(), QStringLiteral("222"));
    scene.Type("444");
    scene.Box().showPopup();
    scene.Box().hidePopup();
    EXPECT_THAT(scene.List(), ElementsAre("111", "444", "333"));
    scene.Type("");
    scene.Box().showPopup();
    EXPECT_THAT(scene.List(), ElementsAre("111", "333"));
}

TEST(ModemTest, TheRepeatIsTwoToNineHundredAndNinetyNineMinutes) {
    ModemScene scene;
    scene.Window.show();
    for (const auto& [typed, kept] :
         {std::pair("2", "2"), std::pair("999", "999"), std::pair("1", "999"),
          std::pair("1000", "999"), std::pair("5x", "999"), std::pair("", "999")}) {
        scene.Repeat().setText(QLatin1String(typed));
        scene.Repeat().textEdited(QLatin1String(typed));
        EXPECT_EQ(scene.Settings.PhoneRepeat, kept) << typed;
        EXPECT_EQ(scene.Repeat().text(), QLatin1String(kept)) << typed;
    }
    QTest::keyClick(&scene.Repeat(), Qt::Key_Down);
    EXPECT_EQ(scene.Settings.PhoneRepeat, "998");
}

TEST(ModemTest, ATestCallShowsHowItGoesAndGivesTheWindowBack) {
    ModemScene scene;
    scene.KeyAt = {1, 2};
    scene.Settings.ModemName = "Generic IS-101 Voice Modem";
    int looked = 0;
    scene.OnCommand = [&](const std::string& command) {
        if (command == "ATD222;") {
            ++looked;
            for (const char* const name : {"ComTestCall", "ComSave", "OptionBeep"}) {
                EXPECT_FALSE(scene.Button(name).isEnabled()) << name;
            }
            EXPECT_FALSE(scene.Box().isEnabled());
            EXPECT_FALSE(scene.Repeat().isEnabled());
            EXPECT_TRUE(scene.Button("ComStop").isVisible());
            EXPECT_EQ(scene.Window.cursor().shape(), Qt::BusyCursor);
        }
        if (command == "ATH0") {
            const auto* log = scene.Window.findChild<QPlainTextEdit*>(QStringLiteral("TextLog"));
            EXPECT_TRUE(log->toPlainText().endsWith(QStringLiteral("Said Goodbye OK")));
        }
    };
    Numbers extra;
    scene.Boxes.Answers = {true};
    EXPECT_TRUE(scene.Ask(extra, [&] {
        scene.Box().activated(1);
        scene.Button("ComTestCall").click();
        EXPECT_EQ(looked, 1);
        EXPECT_TRUE(scene.Window.isVisible()); // its user is not done yet
        EXPECT_TRUE(scene.Button("ComTestCall").isEnabled());
        scene.Button("ComSave").click();
    }));
    EXPECT_THAT(scene.Speech.Spoken, testing::Contains(",Test words. Press One: To Accept."));
}

TEST(ModemTest, AReminderCallComesAndGoesByItselfAndEscapeStopsIt) {
    for (const bool stopped : {false, true}) {
        ModemScene scene;
        scene.OnCommand = [&](const std::string& command) {
            if (command == "ATD5") {
                EXPECT_TRUE(scene.Window.isVisible());
                EXPECT_EQ(scene.Box().currentText(), QStringLiteral("5"));
                if (stopped) {
                    QTest::keyClick(&scene.Window, Qt::Key_Escape);
                }
            }
        };
        scene.KeyAt = {1, 2};
        EXPECT_EQ(scene.Phone.SendMessage("ATD5", "x"), !stopped);
        EXPECT_FALSE(scene.Window.isVisible());
        EXPECT_THAT(scene.Boxes.Asked, testing::IsEmpty());
    }
}

TEST(ModemTest, NumbersAreNotAskedForInTheMiddleOfACall) {
    ModemScene scene;
    int asked = 0;
    scene.OnCommand = [&](const std::string& command) {
        if (command == "ATD5") {
            Numbers none;
            Numbers own = {"", "7", "", ""};
            EXPECT_EQ(scene.Window.AskPhoneNumbers(none), DetailsAnswer::NotNow);
            EXPECT_EQ(scene.Boxes.Shown.size(), 1U);
            EXPECT_EQ(scene.Window.AskPhoneNumbers(own), DetailsAnswer::Given);
            EXPECT_EQ(own[1], "7");
            ++asked;
        }
    };
    scene.Phone.SendMessage("ATD5", "x");
    EXPECT_EQ(asked, 1);
}

TEST(ModemTest, HowTheMessageIsGivenIsASetting) {
    ModemScene scene;
    scene.Window.show();
    QTest::keyClick(&scene.Button("OptionBeep"), Qt::Key_Space);
    EXPECT_EQ(scene.Settings.BeepAcknowledge, 1);
    scene.Button("OptionSpeak").click();
    EXPECT_EQ(scene.Settings.BeepAcknowledge, 0);
}

class ModemRenderTest : public testing::TestWithParam<int> {};

TEST_P(ModemRenderTest, NothingIsCut) {
    ModemScene scene;
    const auto bytes = PosixFileStore().Read(SHIPPED_LANGUAGES, kLanguageFileLimit);
    scene.Files.Put("/k/Lan.dat", bytes ? bytes.Value() : "");
    Languages tongues(scene.Files, "/k/Lan.dat", scene.Texts);
    int index = GetParam();
    tongues.GetLanguage(index);
    ASSERT_EQ(index, GetParam());
    scene.Window.LoadCaptions();
    for (const bool calling : {false, true}) {
        if (calling) {
            scene.Window.CallBegins("123");
        }
        scene.Window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&scene.Window));
        for (const QWidget* const widget : scene.Window.findChildren<QWidget*>()) {
            const bool words = qobject_cast<const QLabel*>(widget) != nullptr ||
                               qobject_cast<const QAbstractButton*>(widget) != nullptr;
            if (words && widget->isVisible() && widget->window() == &scene.Window) {
                EXPECT_GE(widget->width(), widget->sizeHint().width())
                    << FromQt(widget->objectName());
                EXPECT_GE(widget->height(), widget->sizeHint().height());
            }
        }
        if (qEnvironmentVariableIsSet("PHONE_SHOTS")) {
            scene.Window.grab().save(
                QStringLiteral("/tmp/modem%1%2.png").arg(GetParam()).arg(calling ? 1 : 0));
        }
    }
}

INSTANTIATE_TEST_SUITE_P(AllLanguages, ModemRenderTest, testing::Range(0, kFixedLanguages));

} // namespace
} // namespace kestrova
