// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Result.h"

#include <string>

namespace kestrova {

// The desktop's keyring. Each call handles events while the keyring thinks, and gives up on one
// that is dead after a few seconds; it may be called again from one of those events.
class PasswordStore {
public:
    virtual ~PasswordStore() = default;

    // NotFound when the keyring has no password under this name; Busy while it has not answered,
    // perhaps because it asks the user, whose answer a later call brings; Failed when there is no
    // keyring, or the user does not open it.
    virtual Result<std::string> Read(const std::string& name) = 0;

    // Keeps a password, in the place of an older one of this name.
    virtual Status Write(const std::string& name, const std::string& password) = 0;
};

} // namespace kestrova
