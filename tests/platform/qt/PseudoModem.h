// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <chrono>
#include <functional>
#include <mutex>
#include <poll.h>
#include <pty.h>
#include <stdexcept>
#include <string>
#include <termios.h>
#include <thread>
#include <unistd.h>
#include <utility>
#include <vector>

namespace kestrova {

// A modem at the far end of a pseudo-terminal, in a thread of its own. It echoes each command and
// then answers as a test has said. In between it is sound, from "CONNECT" to DLE ETX, which it
// swallows. A vertical tab in an answer is a moment in which nothing is sent.
class PseudoModem {
public:
    using Answer = std::function<std::string(const std::string& command)>;

    explicit PseudoModem(Answer answer) : answer_(std::move(answer)) {
        char name[128] = {};
        int slave = -1;
        termios raw{};
        cfmakeraw(&raw);
        if (openpty(&master_, &slave, name, &raw, nullptr) != 0) {
            throw std::runtime_error("no pseudo-terminal");
        }
        path_ = name;
        slave_ = slave; // held open, so that the far end outlives a port that is closed
        thread_ = std::thread([this] { Run(); });
    }

    ~PseudoModem() {
        stop_ = true;
        thread_.join();
        Hide();
        close(slave_);
    }
    PseudoModem(const PseudoModem&) = delete;
    PseudoModem& operator=(const PseudoModem&) = delete;

    [[nodiscard]] const std::string& Path() const { return path_; }

    [[nodiscard]] std::vector<std::string> Commands() {
        const std::lock_guard lock(mutex_);
        return commands_;
    }
    [[nodiscard]] std::size_t SoundBytes() const { return sound_; }

    // To be called from an answer: the cable is pulled; nothing is answered any more.
    void Unplug() { unplugged_ = true; }
    // Nothing is read any more.
    void StopReading() { reading_ = false; }
    // Bytes come without end.
    void Flood() { flood_ = true; }

private:
    void Hide() {
        if (master_ >= 0) {
            close(master_);
            master_ = -1;
        }
    }

    void Run() {
        while (!stop_ && master_ >= 0) {
            pollfd ready{master_, POLLIN, 0};
            if (flood_) {
                Send(std::string(1000, 'x'));
            }
            if (!reading_ || poll(&ready, 1, flood_ ? 1 : 10) <= 0) {
                if (!reading_) {
                    std::this_thread::sleep_for(std::chrono::milliseconds(5));
                }
                continue;
            }
            char bytes[4096];
            const ssize_t count = read(master_, bytes, sizeof bytes);
            for (ssize_t i = 0; i < count && master_ >= 0; ++i) {
                Take(bytes[i]);
            }
        }
    }

    void Take(char c) {
        if (transmitting_) {
            ++sound_;
            if (last_ == '\x10' && c == '\x03') {
                transmitting_ = false;
                Send("\r\nVCON\r\n");
            }
            last_ = last_ == '\x10' ? '\0' : c;
        } else if (c == '\r') {
            Answered(std::exchange(line_, std::string()));
        } else {
            line_ += c;
        }
    }

    void Answered(const std::string& command) {
        {
            const std::lock_guard lock(mutex_);
            commands_.push_back(command);
        }
        const std::string text = answer_(command);
        if (unplugged_) {
            Hide();
            return;
        }
        transmitting_ = text.find("CONNECT") != std::string::npos;
        Send(command + "\r" + text);
    }

    void Send(const std::string& text) const {
        const std::size_t pause = text.find('\v');
        SendBytes(text.substr(0, pause));
        if (pause != std::string::npos) {
            std::this_thread::sleep_for(std::chrono::milliseconds(200));
            SendBytes(text.substr(pause + 1));
        }
    }

    void SendBytes(const std::string& text) const {
        pollfd ready{master_, POLLOUT, 0};
        if (poll(&ready, 1, 100) > 0) {
            (void)!write(master_, text.data(), text.size());
        }
    }

    Answer answer_;
    std::string path_;
    int master_ = -1;
    int slave_ = -1;
    std::mutex mutex_;
    std::vector<std::string> commands_;
    std::string line_;
    char last_ = '\0';
    bool transmitting_ = false;
    bool unplugged_ = false;
    bool flood_ = false;
    bool reading_ = true;
    std::atomic<std::size_t> sound_ = 0;
    std::atomic<bool> stop_ = false;
    std::thread thread_;
};

} // namespace kestrova
