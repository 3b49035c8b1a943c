// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/print/PrintWorker.h"

#include <atomic>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>
#include <utility>

namespace kestrova {

struct PrintWorker::Desk {
    std::atomic<bool> Working = false;
};

namespace {

// What a question and its thread share.
class Slip {
public:
    [[nodiscard]] bool IsAnswered() const {
        const std::lock_guard lock(guard_);
        return answer_.has_value();
    }

    [[nodiscard]] Status Take() {
        const std::lock_guard lock(guard_);
        left_ = true;
        return answer_.value_or(Error{ErrorCode::Busy, {}});
    }

    // Whether it is to be undone. If not, the work is over before anybody sees the answer.
    [[nodiscard]] bool Give(const PrintFinding& finding, std::atomic<bool>& working) {
        const std::lock_guard lock(guard_);
        answer_ = finding.Answer;
        const bool undo = finding.Undo && (left_ || !finding.Answer);
        working = undo;
        return undo;
    }

    void Refuse(Error error) {
        const std::lock_guard lock(guard_);
        answer_ = std::move(error);
    }

private:
    mutable std::mutex guard_;
    std::optional<Status> answer_;
    bool left_ = false;
};

class SlipQuestion : public PrintQuestion {
public:
    explicit SlipQuestion(std::shared_ptr<Slip> slip) : slip_(std::move(slip)) {}

    [[nodiscard]] bool IsAnswered() const override { return slip_->IsAnswered(); }
    [[nodiscard]] Status Take() override { return slip_->Take(); }

private:
    std::shared_ptr<Slip> slip_;
};

} // namespace

PrintWorker::PrintWorker() : desk_(std::make_shared<Desk>()) {}

PrintWorker::~PrintWorker() = default;

std::unique_ptr<PrintQuestion> PrintWorker::Put(PrintWork work, std::chrono::milliseconds limit) {
    auto slip = std::make_shared<Slip>();
    auto question = std::make_unique<SlipQuestion>(slip);
    if (desk_->Working.exchange(true)) {
        slip->Refuse({ErrorCode::Busy, {}});
        return question;
    }
    // Whoever waits shall hear what there is to hear while still waiting.
    const auto end = std::chrono::steady_clock::now() + limit * 9 / 10;
    try {
        std::thread([desk = desk_, slip, end, work = std::move(work)] {
            const PrintFinding finding = work(end);
            if (slip->Give(finding, desk->Working)) {
                finding.Undo();
                desk->Working = false;
            }
        }).detach();
    } catch (const std::system_error& trouble) { // the machine has no room for another thread
        desk_->Working = false;
        slip->Refuse({ErrorCode::Failed, trouble.what()});
    }
    return question;
}

} // namespace kestrova
