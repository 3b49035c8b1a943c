// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/mail/CurlMail.h"

#include "platform/qt/mail/CurlLine.h"

#include <condition_variable>
#include <mutex>
#include <system_error>
#include <thread>

namespace kestrova {

namespace {

constexpr std::chrono::milliseconds kGoodBye{1000};

} // namespace

// What a session and its thread share.
struct CurlMail::Desk {
    mutable std::mutex Guard;
    std::condition_variable Changed;
    std::optional<MailEnvelope> Next;
    std::optional<MailOutcome> Outcome;
    bool Leave = false;
    bool Gone = false;   // the thread has nothing more to do
    bool Working = true; // the thread waits for the server
    CurlSockets Sockets;

    void Give(MailOutcome outcome) {
        const std::lock_guard lock(Guard);
        Working = false;
        Outcome = std::move(outcome);
    }

    // The next letter; nothing when the session is over.
    std::optional<MailEnvelope> WaitForLetter() {
        std::unique_lock lock(Guard);
        Changed.wait(lock, [this] { return Leave || Next; });
        Working = !Leave;
        return Leave ? std::nullopt : std::exchange(Next, std::nullopt);
    }

    bool IsLeft() const {
        const std::lock_guard lock(Guard);
        return Leave;
    }

    void SayGone() {
        const std::lock_guard lock(Guard);
        Gone = true;
        Changed.notify_all();
    }

    void WaitUntilGone(std::chrono::steady_clock::time_point end) {
        std::unique_lock lock(Guard);
        Changed.wait_until(lock, end, [this] { return Gone; });
    }
};

namespace {

class CurlSession : public MailSession {
public:
    explicit CurlSession(std::shared_ptr<CurlMail::Desk> desk) : desk_(std::move(desk)) {}

    ~CurlSession() override {
        const std::lock_guard lock(desk_->Guard);
        desk_->Leave = true;
        desk_->Changed.notify_all();
        if (desk_->Working) {
            desk_->Sockets.Cut();
        }
    }

    CurlSession(const CurlSession&) = delete;
    CurlSession& operator=(const CurlSession&) = delete;
    CurlSession(CurlSession&&) = delete;
    CurlSession& operator=(CurlSession&&) = delete;

    [[nodiscard]] std::optional<MailOutcome> Outcome() const override {
        const std::lock_guard lock(desk_->Guard);
        return desk_->Outcome;
    }

    void Send(const MailEnvelope& envelope) override {
        const std::lock_guard lock(desk_->Guard);
        desk_->Outcome.reset();
        desk_->Next = envelope;
        desk_->Changed.notify_all();
    }

private:
    std::shared_ptr<CurlMail::Desk> desk_;
};

// The thread of a session, from signing on to signing off.
void Serve(const std::shared_ptr<CurlMail::Desk>& desk, const MailServer& server,
           const MailRules& rules) {
    {
        CurlLine line(server, rules, desk->Sockets, [&desk] { return desk->IsLeft(); });
        desk->Give(line.SignOn());
        while (const auto envelope = desk->WaitForLetter()) {
            desk->Give(line.Send(*envelope));
        }
        line.SignOff();
    }
    desk->SayGone();
}

} // namespace

CurlMail::CurlMail(MailRules rules) : rules_(std::move(rules)) {}

CurlMail::~CurlMail() {
    const auto end = std::chrono::steady_clock::now() + kGoodBye;
    for (const auto& left : desks_) {
        if (const auto desk = left.lock()) {
            desk->WaitUntilGone(end);
        }
    }
}

std::unique_ptr<MailSession> CurlMail::SignOn(const MailServer& server) {
    std::erase_if(desks_, [](const auto& desk) { return desk.expired(); });
    auto desk = std::make_shared<Desk>();
    try {
        std::thread([desk, server, rules = rules_] { Serve(desk, server, rules); }).detach();
    } catch (const std::system_error&) {
        desk->Give({MailTrouble::Unreachable, {}}); // the machine has no room for another thread
    }
    desks_.push_back(desk);
    return std::make_unique<CurlSession>(std::move(desk));
}

} // namespace kestrova
