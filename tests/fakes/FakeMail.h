// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/MailTransport.h"
#include "platform/PasswordStore.h"

#include <deque>
#include <map>
#include <string>
#include <vector>

namespace kestrova {

// A way for mail that goes nowhere and does what a test has told it to.
class FakeTransport : public MailTransport {
public:
    bool There = true;
    std::vector<MailServer> SignOns;
    std::vector<MailEnvelope> Sent;
    std::deque<std::optional<MailOutcome>>
        Outcomes; // of what is asked, in turn; then all goes well

    bool IsThere() override { return There; }

    std::unique_ptr<MailSession> SignOn(const MailServer& server) override {
        SignOns.push_back(server);
        return std::make_unique<Session>(*this);
    }

private:
    class Session : public MailSession {
    public:
        explicit Session(FakeTransport& transport)
            : transport_(transport), outcome_(transport.Next()) {}
        [[nodiscard]] std::optional<MailOutcome> Outcome() const override { return outcome_; }
        void Send(const MailEnvelope& envelope) override {
            transport_.Sent.push_back(envelope);
            outcome_ = transport_.Next();
        }

    private:
        FakeTransport& transport_;
        std::optional<MailOutcome> outcome_;
    };

    std::optional<MailOutcome> Next() {
        if (Outcomes.empty()) {
            return MailOutcome{};
        }
        const auto outcome = Outcomes.front();
        Outcomes.pop_front();
        return outcome;
    }
};

// A keyring in memory.
class FakeKeyring : public PasswordStore {
public:
    bool There = true;
    ErrorCode Trouble = ErrorCode::Failed; // when it is not there
    int Reads = 0;
    std::map<std::string, std::string> Kept;

    Result<std::string> Read(const std::string& name) override {
        ++Reads;
        if (!There) {
            return Error{Trouble, {}};
        }
        const auto found = Kept.find(name);
        return found == Kept.end() ? Result<std::string>(Error{ErrorCode::NotFound, {}})
                                   : found->second;
    }
    Status Write(const std::string& name, const std::string& password) override {
        if (!There) {
            return Error{ErrorCode::Failed, {}};
        }
        Kept[name] = password;
        return Done{};
    }
};

} // namespace kestrova
