// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/ProgramTexts.h"
#include "platform/MailTransport.h"

#include <string>

namespace kestrova {

// What has gone wrong with a mail, in a sentence, and the server's own words below it.
[[nodiscard]] std::string MailComplaint(const StringTable& texts, const MailOutcome& outcome,
                                        const std::string& server, const std::string& recipient);

} // namespace kestrova
