// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>
#include <QKeyEvent>

namespace kestrova {

// Keeps the wheel and the keys from going through a list one item after the other, where each item
// takes effect at once and the last may open a window. A choice is made in the open list, which the
// keys open.
class SteadyList : public QObject {
public:
    explicit SteadyList(QComboBox* list) : QObject(list), list_(list) {
        list->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched != list_ || !IsStep(*event)) {
            return QObject::eventFilter(watched, event);
        }
        if (event->type() == QEvent::KeyPress) {
            list_->showPopup();
        }
        return true;
    }

private:
    [[nodiscard]] static bool IsStep(const QEvent& event) {
        if (event.type() == QEvent::Wheel) {
            return true;
        }
        if (event.type() != QEvent::KeyPress) {
            return false;
        }
        const auto& press = static_cast<const QKeyEvent&>(event);
        const bool types = !press.text().isEmpty() && press.text().front().isLetterOrNumber();
        const int key = press.key();
        return types || key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_Home ||
               key == Qt::Key_End || key == Qt::Key_PageUp || key == Qt::Key_PageDown;
    }

    QComboBox* list_;
};

// Leaves the wheel to the window around a control that the keyboard is not on: whoever scrolls past
// it does not mean to change it.
class WheelGuard : public QObject {
public:
    explicit WheelGuard(QWidget* control) : QObject(control), control_(control) {
        control->setFocusPolicy(Qt::StrongFocus); // the wheel does not bring the focus
        control->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == control_ && event->type() == QEvent::Wheel && !control_->hasFocus()) {
            event->ignore();
            return true;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QWidget* control_;
};

} // namespace kestrova
