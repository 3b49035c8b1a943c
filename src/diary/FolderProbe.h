// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace kestrova {

// Asks folders that lie on other machines whether they answer, without waiting for those that do
// not: a network folder whose server has gone keeps whoever touches it for minutes, and that is not
// to be the window. The question is put by a thread of its own, which may hang as long as it likes.
class FolderProbe {
public:
    // Whether a folder is there; may take for ever. It is called from other threads, also when the
    // probe itself has gone, so it must not hold on to anything.
    using Look = std::function<bool(const std::string& folder)>;

    static constexpr std::chrono::milliseconds kLimit{300};

    // `ownFolder` is the program folder: it always answers, and is never asked.
    FolderProbe(std::string ownFolder, Look look, std::chrono::milliseconds limit = kLimit)
        : ownFolder_(std::move(ownFolder)), look_(std::move(look)), limit_(limit) {}

    [[nodiscard]] const std::string& OwnFolder() const { return ownFolder_; }
    [[nodiscard]] bool IsOwn(const std::string& folder) const { return folder == ownFolder_; }

    // Whether the folder says within the limit that it is there. While an earlier question to it
    // has no answer yet, the answer is no, at once.
    [[nodiscard]] bool Answers(const std::string& folder);

    // Those of the folders that answer, all asked at the same time, so that many of them take no
    // longer than one.
    [[nodiscard]] std::set<std::string> Answering(const std::vector<std::string>& folders);

private:
    struct Question;

    std::shared_ptr<Question> Ask(const std::string& folder);

    std::string ownFolder_;
    Look look_;
    std::chrono::milliseconds limit_;
    // Shared with the thread that asks, which may outlive this object.
    std::map<std::string, std::shared_ptr<Question>> asked_; // not known to be answered
};

} // namespace kestrova
