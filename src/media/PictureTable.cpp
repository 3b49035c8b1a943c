// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/PictureTable.h"

#include "language/StringTable.h"

#include <algorithm>
#include <vector>

namespace kestrova {

namespace {

// The files of one folder, found by name without their extension.
class Folder {
public:
    Folder(const FileStore& files, std::string path) : path_(std::move(path)) {
        names_ = files.List(path_);
        std::sort(names_.begin(), names_.end());
    }

    // The full path of the first file "<stem>.<anything>"; empty when there is none.
    [[nodiscard]] std::string Find(const std::string& stem) const {
        const std::string start = stem + ".";
        for (const std::string& name : names_) {
            if (name.starts_with(start) && name.find('.', start.size()) == std::string::npos) {
                return path_ + name;
            }
        }
        return {};
    }

    // The same for one extension.
    [[nodiscard]] std::string Find(const std::string& stem, std::string_view extension) const {
        const std::string name = stem + std::string(extension);
        const bool found = std::binary_search(names_.begin(), names_.end(), name);
        return found ? path_ + name : std::string();
    }

private:
    std::string path_;
    std::vector<std::string> names_;
};

} // namespace

PictureTable ScanPictures(const FileStore& files, const std::string& dataFolder,
                          const Selection& today) {
    const Folder images(files, dataFolder + "Images/");
    const Folder speech(files, dataFolder + "Speech/");
    PictureTable table;
    for (int month = 0; month < kMonths; ++month) {
        const std::string name(EnglishMonthName(month));
        const auto index = static_cast<std::size_t>(month);
        table.MonthPicture[index] = images.Find(name);
        table.MonthSpeech[index] = speech.Find(name, ".txt");
    }
    const std::string current(EnglishMonthName(today.TodayMonth));
    const auto index = static_cast<std::size_t>(today.TodayMonth);
    for (int day = today.TodayDay; day >= 1; --day) {
        const std::string stem = current + std::to_string(day);
        const std::string picture = images.Find(stem);
        if (picture.empty()) {
            continue;
        }
        table.MonthPicture[index] = picture;
        if (const std::string text = speech.Find(stem); !text.empty()) {
            table.MonthSpeech[index] = text;
        }
        break;
    }
    return table;
}

} // namespace kestrova
