// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace kestrova {

// A folder of its own on the real disc, gone with the test.
class TemporaryFolder {
public:
    TemporaryFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "kestrova.XXXXXX").string();
        path_ = std::string(::mkdtemp(name.data()) != nullptr ? name : "") + "/";
    }
    ~TemporaryFolder() {
        std::error_code ignored; // what is left behind lies in the system's own temporary folder
        std::filesystem::permissions(path_, std::filesystem::perms::owner_all, ignored);
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    // The path of a file in the folder, or of the folder itself with its separator.
    [[nodiscard]] std::string operator/(const std::string& name) const { return path_ + name; }
    [[nodiscard]] const std::string& Path() const { return path_; }

    void Write(const std::string& name, const std::string& bytes) const {
        std::ofstream(path_ + name, std::ios::binary) << bytes;
    }
    [[nodiscard]] std::string Content(const std::string& name) const {
        std::ostringstream bytes;
        bytes << std::ifstream(path_ + name, std::ios::binary).rdbuf();
        return bytes.str();
    }

private:
    std::string path_;
};

} // namespace kestrova
