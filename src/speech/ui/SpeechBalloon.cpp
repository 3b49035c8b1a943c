// SPDX-License-Identifier: GPL-3.0-or-later
#include "speech/ui/SpeechBalloon.h"

#include "speech/ui/CharacterFace.h"
#include "ui/Look.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace kestrova {

namespace {

constexpr int kTail = 18;      // how far it stands out, in pixels
constexpr int kTailRoot = 16;  // how broad it begins
constexpr int kPadding = 14;   // around the words
constexpr int kWidest = 270;   // of the words
constexpr int kNarrowest = 60; // of the words
constexpr double kRim = 1.5;   // of the line around
constexpr double kRimStrength = 0.55;
constexpr double kRadius = 11;

} // namespace

SpeechBalloon::SpeechBalloon(QWidget* figure)
    : QWidget(figure, Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus |
                          Qt::WindowTransparentForInput) {
    setObjectName(QStringLiteral("Balloon"));
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFocusPolicy(Qt::NoFocus);
}

void SpeechBalloon::SetWords(const QString& words) {
    text_.setText(words.simplified());
    setAccessibleName(text_.text());
    topLine_ = 0;
    LayOut();
}

void SpeechBalloon::LayOut() {
    QFont font = this->font();
    font.setPointSizeF(font.pointSizeF() * 1.1);
    text_.setFont(font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    text_.setTextOption(option);
    // Few words make a small balloon, and many are set in even lines.
    const auto setIn = [this](qreal width) {
        qreal height = 0;
        text_.beginLayout();
        for (QTextLine line = text_.createLine(); line.isValid(); line = text_.createLine()) {
            line.setLineWidth(width);
            line.setPosition({0, height});
            height += std::ceil(line.height());
        }
        text_.endLayout();
    };
    setIn(kWidest);
    const qreal used =
        std::clamp(std::ceil(text_.maximumWidth() / std::max(1, text_.lineCount())) * 1.15,
                   std::ceil(text_.minimumWidth()), qreal{kWidest});
    const int lines = text_.lineCount();
    setIn(std::max<qreal>(used, kNarrowest));
    if (text_.lineCount() > lines) {
        setIn(kWidest);
    }
    qreal widest = kNarrowest;
    for (int i = 0; i < text_.lineCount(); ++i) {
        widest = std::max(widest, text_.lineAt(i).naturalTextWidth());
    }
    const int last = std::min(text_.lineCount(), kMostLines) - 1;
    const QTextLine bottom = text_.lineAt(std::max(last, 0));
    const qreal height = last < 0 ? 0 : bottom.y() + std::ceil(bottom.height());
    size_ = QSizeF(std::ceil(widest) + 2 * kPadding, height + 2 * kPadding).toSize();
}

void SpeechBalloon::ShowBeside(const QRect& screen, const QRect& figure) {
    place_ = PlaceBalloon(screen, figure, size_, kTail);
    setGeometry(place_.Frame);
    setMask(SeenRegion(Drawn()));
    show();
    raise();
    update();
}

// The line that is being spoken is in the middle, as far as there are lines to move on.
void SpeechBalloon::SetProgress(double share) {
    const int spoken = static_cast<int>(share * text_.lineCount());
    const int top =
        std::clamp(spoken - kMostLines / 2, 0, std::max(0, text_.lineCount() - kMostLines));
    if (std::exchange(topLine_, top) != top) {
        update();
    }
}

QRectF SpeechBalloon::Body() const {
    QRectF body(rect());
    switch (place_.Tail) {
    case TailSide::Left: body.setLeft(kTail); break;
    case TailSide::Right: body.setRight(body.right() - kTail); break;
    case TailSide::Top: body.setTop(kTail); break;
    case TailSide::Bottom: body.setBottom(body.bottom() - kTail); break;
    }
    return body.adjusted(kRim, kRim, -kRim, -kRim);
}

QPainterPath SpeechBalloon::Outline() const {
    const QRectF body = Body();
    const bool upright = place_.Tail == TailSide::Left || place_.Tail == TailSide::Right;
    const qreal begin = (upright ? body.top() : body.left()) + kRadius + kTailRoot / 2.0;
    const qreal end = (upright ? body.bottom() : body.right()) - kRadius - kTailRoot / 2.0;
    const qreal root = begin < end ? std::clamp<qreal>(place_.TailAt, begin, end)
                                   : (upright ? body.center().y() : body.center().x());
    const qreal tip = std::clamp<qreal>(place_.TailAt, root - kTail, root + kTail);
    // The tail from its root inside the body to the tip, as if the body were to its right.
    QPainterPath tail;
    const qreal half = kTailRoot / 2.0;
    tail.moveTo(half, root - half);
    tail.lineTo(0, root - half);
    tail.quadTo(-kTail / 3.0, root - half / 2, -kTail, tip);
    tail.quadTo(-kTail / 2.0, root + half / 2, 0, root + half);
    tail.lineTo(half, root + half);
    tail.closeSubpath();
    QTransform turn;
    switch (place_.Tail) {
    case TailSide::Left: turn = QTransform(1, 0, 0, 1, body.left(), 0); break;
    case TailSide::Right: turn = QTransform(-1, 0, 0, 1, body.right(), 0); break;
    case TailSide::Top: turn = QTransform(0, 1, 1, 0, 0, body.top()); break;
    case TailSide::Bottom: turn = QTransform(0, -1, 1, 0, 0, body.bottom()); break;
    }
    QPainterPath outline;
    outline.addRoundedRect(body, kRadius, kRadius);
    return outline.united(turn.map(tail));
}

QImage SpeechBalloon::Drawn() const {
    const qreal scale = devicePixelRatioF();
    QImage image((QSizeF(size()) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor ground = palette().color(QPalette::Active, QPalette::Base);
    const QColor ink = palette().color(QPalette::Active, QPalette::Text);
    painter.setPen(QPen(look::Between(ground, ink, kRimStrength), kRim));
    painter.setBrush(ground);
    painter.drawPath(Outline());
    painter.setPen(ink);
    const QRectF words =
        Body().adjusted(kPadding - kRim, kPadding - kRim, kRim - kPadding, kRim - kPadding);
    painter.setClipRect(words.adjusted(-2, 0, 2, 0));
    const qreal top = topLine_ < text_.lineCount() ? text_.lineAt(topLine_).y() : 0;
    text_.draw(&painter, words.topLeft() - QPointF(0, top));
    return image;
}

void SpeechBalloon::paintEvent(QPaintEvent* /*event*/) {
    QPainter(this).drawImage(0, 0, Drawn());
}

} // namespace kestrova
