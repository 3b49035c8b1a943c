// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QPainter>

#include <algorithm>

namespace kestrova {

// Paints a label's text, with an ellipsis where it is too long for its width.
inline void PaintElided(QLabel& label) {
    QPainter painter(&label);
    const int indent = std::max(label.indent(), 0);
    const QRect area = label.contentsRect().adjusted(indent, 0, 0, 0);
    painter.setFont(label.font());
    painter.setPen(label.palette().color(label.isEnabled() ? QPalette::Active : QPalette::Disabled,
                                         QPalette::WindowText));
    painter.drawText(area, Qt::AlignLeft | Qt::AlignVCenter,
                     label.fontMetrics().elidedText(label.text(), Qt::ElideRight, area.width()));
}

// A label in a column, whose text may be longer than the column is wide.
class ElidedLabel : public QLabel {
public:
    explicit ElidedLabel(QWidget* parent) : QLabel(parent) { setTextFormat(Qt::PlainText); }

protected:
    void paintEvent(QPaintEvent* /*event*/) override { PaintElided(*this); }
};

} // namespace kestrova
