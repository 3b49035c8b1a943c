// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/ui/PageView.h"

#include "ui/Look.h"
#include "ui/Twips.h"

#include <QEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace kestrova {

namespace {

constexpr double kWheelZoom = 1.15; // for one notch
constexpr double kKeyZoom = 1.25;
constexpr double kWheelNotch = 120;
constexpr int kShadow = 20; // pixels
constexpr int kShadowDrop = 5;
constexpr double kShadowStrength = 0.009; // of each of its layers

// A desk that is darker than the window around it, in a light look and in a dark one.
QColor DeskColour(const QPalette& palette) {
    const QColor window = palette.color(QPalette::Active, QPalette::Window);
    const bool dark = window.lightnessF() < 0.5F;
    return look::Between(window, Qt::black, dark ? 0.32 : 0.16);
}

} // namespace

PageView::PageView(LayoutEditor& editor, PageScene& scene, QWidget* parent)
    : QGraphicsView(&scene, parent), editor_(editor), page_(scene) {
    setObjectName(QStringLiteral("Picture1"));
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff); // the window has its own, in twips
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                   QPainter::SmoothPixmapTransform);
    setViewportUpdateMode(MinimalViewportUpdate);
    setCacheMode(CacheBackground);
    setTransformationAnchor(AnchorViewCenter);
    setResizeAnchor(AnchorViewCenter);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
}

double PageView::Scale() const {
    return zoom_ / Twips(1);
}

void PageView::Apply(double zoom) {
    zoom_ = std::clamp(zoom, kLeastZoom, kMostZoom);
    setTransform(QTransform::fromScale(Scale(), Scale()));
    if (Zoomed) {
        Zoomed();
    }
}

void PageView::SetZoom(double zoom) {
    fitted_ = false;
    Apply(zoom);
}

// To the next of the sizes that follow one another evenly, actual size among them.
void PageView::ZoomStep(int steps) {
    const double step = std::log(kKeyZoom);
    const double now = std::log(zoom_) / step;
    constexpr double kSlack = 0.05; // what is shown as the same size is the same
    const double next =
        steps > 0 ? std::floor(now + kSlack) + steps : std::ceil(now - kSlack) + steps;
    SetZoom(std::exp(next * step));
}

void PageView::FitPage() {
    fitted_ = true;
    const QRectF whole = sceneRect();
    if (whole.isEmpty()) {
        return;
    }
    const QSize room = size();
    Apply(std::min(room.width() / whole.width(), room.height() / whole.height()) * Twips(1));
    centerOn(whole.center()); // what is zoomed into next
}

void PageView::ScrollToTop() {
    ensureVisible(QRectF(0, 0, 1, 1), 0, 0);
}

void PageView::ShowSelected() {
    if (const auto selected = editor_.Selected()) {
        const PageBox box = BoxOf(*editor_.Page().Find(*selected));
        ensureVisible(QRectF(box.Left, box.Top, box.Width, box.Height), 16, 16);
    }
}

// The paper with a soft shadow, the same at every zoom.
void PageView::drawBackground(QPainter* painter, const QRectF& area) {
    painter->fillRect(area, DeskColour(palette()));
    const QRectF paper = painter->transform().mapRect(page_.Paper());
    painter->save();
    painter->resetTransform();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(look::Faded(Qt::black, kShadowStrength));
    for (int width = kShadow; width > 0; --width) {
        painter->drawRoundedRect(
            paper.adjusted(-width, -width, width, width).translated(0, kShadowDrop), width, width);
    }
    painter->restore();
    painter->fillRect(page_.Paper(), Qt::white);
}

void PageView::scrollContentsBy(int across, int down) {
    QGraphicsView::scrollContentsBy(across, down);
    if (Scrolled) {
        Scrolled();
    }
}

void PageView::resizeEvent(QResizeEvent* event) {
    QGraphicsView::resizeEvent(event);
    if (fitted_) {
        FitPage();
    }
}

void PageView::changeEvent(QEvent* event) {
    QGraphicsView::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        resetCachedContent();
        viewport()->update();
    }
}

// With the control key the wheel zooms, and what is under the mouse stays there.
void PageView::wheelEvent(QWheelEvent* event) {
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        QGraphicsView::wheelEvent(event);
        return;
    }
    setTransformationAnchor(AnchorUnderMouse);
    SetZoom(zoom_ * std::pow(kWheelZoom, event->angleDelta().y() / kWheelNotch));
    setTransformationAnchor(AnchorViewCenter);
    event->accept();
}

} // namespace kestrova
