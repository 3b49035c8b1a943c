// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/ui/ScreenReminder.h"

#include "language/Texts.h"
#include "language/ui/ApplyCaptions.h"
#include "platform/qt/QtText.h"
#include "ui/Names.h"
#include "ui/PlainTip.h"
#include "ui/Twips.h"

#include <QApplication>
#include <QFrame>
#include <QKeyEvent>

#include <algorithm>

namespace kestrova {

namespace {

constexpr int kWidth = 6600; // twips
constexpr int kLineHeight = 255;
constexpr int kButtonWidth = 1934;
constexpr int kButtonHeight = 500;

} // namespace

ScreenReminder::ScreenReminder(const StringTable& texts, std::function<void()> clear)
    : texts_(texts), clear_(std::move(clear)) {
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
    LoadCaptions();
    setMinimumWidth(Pixels(kWidth) / 2);
    resize(Pixels(kWidth), height());
}

void ScreenReminder::LoadCaptions() {
    ApplyCaptions(*this, texts_, TipTexts::Leave);
    setWindowTitle(ToQt(texts_.Text(texts::kMessengerTitle)));
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

void ScreenReminder::ComClear_Click() {
    hide();
    setEnabled(false);
    for (QLabel* const label : LabRemind) {
        label->clear();
    }
    // Last, for what has fallen due in this very minute comes up anew.
    clear_();
}

} // namespace kestrova
