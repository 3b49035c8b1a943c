// SPDX-License-Identifier: GPL-3.0-or-later
#include "mail/MailAccountStore.h"

#include "platform/KeepAside.h"

namespace kestrova {

std::optional<MailAccount> MailAccountStore::Load() {
    const auto bytes = files_.Read(path_, kMailAccountLimit);
    if (bytes) {
        if (auto account = ReadMailAccount(bytes.Value())) {
            return account;
        }
    }
    const bool damaged = bytes || bytes.Failure().Code == ErrorCode::Damaged ||
                         bytes.Failure().Code == ErrorCode::TooLarge;
    if (damaged) {
        // Where it cannot be moved, it is left until an account is saved over it.
        (void)MoveAside(files_, clock_.Now(), path_, kDamagedMark);
    }
    return std::nullopt;
}

Status MailAccountStore::Save(const MailAccount& account) {
    return files_.Replace(path_, WriteMailAccount(account));
}

} // namespace kestrova
