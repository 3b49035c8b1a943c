// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/SerialPort.h"

#include <functional>
#include <utility>
#include <vector>

namespace kestrova {

// A port on which a test plays the modem: it answers each command at once.
class FakeSerialPort : public SerialPort {
public:
    std::function<std::string(const std::string& command)> Answer;
    std::vector<std::string> Sent;   // the commands, without their ends
    std::vector<std::string> Opened; // port number and settings
    std::string Streamed;
    std::string Incoming;
    bool Exists = true;
    bool Taking = true; // the device takes what is streamed

    void Unplug() { open_ = false; }

    Status Open(int number, std::string_view settings) override {
        if (open_) {
            return Done{};
        }
        Opened.push_back(std::to_string(number) + " " + std::string(settings));
        if (!Exists) {
            return Error{ErrorCode::NotFound, "no port"};
        }
        open_ = true;
        return Done{};
    }

    void Close() override { open_ = false; }
    [[nodiscard]] bool IsOpen() const override { return open_; }

    bool Write(std::string_view bytes) override {
        if (!open_) {
            return false;
        }
        std::string command(bytes);
        if (command.ends_with('\r')) {
            command.pop_back();
        }
        Sent.push_back(command);
        Incoming += Answer ? Answer(command) : "";
        return true;
    }

    void Stream(std::string bytes, int /*bytesPerSecond*/) override {
        Streamed += bytes;
        unsent_ = Taking ? 0 : bytes.size();
    }

    [[nodiscard]] std::size_t Unsent() const override { return open_ ? unsent_ : 0; }

    [[nodiscard]] std::string ReadAll() override {
        return open_ ? std::exchange(Incoming, std::string()) : std::string();
    }

private:
    bool open_ = false;
    std::size_t unsent_ = 0;
};

} // namespace kestrova
