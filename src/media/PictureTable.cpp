// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/PictureTable.h"

#include "language/StringTable.h"

#include <algorithm>
#include <vector>

namespace kestrova {

namespace {

// The files of one folder, found by name without their extension. The case of letters does not
// count, but a name that has the right one comes first.
class Folder {
public:
    Folder(const FileStore& files, std::string path) : path_(std::move(path)) {
        names_ = files.List(path_);
        std::sort(names_.begin(), names_.end());
    }

    // The full path of the first file "<stem>.<anything>"; empty when there is none.
    [[nodiscard]] std::string Find(const std::string& stem) const {
        return First([&stem](const std::string& name) { return IsPictureOf(name, stem); },
                     [&stem](const std::string& name) { return name.starts_with(stem); });
    }

    // The same for one extension.
    [[nodiscard]] std::string Find(const std::string& stem, std::string_view extension) const {
        const std::string wanted = stem + std::string(extension);
        return First([&wanted](const std::string& name) { return IsSameName(name, wanted); },
                     [&wanted](const std::string& name) { return name == wanted; });
    }

private:
    template<typename Fits, typename Exactly>
    [[nodiscard]] std::string First(Fits fits, Exactly exactly) const {
        const std::string* found = nullptr;
        for (const std::string& name : names_) {
            if (fits(name) && (found == nullptr || (exactly(name) && !exactly(*found)))) {
                found = &name;
            }
        }
        return found == nullptr ? std::string() : path_ + *found;
    }

    std::string path_;
    std::vector<std::string> names_;
};

} // namespace

bool IsPictureOf(std::string_view name, std::string_view stem) {
    return name.size() > stem.size() && name[stem.size()] == '.' &&
           IsSameName(name.substr(0, stem.size()), stem) &&
           name.find('.', stem.size() + 1) == std::string_view::npos;
}

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
