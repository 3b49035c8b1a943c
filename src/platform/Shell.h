// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Result.h"

#include <string>

namespace kestrova {

// What the program asks of the desktop around it.
class Shell {
public:
    virtual ~Shell() = default;

    // Opens a page in the user's web browser. NotFound when the file is not there; what becomes of
    // the page once the browser has been asked is not known here.
    virtual Status OpenPage(const std::string& path) = 0;
};

} // namespace kestrova
