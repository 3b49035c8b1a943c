// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "print/ui/PageView.h"

#include <QScrollBar>
#include <QWidget>

namespace kestrova {

// The viewport with its scroll bars, which count in twips of the page: at 0 the page surface's
// corner is in the viewport's. They are there only while the page is larger than the viewport.
class PageFrame : public QWidget {
public:
    PageFrame(LayoutEditor& editor, PageScene& scene, QWidget* parent);

    [[nodiscard]] PageView& View() { return *Picture1; }

    // Fits the viewport and the scroll bars to the room and to the page.
    void ScrolSetup();

    std::function<void()> ViewChanged; // the zoom, or what part of the page is seen

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void FollowView();
    void HScroll1_Change(int value);
    void VScroll1_Change(int value);

    PageView* Picture1;
    QScrollBar* HScroll1;
    QScrollBar* VScroll1;
    bool scrolling_ = false; // by a scroll bar, which keeps the value that it was given
};

} // namespace kestrova
