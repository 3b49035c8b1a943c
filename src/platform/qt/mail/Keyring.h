// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/qt/mail/MailFactory.h"

#include <memory>
#include <string>

namespace kestrova {

// Questions to the keyring of the desktop (the Secret Service, or the wallet of older desktops).
// They are put by a thread of their own: finding out whether there is a keyring at all may take
// half a minute where it is dead.
[[nodiscard]] std::unique_ptr<KeyringQuestion> AskKeyring(const std::string& name);
[[nodiscard]] std::unique_ptr<KeyringQuestion> TellKeyring(const std::string& name,
                                                           const std::string& password);

} // namespace kestrova
