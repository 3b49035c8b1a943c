// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/FolderProbe.h"

#include <condition_variable>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>

namespace kestrova {

struct FolderProbe::Question {
    std::mutex Guard;
    std::condition_variable Answered;
    std::optional<bool> Answer;

    void Give(bool answer) {
        const std::lock_guard lock(Guard);
        Answer = answer;
        Answered.notify_all();
    }

    std::optional<bool> WaitUntil(std::chrono::steady_clock::time_point end) {
        std::unique_lock lock(Guard);
        Answered.wait_until(lock, end, [this] { return Answer.has_value(); });
        return Answer;
    }
};

// Nothing while an earlier question waits, or when there is no thread to be had.
std::shared_ptr<FolderProbe::Question> FolderProbe::Ask(const std::string& folder) {
    const auto earlier = asked_.find(folder);
    if (earlier != asked_.end()) {
        if (!earlier->second->WaitUntil({})) {
            return nullptr;
        }
        asked_.erase(earlier); // it has answered meanwhile: what it says now is asked anew
    }
    auto question = std::make_shared<Question>();
    try {
        std::thread([question, folder, look = look_] { question->Give(look(folder)); }).detach();
    } catch (const std::system_error&) {
        return nullptr; // the machine has no room for another thread: the folder is not asked
    }
    asked_[folder] = question;
    return question;
}

std::set<std::string> FolderProbe::Answering(const std::vector<std::string>& folders) {
    std::set<std::string> answering;
    std::map<std::string, std::shared_ptr<Question>> waiting;
    for (const std::string& folder : folders) {
        if (IsOwn(folder)) {
            answering.insert(folder);
        } else if (!waiting.contains(folder)) {
            waiting[folder] = Ask(folder);
        }
    }
    const auto end = std::chrono::steady_clock::now() + limit_;
    for (const auto& [folder, question] : waiting) {
        const auto answer = question ? question->WaitUntil(end) : std::nullopt;
        if (answer) {
            asked_.erase(folder);
        }
        if (answer.value_or(false)) {
            answering.insert(folder);
        }
    }
    return answering;
}

bool FolderProbe::Answers(const std::string& folder) {
    return IsOwn(folder) || !Answering({folder}).empty();
}

} // namespace kestrova
