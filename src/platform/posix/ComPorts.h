// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace kestrova {

// Which devices stand behind "Com:1" to "Com:4".

// The serial devices in a folder of devices, by their paths: first modems on USB (ttyACM*), then
// adapters (ttyUSB*), then the ports of the machine (ttyS*), each in the order of their numbers.
// The system makes more ttyS* than there are ports; those that are real have a type in the system's
// folder.
[[nodiscard]] std::vector<std::string> SerialDevices(const std::string& devices = "/dev/",
                                                     const std::string& system = "/sys/class/tty/");

// The path of the port with this number, 1 to 4: what `com1` to `com4` in the program folder link
// to, else the device of that number among the machine's. Nothing when there is none.
[[nodiscard]] std::optional<std::string> ComPort(int number, const std::string& programFolder,
                                                 const std::vector<std::string>& devices);

} // namespace kestrova
