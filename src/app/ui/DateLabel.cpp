// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ui/DateLabel.h"

#include "ui/Look.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace kestrova {

namespace {

constexpr double kFontOfHeight = 0.40; // of the cell, for the number
constexpr double kFontOfWidth = 0.36;
constexpr int kSmallestFont = 12; // pixels
constexpr int kLargestFont = 40;
constexpr QSize kRoomForMessage{84, 56};
constexpr double kMessageFont = 0.55; // of the number's

} // namespace

DateLabel::DateLabel(QWidget* parent) : QLabel(parent) {
    setAlignment(Qt::AlignCenter);
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    setMinimumSize(28, 24);
}

void DateLabel::SetLook(const Look& look) {
    look_ = look;
    QPalette colours = palette();
    colours.setColor(QPalette::WindowText, look.Text);
    setPalette(colours);
    update();
}

void DateLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const int fontSize =
        std::clamp(static_cast<int>(std::min(height() * kFontOfHeight, width() * kFontOfWidth)),
                   kSmallestFont, kLargestFont);
    const QPointF centre = QRectF(rect()).center();
    const double radius = std::min({fontSize * 1.05, width() / 2.0 - 1, height() / 2.0 - 1});
    const QRectF disc(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius);

    if (underMouse()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(look::Faded(look_.Text, 0.10));
        painter.drawEllipse(disc);
    }
    if (look_.Today) {
        painter.setPen(QPen(look_.Text, std::max(1.5, fontSize / 12.0)));
        painter.setBrush(look::Faded(look_.Text, 0.12));
        painter.drawEllipse(disc.adjusted(1, 1, -1, -1));
    }
    if (look_.Selected) {
        painter.setPen(QPen(look::Accent(palette()), 2));
        painter.setBrush(Qt::NoBrush);
        const double corner = 6;
        QRectF frame = QRectF(rect()).adjusted(3, 2, -3, -2);
        frame.setHeight(std::min(frame.height(), fontSize * 3.2));
        frame.moveCenter(centre);
        painter.drawRoundedRect(frame, corner, corner);
    }
    QFont number = font();
    number.setPixelSize(fontSize);
    number.setBold(look_.Today || !look_.Mark.isEmpty());
    painter.setFont(number);
    painter.setPen(look_.Text);
    painter.drawText(rect(), Qt::AlignCenter, text());
    if (!look_.Mark.isEmpty()) {
        PaintMark(painter, fontSize);
    }
}

void DateLabel::PaintMark(QPainter& painter, int fontSize) const {
    const QPointF centre = QRectF(rect()).center();
    if (width() < kRoomForMessage.width() || height() < kRoomForMessage.height()) {
        const double dot = std::max(2.0, fontSize / 9.0);
        painter.setPen(Qt::NoPen);
        painter.setBrush(look_.Text);
        painter.drawEllipse(QPointF(centre.x(), centre.y() + fontSize * 0.72), dot, dot);
        return;
    }
    QFont message = font();
    message.setPixelSize(std::max(kSmallestFont, static_cast<int>(fontSize * kMessageFont)));
    painter.setFont(message);
    const QFontMetrics metrics(message);
    const QRect line(4, static_cast<int>(centre.y() + fontSize * 1.05), width() - 8,
                     metrics.height());
    painter.drawText(line, Qt::AlignCenter,
                     metrics.elidedText(look_.Mark, Qt::ElideRight, line.width()));
}

void DateLabel::enterEvent(QEnterEvent* event) {
    QLabel::enterEvent(event);
    update();
}

void DateLabel::leaveEvent(QEvent* event) {
    QLabel::leaveEvent(event);
    update();
}

void DateLabel::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && Clicked) {
        Clicked();
    }
}

void DateLabel::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && DoubleClicked) {
        DoubleClicked();
    }
}

} // namespace kestrova
