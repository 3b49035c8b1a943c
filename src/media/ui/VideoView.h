// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/MediaPlayer.h"

#include <QImage>
#include <QWidget>

#include <functional>

namespace kestrova {

// Shows a film where the month's picture is otherwise.
class VideoView : public QWidget {
public:
    // `render` draws the film's present picture.
    VideoView(QWidget* parent, std::function<bool(const PixelRows&)> render);

    // There is a new picture.
    void ShowFrame();

    std::function<void()> DoubleClicked;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    std::function<bool(const PixelRows&)> render_;
    QImage frame_; // as large as the view, in the screen's pixels
    bool fresh_ = false;
};

} // namespace kestrova
