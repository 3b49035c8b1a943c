// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "speech/ui/StagePlaces.h"

#include <QPainterPath>
#include <QTextLayout>
#include <QWidget>

namespace kestrova {

// The balloon with the words. A text of more lines than it shows moves on as it is spoken.
class SpeechBalloon : public QWidget {
public:
    static constexpr int kMostLines = 7;

    explicit SpeechBalloon(QWidget* figure);

    // Takes the words and the size that they need.
    void SetWords(const QString& words);

    // Shows it beside the figure.
    void ShowBeside(const QRect& screen, const QRect& figure);

    // How much of the words has been spoken, 0 to 1.
    void SetProgress(double share);

    [[nodiscard]] int Lines() const { return text_.lineCount(); }
    [[nodiscard]] int TopLine() const { return topLine_; }
    [[nodiscard]] QRect BodyRect() const { return Body().toAlignedRect(); } // without the tail

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void LayOut();
    [[nodiscard]] QRectF Body() const;
    [[nodiscard]] QPainterPath Outline() const;
    [[nodiscard]] QImage Drawn() const;

    QTextLayout text_;
    QSize size_; // without the tail
    BalloonPlace place_;
    int topLine_ = 0;
};

} // namespace kestrova
