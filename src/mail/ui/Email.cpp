// SPDX-License-Identifier: GPL-3.0-or-later
#include "mail/ui/Email.h"

#include "language/Texts.h"
#include "language/ui/ApplyCaptions.h"
#include "mail/ui/UntilClosed.h"
#include "platform/qt/QtText.h"
#include "ui/Look.h"
#include "ui/Names.h"
#include "ui/ScrolledContent.h"

#include <QBoxLayout>
#include <QCloseEvent>
#include <QFormLayout>

#include <algorithm>

namespace kestrova {

namespace {

constexpr int kBoxWidth = 340;
constexpr std::size_t kName = 1; // where the details hold the name and the address
constexpr std::size_t kAddress = 2;

QString Trimmed(const QLineEdit& box) {
    return box.text().trimmed();
}

} // namespace

Email::Email(const StringTable& texts, Dialogs& boxes, Hooks hooks)
    : texts_(texts), boxes_(boxes), hooks_(std::move(hooks)) {
    setObjectName(QStringLiteral("Email"));
    setAttribute(Qt::WA_QuitOnClose, false);
    Build();
    connect(ComAccount, &QPushButton::clicked, this, [this] { hooks_.OpenAccount(); });
    connect(ComSend, &QPushButton::clicked, this, [this] { ComSend_Click(); });
    connect(ComSave, &QPushButton::clicked, this, [this] { close(); });
    connect(ComCancel, &QPushButton::clicked, this, [this] { ComCancel_Click(); });
    LoadCaptions();
}

void Email::Build() {
    auto* const content = new QWidget(this);
    auto* const column = new QVBoxLayout(content);
    column->setContentsMargins(look::kMargin, look::kMargin, look::kMargin, look::kMargin);
    column->setSpacing(look::kMargin);
    const auto label = [content](const QString& name) {
        auto* const made = new QLabel(content);
        made->setObjectName(name);
        made->setTextFormat(Qt::PlainText);
        return made;
    };
    auto* const form = new QFormLayout;
    form->setSpacing(look::kSpacing);
    LabName = label(QStringLiteral("LabName"));
    TextName = Named(new QLineEdit(content), "TextName");
    TextName->setMaxLength(static_cast<int>(kLongestName));
    TextName->setMinimumWidth(kBoxWidth);
    LabName->setBuddy(TextName);
    form->addRow(LabName, TextName);
    for (std::size_t i = 0; i < kInvitedFriends; ++i) {
        LabMail[i] = label(ArrayName("LabMail", static_cast<int>(i)));
        TextMail[i] = new QLineEdit(content);
        TextMail[i]->setObjectName(ArrayName("TextMail", static_cast<int>(i)));
        TextMail[i]->setMaxLength(static_cast<int>(kLongestAddress));
        LabMail[i]->setBuddy(TextMail[i]);
        form->addRow(LabMail[i], TextMail[i]);
    }
    LabNotice = label(QStringLiteral("LabNotice"));
    LabNotice->setWordWrap(true);
    LabState = label(QStringLiteral("LabState"));
    LabState->setWordWrap(true);
    const auto button = [content](const char* name) {
        auto* const made = Named(new QPushButton(content), name);
        made->setAutoDefault(false); // Enter is the default button's, wherever the keyboard is
        return made;
    };
    ComAccount = button("ComAccount");
    ComSend = button("ComSend");
    ComSave = button("ComSave");
    ComCancel = button("ComCancel");
    auto* const row = new QHBoxLayout;
    row->setSpacing(look::kSpacing);
    row->addWidget(ComAccount);
    row->addStretch(1);
    row->addWidget(ComSend);
    row->addWidget(ComSave);
    row->addWidget(ComCancel);
    column->addLayout(form);
    column->addWidget(LabNotice);
    column->addWidget(LabState);
    column->addStretch(1);
    column->addLayout(row);
    area_ = new ScrolledContent(content, this);
    auto* const whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(area_);
}

QString Email::Words(ProgramText text) const {
    return ToQt(TextOf(texts_, text));
}

void Email::LoadCaptions() {
    ApplyCaptions(*this, texts_, TipTexts::Leave);
    setWindowTitle(ToQt(texts_.Text(texts::kMessengerTitle)));
    ComAccount->setText(Words(ProgramText::MenuMailAccount));
    ComSend->setText(Words(ProgramText::MailSend));
    for (std::size_t i = 0; i < kInvitedFriends; ++i) {
        // One label five times over would not tell which box a screen reader is in.
        TextMail[i]->setAccessibleName(LabMail[i]->text() + QStringLiteral(" %1").arg(i + 1));
    }
}

void Email::Open(Use use, Keyboard keyboard) {
    use_ = use;
    accepted_ = false;
    const bool invites = use == Use::Invitation;
    const bool asks = use != Use::Reminder;
    for (std::size_t i = 0; i < kInvitedFriends; ++i) {
        LabMail[i]->setVisible(i == 0 || invites);
        TextMail[i]->setVisible(i == 0 || invites);
        TextMail[i]->setReadOnly(!asks);
    }
    TextName->setReadOnly(!asks);
    LabNotice->setVisible(asks);
    LabState->clear();
    ComAccount->setVisible(asks);
    ComSend->setVisible(invites);
    ComSave->setVisible(use == Use::Details);
    ComCancel->setVisible(asks);
    ComSend->setDefault(invites);
    ComSave->setDefault(use == Use::Details);
    setAttribute(Qt::WA_ShowWithoutActivating, keyboard == Keyboard::Leave);
    resize(1, 1); // the last use may have made it larger
    area_->FitWindow();
    show();
    raise();
    if (keyboard == Keyboard::Take) {
        activateWindow();
        TextName->setFocus();
    }
}

void Email::Leave() {
    use_ = Use::None;
    hide();
}

std::optional<Email::Typed> Email::TypedInvitation() const {
    if (use_ != Use::Invitation) {
        return std::nullopt;
    }
    Typed typed{TextName->text(), {}};
    std::transform(TextMail.begin(), TextMail.end(), typed.Addresses.begin(),
                   [](const QLineEdit* box) { return box->text(); });
    return typed;
}

void Email::PutBack(const Typed& invitation) {
    TextName->setText(invitation.Name);
    for (std::size_t i = 0; i < kInvitedFriends; ++i) {
        TextMail[i]->setText(invitation.Addresses[i]);
    }
    mailWindowMode_ = MailWindowMode::Unchecked;
    Open(Use::Invitation, Keyboard::Leave); // the user is at the diary
}

DetailsAnswer Email::AskDetails(ReminderExtra& RmdExtra) {
    if (use_ == Use::Details) {
        raise(); // the user is there already
        activateWindow();
        return DetailsAnswer::NotNow;
    }
    if (sending_) {
        boxes_.Show({texts_.Text(texts::kMessengerTitle), TextOf(texts_, ProgramText::MailBusy),
                     DialogIcon::Critical});
        return DetailsAnswer::NotNow;
    }
    const auto invitation = TypedInvitation();
    hide(); // a window that is shown does not become one that the others wait for
    rmdExtra_ = RmdExtra;
    TextName->setText(ToQt(RmdExtra[kName]));
    TextMail[0]->setText(ToQt(RmdExtra[kAddress]));
    mailWindowMode_ = MailWindowMode::Details;
    setWindowModality(Qt::ApplicationModal);
    Open(Use::Details, Keyboard::Take);
    WaitUntilClosed(*this);
    const bool programEnds = isVisible();
    const bool accepted = accepted_;
    Leave();
    setWindowModality(Qt::NonModal);
    if (accepted) {
        RmdExtra = rmdExtra_;
    }
    if (invitation && !programEnds) {
        PutBack(*invitation);
    }
    return accepted ? DetailsAnswer::Given : DetailsAnswer::SwitchedOff;
}

void Email::OpenInvitation(const std::string& name) {
    if (use_ == Use::Invitation || use_ == Use::Details) {
        raise();
        activateWindow();
        return;
    }
    TextName->setText(ToQt(name));
    for (QLineEdit* const box : TextMail) {
        box->clear();
    }
    mailWindowMode_ = MailWindowMode::Unchecked; // who does not want to invite anybody just closes
    hide();
    Open(Use::Invitation, Keyboard::Take);
}

MailPerson Email::ShowReminder(const MailPerson& recipient) {
    if (use_ != Use::None) {
        return recipient;
    }
    TextName->setText(ToQt(recipient.Name));
    TextMail[0]->setText(ToQt(recipient.Address));
    mailWindowMode_ = MailWindowMode::Unchecked;
    Open(Use::Reminder, Keyboard::Leave);
    return {FromQt(TextName->text()), FromQt(TextMail[0]->text())};
}

void Email::HideReminder() {
    if (use_ == Use::Reminder) {
        Leave();
    }
}

void Email::ShowSending(const std::string& address) {
    LabState->setText(ToQt(TextOf(texts_, ProgramText::MailSending, address)));
}

void Email::ShowSent(std::size_t friendNumber) {
    TextMail[friendNumber]->clear();
}

void Email::Complain(const std::string& text, QLineEdit& box) {
    boxes_.Show({texts_.Text(texts::kMessengerTitle), text, DialogIcon::Critical});
    box.setFocus();
    box.selectAll();
}

bool Email::IsGoodAddress(int index) {
    QLineEdit& box = *TextMail[static_cast<std::size_t>(index)];
    const std::string address = FromQt(Trimmed(box));
    if (address.empty() || IsMailAddress(address)) {
        return true;
    }
    Complain(TextOf(texts_, ProgramText::MailBadAddress, address), box);
    return false;
}

// Whether the window may close; if not, the user has been told why.
bool Email::Form_QueryUnload() {
    if (mailWindowMode_ == MailWindowMode::Unchecked) {
        return true;
    }
    const QString name = Trimmed(*TextName);
    if (name.isEmpty() || Trimmed(*TextMail[0]).isEmpty()) {
        Complain(texts_.Text(texts::kFillInBothBoxes), name.isEmpty() ? *TextName : *TextMail[0]);
        return false;
    }
    // An address that no server takes would end all mail when its time comes.
    if (!IsGoodAddress(0)) {
        return false;
    }
    rmdExtra_[kName] = FromQt(name);
    rmdExtra_[kAddress] = FromQt(Trimmed(*TextMail[0]));
    accepted_ = true;
    return true;
}

void Email::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (sending_) {
        hooks_.BreakOff();
    } else if (Form_QueryUnload()) {
        Leave();
    }
}

void Email::ComCancel_Click() {
    if (sending_) {
        hooks_.BreakOff();
        return;
    }
    accepted_ = false;
    Leave();
}

void Email::SetSending(bool sending) {
    sending_ = sending;
    for (QLineEdit* const box : TextMail) {
        box->setEnabled(!sending);
    }
    TextName->setEnabled(!sending);
    ComSend->setEnabled(!sending);
    ComAccount->setEnabled(!sending);
    LabState->setText(sending ? Words(ProgramText::MailSigningOn) : QString());
}

void Email::ComSend_Click() {
    InvitedFriends friends;
    for (std::size_t i = 0; i < friends.size(); ++i) {
        if (!IsGoodAddress(static_cast<int>(i))) {
            return;
        }
        friends[i] = FromQt(Trimmed(*TextMail[i]));
    }
    const std::string name = FromQt(Trimmed(*TextName));
    const bool somebody = std::any_of(friends.begin(), friends.end(),
                                      [](const std::string& text) { return !text.empty(); });
    if (name.empty() || !somebody) {
        Complain(TextOf(texts_, ProgramText::MailNobody), name.empty() ? *TextName : *TextMail[0]);
        return;
    }
    SetSending(true);
    const bool sent = hooks_.Send(name, friends);
    SetSending(false);
    if (sent) {
        Leave();
    } else {
        mailWindowMode_ = MailWindowMode::Unchecked; // the window stays, as it was opened
    }
}

} // namespace kestrova
