// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/posix/ComPorts.h"

#include "platform/posix/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace kestrova {
namespace {

using testing::ElementsAre;

TEST(ComPortsTest, DevicesComeByKindAndNumberAndOnlyRealOnes) {
    const TemporaryFolder folder;
    const std::string devices = folder.Path() + "dev/";
    const std::string system = folder.Path() + "sys/";
    std::filesystem::create_directory(devices);
    for (const char* const name :
         {"ttyS10", "ttyS0", "ttyS1", "ttyUSB0", "ttyACM10", "ttyACM2", "ttyACMx", "tty1"}) {
        std::ofstream(devices + name).put('x');
    }
    for (const auto& [port, type] :
         {std::pair("ttyS0", "0\n"), std::pair("ttyS1", "4\n"), std::pair("ttyS10", "4\n")}) {
        std::filesystem::create_directories(system + port);
        std::ofstream(system + port + "/type") << type;
    }
    const auto found = SerialDevices(devices, system);
    EXPECT_THAT(found, ElementsAre(devices + "ttyACM2", devices + "ttyACM10", devices + "ttyUSB0",
                                   devices + "ttyS1", devices + "ttyS10"));
    EXPECT_TRUE(SerialDevices(folder.Path() + "none/", system).empty());
}

TEST(ComPortsTest, ALinkInTheProgramFolderComesFirst) {
    const TemporaryFolder folder;
    std::filesystem::create_symlink("/nowhere/at/all", folder.Path() + "com2");
    const std::vector<std::string> devices = {"/dev/a", "/dev/b", "/dev/c"};
    EXPECT_EQ(ComPort(1, folder.Path(), devices), "/dev/a");
    EXPECT_EQ(ComPort(2, folder.Path(), devices), folder.Path() + "com2");
    EXPECT_EQ(ComPort(3, folder.Path(), devices), "/dev/c");
    for (const int none : {-1, 0, 4, 5}) {
        EXPECT_EQ(ComPort(none, folder.Path(), devices), std::nullopt);
    }
}

} // namespace
} // namespace kestrova
