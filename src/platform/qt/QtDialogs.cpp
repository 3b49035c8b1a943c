// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/QtDialogs.h"

#include "platform/qt/QtText.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QFontDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

#include <algorithm>

namespace kestrova {

namespace {

QMessageBox::Icon IconOf(DialogIcon icon) {
    switch (icon) {
    case DialogIcon::None: return QMessageBox::NoIcon;
    case DialogIcon::Critical: return QMessageBox::Critical;
    case DialogIcon::Question: return QMessageBox::Question;
    }
    return QMessageBox::NoIcon;
}

void Fill(QMessageBox& box, const Message& message) {
    box.setObjectName(QStringLiteral("MsgBox"));
    box.setWindowTitle(ToQt(message.Title));
    // A message may quote a file's name or a user's text: it must not be taken for markup.
    box.setTextFormat(Qt::PlainText);
    box.setText(ToQt(message.Text));
    box.setIcon(IconOf(message.Icon));
    // Over a program that is hidden, or behind others, a box would wait where nobody sees it.
    if (box.parentWidget() == nullptr) {
        box.setWindowFlag(Qt::WindowStaysOnTopHint);
    }
}

// "Caption|*.a;*.b" as the toolkit wants it: "Caption (*.a *.b)".
QString FilterOf(const std::string& filter) {
    const std::size_t bar = filter.find('|');
    const QString caption = ToQt(filter.substr(0, bar)).section(u'(', 0, 0).trimmed();
    QString patterns = bar == std::string::npos ? QString() : ToQt(filter.substr(bar + 1));
    patterns.replace(u';', u' ');
    return QStringLiteral("%1 (%2)").arg(caption, patterns);
}

QColor ColourOf(std::int32_t number) {
    return {number & 0xFF, number >> 8 & 0xFF, number >> 16 & 0xFF};
}

std::int32_t NumberOf(const QColor& colour) {
    return colour.red() + 256 * colour.green() + 65536 * colour.blue();
}

} // namespace

void QtDialogs::Show(const Message& message) {
    QMessageBox box(QApplication::activeWindow());
    Fill(box, message);
    box.setStandardButtons(QMessageBox::Ok);
    box.exec();
}

bool QtDialogs::Ask(const Message& message, const AnswerCaptions& captions) {
    QMessageBox box(QApplication::activeWindow());
    Fill(box, message);
    QPushButton* const yes = captions.Yes.empty()
                                 ? box.addButton(QMessageBox::Ok)
                                 : box.addButton(ToQt(captions.Yes), QMessageBox::AcceptRole);
    QPushButton* const no = captions.No.empty()
                                ? box.addButton(QMessageBox::Cancel)
                                : box.addButton(ToQt(captions.No), QMessageBox::RejectRole);
    box.setDefaultButton(captions.Default == DefaultAnswer::Yes ? yes : no);
    box.setEscapeButton(no);
    box.exec();
    return box.clickedButton() == yes;
}

std::size_t QtDialogs::AskAmong(const Message& message, const std::vector<std::string>& captions) {
    QMessageBox box(QApplication::activeWindow());
    Fill(box, message);
    std::vector<QAbstractButton*> buttons;
    for (const std::string& caption : captions) {
        const bool isLast = buttons.size() + 1 == captions.size();
        buttons.push_back(box.addButton(ToQt(caption), isLast ? QMessageBox::RejectRole
                                                              : QMessageBox::ActionRole));
    }
    box.setDefaultButton(qobject_cast<QPushButton*>(buttons.front()));
    box.setEscapeButton(buttons.back());
    box.exec();
    const auto clicked = std::find(buttons.begin(), buttons.end(), box.clickedButton());
    return clicked == buttons.end() ? buttons.size() - 1
                                    : static_cast<std::size_t>(clicked - buttons.begin());
}

std::optional<std::string> QtDialogs::Input(const std::string& title, const std::string& prompt,
                                            const std::string& offered) {
    bool accepted = false;
    const QString answer =
        QInputDialog::getText(QApplication::activeWindow(), ToQt(title), ToQt(prompt),
                              QLineEdit::Normal, ToQt(offered), &accepted);
    return accepted ? std::optional(FromQt(answer)) : std::nullopt;
}

std::optional<std::string> QtDialogs::OpenFile(const std::string& folder,
                                               const std::string& filter) {
    const QString path = QFileDialog::getOpenFileName(QApplication::activeWindow(), QString(),
                                                      ToQt(folder), FilterOf(filter));
    return path.isEmpty() ? std::nullopt : std::optional(FromQt(path));
}

std::optional<std::string> QtDialogs::SaveFile(const std::string& folder,
                                               const std::string& filter) {
    QFileDialog dialog(QApplication::activeWindow(), QString(), ToQt(folder), FilterOf(filter));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    // With a suffix of its own the dialog asks about the file that will be written, not about the
    // name without it.
    const QString endings = ToQt(filter).section(QLatin1Char('|'), 1);
    dialog.setDefaultSuffix(endings.section(QLatin1Char(';'), 0, 0).remove(QLatin1String("*.")));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return std::nullopt;
    }
    return FromQt(dialog.selectedFiles().first());
}

std::optional<std::int32_t> QtDialogs::ChooseColour(std::int32_t offered) {
    const QColor colour = QColorDialog::getColor(ColourOf(offered), QApplication::activeWindow());
    return colour.isValid() ? std::optional(NumberOf(colour)) : std::nullopt;
}

std::optional<FontChoice> QtDialogs::ChooseFont(const FontChoice& offered) {
    QFont font(ToQt(offered.Family));
    font.setPointSizeF(offered.Size);
    font.setBold(offered.Bold);
    font.setItalic(offered.Italic);
    bool accepted = false;
    font = QFontDialog::getFont(&accepted, font, QApplication::activeWindow());
    if (!accepted) {
        return std::nullopt;
    }
    return FontChoice{FromQt(font.family()), static_cast<float>(font.pointSizeF()), font.bold(),
                      font.italic()};
}

} // namespace kestrova
