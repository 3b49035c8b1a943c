// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/ClickLabel.h"
#include "ui/ElidedLabel.h"
#include "ui/Look.h"

#include <QPainter>
#include <QPolygon>

namespace kestrova {

enum class NoteMark { None, Shown };

// A row's message: framed when the keyboard stands on it, with a small sheet of paper at its right
// end when its event has a note.
class RowLabel : public ClickLabel {
public:
    using ClickLabel::ClickLabel;

    void SetMark(NoteMark mark) {
        mark_ = mark;
        // The message ends before the mark.
        setContentsMargins(0, 0, mark == NoteMark::Shown ? kPage.width() + 2 * kGap : 0, 0);
        update();
    }
    [[nodiscard]] NoteMark Mark() const { return mark_; }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        if (hasFocus() || (underMouse() && focusPolicy() != Qt::NoFocus)) {
            QPainter painter(this);
            const QColor accent = look::Accent(palette());
            painter.fillRect(rect(), look::Faded(accent, hasFocus() ? 0.25 : 0.12));
            painter.fillRect(0, 0, 3, height(), accent);
        }
        PaintElided(*this);
        if (mark_ == NoteMark::Shown) {
            PaintMark();
        }
    }

private:
    static constexpr QSize kPage{9, 11};
    static constexpr int kGap = 4;
    static constexpr int kCorner = 3; // folded down

    void PaintMark() {
        QPainter painter(this);
        const int left = width() - kGap - kPage.width();
        const int top = (height() - kPage.height()) / 2;
        const int right = left + kPage.width() - 1;
        const int bottom = top + kPage.height() - 1;
        painter.setPen(look::Accent(palette()));
        painter.drawPolygon(QPolygon({{left, top},
                                      {right - kCorner, top},
                                      {right, top + kCorner},
                                      {right, bottom},
                                      {left, bottom}}));
        for (int line = top + 5; line < bottom - 1; line += 2) {
            painter.drawLine(left + 2, line, right - 2, line);
        }
    }

    NoteMark mark_ = NoteMark::None;
};

} // namespace kestrova
