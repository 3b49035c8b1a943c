// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/ui/PictureThreads.h"

#include "media/ui/PictureReader.h"
#include "platform/qt/QtText.h"

#include <QObject>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <stop_token>
#include <system_error>
#include <thread>

namespace kestrova {

namespace {

constexpr int kMostThreads = 4;

// A decoder that is told to stop does so within a moment; who does not, hangs on a disc.
constexpr std::chrono::milliseconds kPatience{1000};

// In the form in which it is painted quickest, for that happens in the window's thread.
Result<QImage> ReadForPainting(const QString& path, const QSize& area,
                               const std::stop_token& stop) {
    auto picture = ReadPicture(path, area, stop);
    if (picture) {
        QImage& image = picture.Value();
        const auto format =
            image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
        image = std::move(image).convertToFormat(format);
        if (image.isNull()) {
            return Error{ErrorCode::Failed, FromQt(path)};
        }
    }
    return picture;
}

} // namespace

struct PictureThreads::Shared {
    std::mutex Guard;
    std::condition_variable Ended;
    QObject* Receiver = nullptr; // null when nobody wants a picture any more
    Deliver Receive;
    quint64 Wanted = 0; // number of the newest reading; what others bring is too late
    int Running = 0;
    std::stop_source Stop;

    // Posting an event to an object that lives is safe in any thread; the lock keeps it alive.
    void Bring(const std::shared_ptr<Shared>& self, quint64 number, const QString& path,
               Result<QImage> picture) {
        const std::lock_guard lock(Guard);
        if (Receiver != nullptr && Wanted == number) {
            QMetaObject::invokeMethod(
                Receiver,
                [self, number, path, picture = std::move(picture)] {
                    self->HandOver(number, path, picture);
                },
                Qt::QueuedConnection);
        }
        --Running;
        Ended.notify_all();
    }

    void HandOver(quint64 number, const QString& path, const Result<QImage>& picture) {
        Deliver receive;
        {
            const std::lock_guard lock(Guard);
            if (Receiver == nullptr || Wanted != number) {
                return;
            }
            receive = Receive;
        }
        receive(path, picture);
    }
};

PictureThreads::PictureThreads(QObject& receiver, Deliver deliver)
    : shared_(std::make_shared<Shared>()) {
    shared_->Receiver = &receiver;
    shared_->Receive = std::move(deliver);
}

PictureThreads::~PictureThreads() {
    std::unique_lock lock(shared_->Guard);
    shared_->Receiver = nullptr;
    shared_->Stop.request_stop();
    shared_->Ended.wait_for(lock, kPatience, [this] { return shared_->Running == 0; });
}

bool PictureThreads::Begin(const QString& path, const QSize& area) {
    const std::lock_guard lock(shared_->Guard);
    shared_->Stop.request_stop();
    const quint64 number = ++shared_->Wanted;
    if (shared_->Running == kMostThreads) {
        return false;
    }
    shared_->Stop = std::stop_source();
    try {
        std::thread([shared = shared_, stop = shared_->Stop.get_token(), path, area, number] {
            shared->Bring(shared, number, path, ReadForPainting(path, area, stop));
        }).detach();
    } catch (const std::system_error&) {
        return false; // the machine has no room for another thread
    }
    ++shared_->Running;
    return true;
}

} // namespace kestrova
