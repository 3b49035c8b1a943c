// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/QtSerialPort.h"

#include "platform/qt/QtText.h"

#include <QStringList>

#include <algorithm>

namespace kestrova {

namespace {

constexpr qint64 kMostUntaken = 65536; // bytes; a device that leaves more takes nothing at all
constexpr qint64 kReadAtOnce = 65536;
constexpr int kFarewell = 200; // milliseconds for what has been written last
constexpr int kPace = 20;      // milliseconds between two pieces of a stream
constexpr qint64 kLead = 200;  // milliseconds that a stream is ahead, for a program that is busy

// The parts of "9600,N,8,1".
bool Apply(QSerialPort& port, const QString& settings) {
    const QStringList parts = settings.split(QLatin1Char(','));
    if (parts.size() != 4) {
        return false;
    }
    bool speed = false;
    bool data = false;
    bool stop = false;
    const int bits = parts[0].toInt(&speed);
    const int dataBits = parts[2].toInt(&data);
    const int stopBits = parts[3].toInt(&stop);
    if (!speed || !data || !stop) {
        return false;
    }
    const QSerialPort::Parity parity = parts[1] == QLatin1String("E")   ? QSerialPort::EvenParity
                                       : parts[1] == QLatin1String("O") ? QSerialPort::OddParity
                                                                        : QSerialPort::NoParity;
    // A device that knows no parity, as a pseudo-terminal, goes on without.
    (void)port.setParity(parity);
    (void)port.setStopBits(static_cast<QSerialPort::StopBits>(stopBits));
    return port.setBaudRate(bits) && port.setDataBits(static_cast<QSerialPort::DataBits>(dataBits));
}

ErrorCode CodeOf(QSerialPort::SerialPortError error) {
    switch (error) {
    case QSerialPort::DeviceNotFoundError: return ErrorCode::NotFound;
    case QSerialPort::PermissionError: return ErrorCode::Busy;
    default: return ErrorCode::Failed;
    }
}

} // namespace

Status QtSerialPort::Open(int number, std::string_view settings) {
    if (IsOpen()) {
        return Done{};
    }
    const auto device = find_(number);
    if (!device) {
        return Error{ErrorCode::NotFound, "Com:" + std::to_string(number)};
    }
    if (!port_) {
        port_ = std::make_unique<QSerialPort>();
        port_->setReadBufferSize(kReadAtOnce); // whoever sends without end fills no memory
        QObject::connect(
            port_.get(), &QSerialPort::errorOccurred, port_.get(),
            [this](QSerialPort::SerialPortError error) { CloseWhenGone(error); },
            Qt::QueuedConnection);
        pace_.setInterval(kPace);
        pace_.setTimerType(Qt::PreciseTimer);
        QObject::connect(&pace_, &QTimer::timeout, port_.get(), [this] { SendDue(); });
    }
    port_->setPortName(ToQt(*device));
    const bool opened = port_->open(QIODevice::ReadWrite);
    if (opened && Apply(*port_, ToQt(settings))) {
        return Done{};
    }
    const Error error{opened ? ErrorCode::Failed : CodeOf(port_->error()),
                      FromQt(port_->errorString())};
    port_->close();
    return error;
}

// A device that has been unplugged stays open for the toolkit.
void QtSerialPort::CloseWhenGone(QSerialPort::SerialPortError error) {
    const bool gone =
        error == QSerialPort::ResourceError || error == QSerialPort::DeviceNotFoundError;
    if (gone && port_->isOpen()) {
        pace_.stop();
        port_->close();
    }
}

void QtSerialPort::Close() {
    pace_.stop();
    if (IsOpen()) {
        if (port_->bytesToWrite() > 0) {
            (void)port_->waitForBytesWritten(kFarewell); // what does not go out now is lost
        }
        port_->close();
    }
}

bool QtSerialPort::Write(std::string_view bytes) {
    if (!IsOpen()) {
        return false;
    }
    const auto size = static_cast<qint64>(bytes.size());
    if (port_->bytesToWrite() + size > kMostUntaken || port_->write(bytes.data(), size) != size) {
        pace_.stop();
        port_->close();
        return false;
    }
    return true;
}

void QtSerialPort::Stream(std::string bytes, int bytesPerSecond) {
    stream_ = std::move(bytes);
    streamed_ = 0;
    rate_ = std::max(bytesPerSecond, 1);
    pace_.stop();
    if (IsOpen() && !stream_.empty()) {
        since_.start();
        pace_.start();
        SendDue();
    }
}

void QtSerialPort::SendDue() {
    const auto due = static_cast<std::size_t>((since_.elapsed() + kLead) * rate_ / 1000);
    const std::size_t end = std::min(due, stream_.size());
    if (!IsOpen() || streamed_ == stream_.size()) {
        pace_.stop();
        return;
    }
    if (end > streamed_ && Write(std::string_view(stream_).substr(streamed_, end - streamed_))) {
        streamed_ = end;
    }
}

std::size_t QtSerialPort::Unsent() const {
    if (!IsOpen()) {
        return 0;
    }
    return stream_.size() - streamed_ + static_cast<std::size_t>(port_->bytesToWrite());
}

std::string QtSerialPort::ReadAll() {
    return IsOpen() ? port_->readAll().toStdString() : std::string();
}

} // namespace kestrova
