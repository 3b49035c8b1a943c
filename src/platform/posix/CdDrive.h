// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace kestrova {

// The drive that discs are played from: the one the system calls "cdrom", else the first "sr0",
// "sr1" and so on; empty when there is none.
[[nodiscard]] std::string FindCdDrive(const std::string& devices = "/dev");

} // namespace kestrova
