// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/ui/ApplyCaptions.h"

#include "language/Captions.h"
#include "platform/qt/QtText.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QSignalBlocker>
#include <QWidget>

#include <algorithm>

namespace kestrova {

namespace {

void SetCaption(QWidget& window, const QString& name, const QString& text) {
    for (QWidget* const widget : window.findChildren<QWidget*>(name)) {
        if (auto* const label = qobject_cast<QLabel*>(widget)) {
            label->setText(text);
        } else if (auto* const button = qobject_cast<QAbstractButton*>(widget)) {
            button->setText(text);
        } else if (auto* const frame = qobject_cast<QGroupBox*>(widget)) {
            frame->setTitle(text);
        } else if (auto* const menu = qobject_cast<QMenu*>(widget)) {
            menu->setTitle(text);
        }
    }
}

// The user's choice has not changed, only its name has: nobody is told.
void Refill(QComboBox& list, const StringTable& table, const ItemList& items) {
    const QSignalBlocker quiet(list);
    const int chosen = std::max(list.currentIndex(), 0);
    list.clear();
    for (int i = 0; i < items.Count; ++i) {
        list.addItem(ToQt(table.Text(items.Item(i))));
    }
    list.setCurrentIndex(chosen);
}

} // namespace

void ApplyTips(QWidget& window, const StringTable& table, TipTexts tips) {
    if (tips == TipTexts::Leave) {
        return;
    }
    const std::string name = FromQt(window.objectName());
    for (const CaptionRow& row : TipRows()) {
        auto* const widget =
            row.Window == name ? window.findChild<QWidget*>(ToQt(row.Control)) : nullptr;
        if (widget != nullptr) {
            widget->setToolTip(tips == TipTexts::Apply ? ToQt(table.Text(row.Text)) : QString());
        }
    }
}

void ApplyCaptions(QWidget& window, const StringTable& table, TipTexts tips) {
    const std::string name = FromQt(window.objectName());
    for (const CaptionRow& row : CaptionRows()) {
        if (row.Window == name) {
            SetCaption(window, ToQt(row.Control), ToQt(table.Text(row.Text)));
        }
    }
    for (const ListRow& row : ListRows()) {
        auto* const list =
            row.Window == name ? window.findChild<QComboBox*>(ToQt(row.Control)) : nullptr;
        if (list != nullptr) {
            Refill(*list, table, row.Items);
        }
    }
    ApplyTips(window, table, tips);
    QFont font = QApplication::font();
    if (!table.LanguageFont.empty()) {
        font.setFamily(ToQt(table.LanguageFont));
    }
    window.setFont(font);
}

} // namespace kestrova
