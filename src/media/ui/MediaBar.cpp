// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/ui/MediaBar.h"

#include "language/Texts.h"
#include "platform/qt/QtText.h"
#include "ui/ElidedLabel.h"
#include "ui/Look.h"
#include "ui/Names.h"

#include <QGridLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyleHints>

#include <algorithm>

namespace kestrova {

namespace {

constexpr QSize kButtonSize{28, 26};
constexpr int kLeastWidthOfARow = 420; // narrower than this, the bar has two
constexpr QColor kOnColour{0, 255, 0};
constexpr int kLamp = 14;      // pixels across
constexpr double kHole = 2.5;  // the radius of the hole in it
constexpr int kPerSecond = 10; // steps of the slider

// The signs on the buttons, in a square from -5 to 5.
QPainterPath Sign(PlayerButton button) {
    const auto triangle = [](double left, double right) {
        QPainterPath path;
        path.addPolygon(QPolygonF({{left, -5}, {right, 0}, {left, 5}}));
        path.closeSubpath();
        return path;
    };
    const auto bar = [](double left, double top, double width, double height) {
        QPainterPath path;
        path.addRect(left, top, width, height);
        return path;
    };
    switch (button) {
    case PlayerButton::Previous: return triangle(4, -3) + bar(-5, -5, 2, 10);
    case PlayerButton::Next: return triangle(-4, 3) + bar(3, -5, 2, 10);
    case PlayerButton::Play: return triangle(-4, 5);
    case PlayerButton::Pause: return bar(-4, -5, 3, 10) + bar(1, -5, 3, 10);
    case PlayerButton::Stop: return bar(-4.5, -4.5, 9, 9);
    case PlayerButton::Eject: break;
    }
    QPainterPath roof;
    roof.addPolygon(QPolygonF({{-5, 1}, {0, -5}, {5, 1}}));
    roof.closeSubpath();
    return roof + bar(-5, 3, 10, 2);
}

// A button with a sign in the colour of the text, whatever theme the desktop has.
class SignButton : public QToolButton {
public:
    SignButton(QWidget* parent, PlayerButton button) : QToolButton(parent), sign_(Sign(button)) {
        setFixedSize(kButtonSize);
        setFocusPolicy(Qt::TabFocus);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QColor colour = palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled,
                                              QPalette::WindowText);
        if (isEnabled() && (underMouse() || hasFocus() || isDown() || isChecked())) {
            painter.setPen(hasFocus() ? QPen(look::Accent(palette()), 2) : QPen(Qt::NoPen));
            painter.setBrush(look::Faded(colour, isDown() || isChecked() ? 0.25 : 0.1));
            painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 5, 5);
        }
        painter.translate(QRectF(rect()).center());
        painter.fillPath(sign_, isEnabled() ? colour : look::Faded(colour, 0.4));
    }

private:
    QPainterPath sign_;
};

// A check box that is a disc: green while the CD player is on.
class LampBox : public QCheckBox {
public:
    using QCheckBox::QCheckBox;

    [[nodiscard]] QSize sizeHint() const override {
        const QFontMetrics font = fontMetrics();
        return {kLamp + look::kSpacing * 2 + font.horizontalAdvance(text()),
                std::max(kButtonSize.height(), font.height() + 4)};
    }
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    [[nodiscard]] bool hitButton(const QPoint& place) const override {
        return rect().contains(place);
    }

    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QColor text = palette().color(QPalette::WindowText);
        if (hasFocus() || underMouse()) {
            painter.setPen(hasFocus() ? QPen(look::Accent(palette()), 2) : QPen(Qt::NoPen));
            painter.setBrush(look::Faded(text, 0.1));
            painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 5, 5);
        }
        const QRectF lamp(look::kSpacing / 2.0 + 1, (height() - kLamp) / 2.0, kLamp, kLamp);
        painter.setPen(QPen(look::Faded(text, 0.6), 1));
        painter.setBrush(isChecked() ? kOnColour : look::Faded(text, 0.15));
        painter.drawEllipse(lamp);
        painter.setBrush(palette().color(QPalette::Window));
        painter.drawEllipse(lamp.center(), kHole, kHole);
        painter.setPen(text);
        painter.drawText(rect().adjusted(kLamp + look::kSpacing, 0, 0, 0),
                         Qt::AlignLeft | Qt::AlignVCenter, this->text());
    }
};

} // namespace

MediaBar::MediaBar(QWidget* parent, MediaService& media, const StringTable& texts)
    : QWidget(parent), media_(media), texts_(texts), grid_(new QGridLayout(this)),
      ChkCD(Named(new LampBox(this), "ChkCD")), CtlFrm(Named(new QFrame(this), "CtlFrm")),
      LabMusic(Named(new ElidedLabel(this), "LabMusic")),
      place_(Named(new QSlider(Qt::Horizontal, this), "MediaPosition")) {
    setObjectName(QStringLiteral("MediaBar"));
    grid_->setContentsMargins(2, look::kSpacing / 2, 2, 2);
    grid_->setHorizontalSpacing(look::kSpacing);
    grid_->setVerticalSpacing(2);
    ChkCD->setFocusPolicy(Qt::TabFocus);
    connect(ChkCD, &QCheckBox::clicked, this, [this](bool on) { media_.ChkCD_Click(on); });
    BuildButtons();
    LabMusic->setCursor(Qt::PointingHandCursor);
    LabMusic->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("0:00 / 0:00 ")));
    LabMusic->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    LabMusic->installEventFilter(this);
    click_.setSingleShot(true);
    connect(&click_, &QTimer::timeout, this, [this] { media_.LabMusic_Click(); });
    place_->setFocusPolicy(Qt::TabFocus);
    place_->setPageStep(30 * kPerSecond);
    place_->setSingleStep(5 * kPerSecond);
    connect(place_, &QSlider::valueChanged, this,
            [this](int value) { media_.SeekTo(value / double(kPerSecond)); });
    Arrange();
    LoadCaptions();
    ShowMedia();
}

void MediaBar::BuildButtons() {
    auto* const row = new QHBoxLayout(CtlFrm);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    for (int i = 0; i < kPlayerButtons; ++i) {
        auto* const button = new SignButton(CtlFrm, PlayerButton(i));
        button->setObjectName(ArrayName("Ctrl", i));
        connect(button, &QToolButton::clicked, this,
                [this, i] { media_.Ctrl_Click(PlayerButton(i)); });
        row->addWidget(button);
        Ctrl[static_cast<std::size_t>(i)] = button;
    }
    Ctrl[static_cast<std::size_t>(PlayerButton::Pause)]->setCheckable(true);
}

void MediaBar::Arrange() {
    grid_->addWidget(ChkCD, 0, 0);
    grid_->addWidget(CtlFrm, 0, 1, Qt::AlignLeft);
    grid_->addWidget(LabMusic, twoRows_ ? 1 : 0, twoRows_ ? 0 : 2);
    grid_->addWidget(place_, twoRows_ ? 1 : 0, twoRows_ ? 1 : 3);
    for (int column = 0; column < 4; ++column) {
        grid_->setColumnStretch(column, 0);
    }
    grid_->setColumnStretch(twoRows_ ? 1 : 3, 3);
    grid_->setColumnStretch(twoRows_ ? 0 : 2, 1);
}

void MediaBar::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    const bool narrow = width() < kLeastWidthOfARow;
    if (narrow != twoRows_) {
        twoRows_ = narrow;
        Arrange();
    }
}

void MediaBar::ShowMedia() {
    const bool clip = media_.IsClipPlaying();
    const bool cd = media_.CdWorks();
    const bool on = media_.IsCdOn();
    setVisible(!away_ && (cd || clip));
    ChkCD->setVisible(cd);
    const QSignalBlocker quiet(ChkCD);
    ChkCD->setChecked(on);
    const QString caption = ToQt(texts_.Text(on ? texts::kOn : texts::kOff));
    if (caption != ChkCD->text()) {
        ChkCD->setText(caption);
        ChkCD->updateGeometry();
    }
    for (QToolButton* const button : Ctrl) {
        button->setEnabled(on || clip);
    }
    Ctrl[static_cast<std::size_t>(PlayerButton::Pause)]->setChecked(media_.IsPaused());
    const QString status = ToQt(media_.StatusText());
    LabMusic->setText(status);
    LabMusic->setAccessibleName(status);
    if (tips_) {
        LabMusic->setToolTip(clip ? ToQt(texts_.Text(texts::kFullScreenTip)) : status);
    }
    const double length = media_.Duration();
    place_->setVisible(clip && length > 0);
    if (place_->isVisibleTo(this) && !place_->isSliderDown()) {
        const QSignalBlocker silent(place_);
        place_->setRange(0, static_cast<int>(std::min(length, 1e8) * kPerSecond));
        place_->setValue(static_cast<int>(std::clamp(media_.Position(), 0.0, 1e8) * kPerSecond));
    }
}

void MediaBar::SetAway(bool away) {
    away_ = away;
    ShowMedia();
}

void MediaBar::LoadCaptions() {
    const auto words = [this](ProgramText text) { return ToQt(TextOf(texts_, text)); };
    constexpr std::array<ProgramText, kPlayerButtons> kNames = {
        ProgramText::MediaPrevious, ProgramText::MediaNext, ProgramText::MediaPlay,
        ProgramText::MediaPause,    ProgramText::MediaStop, ProgramText::MediaEject};
    for (std::size_t i = 0; i < Ctrl.size(); ++i) {
        Ctrl[i]->setAccessibleName(words(kNames[i]));
    }
    ChkCD->setAccessibleName(words(ProgramText::CdPlayer));
    place_->setAccessibleName(words(ProgramText::MediaPosition));
    LoadTips(tips_);
    ShowMedia();
}

void MediaBar::LoadTips(bool on) {
    tips_ = on;
    for (QToolButton* const button : Ctrl) {
        button->setToolTip(on ? button->accessibleName() : QString());
    }
    if (!on) {
        LabMusic->setToolTip(QString());
    }
    ShowMedia();
}

bool MediaBar::eventFilter(QObject* watched, QEvent* event) {
    if (watched != LabMusic) {
        return QWidget::eventFilter(watched, event);
    }
    if (event->type() == QEvent::MouseButtonRelease &&
        static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
        if (!doubled_) {
            click_.start(QGuiApplication::styleHints()->mouseDoubleClickInterval());
        }
        doubled_ = false;
        return true;
    }
    if (event->type() == QEvent::MouseButtonDblClick) {
        click_.stop();
        doubled_ = true; // its release is no click
        media_.LabMusic_DblClick();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace kestrova
