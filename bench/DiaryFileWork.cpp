// SPDX-License-Identifier: GPL-3.0-or-later
// Loading and saving a full diary, against the least that a disc and a loop over bytes take.
#include "BoundedWork.h"
#include "FullDiary.h"
#include "ScratchFolder.h"

#include "diary/DiaryFiles.h"
#include "platform/posix/PosixFileStore.h"

#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kestrova::bench {

namespace {

class StoppedClock : public Clock {
public:
    [[nodiscard]] WallTime Now() const override { return {}; }
};

// A diary folder with a full diary in it.
struct DiaryOnDisc {
    ScratchFolder Folder;
    PosixFileStore Discs;
    StoppedClock Time;
    DiaryFiles Files{Discs, Time};
    DiaryTable Table = FullDiary(MsgDefaults());
    std::string Bytes = WriteDiary(Table);

    DiaryOnDisc() {
        (void)Discs.MakeFolder(NoteFolder(Discs, Folder.Path()));
        (void)Discs.Replace(DiaryPath(Discs, Folder.Path()), Bytes);
    }
};

void Load(benchmark::State& state) {
    DiaryOnDisc disc;
    for ([[maybe_unused]] auto _ : state) {
        const auto opened = disc.Files.Open(disc.Folder.Path(), LockKind::Shared);
        const auto loaded = disc.Files.Read(disc.Folder.Path());
        if (!opened || !loaded) {
            state.SkipWithError("the diary cannot be loaded");
            return;
        }
        benchmark::DoNotOptimize(&loaded.Value().Table);
    }
}

// Reads the bytes whole and cuts them into lines, which outlive them as the diary's texts do.
std::size_t ReadAndCut(const char* path, std::string& bytes, std::vector<std::string>& lines) {
    const int file = ::open(path, O_RDONLY | O_CLOEXEC);
    struct stat info {};
    if (file < 0 || ::fstat(file, &info) != 0) {
        return 0;
    }
    bytes.resize(static_cast<std::size_t>(info.st_size));
    const ssize_t got = ::read(file, bytes.data(), bytes.size());
    ::close(file);
    if (got != info.st_size) {
        return 0;
    }
    const char* at = bytes.data();
    const char* const end = at + bytes.size();
    while (at < end) {
        const auto* lineEnd =
            static_cast<const char*>(std::memchr(at, '\n', static_cast<std::size_t>(end - at)));
        if (lineEnd == nullptr) {
            lineEnd = end;
        }
        lines.emplace_back(at, static_cast<std::size_t>(lineEnd - at));
        at = lineEnd + 1;
    }
    return lines.size();
}

void LoadLimit(benchmark::State& state) {
    const DiaryOnDisc disc;
    const std::string path = DiaryPath(disc.Discs, disc.Folder.Path());
    for ([[maybe_unused]] auto _ : state) {
        std::string bytes;
        std::vector<std::string> lines;
        if (ReadAndCut(path.c_str(), bytes, lines) != 91'520) {
            state.SkipWithError("the file has not the lines of a full diary");
            return;
        }
        benchmark::DoNotOptimize(lines.data());
    }
}

void Save(benchmark::State& state) {
    DiaryOnDisc disc;
    const auto opened = disc.Files.Open(disc.Folder.Path(), LockKind::Exclusive);
    for ([[maybe_unused]] auto _ : state) {
        if (!opened ||
            !disc.Files.Write(disc.Folder.Path(), disc.Table, NotePlan(), std::nullopt)) {
            state.SkipWithError("the diary cannot be saved");
            return;
        }
    }
}

bool WriteSyncRename(const std::string& path, std::string_view bytes) {
    const std::string temporary = path + ".new";
    const int file = ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    if (file < 0) {
        return false;
    }
    const bool written =
        ::write(file, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()) &&
        ::fsync(file) == 0;
    return ::close(file) == 0 && written && ::rename(temporary.c_str(), path.c_str()) == 0;
}

void SaveLimit(benchmark::State& state) {
    const DiaryOnDisc disc;
    const std::string path = DiaryPath(disc.Discs, disc.Folder.Path());
    for ([[maybe_unused]] auto _ : state) {
        if (!WriteSyncRename(path, disc.Bytes)) {
            state.SkipWithError("the bytes cannot be written");
            return;
        }
    }
}

const AtMost kLoad = AtMost::TimesTheLimit(3, "load a full diary", Load, LoadLimit);
const AtMost kSave = AtMost::TimesTheLimit(1.5, "save a full diary", Save, SaveLimit);

} // namespace

} // namespace kestrova::bench
