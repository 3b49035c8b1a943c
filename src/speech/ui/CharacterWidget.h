// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "speech/ui/CharacterFace.h"

#include <QWidget>

#include <functional>

namespace kestrova {

// The character as it stands on the desktop: above all windows, without a frame, never with the
// keyboard. It can be dragged and clicked.
class CharacterWidget : public QWidget {
public:
    struct Hooks {
        std::function<void()> Clicked;
        std::function<void()> Dragged; // it stands elsewhere
    };

    CharacterWidget(const CharacterFigure& figure, VectorArt& art, Hooks hooks);

    // Draws it in a size; false when nobody can.
    [[nodiscard]] bool Prepare(const QSize& size);

    // Where it is to be seen, in units of the screen. An arm that it only stretches out at times
    // counts half.
    [[nodiscard]] QRect SeenRect() const;

    // Gives the pictures of the layers back, until it is prepared anew.
    void Forget() { face_ = CharacterFace(); }

    [[nodiscard]] const CharacterPose& Pose() const { return pose_; }
    void SetPose(const CharacterPose& pose);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    enum class Press { None, Pressed, Dragging };

    const CharacterFigure& figure_;
    VectorArt& art_;
    Hooks hooks_;
    CharacterFace face_;
    CharacterPose pose_;
    Press press_ = Press::None;
    QPoint grip_; // where it is held, from its upper left corner
};

} // namespace kestrova
