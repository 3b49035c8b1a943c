// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Shell.h"

namespace kestrova {

class QtShell : public Shell {
public:
    Status OpenPage(const std::string& path) override;
};

} // namespace kestrova
