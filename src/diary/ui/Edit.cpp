// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/ui/Edit.h"

#include "language/ProgramTexts.h"
#include "language/ui/ApplyCaptions.h"
#include "platform/qt/QtText.h"
#include "ui/Twips.h"

#include <QFocusEvent>
#include <QScopedValueRollback>
#include <QScreen>

#include <algorithm>

namespace kestrova {

namespace {

constexpr TextId kEditorTitle{TextGroup::Captions, 3};
constexpr TextId kEnterDetails{TextGroup::Labels, 6};

constexpr int kWidth = 7200; // twips
constexpr int kHeight = 5400;
constexpr int kLeastHeight = 3600;
constexpr int kLabelHeight = 500;
constexpr int kLabelIndent = 6; // pixels

} // namespace

Edit::Edit(QWidget* parent, const Rooms& rooms) : QDialog(parent), rooms_(rooms) {
    setObjectName(QStringLiteral("Edit"));
    Label1 = new ClickLabel(this);
    Label1->setObjectName(QStringLiteral("Label1"));
    Label1->setIndent(kLabelIndent);
    Label1->setFocusPolicy(Qt::TabFocus);
    Label1->setCursor(Qt::PointingHandCursor);
    Label1->Clicked = [this] { Label1_Click(); };
    TextEditor = new QPlainTextEdit(this);
    TextEditor->setObjectName(QStringLiteral("TextEditor"));
    TextEditor->setTabChangesFocus(false);
    TextEditor->installEventFilter(this);
    LoadCaptions();
    resize(Pixels(kWidth), Pixels(kHeight));
}

void Edit::LoadCaptions() {
    ApplyCaptions(*this, rooms_.Texts,
                  rooms_.Settings.HelpTextOn != 0 ? TipTexts::Apply : TipTexts::Leave);
    setWindowTitle(ToQt(rooms_.Texts.Text(kEditorTitle)));
    TextEditor->setPlaceholderText(ToQt(rooms_.Texts.Text(kEnterDetails)));
    TextEditor->setAccessibleName(TextEditor->placeholderText());
    ShowSpeech();
}

void Edit::ShowSpeech() {
    const bool speaks = rooms_.Settings.SpeechEnabled != 0;
    Label1->setEnabled(speaks);
    Label1->setText(ToQt(
        TextOf(rooms_.Texts, speaks ? ProgramText::TalkToMe : ProgramText::SpeechNotInstalled)));
}

// The text as it was given, which the toolkit's own plain text is not: that has blanks in the place
// of hard ones.
std::string Edit::Text() const {
    QString text = TextEditor->document()->toRawText();
    text.replace(QChar::ParagraphSeparator, u'\n');
    text.replace(QChar::LineSeparator, u'\n'); // Shift and Enter
    text.replace(QChar::Null, u' ');           // a pasted one would make the note none
    return FromQt(text);
}

bool Edit::IsModified() const {
    return TextEditor->document()->isModified();
}

void Edit::OpenNote() {
    if (!isVisible()) {
        const bool opened = rooms_.Note.Open([this](const std::string& text) {
            TextEditor->setPlainText(ToQt(text));
            return Text() == text;
        });
        if (!opened) {
            Drop();
            return;
        }
        ShowSpeech();
        show();
    }
    raise();
    activateWindow();
    TextEditor->setFocus();
}

void Edit::StandBeside(const QWidget& window) {
    const QRect page = window.frameGeometry();
    const QRect room = window.screen()->availableGeometry();
    const int title = page.height() - window.height(); // a frame is as high here as there
    const int below = room.bottom() - page.bottom() - title;
    if (below >= Pixels(kLeastHeight)) {
        resize(width(), std::min(height(), below));
        move(page.left(), page.bottom() + 1);
    } else if (room.right() - page.right() >= width()) {
        move(page.right() + 1, page.top());
    }
}

bool Edit::SaveNote(SaveMessages messages) {
    if (saving_ || !IsModified()) {
        return true;
    }
    // A message takes the focus away, which is no reason to save again.
    const QScopedValueRollback<bool> guard(saving_, true);
    const bool saved = rooms_.Note.Save(Text(), messages);
    TextEditor->document()->setModified(!saved);
    return saved;
}

bool Edit::Leave() {
    if (saving_) {
        return false; // a message about this note is open
    }
    if (IsModified()) {
        const QScopedValueRollback<bool> guard(saving_, true);
        if (!rooms_.Note.Leave(Text())) {
            return false;
        }
    }
    Drop();
    return true;
}

void Edit::RememberNote() {
    if (IsModified()) {
        rooms_.Note.Remember(Text());
    }
}

void Edit::Drop() {
    TextEditor->document()->setModified(false);
    hide();
    TextEditor->clear();
    TextEditor->document()->setModified(false);
}

// The window's close button and Escape come here.
void Edit::reject() {
    (void)Leave();
}

void Edit::Label1_Click() {
    if (rooms_.Settings.SpeechEnabled != 0 && rooms_.Speak) {
        rooms_.Speak(Text());
    }
}

void Edit::Redraw() {
    if (isMinimized()) {
        return;
    }
    const int innerWidth = Twips(width());
    const int innerHeight = Twips(height());
    Label1->setGeometry(0, 0, width(), Pixels(kLabelHeight));
    TextEditor->setGeometry(Pixels(50), Pixels(kLabelHeight), Pixels(innerWidth - 100),
                            Pixels(innerHeight - 1000));
}

void Edit::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    Redraw();
}

// Speech may have been switched on or off while another window was in front.
void Edit::changeEvent(QEvent* event) {
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && Label1 != nullptr) {
        ShowSpeech();
    }
    QDialog::changeEvent(event);
}

bool Edit::eventFilter(QObject* watched, QEvent* event) {
    if (watched == TextEditor && event->type() == QEvent::FocusOut) {
        const auto reason = static_cast<QFocusEvent*>(event)->reason();
        // A menu of the editor's own is no leaving.
        if (reason != Qt::PopupFocusReason) {
            (void)SaveNote(SaveMessages::Show);
        }
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace kestrova
