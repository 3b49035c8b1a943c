// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/ui/VideoView.h"

#include <QMouseEvent>
#include <QPainter>

namespace kestrova {

VideoView::VideoView(QWidget* parent, std::function<bool(const PixelRows&)> render)
    : QWidget(parent), render_(std::move(render)) {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void VideoView::ShowFrame() {
    fresh_ = true;
    update();
}

void VideoView::paintEvent(QPaintEvent* /*event*/) {
    const QSize size = this->size() * devicePixelRatioF();
    if (size != frame_.size()) {
        frame_ = QImage(size, QImage::Format_RGB32);
        frame_.fill(Qt::black);
        fresh_ = true;
    }
    if (fresh_) {
        const PixelRows rows{reinterpret_cast<std::byte*>(frame_.bits()), size.width(),
                             size.height(), frame_.bytesPerLine()};
        fresh_ = !render_(rows);
    }
    // One pixel to one, so that nothing is scaled twice.
    frame_.setDevicePixelRatio(devicePixelRatioF());
    QPainter(this).drawImage(0, 0, frame_);
}

// A click on a film is no click on the picture below.
void VideoView::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
}

void VideoView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && DoubleClicked) {
        DoubleClicked();
    }
}

} // namespace kestrova
