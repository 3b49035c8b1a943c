// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/ui/PageFrame.h"

#include "ui/Names.h"

#include <QSignalBlocker>

#include <algorithm>
#include <cmath>

namespace kestrova {

namespace {

constexpr int kLineStep = 300; // twips

// One bar, for the stretch of the desk between two ends of which `seen` begins at `from`.
void Fit(QScrollBar& bar, double low, double high, double from, double seen) {
    const QSignalBlocker quiet(bar);
    bar.setRange(static_cast<int>(std::lround(low)),
                 static_cast<int>(std::lround(std::max(low, high - seen))));
    bar.setPageStep(static_cast<int>(std::lround(seen)));
    bar.setSingleStep(kLineStep);
    bar.setValue(static_cast<int>(std::lround(from)));
}

} // namespace

PageFrame::PageFrame(LayoutEditor& editor, PageScene& scene, QWidget* parent)
    : QWidget(parent), Picture1(new PageView(editor, scene, this)),
      HScroll1(Named(new QScrollBar(Qt::Horizontal, this), "HScroll1")),
      VScroll1(Named(new QScrollBar(Qt::Vertical, this), "VScroll1")) {
    connect(HScroll1, &QScrollBar::valueChanged, this,
            [this](int value) { HScroll1_Change(value); });
    connect(VScroll1, &QScrollBar::valueChanged, this,
            [this](int value) { VScroll1_Change(value); });
    Picture1->Scrolled = [this] { FollowView(); };
    Picture1->Zoomed = [this] { ScrolSetup(); };
}

void PageFrame::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    ScrolSetup();
}

void PageFrame::ScrolSetup() {
    // A page that is to be seen whole gets all the room and needs no bars.
    const double scale = Picture1->Scale();
    const QSizeF whole = Picture1->sceneRect().size() * scale;
    const int across = VScroll1->sizeHint().width();
    const int down = HScroll1->sizeHint().height();
    const bool fitted = Picture1->IsFitted();
    bool wide = !fitted && whole.width() > width();
    const bool high = !fitted && whole.height() > height() - (wide ? down : 0);
    wide = !fitted && whole.width() > width() - (high ? across : 0);
    const QSize room(width() - (high ? across : 0), height() - (wide ? down : 0));
    HScroll1->setVisible(wide);
    VScroll1->setVisible(high);
    HScroll1->setGeometry(0, room.height(), room.width(), down);
    VScroll1->setGeometry(room.width(), 0, across, room.height());
    Picture1->setGeometry(QRect(QPoint(), room));
    FollowView();
}

// The view's own bars, which nobody sees, count in pixels.
void PageFrame::FollowView() {
    if (scrolling_) {
        return;
    }
    const double scale = Picture1->Scale();
    const QRectF whole = Picture1->sceneRect();
    const QPointF from = Picture1->viewportTransform().inverted().map(QPointF(0, 0));
    const QSizeF seen = QSizeF(Picture1->viewport()->size()) / scale;
    Fit(*HScroll1, whole.left(), whole.right(), from.x(), seen.width());
    Fit(*VScroll1, whole.top(), whole.bottom(), from.y(), seen.height());
    if (ViewChanged) {
        ViewChanged();
    }
}

void PageFrame::HScroll1_Change(int value) {
    scrolling_ = true;
    Picture1->horizontalScrollBar()->setValue(
        static_cast<int>(std::lround(value * Picture1->Scale())));
    scrolling_ = false;
    ViewChanged();
}

void PageFrame::VScroll1_Change(int value) {
    scrolling_ = true;
    Picture1->verticalScrollBar()->setValue(
        static_cast<int>(std::lround(value * Picture1->Scale())));
    scrolling_ = false;
    ViewChanged();
}

} // namespace kestrova
