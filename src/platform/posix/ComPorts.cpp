// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/posix/ComPorts.h"

#include "text/Numbers.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <system_error>
#include <utility>

namespace kestrova {

namespace {

constexpr int kPorts = 4;
constexpr std::array<std::string_view, 3> kKinds = {"ttyACM", "ttyUSB", "ttyS"};
constexpr std::size_t kMachinePorts = 2; // which of them need a look at their type

// Whether the system has found a port behind this name.
bool IsReal(const std::string& system, const std::string& name) {
    std::ifstream file(system + name + "/type");
    int type = 0;
    return file >> type && type != 0;
}

} // namespace

std::vector<std::string> SerialDevices(const std::string& devices, const std::string& system) {
    using Place = std::pair<std::size_t, int>; // the kind and the number
    std::vector<std::pair<Place, std::string>> found;
    std::error_code error;
    const std::filesystem::directory_iterator none;
    for (std::filesystem::directory_iterator entry(devices, error); !error && entry != none;
         entry.increment(error)) {
        const std::string name = entry->path().filename().string();
        for (std::size_t kind = 0; kind < kKinds.size(); ++kind) {
            const auto number = name.starts_with(kKinds[kind])
                                    ? ReadInt16(std::string_view(name).substr(kKinds[kind].size()))
                                    : std::nullopt;
            if (number && (kind != kMachinePorts || IsReal(system, name))) {
                found.push_back({{kind, *number}, devices + name});
            }
        }
    }
    std::sort(found.begin(), found.end());
    std::vector<std::string> paths;
    paths.reserve(found.size());
    for (auto& [place, path] : found) {
        paths.push_back(std::move(path));
    }
    return paths;
}

std::optional<std::string> ComPort(int number, const std::string& programFolder,
                                   const std::vector<std::string>& devices) {
    if (number < 1 || number > kPorts) {
        return std::nullopt;
    }
    const std::string link = programFolder + "com" + std::to_string(number);
    std::error_code error;
    if (std::filesystem::exists(std::filesystem::symlink_status(link, error))) {
        return link; // also one that leads nowhere now: the modem may be unplugged
    }
    const auto index = static_cast<std::size_t>(number - 1);
    return index < devices.size() ? std::optional(devices[index]) : std::nullopt;
}

} // namespace kestrova
