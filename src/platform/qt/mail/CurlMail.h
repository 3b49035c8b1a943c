// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/qt/mail/MailFactory.h"

#include <memory>
#include <vector>

namespace kestrova {

// Mail by SMTP. Each session has a thread of its own, in which all the waiting is done; the session
// and its thread share a desk with what is asked for and what has become of it, so that a thread
// whose server is silent may be left behind.
class CurlMail : public MailTransport {
public:
    explicit CurlMail(MailRules rules);

    // Gives the sessions that have been left a moment to say good-bye.
    ~CurlMail() override;

    [[nodiscard]] bool IsThere() override { return true; }
    [[nodiscard]] std::unique_ptr<MailSession> SignOn(const MailServer& server) override;

    struct Desk;

private:
    MailRules rules_;
    std::vector<std::weak_ptr<Desk>> desks_;
};

} // namespace kestrova
