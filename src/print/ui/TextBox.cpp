// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/ui/TextBox.h"

#include "platform/qt/QtText.h"
#include "ui/Look.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QTextDocument>
#include <QTextOption>

#include <algorithm>
#include <cmath>
#include <memory>

namespace kestrova {

namespace {

constexpr int kFrame = 2;       // pixels
constexpr int kRoomToType = 60; // pixels, at least
constexpr double kTwipsPerInch = 1440;
constexpr double kPointsPerInch = 72;

// What lies under the text must not hide it: light for dark letters, dark for light ones.
QColor GroundFor(const QColor& letters) {
    return look::Faded(letters.lightnessF() > 0.6F ? QColor(40, 40, 40) : QColor(Qt::white), 0.92);
}

QColor ColourOf(std::int32_t number) {
    return {number & 0xFF, number >> 8 & 0xFF, number >> 16 & 0xFF};
}

} // namespace

TextBox::TextBox(QWidget* viewport) : QTextEdit(viewport) {
    setObjectName(QStringLiteral("TextEdit"));
    setAcceptRichText(false);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTabChangesFocus(false);
    document()->setDocumentMargin(0);
    hide();
    connect(this, &QTextEdit::textChanged, this, [this] {
        Grow();
        if (isVisible() && Typed) {
            Typed();
        }
    });
}

void TextBox::LoadTextEdit(const LayoutItem& item, Lines lines) {
    lines_ = lines;
    setLineWrapMode(lines == Lines::Broken ? WidgetWidth : NoWrap);
    QTextOption option = document()->defaultTextOption();
    option.setAlignment(lines == Lines::Centred ? Qt::AlignHCenter : Qt::AlignLeft);
    document()->setDefaultTextOption(option);
    setPlainText(ToQt(item.Caption).remove(QLatin1Char('\r')));
    selectAll();
    show();
    raise();
    setFocus();
}

void TextBox::SetLooks(const LayoutItem& item, double scale) {
    QFont font(ToQt(item.FontName));
    // A point is so many pixels of the page as it is shown, whatever the desktop takes it for.
    const double pixels = item.FontSize * kTwipsPerInch / kPointsPerInch * scale;
    font.setPointSizeF(std::max(1.0, pixels * kPointsPerInch / logicalDpiY()));
    font.setBold(item.FontBold);
    font.setItalic(item.FontItalic);
    const QColor letters = ColourOf(item.ForeColor);
    const QColor ground = GroundFor(letters);
    const QString look =
        QStringLiteral("#TextEdit { color: %1; background: %2; border: %3px solid %4; }")
            .arg(letters.name(), ground.name(QColor::HexArgb))
            .arg(kFrame)
            .arg(look::Accent(parentWidget()->palette()).name());
    if (styleSheet() != look) {
        setStyleSheet(look);
    }
    document()->setDefaultFont(font);
    Grow();
}

void TextBox::Place(const QRectF& place) {
    place_ = place.toAlignedRect().adjusted(-kFrame, -kFrame, kFrame, kFrame);
    Grow();
}

// The box grows with what is typed: downwards, and where lines stay whole also sideways.
void TextBox::Grow() {
    QRect place = place_;
    if (lines_ == Lines::Broken) {
        place.setWidth(std::max(place.width(), kRoomToType));
        document()->setTextWidth(place.width() - 2 * kFrame);
    } else {
        const int wide = static_cast<int>(std::ceil(document()->idealWidth())) + 2 * kFrame;
        const int more = std::max(wide + cursorWidth(), kRoomToType) - place.width();
        const int before = lines_ == Lines::Centred ? more / 2 : 0;
        if (more > 0) {
            place.adjust(-before, 0, more - before, 0);
        }
    }
    const int high = static_cast<int>(std::ceil(document()->size().height())) + 2 * kFrame;
    place.setHeight(std::max(place.height(), high));
    setGeometry(place);
}

std::string TextBox::Caption() const {
    return FromQt(toPlainText().replace(QLatin1Char('\n'), QLatin1String("\r\n")));
}

void TextBox::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Escape) {
        Cancelled();
    } else if (enter && event->modifiers().testFlag(Qt::ControlModifier)) {
        Accepted();
    } else {
        QTextEdit::keyPressEvent(event);
    }
}

void TextBox::mouseDoubleClickEvent(QMouseEvent* event) {
    QTextEdit::mouseDoubleClickEvent(event);
    DoubleClicked();
}

// The page's own menu is not for what is typed.
void TextBox::contextMenuEvent(QContextMenuEvent* event) {
    const std::unique_ptr<QMenu> menu(createStandardContextMenu());
    menu->exec(event->globalPos());
    event->accept();
}

} // namespace kestrova
