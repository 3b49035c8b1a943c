// SPDX-License-Identifier: GPL-3.0-or-later
#include "phone/ui/Modem.h"

#include "language/Texts.h"
#include "language/ui/ApplyCaptions.h"
#include "phone/ui/NumberBox.h"
#include "platform/qt/QtText.h"
#include "settings/SettingsRules.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QShowEvent>
#include <QSignalBlocker>

#include <algorithm>
#include <chrono>

namespace kestrova {

namespace {

constexpr int kLeastRepeat = 2; // minutes
constexpr int kLongestRepeat = 999;

// As long as a user may leave a window open.
constexpr std::chrono::hours kPatience(24 * 20);

} // namespace

QString Modem::Words(ProgramText text) const {
    return ToQt(TextOf(rooms_.Texts, text));
}

void Modem::LoadCaptions() {
    ApplyCaptions(*this, rooms_.Texts,
                  rooms_.Settings.HelpTextOn != 0 ? TipTexts::Apply : TipTexts::Remove);
    setWindowTitle(ToQt(rooms_.Texts.Text(texts::kPhoneTitle)));
    ComStop->setText(Words(ProgramText::StopCall));
    TextLog->setAccessibleName(Words(ProgramText::CallLog));
    CombPhone->setAccessibleName(LabPhoneNumber->text());
    TextRpt->setAccessibleName(LabRpt->text() + QLatin1Char(' ') + LabMins->text());
}

DetailsAnswer Modem::AskPhoneNumbers(ReminderExtra& extra) {
    if (asking_) {
        return DetailsAnswer::NotNow;
    }
    const bool own = std::any_of(extra.begin(), extra.end(),
                                 [](const std::string& number) { return !number.empty(); });
    if (rooms_.Caller.IsBusy()) {
        // The call could not end while its own window is waited for.
        if (!own) {
            rooms_.Boxes.Show({rooms_.Texts.Text(texts::kMessengerTitle),
                               TextOf(rooms_.Texts, ProgramText::CallUnderWay), DialogIcon::None});
        }
        return own ? DetailsAnswer::Given : DetailsAnswer::NotNow;
    }
    const QScopedValueRollback<bool> guard(asking_, true);
    extra_ = extra;
    ShowNumbers(own ? extra : rooms_.Settings.StoredNumbers);
    // The event being edited stays as it is while its numbers are asked for.
    setWindowModality(Qt::ApplicationModal);
    setEnabled(true);
    if (!calling_) {
        show();
    }
    raise();
    activateWindow();
    CombPhone->setFocus();
    rooms_.Loop.WaitUntil([this] { return !isVisible() && !calling_; }, kPatience);
    const bool closed = !isVisible();
    asking_ = false;
    hide();
    setWindowModality(Qt::NonModal);
    extra = extra_;
    return closed && rooms_.Caller.Modem() == ModemState::On ? DetailsAnswer::Given
                                                             : DetailsAnswer::SwitchedOff;
}

void Modem::ShowNumbers(const std::array<std::string, 4>& numbers) {
    numbers_.Fill(numbers);
    ShowList(numbers_.List().empty() ? QString() : ToQt(numbers_.List().front()));
    TextRpt->setText(ToQt(rooms_.Settings.PhoneRepeat));
    OptionBeep->setChecked(rooms_.Settings.BeepAcknowledge != 0);
    OptionSpeak->setChecked(rooms_.Settings.BeepAcknowledge == 0);
}

// Shows the list as it is now, and this text in the box.
void Modem::ShowList(const QString& text) {
    const QSignalBlocker quiet(CombPhone);
    CombPhone->clear();
    for (const std::string& number : numbers_.List()) {
        CombPhone->addItem(ToQt(number));
    }
    if (!numbers_.List().empty()) {
        CombPhone->setCurrentIndex(static_cast<int>(numbers_.Selected()));
    }
    CombPhone->setEditText(text);
    acceptedNumber_ = text;
}

void Modem::CombPhone_Change(const QString& text) {
    if (IsDigits(FromQt(text))) {
        acceptedNumber_ = text;
        return;
    }
    const int cursor = CombPhone->lineEdit()->cursorPosition();
    const qsizetype typed = text.size() - acceptedNumber_.size();
    const QSignalBlocker quiet(CombPhone);
    CombPhone->setEditText(acceptedNumber_);
    CombPhone->lineEdit()->setCursorPosition(
        std::max(0, cursor - static_cast<int>(std::max<qsizetype>(typed, 0))));
}

void Modem::CombPhone_Click(int index) {
    numbers_.Select(static_cast<std::size_t>(index));
    acceptedNumber_ = CombPhone->itemText(index);
    CombPhone->setEditText(acceptedNumber_);
}

void Modem::CombPhone_DropDown() {
    const QString text = CombPhone->currentText();
    numbers_.Opened(FromQt(text));
    ShowList(text);
}

void Modem::CombPhone_LostFocus() {
    const QString text = CombPhone->currentText();
    numbers_.Left(FromQt(text));
    ShowList(text);
}

void Modem::TextRpt_Change() {
    if (IsRepeatMinutes(FromQt(TextRpt->text()))) {
        rooms_.Settings.PhoneRepeat = FromQt(TextRpt->text());
    } else {
        TextRpt->setText(ToQt(rooms_.Settings.PhoneRepeat));
        TextRpt->selectAll(); // so that the next key replaces what cannot be typed digit by digit
    }
}

void Modem::StepRepeat(int minutes) {
    const int stepped = std::clamp(TextRpt->text().toInt() + minutes, kLeastRepeat, kLongestRepeat);
    TextRpt->setText(QString::number(stepped));
    TextRpt_Change();
}

void Modem::StoreNumbers() {
    const auto stored = numbers_.Stored();
    for (std::size_t i = 1; i < stored.size(); ++i) {
        rooms_.Settings.StoredNumbers[i] = stored[i];
        extra_[i] = stored[i];
    }
}

// Whether the user says that these are the right numbers.
bool Modem::ConfirmNumbers() {
    const bool confirmed =
        rooms_.Boxes.Ask({rooms_.Texts.Text(texts::kMessengerTitle),
                          NumbersWarning(rooms_.Texts, numbers_), DialogIcon::None},
                         {});
    if (confirmed && hooks_.Saved) {
        hooks_.Saved();
    }
    return confirmed;
}

void Modem::ComSave_Click() {
    if (asked_ || calling_) {
        return;
    }
    const QScopedValueRollback<bool> guard(asked_, true);
    CombPhone_LostFocus(); // Enter comes here without leaving the box
    StoreNumbers();
    if (!numbers_.AreValid()) {
        rooms_.Boxes.Show({rooms_.Texts.Text(texts::kMessengerTitle),
                           rooms_.Texts.Text(texts::kInvalidNumber), DialogIcon::Critical});
    } else if (ConfirmNumbers()) {
        hide();
    }
}

void Modem::ComTestCall_Click() {
    const std::string number = numbers_.ToDial(FromQt(CombPhone->currentText()));
    if (number.empty() || !numbers_.AreValid() || !IsDigits(number)) {
        rooms_.Boxes.Show({rooms_.Texts.Text(texts::kMessengerTitle),
                           rooms_.Texts.Text(texts::kInvalidNumber), DialogIcon::Critical});
        return;
    }
    if (rooms_.Caller.IsBusy()) {
        return;
    }
    ComTestCall->setEnabled(false);
    rooms_.Caller.SendMessage(DialString(number, rooms_.Settings.ModemName),
                              hooks_.TestText ? hooks_.TestText()
                                              : TextOf(rooms_.Texts, ProgramText::SpeechSample));
    ComTestCall->setEnabled(!calling_);
}

// Whether the window may go.
bool Modem::Form_QueryUnload() {
    CombPhone_LostFocus();
    if (numbers_.AreValid()) {
        StoreNumbers(); // the question says that these will be called
        return ConfirmNumbers();
    }
    const bool correct =
        rooms_.Boxes.Ask({rooms_.Texts.Text(texts::kMessengerTitle),
                          rooms_.Texts.Text(texts::kInvalidNumber), DialogIcon::None},
                         {});
    if (correct) {
        return false;
    }
    rooms_.Settings.StoredNumbers = {};
    extra_ = {};
    rooms_.Caller.SwitchOff();
    return true;
}

void Modem::reject() {
    if (calling_) {
        rooms_.Caller.Stop();
        return;
    }
    if (asked_) {
        return;
    }
    const QScopedValueRollback<bool> guard(asked_, true);
    if (Form_QueryUnload()) {
        hide();
    }
}

void Modem::SetCalling(bool calling) {
    calling_ = calling;
    for (QWidget* const control :
         {static_cast<QWidget*>(CombPhone), static_cast<QWidget*>(TextRpt),
          static_cast<QWidget*>(OptionSpeak), static_cast<QWidget*>(OptionBeep),
          static_cast<QWidget*>(ComTestCall), static_cast<QWidget*>(ComSave)}) {
        control->setEnabled(!calling);
    }
    TextLog->setVisible(calling);
    ComStop->setVisible(calling);
    if (calling) {
        setCursor(Qt::BusyCursor);
    } else {
        unsetCursor();
    }
    adjustSize(); // the log comes and goes
}

void Modem::CallBegins(const std::string& number) {
    TextLog->clear();
    SetCalling(true);
    setEnabled(true);
    if (!isVisible()) {
        // A call that the clock has begun must not take the keys from what the user is typing.
        setAttribute(Qt::WA_ShowWithoutActivating, true);
        show();
        setAttribute(Qt::WA_ShowWithoutActivating, false);
        raise();
    }
    if (!asking_) {
        CombPhone->setEditText(ToQt(number));
    }
    ComStop->setFocus();
}

void Modem::Print(const std::string& line) {
    TextLog->appendPlainText(ToQt(line));
}

void Modem::CallEnds() {
    hide();
    SetCalling(false);
    if (asking_) {
        show(); // its user has not confirmed the numbers yet
        activateWindow();
        CombPhone->setFocus();
    }
}

// What is shown is what is stored, unless a reminder's numbers are asked for.
void Modem::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (!event->spontaneous() && !asking_) {
        ShowNumbers(rooms_.Settings.StoredNumbers);
    }
}

bool Modem::eventFilter(QObject* watched, QEvent* event) {
    if (watched == TextRpt && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down) {
            StepRepeat(key == Qt::Key_Up ? 1 : -1);
            return true;
        }
    }
    if (watched == CombPhone->lineEdit() && event->type() == QEvent::FocusOut &&
        static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason) {
        CombPhone_LostFocus();
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace kestrova
