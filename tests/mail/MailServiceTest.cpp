// SPDX-License-Identifier: GPL-3.0-or-later
#include "mail/MailService.h"

#include "fakes/FakeMail.h"
#include "fakes/MemoryFileStore.h"
#include "fakes/SetClock.h"
#include "fakes/SteppedLoop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrova {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const MailAccount kAccount{
    "smtp.example.org", 465, MailSecurity::Tls, "jane", {"Jane", "jane@example.org"}};

// Windows that note what they are told, and a user who answers as a test has said.
struct NotedWindows : MailWindows {
    std::vector<std::string> Seen;
    std::vector<LogOnOffer> Offers;
    std::function<bool()> Answer = [] { return false; };
    MailWindowMode Mode = MailWindowMode::Unchecked;
    bool LogOnOpen = false;

    MailPerson ShowReminder(const MailPerson& recipient) override {
        Seen.push_back("show " + recipient.Name + " " + recipient.Address);
        return recipient;
    }
    void HideReminder() override { Seen.emplace_back("hide"); }
    void ShowSending(const std::string& address) override { Seen.push_back("to " + address); }
    void ShowSent(std::size_t number) override { Seen.push_back("sent " + std::to_string(number)); }
    void SetMailWindowMode(MailWindowMode mode) override { Mode = mode; }
    bool AskLogOn(const LogOnOffer& offer) override {
        Offers.push_back(offer);
        Seen.emplace_back("ask");
        return Answer();
    }
    [[nodiscard]] bool IsLogOnOpen() const override { return LogOnOpen; }
    void OfferLogOn(const LogOnOffer& offer) override {
        LogOnOpen = true;
        Offers.push_back(offer);
        Seen.emplace_back("offer");
    }
};

struct MailServiceTest : testing::Test {
    MailServiceTest() {
        (void)Accounts.Save(kAccount);
        Keyring.Kept[PasswordName(kAccount)] = "secret";
    }

    MailStatus Remind() {
        DiaryEvent event;
        event.Msg = "Dentist";
        event.Extra = {"", "Joe", "joe@example.com", ""};
        return Mail.SendMail(event);
    }

    MemoryFileStore Files;
    SetClock Clock;
    MailAccountStore Accounts{Files, Clock, "/home/me/Mail.dat"};
    FakeTransport Transport;
    FakeKeyring Keyring;
    SteppedLoop Loop;
    NotedWindows Windows;
    StringTable Texts = MsgDefaults();
    std::vector<std::string> Told;
    MailService Mail{{Transport, Keyring, Accounts, Loop, Windows, Texts,
                      [this](const std::string& text) { Told.push_back(text); }}};
};

TEST_F(MailServiceTest, AReminderIsSignedOnForShownForTenSecondsAndSent) {
    EXPECT_EQ(Remind(), MailStatus::Sent);
    ASSERT_EQ(Transport.SignOns.size(), 1U);
    EXPECT_EQ(Transport.SignOns[0].User + " " + Transport.SignOns[0].Password, "jane secret");
    ASSERT_EQ(Transport.Sent.size(), 1U);
    EXPECT_EQ(Transport.Sent[0].Sender, "jane@example.org");
    EXPECT_EQ(Transport.Sent[0].Recipient, "joe@example.com");
    EXPECT_EQ(Transport.Sent[0].Letter,
              WriteLetter(
                  {kAccount.Sender, {"Joe", "joe@example.com"}, "Kestrova Messenger", "Dentist"}));
    EXPECT_THAT(Windows.Seen, ElementsAre("show Joe joe@example.com", "hide"));
    EXPECT_EQ(Loop.LastLimit, std::chrono::seconds(10));
    EXPECT_FALSE(Mail.MailFailed());
    EXPECT_THAT(Told, IsEmpty());
}

TEST_F(MailServiceTest, AfterOneFailureNoReminderIsTriedAndTheUserIsToldOnce) {
    Transport.Outcomes = {MailOutcome{MailTrouble::Password, {}}};
    EXPECT_EQ(Remind(), MailStatus::TryLater);
    EXPECT_TRUE(Mail.MailFailed());
    EXPECT_EQ(Remind(), MailStatus::TryLater);
    EXPECT_EQ(Transport.SignOns.size(), 1U);
    EXPECT_THAT(Transport.Sent, IsEmpty());
    EXPECT_THAT(Windows.Seen, IsEmpty());
    EXPECT_THAT(Told, ElementsAre("The mail server smtp.example.org refuses the user name or the "
                                  "password.\n\nReminders by mail wait until Kestrova is started "
                                  "again."));
}

TEST_F(MailServiceTest, EveryFailureToSendIsAFailure) {
    struct Row {
        MailOutcome Outcome;
        const char* Sentence;
    };
    for (const Row& row : {Row{{MailTrouble::Recipient, "550 Joe who"}, "joe@example.com"},
                           Row{{MailTrouble::Refused, "552 too long"}, "552 too long"},
                           Row{{MailTrouble::Silent, ""}, "does not answer"}}) {
        SCOPED_TRACE(row.Sentence);
        MailService mail({Transport, Keyring, Accounts, Loop, Windows, Texts,
                          [this](const std::string& text) { Told.push_back(text); }});
        Transport.Outcomes = {MailOutcome{}, row.Outcome};
        DiaryEvent event;
        event.Extra[2] = "joe@example.com";
        EXPECT_EQ(mail.SendMail(event), MailStatus::TryLater);
        EXPECT_TRUE(mail.MailFailed());
        EXPECT_THAT(Told.back(), HasSubstr(row.Sentence));
    }
    EXPECT_EQ(Windows.Seen.back(), "hide");
}

TEST_F(MailServiceTest, AnAddressThatIsNoneNeverReachesTheServer) {
    DiaryEvent event;
    event.Extra[2] = "joe@example.com>\r\nRCPT TO:<all@example.com";
    EXPECT_EQ(Mail.SendMail(event), MailStatus::TryLater);
    EXPECT_THAT(Transport.Sent, IsEmpty());
    EXPECT_TRUE(Mail.MailFailed());
}

TEST_F(MailServiceTest, WhatHasNoOutcomeWasEndedAndIsNoFailure) {
    Transport.Outcomes = {std::nullopt};
    EXPECT_EQ(Remind(), MailStatus::TryLater);
    EXPECT_FALSE(Mail.MailFailed());
    EXPECT_THAT(Told, IsEmpty());
}

TEST_F(MailServiceTest, WithoutALibraryOnlyTheUserHearsOfIt) {
    Transport.There = false;
    EXPECT_EQ(Remind(), MailStatus::TryLater);
    EXPECT_TRUE(Mail.MailFailed());
    EXPECT_EQ(Told.size(), 1U);
    EXPECT_THAT(Transport.SignOns, IsEmpty());
}

TEST_F(MailServiceTest, AReminderWithoutAnAccountOffersTheDialogAndStaysDue) {
    (void)Files.Remove("/home/me/Mail.dat");
    EXPECT_EQ(Remind(), MailStatus::TryLater);
    EXPECT_EQ(Remind(), MailStatus::TryLater);
    EXPECT_FALSE(Mail.MailFailed());
    EXPECT_THAT(Windows.Seen, ElementsAre("offer"));
    EXPECT_TRUE(Mail.TakeAccount(kAccount, "secret"));
    EXPECT_EQ(Remind(), MailStatus::Sent);
}

TEST_F(MailServiceTest, CancellingTheOfferedDialogEndsTheRemindersAndTheUserIsToldOnce) {
    (void)Files.Remove("/home/me/Mail.dat");
    EXPECT_EQ(Remind(), MailStatus::TryLater);
    Mail.LogOnCancelled();
    Mail.LogOnCancelled();
    EXPECT_TRUE(Mail.MailFailed());
    EXPECT_THAT(Told, ElementsAre("Reminders by mail wait until Kestrova is started again."));
}

TEST_F(MailServiceTest, AKeyringThatIsNotOpenedIsNotAskedEveryMinute) {
    Keyring.There = false;
    for (int minute = 0; minute < 3; ++minute) {
        EXPECT_EQ(Remind(), MailStatus::TryLater);
        Windows.LogOnOpen = false;
    }
    EXPECT_EQ(Keyring.Reads, 1);
    EXPECT_EQ(Windows.Offers.size(), 3U);
    // One that has not answered yet may have done so when it is needed again.
    MailService mail({Transport, Keyring, Accounts, Loop, Windows, Texts, [](const auto&) {}});
    Keyring.Trouble = ErrorCode::Busy;
    EXPECT_EQ(mail.SendMail({}), MailStatus::TryLater);
    Keyring.There = true;
    DiaryEvent event;
    event.Extra[2] = "joe@example.com";
    EXPECT_EQ(mail.SendMail(event), MailStatus::Sent);
}

TEST_F(MailServiceTest, AnInvitationInTheMidstOfAReminderDoesNotMakeItFail) {
    Loop.WhileWaiting = [this] {
        EXPECT_EQ(Mail.SendInvitation("Jane", {"a@example.com"}), MailStatus::TryLater);
        EXPECT_THAT(Mail.Complaint(), HasSubstr("on its way"));
    };
    EXPECT_EQ(Remind(), MailStatus::Sent);
    EXPECT_THAT(Told, IsEmpty());
}

TEST_F(MailServiceTest, APasswordThatNoKeyringTakesServesForThisRun) {
    Keyring.There = false;
    EXPECT_EQ(Remind(), MailStatus::TryLater);
    EXPECT_THAT(Windows.Seen, ElementsAre("offer"));
    EXPECT_FALSE(Windows.Offers[0].PasswordKnown);
    EXPECT_TRUE(Mail.TakeAccount(kAccount, "other secret"));
    EXPECT_EQ(Told.size(), 1U);
    EXPECT_EQ(Remind(), MailStatus::Sent);
    EXPECT_EQ(Transport.SignOns[0].Password, "other secret");
    EXPECT_EQ(Files.Content("/home/me/Mail.dat")->find("secret"), std::string::npos);
}

TEST_F(MailServiceTest, AnInvitationGoesToEachAddressThatThereIs) {
    EXPECT_EQ(Mail.SendInvitation("Jane", {"", "a@example.com", "", "b@example.com", ""}),
              MailStatus::Sent);
    ASSERT_EQ(Transport.Sent.size(), 2U);
    EXPECT_EQ(Transport.SignOns.size(), 1U);
    EXPECT_EQ(Transport.Sent[1].Letter,
              WriteLetter({kAccount.Sender,
                           {"Jane", "b@example.com"},
                           "Free Kestrova Software",
                           "I've found this great shareware package at\r\nhttps://kestrova.org\r\n"
                           "Its a personalizable picture calendar with\r\n"
                           "Mail reminder system and built in CD player.\r\n"
                           "You can include your own pictures, create a personal diary\r\n"
                           "and print out your own designs.\r\n\r\n\r\nAll the best\r\n\r\nJane"}));
    EXPECT_THAT(Windows.Seen,
                ElementsAre("to a@example.com", "sent 1", "to b@example.com", "sent 3"));
    EXPECT_EQ(Windows.Mode, MailWindowMode::Invited);
}

TEST_F(MailServiceTest, AnInvitationAsksForTheAccountAgainAfterAFailedSignOn) {
    Transport.Outcomes = {MailOutcome{MailTrouble::Unreachable, {}}};
    const InvitedFriends friends{"a@example.com"};
    EXPECT_EQ(Mail.SendInvitation("Jane", friends), MailStatus::TryLater);
    EXPECT_THAT(Mail.Complaint(), HasSubstr("cannot be reached"));
    Windows.Answer = [this] {
        MailAccount repaired = kAccount;
        repaired.Server = "mail.example.org";
        return Mail.TakeAccount(repaired, "new").Ok();
    };
    EXPECT_EQ(Mail.SendInvitation("Jane", friends), MailStatus::Sent);
    EXPECT_TRUE(Windows.Offers[0].PasswordKnown);
    EXPECT_EQ(Transport.SignOns[1].Host, "mail.example.org");
    // That is the user's own doing; reminders go on waiting.
    EXPECT_TRUE(Mail.MailFailed());
    EXPECT_EQ(Remind(), MailStatus::TryLater);
}

TEST_F(MailServiceTest, AFriendWhoIsRefusedDoesNotKeepTheOthersFromTheirs) {
    Transport.Outcomes = {MailOutcome{}, MailOutcome{MailTrouble::Recipient, {}}};
    EXPECT_EQ(Mail.SendInvitation("Jane", {"a@example.com", "b@example.com"}),
              MailStatus::TryLater);
    EXPECT_THAT(Windows.Seen, ElementsAre("to a@example.com", "to b@example.com", "sent 1"));
    EXPECT_THAT(Mail.Complaint(), HasSubstr("a@example.com"));
    EXPECT_EQ(Transport.SignOns.size(), 1U);
}

TEST_F(MailServiceTest, WhatTheUserBreaksOffOrCancelsIsNoFailure) {
    Transport.Outcomes = {std::nullopt};
    Loop.WhileWaiting = [this] {
        // While one mail is on its way, the next is put off.
        EXPECT_EQ(Remind(), MailStatus::TryLater);
        Mail.BreakOff();
    };
    EXPECT_EQ(Mail.SendInvitation("Jane", {"a@example.com"}), MailStatus::TryLater);
    EXPECT_EQ(Mail.Complaint(), "");
    (void)Files.Remove("/home/me/Mail.dat");
    EXPECT_EQ(Mail.SendInvitation("Jane", {"a@example.com"}), MailStatus::TryLater);
    EXPECT_EQ(Windows.Seen, std::vector<std::string>{"ask"});
    EXPECT_FALSE(Mail.MailFailed());
}

} // namespace
} // namespace kestrova
