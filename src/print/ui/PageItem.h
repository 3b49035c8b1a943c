// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/qt/PaperMeasure.h"
#include "print/PageLayout.h"

#include <QGraphicsItem>

#include <string>
#include <vector>

namespace kestrova {

// An object of the page in the layout window, drawn by the steps that print it. Its coordinates are
// those of the page surface, in twips; it is moved only while it is being dragged.
class PageItem : public QGraphicsItem {
public:
    PageItem(LayoutRef ref, const PaperMeasure& measure);

    // What the object is like now. A cell is framed while the grid is on.
    void Update(const LayoutItem& item, bool gridOn, const PageSize& surface);

    [[nodiscard]] QRectF boundingRect() const override { return ink_; }
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

private:
    [[nodiscard]] QRectF Ink() const;
    void PaintEmpty(QPainter& painter) const;

    LayoutRef ref_;
    const PaperMeasure& measure_;
    LayoutItem item_;
    std::vector<std::string> lines_; // of a text; breaking them takes its time
    bool framed_ = false;
    PageSize surface_;
    QRectF ink_;
};

// The border, below all objects.
class BorderItem : public QGraphicsItem {
public:
    explicit BorderItem(const PaperMeasure& measure) : measure_(measure) {}

    void Update(const PageLayout& page);

    [[nodiscard]] QRectF boundingRect() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

private:
    const PaperMeasure& measure_;
    PageLayout border_; // nothing in it but the border and what it goes by
};

} // namespace kestrova
