// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/ProgramTexts.h"
#include "mail/MailWindows.h"
#include "platform/Dialogs.h"
#include "platform/Result.h"

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <functional>

namespace kestrova {

class ScrolledContent;

// The log-on dialog: the user's mail account and its password.
class MailLogOn : public QDialog {
public:
    struct Hooks {
        // Keeps what the user has typed. An empty password stands for the one that is known.
        std::function<Status(const MailAccount& account, const std::string& password)> Take;
        std::function<void()> Cancelled; // of a dialog that nobody waits for
    };

    MailLogOn(const StringTable& texts, Dialogs& boxes, Hooks hooks);

    // Shows the dialog and returns when it is closed. False when the user has cancelled.
    bool Ask(const LogOnOffer& offer);

    // Shows it without waiting and without taking the keyboard, unless it is shown already.
    void ShowOffer(const LogOnOffer& offer);

    void LoadCaptions();

    void reject() override;

private:
    void Build();
    void Fill(const LogOnOffer& offer);
    [[nodiscard]] MailAccount Typed() const;
    [[nodiscard]] bool Check(const MailAccount& account);
    [[nodiscard]] bool IsKnownPassword(const MailAccount& account) const;
    [[nodiscard]] QString Words(ProgramText text) const;
    void Complain(const std::string& text, QWidget& box);
    void ShowWarning();
    void CombSecurity_Click(int index);
    void ComSave_Click();

    const StringTable& texts_;
    Dialogs& boxes_;
    Hooks hooks_;
    LogOnOffer offer_;
    bool awaited_ = false;
    bool accepted_ = false;
    int usualPort_ = 0;

    ScrolledContent* area_ = nullptr;
    QLabel* LabIntro = nullptr;
    QLabel* LabWarning = nullptr;
    QLabel* LabServer = nullptr;
    QLabel* LabSecurity = nullptr;
    QLabel* LabPort = nullptr;
    QLabel* LabUser = nullptr;
    QLabel* LabPassword = nullptr;
    QLabel* LabSender = nullptr;
    QLabel* LabAddress = nullptr;
    QLineEdit* TextServer = nullptr;
    QComboBox* CombSecurity = nullptr;
    QLineEdit* TextPort = nullptr;
    QLineEdit* TextUser = nullptr;
    QLineEdit* TextPassword = nullptr;
    QLineEdit* TextSender = nullptr;
    QLineEdit* TextAddress = nullptr;
    QPushButton* ComSave = nullptr;
    QPushButton* ComCancel = nullptr;
};

} // namespace kestrova
