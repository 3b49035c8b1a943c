// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/mail/CurlMail.h"
#include "platform/qt/mail/Keyring.h"
#include "platform/qt/mail/MailFactory.h"

#include <curl/curl.h>

namespace kestrova {

namespace {

class LinuxMail : public MailFactory {
public:
    // Once, and before there are threads that could do it at the same time.
    LinuxMail() { curl_global_init(CURL_GLOBAL_DEFAULT); }

    std::unique_ptr<MailTransport> MakeTransport(const MailRules& rules) override {
        return std::make_unique<CurlMail>(rules);
    }

    std::unique_ptr<KeyringQuestion> ReadPassword(const std::string& name) override {
        return AskKeyring(name);
    }

    std::unique_ptr<KeyringQuestion> WritePassword(const std::string& name,
                                                   const std::string& password) override {
        return TellKeyring(name, password);
    }
};

} // namespace

extern "C" [[gnu::visibility("default")]] MailFactory* KestrovaMail1() {
    static LinuxMail mail;
    return &mail;
}

} // namespace kestrova
