// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ui/PictureBox.h"

#include "ui/Look.h"

#include <QImageReader>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPointer>
#include <QThreadPool>

#include <algorithm>

namespace kestrova {

namespace {

constexpr int kReloadPause = 200;     // milliseconds after the last resize
constexpr double kMostStretch = 1.12; // beyond that a picture that fills its area is cut instead

// Reads a picture no larger than it will be shown, which for photographs saves most of the work.
QImage ReadPicture(const QString& path, const QSize& area) {
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    const QSize whole = reader.size();
    if (whole.isValid()) {
        const QSize shown = whole.scaled(area, Qt::KeepAspectRatioByExpanding);
        if (shown.width() < whole.width()) {
            reader.setScaledSize(shown);
        }
    }
    QImage image = reader.read();
    return image.isNull() ? image : image.convertToFormat(QImage::Format_RGB32);
}

} // namespace

PictureBox::PictureBox(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setMinimumSize(240, 180);
    reload_.setSingleShot(true);
    connect(&reload_, &QTimer::timeout, this, [this] { Load(); });
}

void PictureBox::SetPicture(const QString& path) {
    if (path.isEmpty() || path == path_) {
        return;
    }
    path_ = path;
    // Before the window is laid out nobody knows how large the picture will be; and reading one
    // must not take the processor from the first sight of the month.
    if (painted_) {
        Load();
    }
}

void PictureBox::SetFit(PictureFit fit) {
    fit_ = fit;
    update();
}

void PictureBox::Load() {
    if (path_.isEmpty()) {
        return;
    }
    const quint64 number = ++wanted_;
    const QSize area = size() * devicePixelRatioF();
    QThreadPool::globalInstance()->start(
        [box = QPointer<PictureBox>(this), path = path_, area, number] {
            QImage image = ReadPicture(path, area);
            // Back on the window's thread; a box that has gone meanwhile is not called.
            QMetaObject::invokeMethod(qApp, [box, image = std::move(image), number] {
                if (box && box->wanted_ == number && !image.isNull()) {
                    box->image_ = image;
                    box->update();
                }
            });
        });
}

QRectF PictureBox::Target() const {
    const QRectF area(rect());
    if (fit_ == PictureFit::Fill || image_.isNull()) {
        return area;
    }
    const QSizeF fitted = QSizeF(image_.size()).scaled(area.size(), Qt::KeepAspectRatio);
    QRectF target(QPointF(), fitted);
    target.moveCenter(area.center());
    return target;
}

// The part of the picture that is shown: all of it, unless filling the area would distort it.
QRectF PictureBox::Source(const QRectF& target) const {
    QRectF source(image_.rect());
    if (target.isEmpty() || source.isEmpty()) {
        return source;
    }
    const double stretch = (target.width() / target.height()) / (source.width() / source.height());
    const QPointF centre = source.center();
    if (stretch > kMostStretch) {
        source.setHeight(source.height() * kMostStretch / stretch);
    } else if (stretch < 1 / kMostStretch) {
        source.setWidth(source.width() * stretch * kMostStretch);
    }
    source.moveCenter(centre);
    return source;
}

void PictureBox::paintEvent(QPaintEvent* /*event*/) {
    if (!painted_) {
        painted_ = true;
        reload_.start(0);
    }
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const QRectF target = Target();
    QPainterPath card;
    card.addRoundedRect(target, look::kRadius, look::kRadius);
    if (image_.isNull()) {
        painter.fillPath(card, look::Between(palette().color(QPalette::Window),
                                             palette().color(QPalette::WindowText), 0.08));
        return;
    }
    painter.setClipPath(card);
    painter.drawImage(target, image_, Source(target));
}

void PictureBox::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (painted_) {
        reload_.start(kReloadPause);
    }
}

void PictureBox::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && Clicked) {
        Clicked();
    }
}

void PictureBox::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && DoubleClicked) {
        DoubleClicked();
    }
}

} // namespace kestrova
