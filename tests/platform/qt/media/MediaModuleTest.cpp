// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/MediaModule.h"
#include "platform/posix/CdDrive.h"
#include "platform/qt/media/MadeFiles.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <dlfcn.h>

namespace kestrova {
namespace {

bool IsLoaded(const char* library) {
    void* const handle = ::dlopen(library, RTLD_NOLOAD | RTLD_LAZY);
    if (handle != nullptr) {
        ::dlclose(handle);
    }
    return handle != nullptr;
}

// The module as if it had been built with a library that is not there.
std::string AskingForAnother(std::string module) {
    const std::string asked = "libmpv.so.2";
    const std::string other = "libmpv.so.7";
    for (auto at = module.find(asked); at != std::string::npos; at = module.find(asked, at)) {
        module.replace(at, other.size(), other);
    }
    return module;
}

TEST(MediaModuleTest, TheLibrariesAreLoadedAtTheFirstNeedOnly) {
    const auto areLoaded = [] { return IsLoaded("libmpv.so.2") || IsLoaded("libcdio.so.19"); };
    const bool before = areLoaded(); // by another test
    MediaModule module(KESTROVA_MEDIA, "/of/the/user.cue");
    EXPECT_TRUE(module.IsInstalled());
    EXPECT_EQ(module.CdDevice(), "/of/the/user.cue");
    EXPECT_EQ(areLoaded(), before);
    EXPECT_NE(module.MakePlayer(MediaKind::Sound, {}), nullptr);
    EXPECT_TRUE(IsLoaded("libmpv.so.2"));
    EXPECT_EQ(module.Trouble(), "");
}

TEST(MediaModuleTest, WithoutTheModuleOrItsLibrariesThereIsNothingButWords) {
    const QTemporaryDir folder;
    const std::string path = folder.path().toStdString();
    WriteBytes(path + "/other.so", "no module");
    WriteBytes(path + "/needy.so", AskingForAnother(ContentOf(KESTROVA_MEDIA)));
    for (const char* const name : {"/none.so", "/other.so", "/needy.so"}) {
        SCOPED_TRACE(name);
        MediaModule module(path + name);
        EXPECT_FALSE(module.IsInstalled());
        EXPECT_FALSE(module.HasSound());
        EXPECT_EQ(module.MakePlayer(MediaKind::Video, {}), nullptr);
        EXPECT_EQ(module.MakeCd("/dev/sr0", {}), nullptr);
        EXPECT_FALSE(module.IsInstalled());
        EXPECT_NE(module.Trouble(), "");
    }
}

TEST(CdDriveTest, TheDriveIsTheUsualOneOrElseTheFirst) {
    const QTemporaryDir folder;
    const std::string path = folder.path().toStdString();
    EXPECT_EQ(FindCdDrive(path), "");
    EXPECT_EQ(FindCdDrive(path + "/none"), "");
    for (const char* const name : {"/srx", "/sr", "/sr10", "/sr2", "/src2"}) {
        WriteBytes(path + name, "");
    }
    EXPECT_EQ(FindCdDrive(path), path + "/sr2");
    WriteBytes(path + "/cdrom", "");
    EXPECT_EQ(FindCdDrive(path), path + "/cdrom");
}

} // namespace
} // namespace kestrova
