// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "print/PageLayout.h"

#include <QTextEdit>

#include <functional>

namespace kestrova {

// `TextEdit`, the box that lies over a text of the page while it is edited.
class TextBox : public QTextEdit {
public:
    explicit TextBox(QWidget* viewport);

    // How the object's lines come to paper: broken to its width, or whole, to the right of its left
    // edge or around its middle.
    enum class Lines { Broken, Whole, Centred };

    // Takes the object's text and is shown.
    void LoadTextEdit(const LayoutItem& item, Lines lines);

    // Takes its font and colour; so many pixels of the window make a twip.
    void SetLooks(const LayoutItem& item, double scale);

    // Lies over the object's box, in pixels of the viewport, and beyond it as the text grows.
    void Place(const QRectF& place);

    [[nodiscard]] std::string Caption() const; // lines parted by CR LF

    std::function<void()> Typed;
    std::function<void()> Accepted;
    std::function<void()> Cancelled;
    std::function<void()> DoubleClicked;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void Grow();

    QRect place_; // at least
    Lines lines_ = Lines::Broken;
};

} // namespace kestrova
