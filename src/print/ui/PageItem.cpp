// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/ui/PageItem.h"

#include "platform/qt/PainterSurface.h"
#include "print/Handles.h"
#include "print/LineBreaks.h"
#include "print/PageRenderer.h"

#include <algorithm>

namespace kestrova {

namespace {

constexpr int kTwipsPerPoint = 20;
constexpr int kLineRoom = 60; // around a line, for the widest pen

} // namespace

PageItem::PageItem(LayoutRef ref, const PaperMeasure& measure) : ref_(ref), measure_(measure) {
    setAcceptedMouseButtons(Qt::NoButton); // the view finds out what is under the mouse
}

void PageItem::Update(const LayoutItem& item, bool gridOn, const PageSize& surface) {
    const bool framed = gridOn && ref_.Kind == LayoutKind::LabDates;
    if (item == item_ && framed == framed_ && surface == surface_) {
        return;
    }
    item_ = item;
    framed_ = framed;
    surface_ = surface;
    lines_.clear();
    if (IsText(ref_.Kind) && item.Enabled) {
        lines_ = LinesOnPage(item, ref_.Kind, measure_, surface.Height);
    }
    if (const QRectF ink = Ink(); ink != ink_) {
        prepareGeometryChange();
        ink_ = ink;
    }
    update();
}

// Texts may be larger than their boxes.
QRectF PageItem::Ink() const {
    const QRectF box(item_.Left, item_.Top, item_.Width, item_.Height);
    if (!IsText(ref_.Kind)) {
        return box;
    }
    const FontChoice font = item_.Font();
    int width = 0;
    int height = 0;
    for (const std::string& line : lines_) {
        width = std::max(width, measure_.TextWidth(font, line));
        height += measure_.LineHeight(font);
    }
    const bool middle = ref_.Kind == LayoutKind::LabDays;
    const double left = middle ? box.center().x() - width / 2.0 : box.left();
    const double room = kLineRoom + item_.FontSize * kTwipsPerPoint / 2; // for slanted letters
    return box.united(QRectF(left, item_.Top, width, height)).adjusted(-room, -room, room, room);
}

void PageItem::paint(QPainter* painter, const QStyleOptionGraphicsItem* /*option*/,
                     QWidget* /*widget*/) {
    if (ref_.Kind == LayoutKind::ImgUser && !item_.Picture) {
        PaintEmpty(*painter);
        return;
    }
    PainterSurface surface(*painter, measure_, surface_);
    PrintItem(item_, ref_.Kind, lines_, framed_, surface);
}

// A picture that could not be read is not printed, but must not lie about unseen either.
void PageItem::PaintEmpty(QPainter& painter) const {
    QPen pen(Qt::gray, 0, Qt::DashLine);
    pen.setCosmetic(true);
    painter.setPen(pen);
    painter.drawRect(QRectF(item_.Left, item_.Top, item_.Width, item_.Height));
}

void BorderItem::Update(const PageLayout& page) {
    PageLayout border;
    SetBox(border.Image1, BoxOf(page.Image1));
    border.BorderLines = page.BorderLines;
    border.BorderColor = page.BorderColor;
    border.BorderDrawStyle = page.BorderDrawStyle;
    border.BorderWidth = page.BorderWidth;
    border.Surface = page.Surface;
    if (border != border_) {
        prepareGeometryChange();
        border_ = std::move(border);
        update();
    }
}

QRectF BorderItem::boundingRect() const {
    const PageBox box = BoxOf(border_.Image1);
    return QRectF(0, 0, border_.Surface.Width, border_.Surface.Height)
        .united(QRectF(box.Left, box.Top, box.Width, box.Height))
        .adjusted(-kLineRoom, -kLineRoom, kLineRoom, kLineRoom);
}

void BorderItem::paint(QPainter* painter, const QStyleOptionGraphicsItem* /*option*/,
                       QWidget* /*widget*/) {
    PainterSurface surface(*painter, measure_, border_.Surface);
    DoBorder(border_, surface);
}

} // namespace kestrova
