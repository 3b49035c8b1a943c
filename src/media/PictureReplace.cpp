// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/PictureReplace.h"

#include "language/StringTable.h"
#include "media/PictureLimits.h"
#include "platform/KeepAside.h"

#include <algorithm>
#include <vector>

namespace kestrova {

namespace {

constexpr std::string_view kReplacedMark = "replaced";
constexpr std::string_view kOriginal = "Original/";

class Replacement {
public:
    Replacement(FileStore& files, const WallTime& now, const std::string& dataFolder)
        : files_(files), now_(now), images_(dataFolder + "Images/"),
          speech_(dataFolder + "Speech/") {}

    Status BackUp();
    Result<std::string> PutInPlace(const PictureChoice& choice);

private:
    [[nodiscard]] std::vector<std::string> Sorted(const std::string& folder) const;
    Status CopyAll(const std::string& folder, const std::vector<std::string>& names);
    [[nodiscard]] bool IsSame(const std::string& a, const std::string& b) const;
    [[nodiscard]] bool IsOriginal(const std::string& folder, const std::string& name) const;
    Status PutAway(const std::string& folder, const std::string& name);

    FileStore& files_;
    const WallTime& now_;
    std::string images_;
    std::string speech_;
};

std::vector<std::string> Replacement::Sorted(const std::string& folder) const {
    auto names = files_.List(folder);
    std::sort(names.begin(), names.end());
    return names;
}

// A file of that name in the backup is whole, for it got there in one step, and is from before the
// user's first change: it stays.
Status Replacement::CopyAll(const std::string& folder, const std::vector<std::string>& names) {
    const std::string target = folder + std::string(kOriginal);
    for (const std::string& name : names) {
        if (files_.Stamp(target + name)) {
            continue;
        }
        const auto stamp = files_.Stamp(folder + name);
        if (!stamp || static_cast<std::uint64_t>(stamp->Size) > kMostPictureBytes) {
            continue; // no picture of ours
        }
        const Status copied = files_.CopyToNew(folder + name, target + name);
        // What cannot be read, nobody can replace by mistake either: it would be copied first.
        if (!copied && files_.Read(folder + name, kMostPictureBytes)) {
            return copied;
        }
    }
    return Done{};
}

Status Replacement::BackUp() {
    const std::string january(EnglishMonthName(0));
    const auto isJanuary = [&](const std::string& name) { return IsPictureOf(name, january); };
    const auto backup = Sorted(images_ + std::string(kOriginal));
    if (std::any_of(backup.begin(), backup.end(), isJanuary)) {
        return Done{};
    }
    for (const std::string& folder : {images_, speech_}) {
        if (const Status made = files_.MakeFolder(folder + std::string(kOriginal)); !made) {
            return made;
        }
        files_.RemoveLeftovers(folder + std::string(kOriginal));
    }
    auto names = Sorted(images_);
    const auto januaries = std::stable_partition(
        names.begin(), names.end(), [&](const std::string& name) { return !isJanuary(name); });
    if (const Status copied = CopyAll(images_, {names.begin(), januaries}); !copied) {
        return copied;
    }
    if (const Status copied = CopyAll(speech_, Sorted(speech_)); !copied) {
        return copied;
    }
    return CopyAll(images_, {januaries, names.end()});
}

bool Replacement::IsSame(const std::string& a, const std::string& b) const {
    const auto first = files_.Stamp(a);
    const auto second = files_.Stamp(b);
    if (!first || !second || first->Size != second->Size) {
        return false;
    }
    const auto bytes = files_.Read(a, kMostPictureBytes);
    const auto others = files_.Read(b, kMostPictureBytes);
    return bytes && others && bytes.Value() == others.Value();
}

bool Replacement::IsOriginal(const std::string& folder, const std::string& name) const {
    return IsSame(folder + name, folder + std::string(kOriginal) + name);
}

Status Replacement::PutAway(const std::string& folder, const std::string& name) {
    if (!files_.Stamp(folder + name) || IsOriginal(folder, name)) {
        return files_.Remove(folder + name);
    }
    return MoveAside(files_, now_, folder + name, kReplacedMark);
}

Result<std::string> Replacement::PutInPlace(const PictureChoice& choice) {
    const std::string month(EnglishMonthName(choice.Month));
    const std::string stem = choice.Day ? month + std::to_string(*choice.Day) : month;
    const std::string name = stem + ".jpg";
    const std::string target = images_ + name;
    const auto there = files_.Stamp(target);
    // The same inode of the same age and size is the same file, by whatever path.
    if (!there || files_.Stamp(choice.Path) != there) {
        const auto bytes = files_.Read(choice.Path, kMostPictureBytes);
        if (!bytes) {
            return bytes.Failure();
        }
        if (there && !IsOriginal(images_, name) && !IsSame(choice.Path, target)) {
            if (const Status kept = CopyAside(files_, now_, target, kReplacedMark); !kept) {
                return kept.Failure();
            }
        }
        if (const Status put = files_.Replace(target, bytes.Value()); !put) {
            return put.Failure();
        }
    }
    for (const std::string& other : Sorted(images_)) {
        if (other != name && IsPictureOf(other, stem)) {
            if (const Status away = PutAway(images_, other); !away) {
                return away.Failure();
            }
        }
    }
    if (const Status away = PutAway(speech_, month + ".txt"); !away) {
        return away.Failure();
    }
    return target;
}

} // namespace

Result<std::string> ReplacePicture(FileStore& files, const WallTime& now,
                                   const std::string& dataFolder, const PictureChoice& choice,
                                   const PictureCheck& check) {
    if (const Status picture = check(choice.Path); !picture) {
        return picture.Failure();
    }
    Replacement replacement(files, now, dataFolder);
    if (const Status safe = replacement.BackUp(); !safe) {
        return safe.Failure();
    }
    return replacement.PutInPlace(choice);
}

void EnterPicture(PictureTable& table, const FileStore& files, const std::string& dataFolder,
                  const Selection& today, const PictureChoice& choice, const std::string& path) {
    const auto month = static_cast<std::size_t>(choice.Month);
    if (!choice.Day) {
        table.MonthPicture[month] = path;
    } else if (choice.Month == today.TodayMonth && *choice.Day <= today.TodayDay) {
        table.MonthPicture[month] = ScanPictures(files, dataFolder, today).MonthPicture[month];
    }
    table.MonthSpeech[month].clear();
}

} // namespace kestrova
