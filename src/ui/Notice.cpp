// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Notice.h"

#include <QMessageBox>

namespace kestrova {

namespace {

constexpr qsizetype kLongest = 2000; // characters: what comes after that pushes out what was first

} // namespace

Notice::Notice() = default;

Notice::~Notice() = default;

void Notice::Tell(const QString& title, const QString& text) {
    const QString standing = box_ && box_->isVisible() ? box_->text() : QString();
    if (!standing.isEmpty() && standing.endsWith(text)) {
        return; // still to be read
    }
    box_ = std::make_unique<QMessageBox>();
    box_->setObjectName(QStringLiteral("Notice"));
    box_->setWindowTitle(title);
    box_->setTextFormat(Qt::PlainText); // it may quote a file's name or a server's words
    const QString whole = standing.isEmpty() ? text : standing + QStringLiteral("\n\n") + text;
    box_->setText(whole.right(kLongest));
    box_->setIcon(QMessageBox::Critical);
    box_->setWindowFlag(Qt::WindowStaysOnTopHint);
    box_->setAttribute(Qt::WA_ShowWithoutActivating);
    box_->setAttribute(Qt::WA_QuitOnClose, false);
    box_->setWindowModality(Qt::NonModal);
    box_->show();
}

} // namespace kestrova
