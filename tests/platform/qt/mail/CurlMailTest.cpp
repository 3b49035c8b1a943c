// SPDX-License-Identifier: GPL-3.0-or-later
// The real module with a real server, which does everything right or one thing wrong.
#include "SmtpServer.h"
#include "mail/Letter.h"
#include "platform/qt/MailModule.h"
#include "platform/qt/QtEventLoop.h"

#include <QTcpServer>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrova {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

constexpr auto kSoon = 20s; // much longer than anything takes

MailRules QuickRules(const SmtpServer& server) {
    return {1500ms, 1500ms, server.CaFile()};
}

MailServer Jane(const SmtpServer& server, MailSecurity security) {
    return {"127.0.0.1", server.Port, security, "jane", SmtpServer::kPassword};
}

const MailEnvelope kEnvelope{
    "jane@example.org", "joe@example.com",
    WriteLetter({{"Jane", "jane@example.org"}, {"Joe", "joe@example.com"}, "Hi", "x"})};

std::optional<MailOutcome> WaitFor(const MailSession& session) {
    std::optional<MailOutcome> outcome;
    QtEventLoop().WaitUntil(
        [&] {
            outcome = session.Outcome();
            return outcome.has_value();
        },
        kSoon);
    return outcome;
}

// What becomes of signing on and, when that succeeds, of one letter.
struct Tried {
    MailTrouble SignOn = MailTrouble::None;
    MailOutcome Letter;
};

Tried Try(MailModule& mail, const MailServer& server) {
    const auto session = mail.SignOn(server);
    const auto signedOn = WaitFor(*session).value_or(MailOutcome{MailTrouble::NoLibrary, {}});
    if (signedOn.Trouble != MailTrouble::None) {
        return {signedOn.Trouble, signedOn};
    }
    session->Send(kEnvelope);
    return {MailTrouble::None, WaitFor(*session).value_or(MailOutcome{MailTrouble::NoLibrary, {}})};
}

struct Case {
    const char* Way;
    MailSecurity Security;
    const char* Fault;
    MailTrouble SignOn = MailTrouble::None;
    MailTrouble Letter = MailTrouble::None;
    const char* Words = "";
};

constexpr auto kTls = MailSecurity::Tls;
constexpr auto kStart = MailSecurity::StartTls;
constexpr auto kPlain = MailSecurity::None;

void ExpectAsSaid(const Case& row) {
    SCOPED_TRACE(std::string(row.Way) + " " + row.Fault);
    const SmtpServer server(row.Way, row.Fault);
    MailModule mail(KESTROVA_MAIL, QuickRules(server));
    const Tried tried = Try(mail, Jane(server, row.Security));
    EXPECT_EQ(tried.SignOn, row.SignOn);
    EXPECT_EQ(tried.Letter.Trouble, row.SignOn == MailTrouble::None ? row.Letter : row.SignOn);
    EXPECT_EQ(tried.Letter.Words, row.Words);
    const bool arrives = tried.Letter.Trouble == MailTrouble::None;
    const auto letters = server.Letters();
    ASSERT_EQ(letters.size(), arrives ? 1U : 0U) << server.Log();
    if (arrives) {
        EXPECT_EQ(letters[0].From, "<jane@example.org>");
        EXPECT_THAT(letters[0].To, ElementsAre("<joe@example.com>"));
        EXPECT_EQ(letters[0].Secure, row.Security != MailSecurity::None);
        EXPECT_THAT(letters[0].Data, HasSubstr("\r\n" + kEnvelope.Letter.substr(0, 6)));
        EXPECT_THAT(letters[0].Data,
                    testing::MatchesRegex("Date: ..., [0-9]+ ... 20[0-9]+ ..:..:.. \\+0000\r\n"
                                          "Message-ID: <[0-9a-f]+@example.org>\r\n(.|\r|\n)*"));
    }
    // Where protection was asked for and not given, the server has heard nothing of the account.
    if (row.SignOn == MailTrouble::NotSecure || row.SignOn == MailTrouble::Untrusted) {
        EXPECT_THAT(server.Log(), Not(HasSubstr("AUTH ")));
        EXPECT_THAT(server.Log(), Not(HasSubstr("MAIL")));
    }
}

TEST(CurlMailTest, ALetterArrivesOnEveryWay) {
    for (const Case& row :
         {Case{"tls", kTls, ""}, Case{"starttls", kStart, ""}, Case{"plain", kPlain, ""},
          Case{"tls", kTls, "auth=LOGIN"}, Case{"tls", kTls, "auth=PLAIN"}}) {
        ExpectAsSaid(row);
    }
}

TEST(CurlMailTest, ProtectionThatWasAskedForIsNeverGivenUp) {
    using enum MailTrouble;
    for (const Case& row :
         {Case{"starttls", kStart, "plain", NotSecure},
          Case{"starttls", kStart, "STARTTLS=454 not now", NotSecure},
          Case{"tls", kTls, "plain", NotSecure}, Case{"tls", kTls, "cert=other", Untrusted},
          Case{"starttls", kStart, "cert=other", Untrusted},
          Case{"tls", kTls, "cert=foreign", Untrusted}}) {
        ExpectAsSaid(row);
    }
}

TEST(CurlMailTest, WhatTheServerRefusesIsToldApart) {
    using enum MailTrouble;
    for (const Case& row :
         {Case{"tls", kTls, "CONNECT=554 go away", Refused, None, "554 go away"},
          Case{"plain", kPlain, "AUTH=535 Geheim=\xC3\xBC 7?", MailTrouble::Password},
          Case{"tls", kTls, "MAIL=550 not you", None, Sender, "550 not you"},
          Case{"tls", kTls, "RCPT=550 \x1b[31mno such user", None, Recipient,
               "550 [31mno such user"},
          Case{"tls", kTls, "DATA=451 later", None, Refused, "451 later"},
          Case{"starttls", kStart, "LETTER=552 too long", None, Refused, "552 too long"}}) {
        ExpectAsSaid(row);
    }
}

TEST(CurlMailTest, ASilentServerEndsInTime) {
    using enum MailTrouble;
    for (const Case& row :
         {Case{"tls", kTls, "CONNECT=silent", Silent}, Case{"plain", kPlain, "EHLO=silent", Silent},
          Case{"starttls", kStart, "STARTTLS=silent", Silent},
          Case{"tls", kTls, "AUTH=silent", Silent}, Case{"tls", kTls, "MAIL=silent", None, Silent},
          Case{"plain", kPlain, "RCPT=silent", None, Silent},
          Case{"tls", kTls, "DATA=silent", None, Silent},
          Case{"tls", kTls, "LETTER=silent", None, Silent}}) {
        ExpectAsSaid(row);
    }
}

TEST(CurlMailTest, AServerThatHangsUpIsNoSuccess) {
    using enum MailTrouble;
    for (const Case& row :
         {Case{"plain", kPlain, "CONNECT=gone", Silent}, Case{"tls", kTls, "EHLO=gone", Silent},
          Case{"tls", kTls, "RCPT=gone", None, Silent},
          Case{"plain", kPlain, "LETTER=gone", None, Silent}}) {
        ExpectAsSaid(row);
    }
}

TEST(CurlMailTest, AServerThatIsNotThereCannotBeReached) {
    QTcpServer taken; // a port that is ours, and on which nobody answers once it is closed
    ASSERT_TRUE(taken.listen(QHostAddress::LocalHost));
    const int port = taken.serverPort();
    taken.close();
    MailModule mail(KESTROVA_MAIL, {1500ms, 1500ms, {}});
    EXPECT_EQ(Try(mail, {"127.0.0.1", port, kPlain, {}, {}}).SignOn, MailTrouble::Unreachable);
}

TEST(CurlMailTest, AWrongPasswordIsRefusedAndQuotedNowhere) {
    const SmtpServer server("tls");
    MailModule mail(KESTROVA_MAIL, QuickRules(server));
    MailServer jane = Jane(server, kTls);
    jane.Password = "wrong one";
    const Tried tried = Try(mail, jane);
    EXPECT_EQ(tried.SignOn, MailTrouble::Password);
    EXPECT_EQ(tried.Letter.Words, "");
    EXPECT_THAT(server.Log(), HasSubstr("wrong one? Never"));
}

TEST(CurlMailTest, OneSessionSendsManyLettersAndSaysGoodBye) {
    const SmtpServer server("starttls");
    {
        MailModule mail(KESTROVA_MAIL, QuickRules(server));
        const auto session = mail.SignOn(Jane(server, kStart));
        ASSERT_EQ(WaitFor(*session).value().Trouble, MailTrouble::None);
        for (int i = 0; i < 3; ++i) {
            session->Send(kEnvelope);
            ASSERT_EQ(WaitFor(*session).value().Trouble, MailTrouble::None);
        }
    }
    EXPECT_EQ(server.Letters().size(), 3U);
    const std::string log = server.Log();
    EXPECT_EQ(log.find("C: AUTH"), log.rfind("C: AUTH")) << log;
    EXPECT_TRUE(QtEventLoop().WaitUntil(
        [&] { return server.Log().find("C: QUIT") != std::string::npos; }, kSoon));
}

// Leaving waits neither for a server nor for the limits.
TEST(CurlMailTest, WhatIsLeftIsBrokenOffAtOnce) {
    for (const char* const fault : {"CONNECT=silent", "LETTER=silent", "QUIT=silent"}) {
        SCOPED_TRACE(fault);
        const SmtpServer server("plain", fault);
        const auto begin = std::chrono::steady_clock::now();
        {
            MailModule mail(KESTROVA_MAIL, {60s, 60s, server.CaFile()});
            const auto session = mail.SignOn(Jane(server, kPlain));
            QtEventLoop().WaitUntil([&] { return session->Outcome().has_value(); }, 300ms);
            if (session->Outcome()) {
                session->Send(kEnvelope);
                QtEventLoop().WaitUntil([&] { return session->Outcome().has_value(); }, 300ms);
            }
        }
        EXPECT_LT(std::chrono::steady_clock::now() - begin, 5s);
        EXPECT_TRUE(QtEventLoop().WaitUntil(
            [&] { return server.Log().find("(over)") != std::string::npos; }, kSoon));
    }
}

TEST(CurlMailTest, WithoutTheModuleThereIsNoMailAndNoKeyring) {
    MailModule mail("/nowhere/kestrova_mail.so");
    EXPECT_FALSE(mail.IsThere());
    EXPECT_NE(mail.Trouble(), "");
    EXPECT_EQ(mail.Read("x").Failure().Code, ErrorCode::Failed);
    EXPECT_FALSE(mail.Write("x", "y"));
}

} // namespace
} // namespace kestrova
