// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "mail/MailAccount.h"
#include "platform/Clock.h"
#include "platform/FileStore.h"

#include <string>

namespace kestrova {

// Brings the mail account from its file and back.
class MailAccountStore {
public:
    MailAccountStore(FileStore& files, const Clock& clock, std::string path)
        : files_(files), clock_(clock), path_(std::move(path)) {}

    // The account; nothing when there is none yet. A damaged file is moved aside and counts as
    // none: the user is then asked for the account, and the old one can be looked up beside it.
    [[nodiscard]] std::optional<MailAccount> Load();

    // Replaces the file. On failure the old one stands.
    Status Save(const MailAccount& account);

private:
    FileStore& files_;
    const Clock& clock_;
    std::string path_;
};

} // namespace kestrova
