// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Result.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace kestrova {

// A serial port, on which a modem listens. Nothing here waits: what is sent goes out, and what
// comes in is gathered, while events are handled.
class SerialPort {
public:
    virtual ~SerialPort() = default;

    // Opens port 1 to 4 with settings like "9600,N,8,1": bits a second, parity, data bits and stop
    // bits. A port that is open stays as it is. NotFound: there is no such port; Busy: another
    // program has it, or we are not permitted; Failed.
    virtual Status Open(int number, std::string_view settings) = 0;

    // Gives what has been written a moment to go out, and closes.
    virtual void Close() = 0;

    // False also once the device has been unplugged.
    [[nodiscard]] virtual bool IsOpen() const = 0;

    // Sends bytes as fast as the device takes them. False when the port is closed, and when the
    // device has left so much untaken that the port has been given up.
    virtual bool Write(std::string_view bytes) = 0;

    // Sends bytes no faster than so many a second, in the place of whatever is left of those given
    // before. No bytes: the rest is dropped.
    virtual void Stream(std::string bytes, int bytesPerSecond) = 0;

    // How many bytes of the stream have not gone out yet; none when the port is closed.
    [[nodiscard]] virtual std::size_t Unsent() const = 0;

    // What has come in since the last call, or as much of it as is given at once.
    [[nodiscard]] virtual std::string ReadAll() = 0;
};

} // namespace kestrova
