// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Result.h"

#include <QElapsedTimer>
#include <QFile>

#include <cstddef>
#include <memory>
#include <stop_token>

namespace kestrova {

// A file that is read by a decoder, which knows nothing of pipes, folders and discs that answer
// slowly. It reads until it is told to stop, or has taken its time: then every read fails, and the
// decoder comes to its end.
class PlainFile : public QIODevice {
public:
    static constexpr qint64 kMostTime = 120'000; // milliseconds

    // NotFound, Busy (not permitted), Damaged (a folder or a pipe in the file's place), TooLarge
    // (more than `limit` bytes) or Failed. A pipe is not waited for.
    static Result<std::unique_ptr<PlainFile>> Open(const QString& path, std::size_t limit,
                                                   std::stop_token stop);

    // Whether reading was cut short.
    [[nodiscard]] bool Stopped() const;

    [[nodiscard]] qint64 size() const override { return file_.size(); }
    bool seek(qint64 position) override;

protected:
    qint64 readData(char* data, qint64 most) override;
    qint64 writeData(const char* /*data*/, qint64 /*size*/) override { return -1; }

private:
    explicit PlainFile(std::stop_token stop) : stop_(std::move(stop)) { time_.start(); }

    QFile file_;
    std::stop_token stop_;
    QElapsedTimer time_;
};

} // namespace kestrova
