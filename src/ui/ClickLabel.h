// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>

#include <functional>

namespace kestrova {

// A label that is clicked. With a focus policy it answers to Enter and the space bar too.
class ClickLabel : public QLabel {
public:
    explicit ClickLabel(QWidget* parent) : QLabel(parent) { setTextFormat(Qt::PlainText); }

    std::function<void()> Clicked;
    std::function<void()> DoubleClicked;

protected:
    void mouseReleaseEvent(QMouseEvent* event) override {
        if (event->button() == Qt::LeftButton && rect().contains(event->pos()) && Clicked) {
            Clicked();
        }
    }

    void mouseDoubleClickEvent(QMouseEvent* event) override {
        if (event->button() == Qt::LeftButton && DoubleClicked) {
            DoubleClicked();
        }
    }

    void keyPressEvent(QKeyEvent* event) override {
        const bool activates = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
                               event->key() == Qt::Key_Space;
        if (activates && Clicked) {
            Clicked();
        } else {
            QLabel::keyPressEvent(event);
        }
    }
};

} // namespace kestrova
