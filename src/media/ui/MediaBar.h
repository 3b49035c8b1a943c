// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "media/MediaService.h"

#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QSlider>
#include <QTimer>
#include <QToolButton>
#include <QWidget>

#include <array>

class QGridLayout;

namespace kestrova {

// The media panel: the CD's switch, the six buttons and the line that says track and time. It shows
// itself only where there is something to play.
class MediaBar : public QWidget {
public:
    MediaBar(QWidget* parent, MediaService& media, const StringTable& texts);

    // Brings the controls up to date with the media.
    void ShowMedia();
    void LoadCaptions();
    void LoadTips(bool on);

    // Away, it does not show itself whatever there is to play.
    void SetAway(bool away);

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildButtons();
    void Arrange();

    MediaService& media_;
    const StringTable& texts_;
    QTimer click_; // a double click begins with a click, which must not act before it is one
    bool doubled_ = false;
    bool tips_ = false;
    bool away_ = false;
    bool twoRows_ = false;

    QGridLayout* grid_;
    QCheckBox* ChkCD;
    QFrame* CtlFrm;
    std::array<QToolButton*, kPlayerButtons> Ctrl{};
    QLabel* LabMusic;
    QSlider* place_;
};

} // namespace kestrova
