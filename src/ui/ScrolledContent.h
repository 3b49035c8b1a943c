// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLayout>
#include <QScreen>
#include <QScrollArea>

namespace kestrova {

// The content of a window, which asks for all the room it needs and is scrolled only where the
// screen does not have it.
class ScrolledContent : public QScrollArea {
public:
    ScrolledContent(QWidget* content, QWidget* parent) : QScrollArea(parent) {
        setFrameShape(QFrame::NoFrame);
        setFocusPolicy(Qt::NoFocus); // the tab key goes from control to control
        setWidgetResizable(true);
        setWidget(content);
    }

    [[nodiscard]] QSize sizeHint() const override { return widget()->sizeHint(); }

    // Gives the window the room that the content asks for now, as far as the screen has it. A
    // window that is larger stays as it is.
    void FitWindow() {
        constexpr QSize kFrame{16, 48}; // what the window manager puts around a window, about
        QWidget& window = *this->window();
        window.ensurePolished();
        // A control that has not been shown yet does not know its size, and layouts remember what
        // they were told before.
        const auto controls = window.findChildren<QWidget*>();
        for (QWidget* const control : controls) {
            control->ensurePolished();
            control->updateGeometry();
        }
        for (qsizetype i = controls.size(); i-- > 0;) {
            if (controls[i]->layout() != nullptr) {
                controls[i]->layout()->activate(); // inner ones first
            }
        }
        updateGeometry();
        window.layout()->activate();
        window.resize(window.sizeHint()
                          .expandedTo(window.size())
                          .boundedTo(window.screen()->availableSize() - kFrame));
    }
};

} // namespace kestrova
