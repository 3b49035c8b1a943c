// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/SerialPort.h"

#include <QElapsedTimer>
#include <QSerialPort>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>

namespace kestrova {

class QtSerialPort : public SerialPort {
public:
    // Gives the path of the device behind a port number; nothing when there is none.
    using FindDevice = std::function<std::optional<std::string>(int number)>;

    explicit QtSerialPort(FindDevice find) : find_(std::move(find)) {}
    ~QtSerialPort() override { Close(); }
    QtSerialPort(const QtSerialPort&) = delete;
    QtSerialPort& operator=(const QtSerialPort&) = delete;

    Status Open(int number, std::string_view settings) override;
    void Close() override;
    [[nodiscard]] bool IsOpen() const override { return port_ != nullptr && port_->isOpen(); }
    bool Write(std::string_view bytes) override;
    void Stream(std::string bytes, int bytesPerSecond) override;
    [[nodiscard]] std::size_t Unsent() const override;
    [[nodiscard]] std::string ReadAll() override;

private:
    void SendDue();
    void CloseWhenGone(QSerialPort::SerialPortError error);

    FindDevice find_;
    std::unique_ptr<QSerialPort> port_; // made at the first opening
    QTimer pace_;
    QElapsedTimer since_; // the stream began
    std::string stream_;
    std::size_t streamed_ = 0; // bytes of the stream that have been handed to the device
    qint64 rate_ = 1;          // bytes a second
};

} // namespace kestrova
