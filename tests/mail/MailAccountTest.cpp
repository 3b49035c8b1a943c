// SPDX-License-Identifier: GPL-3.0-or-later
#include "mail/MailAccount.h"

#include "fakes/MemoryFileStore.h"
#include "fakes/SetClock.h"
#include "mail/MailAccountStore.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrova {
namespace {

constexpr const char* kPath = "/home/me/Mail.dat";
const std::string kFile = "Kestrova Mail Account\r\nServer: smtp.example.org\r\nPort: 587\r\n"
                          "Security: STARTTLS\r\nUser: jane\r\nName: J\xC3\xB6rg: Doe\r\n"
                          "Address: jane@example.org\r\n";
const MailAccount kAccount{"smtp.example.org",
                           587,
                           MailSecurity::StartTls,
                           "jane",
                           {"J\xC3\xB6rg: Doe", "jane@example.org"}};

std::string With(const std::string& from, const std::string& to) {
    std::string file = kFile;
    return file.replace(file.find(from), from.size(), to);
}

TEST(MailAccountTest, TheFileIsAsDescribed) {
    EXPECT_EQ(WriteMailAccount(kAccount), kFile);
    EXPECT_EQ(ReadMailAccount(kFile), kAccount);
}

TEST(MailAccountTest, WhatIsNoAccountIsNone) {
    for (const std::string& file :
         {std::string(), With("Kestrova", "Kastrova"), With("587", "0"), With("587", "65536"),
          With("587", "x"), With("STARTTLS", "SSL"), With("smtp.example.org", ""),
          With("smtp.example.org", "evil.org/path"), With("smtp.example.org", "a b"),
          With("smtp.example.org", "jane@evil.org"), With("jane@example.org", "jane"),
          With("J\xC3\xB6rg", "J\xF6rg"), With("User: jane", "User: ja\tne"), With("Port", "port"),
          With("Port: 587\r\n", ""), With("jane", std::string(2000, 'x')),
          kFile.substr(0, kFile.size() / 2), std::string(5000, 'x')}) {
        EXPECT_FALSE(ReadMailAccount(file)) << file.substr(0, 200);
    }
}

TEST(MailAccountTest, ADamagedFileIsKeptAsideAndAnUnreadableOneLeft) {
    MemoryFileStore files;
    const SetClock clock;
    MailAccountStore store(files, clock, kPath);
    EXPECT_FALSE(store.Load());
    EXPECT_THAT(files.Paths(), testing::IsEmpty());
    EXPECT_TRUE(store.Save(kAccount));
    EXPECT_EQ(store.Load(), kAccount);
    files.FailReads(Error{ErrorCode::Busy, {}});
    EXPECT_FALSE(store.Load());
    files.FailReads({});
    EXPECT_EQ(store.Load(), kAccount);
    files.Put(kPath, "rubbish");
    EXPECT_FALSE(store.Load());
    EXPECT_THAT(files.Paths(),
                testing::ElementsAre("/home/me/Mail damaged 2026-11-22 09.00.00.dat"));
}

TEST(LetterTest, OnlyPlainAddressesAreAddresses) {
    for (const char* const good : {"a@b", "jane.doe+x@mail.example.org", "o'neil@example.com"}) {
        EXPECT_TRUE(IsMailAddress(good)) << good;
    }
    const std::string longPlace = "a@" + std::string(64, 'x') + ".org";
    const std::string longMailbox = std::string(65, 'x') + "@b.org";
    for (const std::string& bad : {std::string(),
                                   std::string("a"),
                                   std::string("@b"),
                                   std::string("a@"),
                                   std::string("a@b@c"),
                                   std::string("a b@c"),
                                   std::string("a@b c"),
                                   std::string("a@.b"),
                                   std::string("a@b."),
                                   std::string("a@-b"),
                                   std::string("<a@b>"),
                                   std::string("a@b\r\nX: y"),
                                   std::string("a\n@b"),
                                   std::string("a,b@c"),
                                   std::string("\"a\"@b"),
                                   std::string("j\xC3\xB6@b.org"),
                                   std::string("a@b\0c", 5),
                                   longPlace,
                                   longMailbox,
                                   "a@" + std::string(300, 'x')}) {
        EXPECT_FALSE(IsMailAddress(bad)) << bad;
    }
}

TEST(LetterTest, NothingInATextBreaksOutOfItsPlace) {
    const std::string letter =
        WriteLetter({{"Me\r\nBcc: all@example.com", "me@example.org"},
                     {std::string(5000, 'x') + "\xC3\xA4", "you@example.org"},
                     "One\r\n\r\nTwo",
                     "\xF0\x9F\x8E\x82\n.\nQUIT\r\n" + std::string(3000, 'y')});
    EXPECT_EQ(letter.find("Bcc"), std::string::npos);
    EXPECT_EQ(letter.find("QUIT"), std::string::npos);
    EXPECT_EQ(letter.find("\r\n\r\n"), letter.rfind("\r\n\r\n"));
    for (std::size_t at = 0; at < letter.size();) {
        const std::size_t end = letter.find("\r\n", at);
        ASSERT_NE(end, std::string::npos);
        EXPECT_LE(end - at, 78U);
        EXPECT_EQ(letter.substr(at, end - at).find_first_of("\r\n"), std::string::npos);
        EXPECT_NE(letter[at], '.');
        at = end + 2;
    }
}

} // namespace
} // namespace kestrova
