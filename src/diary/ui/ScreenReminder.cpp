// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/ui/ScreenReminder.h"

#include "language/ProgramTexts.h"
#include "language/Texts.h"
#include "language/ui/ApplyCaptions.h"
#include "platform/qt/QtText.h"
#include "ui/Names.h"
#include "ui/PlainTip.h"
#include "ui/Twips.h"

#include <QApplication>
#include <QFrame>
#include <QInputDialog>
#include <QKeyEvent>
#include <QMenu>

#include <algorithm>

namespace kestrova {

namespace {

constexpr int kWidth = 6600; // twips
constexpr int kLineHeight = 255;
constexpr int kButtonWidth = 1934;
constexpr int kButtonHeight = 500;
constexpr int kGap = 100; // between the buttons, and at the window's edge
constexpr int kLeastSnooze = 1500;
constexpr int kLeastWidth = 5400;

// After how many minutes reminders can be had back, with the key of each in the menu.
struct SnoozeEntry {
    int Minutes;
    const char* Number;
};
constexpr SnoozeEntry kSnoozes[] = {{5, "&5"}, {10, "1&0"}, {15, "&15"}, {30, "&30"}, {60, "&60"}};
constexpr int kOfferedMinutes = 20;
constexpr int kMostMinutes = 24 * 60 - 1;

} // namespace

ScreenReminder::ScreenReminder(const StringTable& texts, Hooks hooks)
    : texts_(texts), hooks_(std::move(hooks)) {
    setObjectName(QStringLiteral("ScreenReminder"));
    setWindowFlag(Qt::WindowStaysOnTopHint);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_QuitOnClose, false);
    Frame1 = new QFrame(this);
    Frame1->setObjectName(QStringLiteral("Frame1"));
    Frame1->setFrameShape(QFrame::StyledPanel);
    for (int i = 0; i <= kEventsPerDay; ++i) {
        auto* const label = new QLabel(Frame1);
        label->setObjectName(ArrayName("LabRemind", i));
        label->setTextFormat(Qt::PlainText);
        LabRemind[static_cast<std::size_t>(i)] = label;
    }
    ComClear = new QPushButton(this);
    ComClear->setObjectName(QStringLiteral("ComClear"));
    ComClear->setDefault(true);
    connect(ComClear, &QPushButton::clicked, this, [this] { ComClear_Click(); });
    BuildSnooze();
    LoadCaptions();
    setMinimumWidth(Pixels(kLeastWidth));
    resize(Pixels(kWidth), height());
}

void ScreenReminder::BuildSnooze() {
    ComSnooze = new QPushButton(this);
    ComSnooze->setObjectName(QStringLiteral("ComSnooze"));
    ComSnooze->setAutoDefault(true); // Enter on it opens it; elsewhere it clears
    MNU_Snooze = new QMenu(ComSnooze);
    MNU_Snooze->setObjectName(QStringLiteral("MNU_Snooze"));
    for (const SnoozeEntry& entry : kSnoozes) {
        QAction* const action = MNU_Snooze->addAction(QString());
        connect(action, &QAction::triggered, this,
                [this, minutes = entry.Minutes] { Snooze(minutes); });
    }
    MNU_Snooze->addSeparator();
    connect(MNU_Snooze->addAction(QString()), &QAction::triggered, this, [this] { AskMinutes(); });
    ComSnooze->setMenu(MNU_Snooze);
}

void ScreenReminder::LoadCaptions() {
    ApplyCaptions(*this, texts_, TipTexts::Leave);
    setWindowTitle(ToQt(texts_.Text(texts::kMessengerTitle)));
    ComSnooze->setText(ToQt(TextOf(texts_, ProgramText::Snooze)));
    const QList<QAction*> entries = MNU_Snooze->actions();
    for (std::size_t i = 0; i < std::size(kSnoozes); ++i) {
        entries[static_cast<qsizetype>(i)]->setText(
            ToQt(TextOf(texts_, ProgramText::SnoozeMinutes, kSnoozes[i].Number)));
    }
    entries.back()->setText(ToQt(TextOf(texts_, ProgramText::SnoozeOther)));
}

// Nothing waits for the answer: the minutes go on, and the lines with them.
void ScreenReminder::AskMinutes() {
    if (minutes_ == nullptr) {
        minutes_ = new QInputDialog(this);
        minutes_->setInputMode(QInputDialog::IntInput);
        minutes_->setIntRange(1, kMostMinutes);
        minutes_->setIntValue(kOfferedMinutes);
        connect(minutes_, &QInputDialog::intValueSelected, this,
                [this](int minutes) { Snooze(minutes); });
    }
    minutes_->setWindowTitle(windowTitle());
    minutes_->setLabelText(ToQt(TextOf(texts_, ProgramText::SnoozeAsk)));
    minutes_->open();
}

void ScreenReminder::ShowLines(const std::vector<std::string>& lines) {
    for (std::size_t i = 1; i <= kEventsPerDay; ++i) {
        const QString text = i <= lines.size() ? ToQt(lines[i - 1]) : QString();
        LabRemind[i]->setText(text);
        LabRemind[i]->setToolTip(PlainTip(text));
    }
    lines_ = static_cast<int>(std::min<std::size_t>(lines.size(), kEventsPerDay)) + 1;
    setEnabled(true);
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    Redraw();
    raise();
    QApplication::alert(this);
}

void ScreenReminder::BringUp() {
    if (isEnabled() && !LabRemind[1]->text().isEmpty()) {
        setWindowState(windowState() & ~Qt::WindowMinimized);
        show();
        raise();
        activateWindow();
    }
}

void ScreenReminder::StandBack() {
    hide();
    setEnabled(false);
}

// The window grows with its lines; its height is theirs to say, its width the user's.
void ScreenReminder::Redraw() {
    if (isMinimized()) {
        return;
    }
    const int inner = Twips(width());
    setFixedHeight(Pixels(lines_ * kLineHeight + 1450));
    Frame1->setGeometry(Pixels(50), Pixels(50), Pixels(inner - 100),
                        Pixels(lines_ * kLineHeight + 500));
    ComClear->setGeometry(Pixels(inner / 2 - 967), Pixels(lines_ * kLineHeight + 600),
                          Pixels(kButtonWidth), Pixels(kButtonHeight));
    // "Clear Messages" has the middle, and what it leaves on its right is this one's.
    const int left = inner / 2 - 967 + kButtonWidth + kGap;
    const int room = inner - kGap / 2 - left;
    const int wanted = std::max(kLeastSnooze, Twips(ComSnooze->sizeHint().width()) + 2 * kGap);
    ComSnooze->setGeometry(Pixels(left), Pixels(lines_ * kLineHeight + 600),
                           Pixels(std::min(wanted, room)), Pixels(kButtonHeight));
    LabRemind[0]->hide();
    for (int i = 1; i <= kEventsPerDay; ++i) {
        QLabel* const label = LabRemind[static_cast<std::size_t>(i)];
        label->setVisible(!label->text().isEmpty());
        label->setGeometry(Pixels(150), Pixels(i * kLineHeight + 100), Pixels(inner - 300),
                           Pixels(kLineHeight));
    }
}

void ScreenReminder::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    Redraw();
}

void ScreenReminder::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        hide();
        return;
    }
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        ComClear_Click();
        return;
    }
    QWidget::keyPressEvent(event);
}

// A question about the lines has gone with them.
void ScreenReminder::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    if (minutes_ != nullptr && !event->spontaneous()) {
        minutes_->reject();
    }
}

void ScreenReminder::Dismiss() {
    StandBack();
    for (QLabel* const label : LabRemind) {
        label->clear();
    }
}

void ScreenReminder::Snooze(int minutes) {
    Dismiss();
    hooks_.Snooze(minutes);
}

void ScreenReminder::ComClear_Click() {
    Dismiss();
    // Last, for what has fallen due in this very minute comes up anew.
    hooks_.Clear();
}

} // namespace kestrova
