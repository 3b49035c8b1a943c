// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

#include <functional>

namespace kestrova {

// One date of the month grid: its number in the colour of its role, a dot under it when the day has
// an event (or, where there is room, the event's message), a ring when it is today, a frame when
// the keyboard stands on it.
class DateLabel : public QLabel {
public:
    explicit DateLabel(QWidget* parent);

    struct Look {
        QColor Text;
        QString Mark; // the message that marks the day; empty when none does
        bool Today = false;
        bool Selected = false;
    };
    void SetLook(const Look& look);

    std::function<void()> Clicked;
    std::function<void()> DoubleClicked;

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    void PaintMark(QPainter& painter, int fontSize) const;

    Look look_;
};

} // namespace kestrova
