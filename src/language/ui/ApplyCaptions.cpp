// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/ui/ApplyCaptions.h"

#include "language/Captions.h"
#include "platform/qt/QtText.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QWidget>

namespace kestrova {

namespace {

void SetCaption(QWidget& window, const QString& name, const QString& text) {
    for (QWidget* const widget : window.findChildren<QWidget*>(name)) {
        if (auto* const label = qobject_cast<QLabel*>(widget)) {
            label->setText(text);
        } else if (auto* const button = qobject_cast<QAbstractButton*>(widget)) {
            button->setText(text);
        } else if (auto* const menu = qobject_cast<QMenu*>(widget)) {
            menu->setTitle(text);
        }
    }
}

} // namespace

void ApplyCaptions(QWidget& window, const StringTable& table, TipTexts tips) {
    const std::string name = FromQt(window.objectName());
    for (const CaptionRow& row : CaptionRows()) {
        if (row.Window == name) {
            SetCaption(window, ToQt(row.Control), ToQt(table.Text(row.Text)));
        }
    }
    if (tips == TipTexts::Apply) {
        for (const CaptionRow& row : TipRows()) {
            auto* const widget =
                row.Window == name ? window.findChild<QWidget*>(ToQt(row.Control)) : nullptr;
            if (widget != nullptr) {
                widget->setToolTip(ToQt(table.Text(row.Text)));
            }
        }
    }
    QFont font = QApplication::font();
    if (!table.LanguageFont.empty()) {
        font.setFamily(ToQt(table.LanguageFont));
    }
    window.setFont(font);
}

} // namespace kestrova
