// SPDX-License-Identifier: GPL-3.0-or-later
// A reminder from the event to the server and into the letter that arrives there.
#include "SmtpServer.h"
#include "fakes/FakeMail.h"
#include "fakes/MemoryFileStore.h"
#include "fakes/SetClock.h"
#include "mail/MailService.h"
#include "platform/qt/MailModule.h"
#include "platform/qt/QtEventLoop.h"

#include <QRegularExpression>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrova {
namespace {

using namespace std::chrono_literals;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

// Nobody looks at a test's reminder.
struct HastyLoop : QtEventLoop {
    bool WaitUntil(const std::function<bool()>& predicate,
                   std::chrono::milliseconds limit) override {
        return QtEventLoop::WaitUntil(predicate, limit == 10s ? 0ms : limit);
    }
};

struct NoWindows : MailWindows {
    MailPerson ShowReminder(const MailPerson& recipient) override { return recipient; }
    void HideReminder() override {}
    void ShowSending(const std::string& /*address*/) override {}
    void ShowSent(std::size_t /*number*/) override {}
    void SetMailWindowMode(MailWindowMode /*mode*/) override {}
    bool AskLogOn(const LogOnOffer& /*offer*/) override { return false; }
    [[nodiscard]] bool IsLogOnOpen() const override { return false; }
    void OfferLogOn(const LogOnOffer& /*offer*/) override {}
};

// The lines of a header, unfolded and decoded.
std::string Header(const std::string& letter, const char* name) {
    QString head = ToQt(letter.substr(0, letter.find("\r\n\r\n")));
    head.replace(QStringLiteral("?=\r\n =?"), QStringLiteral("?==?"));
    head.replace(QStringLiteral("\r\n "), QStringLiteral(" "));
    const QRegularExpression line(QStringLiteral("^%1: (.*)\r?$").arg(QLatin1String(name)),
                                  QRegularExpression::MultilineOption);
    QString text = line.match(head).captured(1).trimmed();
    const QRegularExpression word(QStringLiteral("=\\?UTF-8\\?B\\?([^?]*)\\?="));
    for (auto match = word.match(text); match.hasMatch(); match = word.match(text)) {
        text.replace(match.capturedStart(), match.capturedLength(),
                     QString::fromUtf8(QByteArray::fromBase64(match.captured(1).toLatin1())));
    }
    return FromQt(text);
}

std::string Body(const std::string& letter) {
    const std::string body = letter.substr(letter.find("\r\n\r\n"));
    return QByteArray::fromBase64(QByteArray::fromStdString(body)).toStdString();
}

struct Scene {
    explicit Scene(const char* way, MailSecurity security, const char* fault = "")
        : Server(way, fault), Mail(KESTROVA_MAIL, {1500ms, 1500ms, Server.CaFile()}) {
        const MailAccount account{
            "127.0.0.1", Server.Port, security, "jane", {"J\xC3\xA4ne", "jane@example.org"}};
        EXPECT_TRUE(Service.TakeAccount(account, SmtpServer::kPassword));
    }

    MailStatus Remind(const std::string& text) {
        DiaryEvent event;
        event.Msg = text;
        event.Extra = {"", "J\xC3\xBCrgen \"J\" <x@y>, \xE2\x98\x83", "joe@example.com", ""};
        return Service.SendMail(event);
    }

    // Nothing that is kept or shown has the password in it.
    void ExpectNoPassword() const {
        EXPECT_THAT(*Files.Content("/Mail.dat"), Not(HasSubstr("Geheim")));
        for (const std::string& text : Told) {
            EXPECT_THAT(text, Not(HasSubstr("Geheim")));
        }
        for (const Received& letter : Server.Letters()) {
            EXPECT_THAT(letter.Data + Body(letter.Data), Not(HasSubstr("Geheim")));
        }
    }

    SmtpServer Server;
    MemoryFileStore Files;
    SetClock Clock;
    MailAccountStore Accounts{Files, Clock, "/Mail.dat"};
    FakeKeyring Keyring;
    MailModule Mail;
    HastyLoop Loop;
    NoWindows Windows;
    StringTable Texts = MsgDefaults();
    std::vector<std::string> Told;
    MailService Service{{Mail, Keyring, Accounts, Loop, Windows, Texts,
                         [this](const std::string& text) { Told.push_back(text); }}};
};

TEST(ReminderMailTest, WhateverTheTextIsItArrivesAsItWas) {
    Scene scene("starttls", MailSecurity::StartTls);
    const std::vector<std::string> texts = {
        "Dentist",
        "\xCE\x93\xCE\xB5\xCE\xB9\xCE\xAC \xF0\x9F\x8E\x82\xF0\x9F\x91\xA9",
        ".",
        "a\n.\n..\n\n.b",
        std::string(5000, 'x') + "\xC3\xA9",
        "Subject: no\n\nFrom nobody"};
    for (const std::string& text : texts) {
        EXPECT_EQ(scene.Remind(text), MailStatus::Sent);
    }
    const auto letters = scene.Server.Letters();
    ASSERT_EQ(letters.size(), texts.size());
    for (std::size_t i = 0; i < texts.size(); ++i) {
        std::string expected = texts[i] + "\n";
        for (std::size_t at = 0; (at = expected.find('\n', at)) != std::string::npos; at += 2) {
            expected.insert(at, "\r");
        }
        EXPECT_EQ(Body(letters[i].Data), expected);
        EXPECT_EQ(Header(letters[i].Data, "Subject"), "Kestrova Messenger");
        EXPECT_EQ(Header(letters[i].Data, "From"), "J\xC3\xA4ne <jane@example.org>");
        EXPECT_EQ(Header(letters[i].Data, "To"),
                  "J\xC3\xBCrgen \"J\" <x@y>, \xE2\x98\x83 <joe@example.com>");
        EXPECT_THAT(letters[i].To, testing::ElementsAre("<joe@example.com>"));
    }
    EXPECT_THAT(scene.Told, IsEmpty());
    scene.ExpectNoPassword();
}

TEST(ReminderMailTest, EveryFaultKeepsTheReminderDueAndIsToldInASentence) {
    struct Row {
        const char* Fault;
        const char* Sentence;
    };
    for (const Row& row :
         {Row{"AUTH=535 Geheim=\xC3\xBC 7?", "refuses the user name"},
          Row{"MAIL=550 not you", "sender address.\n\n550 not you"},
          Row{"RCPT=550 no Joe", "joe@example.com, which is not accepted"},
          Row{"DATA=451 later", "did not take the mail.\n\n451 later"},
          Row{"EHLO=silent", "does not answer"}, Row{"LETTER=gone", "not answer"},
          Row{"plain", "does not offer the encryption"}, Row{"cert=other", "certificate"}}) {
        SCOPED_TRACE(row.Fault);
        Scene scene("starttls", MailSecurity::StartTls, row.Fault);
        EXPECT_EQ(scene.Remind("x"), MailStatus::TryLater);
        EXPECT_TRUE(scene.Service.MailFailed());
        EXPECT_EQ(scene.Remind("x"), MailStatus::TryLater);
        ASSERT_EQ(scene.Told.size(), 1U);
        EXPECT_THAT(scene.Told[0], HasSubstr(row.Sentence));
        EXPECT_THAT(scene.Server.Letters(), IsEmpty());
        scene.ExpectNoPassword();
    }
}

} // namespace
} // namespace kestrova
