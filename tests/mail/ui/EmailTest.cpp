// SPDX-License-Identifier: GPL-3.0-or-later
// The windows of the mail as a user meets them, with a way for mail that goes nowhere.
#include "mail/ui/MailDesk.h"

#include "fakes/FakeMail.h"
#include "fakes/MemoryFileStore.h"
#include "fakes/ScriptedDialogs.h"
#include "fakes/SetClock.h"
#include "fakes/SteppedLoop.h"
#include "language/FixedLanguages.h"
#include "language/LanguageFile.h"
#include "language/Languages.h"
#include "platform/posix/PosixFileStore.h"
#include "platform/qt/QtText.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrova {
namespace {

const MailAccount kAccount{
    "smtp.example.org", 465, MailSecurity::Tls, "jane", {"Jane", "jane@example.org"}};

QWidget* Window(const char* name) {
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible() && widget->objectName() == QLatin1String(name)) {
            return widget;
        }
    }
    return nullptr;
}

template<typename T> T& In(QWidget* window, const char* name) {
    auto* const found = window->findChild<T*>(QLatin1String(name));
    EXPECT_NE(found, nullptr) << name;
    return *found;
}

void Type(QWidget* window, const char* box, const char* text) {
    auto& line = In<QLineEdit>(window, box);
    line.clear();
    QTest::keyClicks(&line, QString::fromUtf8(text));
}

void Click(QWidget* window, const char* button) {
    QTest::mouseClick(&In<QAbstractButton>(window, button), Qt::LeftButton);
}

struct Desk {
    MemoryFileStore Files;
    SetClock Clock;
    FakeTransport Transport;
    FakeKeyring Keyring;
    SteppedLoop Loop;
    ScriptedDialogs Boxes;
    StringTable Texts = MsgDefaults();
    std::vector<std::string> Told;
    MailDesk Mail{{Transport, Keyring, Files, Clock, Loop, Boxes, Texts},
                  "/home/me/Mail.dat",
                  [this](const std::string& text) { Told.push_back(text); }};

    void HaveAccount() {
        Files.Put("/home/me/Mail.dat", WriteMailAccount(kAccount));
        Keyring.Kept[PasswordName(kAccount)] = "secret";
    }

    // What a user does at a window that the program waits for.
    void Later(std::function<void()> act) { QTimer::singleShot(0, qApp, std::move(act)); }
};

TEST(EmailTest, DetailsAreKeptWhenTheWindowIsClosedAndWhole) {
    Desk desk;
    desk.HaveAccount();
    ReminderExtra extra{"0", "Joe", "", "3"};
    desk.Later([&] {
        QWidget* const email = Window("Email");
        EXPECT_EQ(email->windowTitle(), QStringLiteral("Kestrova Messenger"));
        EXPECT_EQ(In<QLabel>(email, "LabName").text(), QStringLiteral("Your Name."));
        EXPECT_FALSE(In<QLineEdit>(email, "TextMail(1)").isVisible());
        for (const char* const address : {"", "joe"}) {
            Type(email, "TextMail(0)", address);
            email->close();
            EXPECT_TRUE(email->isVisible());
        }
        Type(email, "TextName", " ");
        Type(email, "TextMail(0)", " joe@example.com ");
        QTest::keyClick(email, Qt::Key_Return);
        EXPECT_TRUE(email->isVisible());
        Type(email, "TextName", "Joe B.");
        QTest::keyClick(email, Qt::Key_Return);
    });
    EXPECT_EQ(desk.Mail.AskMailAddress(extra), DetailsAnswer::Given);
    EXPECT_EQ(extra, (ReminderExtra{"0", "Joe B.", "joe@example.com", "3"}));
    ASSERT_EQ(desk.Boxes.Shown.size(), 3U);
    EXPECT_EQ(desk.Boxes.Shown[0].Text, "Please Fill in Both Boxes");
    EXPECT_EQ(desk.Boxes.Shown[0].Icon, DialogIcon::Critical);
    EXPECT_EQ(desk.Boxes.Shown[1].Text, "\"joe\" is not a mail address.");
    EXPECT_EQ(desk.Boxes.Shown[2].Title, "Kestrova Messenger");
    EXPECT_EQ(Window("Email"), nullptr);
}

TEST(EmailTest, CancellingLeavesTheDetailsAsTheyWere) {
    Desk desk;
    ReminderExtra extra{"", "Joe", "joe@example.com", ""};
    desk.Later([&] {
        Type(Window("Email"), "TextName", "Jim");
        QTest::keyClick(Window("Email"), Qt::Key_Escape);
    });
    EXPECT_EQ(desk.Mail.AskMailAddress(extra), DetailsAnswer::SwitchedOff);
    EXPECT_EQ(extra[1], "Joe");
}

TEST(EmailTest, TheFirstAddressLeadsToTheAccount) {
    Desk desk;
    ReminderExtra extra{"", "Joe", "joe@example.com", ""};
    desk.Later([&] {
        desk.Later([&] {
            QWidget* const logOn = Window("MailLogOn");
            ASSERT_NE(logOn, nullptr);
            Click(logOn, "ComSave");
            Type(logOn, "TextServer", "smtp.example.org");
            In<QComboBox>(logOn, "CombSecurity").setCurrentIndex(2);
            Q_EMIT In<QComboBox>(logOn, "CombSecurity").activated(2);
            EXPECT_EQ(In<QLineEdit>(logOn, "TextPort").text(), QStringLiteral("25"));
            EXPECT_NE(In<QLabel>(logOn, "LabWarning").text(), QString());
            Type(logOn, "TextUser", "jane");
            Type(logOn, "TextSender", "Jane");
            Type(logOn, "TextAddress", "jane");
            Click(logOn, "ComSave");
            Type(logOn, "TextAddress", "jane@example.org");
            QTest::keyClick(logOn, Qt::Key_Return);
            Type(logOn, "TextPassword", "s3cret");
            QTest::keyClick(logOn, Qt::Key_Return);
        });
        Click(Window("Email"), "ComSave");
    });
    EXPECT_EQ(desk.Mail.AskMailAddress(extra), DetailsAnswer::Given);
    EXPECT_EQ(desk.Boxes.Shown.size(), 3U); // server, address, password
    EXPECT_EQ(desk.Files.Content("/home/me/Mail.dat"),
              "Kestrova Mail Account\r\nServer: smtp.example.org\r\nPort: 25\r\nSecurity: None\r\n"
              "User: jane\r\nName: Jane\r\nAddress: jane@example.org\r\n");
    EXPECT_EQ(desk.Keyring.Kept.begin()->second, "s3cret");
}

TEST(EmailTest, AnInvitationIsSentFromItsWindow) {
    Desk desk;
    desk.HaveAccount();
    desk.Mail.TellAFriend();
    QWidget* const email = Window("Email");
    ASSERT_NE(email, nullptr);
    EXPECT_EQ(In<QLineEdit>(email, "TextName").text(), QStringLiteral("Jane"));
    Click(email, "ComSend");
    EXPECT_THAT(desk.Boxes.Shown.back().Text, testing::HasSubstr("at least one friend"));
    Type(email, "TextMail(1)", "b@example.com");
    Type(email, "TextMail(3)", "d@example.com");
    desk.Transport.Outcomes = {MailOutcome{}, MailOutcome{},
                               MailOutcome{MailTrouble::Recipient, "550 no"}};
    Click(email, "ComSend");
    EXPECT_TRUE(email->isVisible());
    EXPECT_EQ(In<QLineEdit>(email, "TextMail(1)").text(), QString());
    EXPECT_THAT(desk.Boxes.Shown.back().Text, testing::HasSubstr("d@example.com"));
    Type(email, "TextMail(3)", "e@example.com");
    QTest::keyClick(email, Qt::Key_Return);
    EXPECT_FALSE(email->isVisible());
    EXPECT_EQ(desk.Boxes.Shown.back().Text, "The invitation has been sent.");
    ASSERT_EQ(desk.Transport.Sent.size(), 3U);
    EXPECT_EQ(desk.Transport.Sent[2].Recipient, "e@example.com");
}

TEST(EmailTest, AnInvitationThatIsBeingTypedComesBackAfterTheDetails) {
    Desk desk;
    desk.HaveAccount();
    desk.Mail.TellAFriend();
    QWidget* const email = Window("Email");
    Type(email, "TextName", "Jane");
    Type(email, "TextMail(0)", "a@example.com");
    Type(email, "TextMail(4)", "half@exam");
    ReminderExtra extra{"", "Joe", "joe@example.com", ""};
    desk.Later([&] {
        EXPECT_FALSE(In<QLineEdit>(email, "TextMail(4)").isVisible());
        Click(email, "ComSave");
    });
    EXPECT_EQ(desk.Mail.AskMailAddress(extra), DetailsAnswer::Given);
    EXPECT_EQ(extra[2], "joe@example.com");
    ASSERT_TRUE(email->isVisible());
    EXPECT_EQ(email->windowModality(), Qt::NonModal);
    EXPECT_EQ(In<QLineEdit>(email, "TextName").text(), QStringLiteral("Jane"));
    EXPECT_EQ(In<QLineEdit>(email, "TextMail(0)").text(), QStringLiteral("a@example.com"));
    EXPECT_EQ(In<QLineEdit>(email, "TextMail(4)").text(), QStringLiteral("half@exam"));
    Type(email, "TextMail(4)", "half@example.com");
    Click(email, "ComSend");
    EXPECT_EQ(desk.Transport.Sent.size(), 2U);
}

TEST(EmailTest, WhileAnInvitationIsBeingSentNoDetailsAreAskedForAndTheUserIsTold) {
    Desk desk;
    desk.HaveAccount();
    desk.Mail.TellAFriend();
    Type(Window("Email"), "TextMail(0)", "a@example.com");
    desk.Transport.Outcomes = {std::nullopt};
    desk.Loop.WhileWaiting = [&] {
        ReminderExtra extra{"", "Joe", "joe@example.com", ""};
        EXPECT_EQ(desk.Mail.AskMailAddress(extra), DetailsAnswer::NotNow);
        EXPECT_THAT(desk.Boxes.Shown.back().Text, testing::HasSubstr("on its way"));
    };
    Click(Window("Email"), "ComSend");
    EXPECT_EQ(In<QLineEdit>(Window("Email"), "TextMail(0)").text(),
              QStringLiteral("a@example.com"));
}

TEST(EmailTest, AReminderIsSeenUnlessTheUserIsAtTheWindow) {
    Desk desk;
    desk.HaveAccount();
    DiaryEvent event;
    event.Msg = "Dentist";
    event.Extra = {"", "Joe", "joe@example.com", ""};
    QString seen;
    desk.Loop.WhileWaiting = [&] {
        if (QWidget* const email = Window("Email")) {
            seen = In<QLineEdit>(email, "TextMail(0)").text();
        }
    };
    EXPECT_EQ(desk.Mail.Reminders().SendMail(event), MailStatus::Sent);
    EXPECT_EQ(seen, QStringLiteral("joe@example.com"));
    EXPECT_EQ(Window("Email"), nullptr);
    desk.Mail.TellAFriend();
    Type(Window("Email"), "TextMail(0)", "friend@example.com");
    EXPECT_EQ(desk.Mail.Reminders().SendMail(event), MailStatus::Sent);
    EXPECT_EQ(seen, QStringLiteral("friend@example.com"));
    EXPECT_NE(Window("Email"), nullptr);
    Window("Email")->close(); // nobody is held at an invitation
    EXPECT_EQ(Window("Email"), nullptr);
}

TEST(EmailTest, AReminderWithoutAnAccountWaitsForNobody) {
    Desk desk;
    DiaryEvent event;
    event.Extra[2] = "joe@example.com";
    EXPECT_EQ(desk.Mail.Reminders().SendMail(event), MailStatus::TryLater);
    ASSERT_NE(Window("MailLogOn"), nullptr);
    QTest::keyClick(Window("MailLogOn"), Qt::Key_Escape);
    EXPECT_TRUE(desk.Mail.Reminders().MailFailed());
}

void ExpectNothingIsCut(QWidget* window) {
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window));
    for (const auto* const label : window->findChildren<QLabel*>()) {
        const int high =
            label->wordWrap() ? label->heightForWidth(label->width()) : label->sizeHint().height();
        const int wide = label->wordWrap() ? 0 : label->sizeHint().width();
        if (label->isVisible()) {
            EXPECT_LE(high, label->height()) << FromQt(label->text());
            EXPECT_LE(wide, label->width()) << FromQt(label->text());
        }
    }
    for (const auto* const button : window->findChildren<QAbstractButton*>()) {
        if (button->isVisible()) {
            EXPECT_LE(button->minimumSizeHint().width(), button->width()) << FromQt(button->text());
        }
    }
    for (const auto* const bar : window->findChildren<QScrollBar*>()) {
        EXPECT_FALSE(bar->isVisible());
    }
}

TEST(EmailTest, NoTextIsCutInAnyLanguage) {
    const auto bytes = PosixFileStore().Read(SHIPPED_LANGUAGES, kLanguageFileLimit);
    for (int language = 0; language < kFixedLanguages; ++language) {
        SCOPED_TRACE(language);
        Desk desk;
        desk.Files.Put("/home/me/Lan.dat", bytes ? bytes.Value() : "");
        int index = language;
        Languages(desk.Files, "/home/me/Lan.dat", desk.Texts).GetLanguage(index);
        desk.Mail.TellAFriend();
        ExpectNothingIsCut(Window("Email"));
        desk.Later([&] {
            QWidget* const logOn = Window("MailLogOn");
            In<QComboBox>(logOn, "CombSecurity").setCurrentIndex(2);
            Q_EMIT In<QComboBox>(logOn, "CombSecurity").activated(2);
            ExpectNothingIsCut(logOn);
            Click(logOn, "ComCancel");
        });
        desk.Mail.OpenAccount();
        ReminderExtra extra;
        desk.Later([&] {
            ExpectNothingIsCut(Window("Email"));
            Click(Window("Email"), "ComCancel");
        });
        EXPECT_EQ(desk.Mail.AskMailAddress(extra), DetailsAnswer::SwitchedOff);
    }
}

} // namespace
} // namespace kestrova
