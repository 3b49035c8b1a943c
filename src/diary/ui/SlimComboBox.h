// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diary/ui/FitText.h"
#include "ui/Look.h"

#include <QComboBox>
#include <QPainter>
#include <QPolygon>

namespace kestrova {

// A drop-down list that is as low as a row and spends its width on the text: a thin frame, a small
// arrow, and a smaller font before anything is cut. Its colours are the palette's.
class SlimComboBox : public QComboBox {
public:
    using QComboBox::QComboBox;

    // Whether an item is shown whole when it is chosen.
    [[nodiscard]] bool Fits(const QString& item) const {
        const int room = TextPlace().width();
        return QFontMetrics(FittingFont(font(), item, room)).horizontalAdvance(item) <= room;
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        const QPalette::ColorGroup group = isEnabled() ? QPalette::Active : QPalette::Disabled;
        const QColor ink = palette().color(group, QPalette::Text);
        const QColor base = palette().color(group, QPalette::Base);
        painter.setPen(hasFocus() ? look::Accent(palette()) : look::Between(base, ink, 0.4));
        painter.setBrush(base);
        painter.drawRect(rect().adjusted(0, 0, -1, -1));

        const QRect text = TextPlace();
        const QFont fitting = FittingFont(font(), currentText(), text.width());
        painter.setFont(fitting);
        painter.setPen(ink);
        painter.drawText(
            text, Qt::AlignLeft | Qt::AlignVCenter,
            QFontMetrics(fitting).elidedText(currentText(), Qt::ElideRight, text.width()));

        const int left = width() - kArrow - kPadding;
        const int top = height() / 2 - kArrow / 4;
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(look::Between(base, ink, 0.75));
        painter.drawPolygon(QPolygon(
            {{left, top}, {left + kArrow, top}, {left + kArrow / 2, top + kArrow / 2 + 1}}));
    }

private:
    static constexpr int kPadding = 3;
    static constexpr int kArrow = 7; // wide

    [[nodiscard]] QRect TextPlace() const {
        return rect().adjusted(kPadding, 1, -(kArrow + 2 * kPadding), -1);
    }
};

} // namespace kestrova
