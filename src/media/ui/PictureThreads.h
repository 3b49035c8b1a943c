// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Result.h"

#include <QImage>
#include <QString>

#include <functional>
#include <memory>

namespace kestrova {

// Reads pictures in threads of their own, for one who wants to see the newest only. A disc that
// does not answer keeps a thread for as long as it likes, but neither the pictures after that nor
// the end of the program.
class PictureThreads {
public:
    using Deliver = std::function<void(const QString& path, const Result<QImage>& picture)>;

    // `deliver` is called in the thread of `receiver`, never from within Begin, and not when that
    // one has gone, nor this.
    PictureThreads(QObject& receiver, Deliver deliver);
    ~PictureThreads();
    PictureThreads(const PictureThreads&) = delete;
    PictureThreads& operator=(const PictureThreads&) = delete;

    // Begins to read a picture for an area in pixels. One that is still being read is not wanted
    // any more. False when too many threads hang already, or none is to be had: to be tried again.
    bool Begin(const QString& path, const QSize& area);

private:
    struct Shared;

    std::shared_ptr<Shared> shared_; // with the threads, which may outlive this
};

} // namespace kestrova
