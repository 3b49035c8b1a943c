// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/ui/PictureBox.h"

#include "ui/Look.h"

#include <QFileInfo>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace kestrova {

namespace {

constexpr int kReloadPause = 200;     // milliseconds after the last resize
constexpr int kRetryPause = 1000;     // milliseconds, when too many discs do not answer
constexpr double kMostStretch = 1.12; // beyond that a picture that fills its area is cut instead

} // namespace

PictureBox::PictureBox(QWidget* parent)
    : QWidget(parent), threads_(*this, [this](const QString& path, const Result<QImage>& picture) {
          if (picture) {
              image_ = picture.Value();
              shownPath_ = path;
              update();
          }
      }) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setMinimumSize(240, 180);
    reload_.setSingleShot(true);
    connect(&reload_, &QTimer::timeout, this, [this] { Load(); });
}

PictureBox::Mark PictureBox::MarkOf(const QString& path) {
    const QFileInfo file(path);
    return {file.lastModified(), file.size()};
}

void PictureBox::SetPicture(const QString& path) {
    if (path.isEmpty()) {
        return;
    }
    const Mark mark = MarkOf(path);
    if (path == path_ && mark == mark_) {
        return;
    }
    path_ = path;
    mark_ = mark;
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
    if (!path_.isEmpty() && !threads_.Begin(path_, size() * devicePixelRatioF())) {
        reload_.start(kRetryPause);
    }
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
    // Also under a picture with holes in it.
    if (image_.isNull() || image_.hasAlphaChannel()) {
        painter.fillPath(card, look::Between(palette().color(QPalette::Window),
                                             palette().color(QPalette::WindowText), 0.08));
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
