// SPDX-License-Identifier: GPL-3.0-or-later
#include "mail/MailTexts.h"

namespace kestrova {

namespace {

ProgramText SentenceOf(MailTrouble trouble) {
    switch (trouble) {
    case MailTrouble::NoLibrary: return ProgramText::MailNoLibrary;
    case MailTrouble::Unreachable: return ProgramText::MailUnreachable;
    case MailTrouble::Silent: return ProgramText::MailSilent;
    case MailTrouble::NotSecure: return ProgramText::MailNotSecure;
    case MailTrouble::Untrusted: return ProgramText::MailUntrusted;
    case MailTrouble::Password: return ProgramText::MailPasswordRefused;
    case MailTrouble::Sender: return ProgramText::MailSenderRefused;
    case MailTrouble::Recipient: return ProgramText::MailRecipientRefused;
    case MailTrouble::Refused:
    case MailTrouble::None: break;
    }
    return ProgramText::MailRefused;
}

} // namespace

std::string MailComplaint(const StringTable& texts, const MailOutcome& outcome,
                          const std::string& server, const std::string& recipient) {
    const std::string& about = outcome.Trouble == MailTrouble::Recipient ? recipient : server;
    const std::string sentence = TextOf(texts, SentenceOf(outcome.Trouble), about);
    return outcome.Words.empty() ? sentence : sentence + "\n\n" + outcome.Words;
}

} // namespace kestrova
