// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diary/ReminderDetails.h"
#include "language/ProgramTexts.h"
#include "mail/Invitation.h"
#include "mail/MailWindows.h"
#include "platform/Dialogs.h"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <array>
#include <functional>
#include <optional>

namespace kestrova {

class ScrolledContent;

// The mail window. It asks for the name and address of a mail reminder and for those of an
// invitation, and shows to whom a reminder is being sent. It serves one of them at a time; the user
// goes before a reminder.
class Email : public QDialog {
public:
    struct Hooks {
        // Sends the invitation, while events go on, and tells whether all of it has gone.
        std::function<bool(const std::string& name, const InvitedFriends& friends)> Send;
        std::function<void()> BreakOff;
        std::function<void()> OpenAccount;
    };

    Email(const StringTable& texts, Dialogs& boxes, Hooks hooks);

    // Lets the user give name and address, and returns when the window has been closed. Unless they
    // are given, the details are as they were. An invitation that is being typed comes back
    // afterwards; while one is being sent, the user is asked to wait.
    DetailsAnswer AskDetails(ReminderExtra& RmdExtra);

    // Opens the window for an invitation. Returns at once.
    void OpenInvitation(const std::string& name);

    // Shows to whom a reminder goes, without taking the keyboard, and gives back what is shown.
    // Nothing is shown while the user is at the window.
    MailPerson ShowReminder(const MailPerson& recipient);
    void HideReminder();

    void ShowSending(const std::string& address);
    void ShowSent(std::size_t friendNumber);
    void SetMailWindowMode(MailWindowMode mode) { mailWindowMode_ = mode; }

    void LoadCaptions();

    void reject() override { ComCancel_Click(); }

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    enum class Use { None, Details, Invitation, Reminder };
    enum class Keyboard { Take, Leave };
    struct Typed {
        QString Name;
        std::array<QString, kInvitedFriends> Addresses;
    };

    void Build();
    void Open(Use use, Keyboard keyboard);
    void Leave();
    [[nodiscard]] std::optional<Typed> TypedInvitation() const;
    void PutBack(const Typed& invitation);
    [[nodiscard]] bool Form_QueryUnload();
    [[nodiscard]] bool IsGoodAddress(int index);
    [[nodiscard]] QString Words(ProgramText text) const;
    void Complain(const std::string& text, QLineEdit& box);
    void SetSending(bool sending);
    void ComSend_Click();
    void ComCancel_Click();

    const StringTable& texts_;
    Dialogs& boxes_;
    Hooks hooks_;
    MailWindowMode mailWindowMode_ = MailWindowMode::Details;
    Use use_ = Use::None;
    bool sending_ = false;
    bool accepted_ = false;
    ReminderExtra rmdExtra_; // of the event being edited

    ScrolledContent* area_ = nullptr;
    QLabel* LabName = nullptr;
    QLabel* LabNotice = nullptr;
    QLabel* LabState = nullptr;
    QLineEdit* TextName = nullptr;
    std::array<QLabel*, kInvitedFriends> LabMail{};
    std::array<QLineEdit*, kInvitedFriends> TextMail{};
    QPushButton* ComAccount = nullptr;
    QPushButton* ComSend = nullptr;
    QPushButton* ComSave = nullptr;
    QPushButton* ComCancel = nullptr;
};

} // namespace kestrova
