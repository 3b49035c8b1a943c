// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "print/LayoutEditor.h"
#include "print/ui/PageScene.h"

#include <QGraphicsView>

#include <functional>

namespace kestrova {

// `Picture1`, the viewport: shows the page on a desk, as large as the user likes, and turns the
// mouse and the keys into what the editor does.
class PageView : public QGraphicsView {
public:
    PageView(LayoutEditor& editor, PageScene& scene, QWidget* parent);

    // How large the page is shown: 1 is its size on paper.
    static constexpr double kLeastZoom = 0.1;
    static constexpr double kMostZoom = 8;
    [[nodiscard]] double Zoom() const { return zoom_; }
    void SetZoom(double zoom);
    void ZoomStep(int steps); // so many steps larger, or smaller below 0

    // The whole page, whatever the window's size.
    void FitPage();
    [[nodiscard]] bool IsFitted() const { return fitted_; }

    // Pixels of the window that make a twip.
    [[nodiscard]] double Scale() const;

    void ScrollToTop();
    void ShowSelected(); // scrolls it into view

    std::function<void()> Zoomed;
    std::function<void()> Scrolled;
    std::function<void()> EditChosen;                     // the selected text is to be edited
    std::function<void(const QPoint& global)> MenuWanted; // about the selection

protected:
    void drawBackground(QPainter* painter, const QRectF& area) override;
    void scrollContentsBy(int across, int down) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    struct Point {
        int X = 0;
        int Y = 0;
    };
    // What the mouse does while its button is down.
    enum class Hand { Idle, Pressed, Dragging, Resizing, Framing };

    void Apply(double zoom);
    [[nodiscard]] Point PageAt(const QPoint& pixels) const;
    [[nodiscard]] std::optional<std::size_t> HandleAt(const QPoint& pixels) const;
    void PressOn(const std::optional<LayoutRef>& ref, QMouseEvent& event);
    void DragTo(const QPoint& pixels);
    void ShowPointer(const QPoint& pixels);
    void LetGo();
    void ScrollAlong(const QPoint& pixels);
    [[nodiscard]] bool HandleMove(const QKeyEvent& event);

    LayoutEditor& editor_;
    PageScene& page_;
    double zoom_ = 1;
    bool fitted_ = true;
    Hand hand_ = Hand::Idle;
    QPoint pressed_; // where, in pixels
    bool wasSelected_ = false;
};

} // namespace kestrova
