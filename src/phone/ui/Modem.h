// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diary/ReminderDetails.h"
#include "language/ProgramTexts.h"
#include "phone/CallScreen.h"
#include "phone/PhoneNumbers.h"
#include "phone/VoiceCaller.h"
#include "platform/Dialogs.h"
#include "platform/EventLoop.h"
#include "settings/AppSettings.h"

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>

#include <array>
#include <functional>
#include <string>

namespace kestrova {

class NumberBox;

// The phone numbers window: up to three numbers for a telephone reminder, how the message is given,
// how often a missed call is repeated, and a test call. While a call runs it shows how the call
// goes and lets the user stop it. Closing the window hides it, but not before the user has
// confirmed the numbers.
class Modem : public QDialog, public CallScreen {
public:
    struct Rooms {
        AppSettings& Settings;
        const StringTable& Texts;
        Dialogs& Boxes;
        EventLoop& Loop;
        VoiceCaller& Caller;
    };

    struct Hooks {
        std::function<std::string()> TestText; // what a test call says
        std::function<void()> Saved;           // the numbers have been confirmed
    };

    Modem(QWidget* parent, const Rooms& rooms, Hooks hooks);

    // Lets the user give the numbers for a reminder; returns when the window is closed. The list
    // begins with the reminder's own numbers, or, where it has none, with those given last. They
    // are left in `extra`, from 1 on. False when the user has switched telephoning off instead.
    DetailsAnswer AskPhoneNumbers(ReminderExtra& extra);

    void LoadCaptions();

    // CallScreen
    void CallBegins(const std::string& number) override;
    void Print(const std::string& line) override;
    void CallEnds() override;

    // Escape and the window's close button: a call is stopped; else the window goes when the user
    // has confirmed the numbers.
    void reject() override;

protected:
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildControls();
    void Arrange();
    void Connect();
    void ShowNumbers(const std::array<std::string, 4>& numbers);
    void ShowList(const QString& text);
    void SetCalling(bool calling);
    void StepRepeat(int minutes);
    void StoreNumbers();
    [[nodiscard]] bool ConfirmNumbers();
    [[nodiscard]] QString Words(ProgramText text) const;

    void CombPhone_Change(const QString& text);
    void CombPhone_Click(int index);
    void CombPhone_DropDown();
    void CombPhone_LostFocus();
    void TextRpt_Change();
    void ComSave_Click();
    void ComTestCall_Click();
    bool Form_QueryUnload();

    Rooms rooms_;
    Hooks hooks_;
    PhoneNumbers numbers_;
    std::array<std::string, 4> extra_; // RmdExtra of the reminder that is being edited
    QString acceptedNumber_;
    bool asking_ = false;  // the numbers of a reminder are asked for
    bool calling_ = false; // a call runs
    bool asked_ = false;   // a question about the numbers is open

    QLabel* LabPhoneNumber = nullptr;
    QLabel* LabRpt = nullptr;
    QLabel* LabMins = nullptr;
    NumberBox* CombPhone = nullptr;
    QRadioButton* OptionSpeak = nullptr;
    QRadioButton* OptionBeep = nullptr;
    QLineEdit* TextRpt = nullptr;
    QPlainTextEdit* TextLog = nullptr;
    QPushButton* ComTestCall = nullptr;
    QPushButton* ComStop = nullptr;
    QPushButton* ComSave = nullptr;
};

} // namespace kestrova
