// SPDX-License-Identifier: GPL-3.0-or-later
#include "mail/ui/MailLogOn.h"

#include "language/Texts.h"
#include "language/ui/ApplyCaptions.h"
#include "mail/ui/UntilClosed.h"
#include "platform/qt/QtText.h"
#include "ui/Look.h"
#include "ui/Names.h"
#include "ui/ScrolledContent.h"

#include <QBoxLayout>
#include <QFormLayout>

#include <utility>

namespace kestrova {

namespace {

constexpr int kBoxWidth = 300;
constexpr int kPortLetters = 5;

// What stands in a box, without what may have come in with a paste and cannot be seen.
std::string TextIn(const QLineEdit& box) {
    QString text = box.text();
    text.removeIf([](QChar c) { return !c.isPrint() && !c.isSurrogate(); });
    return FromQt(text.trimmed());
}

} // namespace

MailLogOn::MailLogOn(const StringTable& texts, Dialogs& boxes, Hooks hooks)
    : texts_(texts), boxes_(boxes), hooks_(std::move(hooks)) {
    setObjectName(QStringLiteral("MailLogOn"));
    setAttribute(Qt::WA_QuitOnClose, false);
    Build();
    connect(CombSecurity, &QComboBox::activated, this,
            [this](int index) { CombSecurity_Click(index); });
    connect(ComSave, &QPushButton::clicked, this, [this] { ComSave_Click(); });
    connect(ComCancel, &QPushButton::clicked, this, [this] { reject(); });
    LoadCaptions();
}

void MailLogOn::Build() {
    auto* const content = new QWidget(this);
    auto* const column = new QVBoxLayout(content);
    column->setContentsMargins(look::kMargin, look::kMargin, look::kMargin, look::kMargin);
    column->setSpacing(look::kMargin);
    auto* const form = new QFormLayout;
    form->setSpacing(look::kSpacing);
    const auto label = [content](const char* name) {
        auto* const made = Named(new QLabel(content), name);
        made->setTextFormat(Qt::PlainText);
        return made;
    };
    const auto row = [&](QLabel*& caption, const char* captionName, auto* box, const char* name) {
        caption = label(captionName);
        caption->setBuddy(box);
        form->addRow(caption, box);
        return Named(box, name);
    };
    const auto line = [content](std::size_t longest) {
        auto* const box = new QLineEdit(content);
        box->setMaxLength(static_cast<int>(longest));
        return box;
    };
    LabIntro = label("LabIntro");
    LabIntro->setWordWrap(true);
    TextServer = row(LabServer, "LabServer", line(kLongestAddress), "TextServer");
    TextServer->setMinimumWidth(kBoxWidth);
    CombSecurity = row(LabSecurity, "LabSecurity", new QComboBox(content), "CombSecurity");
    TextPort = row(LabPort, "LabPort", line(kPortLetters), "TextPort");
    TextUser = row(LabUser, "LabUser", line(kLongestName), "TextUser");
    TextPassword = row(LabPassword, "LabPassword", line(kLongestAddress), "TextPassword");
    TextPassword->setEchoMode(QLineEdit::Password);
    TextSender = row(LabSender, "LabSender", line(kLongestName), "TextSender");
    TextAddress = row(LabAddress, "LabAddress", line(kLongestAddress), "TextAddress");
    LabWarning = label("LabWarning");
    LabWarning->setWordWrap(true);
    ComSave = Named(new QPushButton(content), "ComSave");
    ComSave->setDefault(true);
    ComCancel = Named(new QPushButton(content), "ComCancel");
    ComCancel->setAutoDefault(false);
    auto* const buttons = new QHBoxLayout;
    buttons->setSpacing(look::kSpacing);
    buttons->addStretch(1);
    buttons->addWidget(ComSave);
    buttons->addWidget(ComCancel);
    column->addWidget(LabIntro);
    column->addLayout(form);
    column->addWidget(LabWarning);
    column->addStretch(1);
    column->addLayout(buttons);
    area_ = new ScrolledContent(content, this);
    auto* const whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(area_);
}

QString MailLogOn::Words(ProgramText text) const {
    return ToQt(TextOf(texts_, text));
}

void MailLogOn::LoadCaptions() {
    ApplyCaptions(*this, texts_, TipTexts::Leave);
    setWindowTitle(Words(ProgramText::MailAccountTitle));
    const std::pair<QLabel*, ProgramText> captions[] = {
        {LabIntro, ProgramText::MailAccountIntro},
        {LabServer, ProgramText::MailServerName},
        {LabSecurity, ProgramText::MailEncryption},
        {LabPort, ProgramText::MailPort},
        {LabUser, ProgramText::MailUser},
        {LabPassword, ProgramText::MailPassword},
        {LabSender, ProgramText::MailSenderName},
        {LabAddress, ProgramText::MailSenderAddress},
        {LabWarning, ProgramText::MailPlainWarning},
    };
    for (const auto& [label, text] : captions) {
        label->setText(Words(text));
    }
    const int chosen = CombSecurity->currentIndex();
    CombSecurity->clear();
    CombSecurity->addItems(
        {QStringLiteral("TLS"), QStringLiteral("STARTTLS"), Words(ProgramText::MailNoEncryption)});
    CombSecurity->setCurrentIndex(chosen < 0 ? 0 : chosen);
}

void MailLogOn::Fill(const LogOnOffer& offer) {
    offer_ = offer;
    accepted_ = false;
    const MailAccount& account = offer.Account;
    TextServer->setText(ToQt(account.Server));
    CombSecurity->setCurrentIndex(static_cast<int>(account.Security));
    usualPort_ = UsualPort(account.Security);
    TextPort->setText(QString::number(account.Port));
    TextUser->setText(ToQt(account.User));
    TextPassword->clear();
    TextPassword->setPlaceholderText(offer.PasswordKnown ? Words(ProgramText::MailPasswordKept)
                                                         : QString());
    TextSender->setText(ToQt(account.Sender.Name));
    TextAddress->setText(ToQt(account.Sender.Address));
    ShowWarning();
    resize(1, 1); // only as large as it has to be
    area_->FitWindow();
    // The only thing that is missing is the first to be asked for.
    QLineEdit* const first = account.Server.empty() ? TextServer : TextPassword;
    first->setFocus();
}

bool MailLogOn::Ask(const LogOnOffer& offer) {
    if (awaited_) {
        return false; // the user is there already
    }
    awaited_ = true;
    const QWidget* const under = QApplication::activeWindow();
    hide(); // a window that is shown does not become one that the others wait for
    Fill(offer);
    setAttribute(Qt::WA_ShowWithoutActivating, false);
    setWindowModality(Qt::ApplicationModal);
    StandOver(*this, under);
    show();
    raise();
    activateWindow();
    WaitUntilClosed(*this);
    hide();
    setWindowModality(Qt::NonModal);
    awaited_ = false;
    return accepted_;
}

void MailLogOn::ShowOffer(const LogOnOffer& offer) {
    if (isVisible()) {
        return;
    }
    Fill(offer);
    setAttribute(Qt::WA_ShowWithoutActivating, true);
    show();
    QApplication::alert(this);
}

void MailLogOn::reject() {
    hide();
    if (!awaited_ && hooks_.Cancelled) {
        hooks_.Cancelled();
    }
}

void MailLogOn::ShowWarning() {
    // The line keeps its room: the window does not jump under the mouse.
    LabWarning->setText(CombSecurity->currentIndex() == static_cast<int>(MailSecurity::None)
                            ? Words(ProgramText::MailPlainWarning)
                            : QString());
}

void MailLogOn::CombSecurity_Click(int index) {
    const auto security = static_cast<MailSecurity>(index);
    if (TextPort->text().toInt() == usualPort_) {
        TextPort->setText(QString::number(UsualPort(security)));
    }
    usualPort_ = UsualPort(security);
    ShowWarning();
    area_->FitWindow();
}

MailAccount MailLogOn::Typed() const {
    return {TextIn(*TextServer),
            TextPort->text().trimmed().toInt(),
            static_cast<MailSecurity>(CombSecurity->currentIndex()),
            TextIn(*TextUser),
            {TextIn(*TextSender), TextIn(*TextAddress)}};
}

bool MailLogOn::IsKnownPassword(const MailAccount& account) const {
    return offer_.PasswordKnown && PasswordName(account) == PasswordName(offer_.Account);
}

void MailLogOn::Complain(const std::string& text, QWidget& box) {
    boxes_.Show({texts_.Text(texts::kMessengerTitle), text, DialogIcon::Critical});
    box.setFocus();
}

bool MailLogOn::Check(const MailAccount& account) {
    switch (FaultOf(account)) {
    case AccountFault::Server:
        Complain(TextOf(texts_, ProgramText::MailBadServer), *TextServer);
        return false;
    case AccountFault::Port:
        Complain(TextOf(texts_, ProgramText::MailBadPort), *TextPort);
        return false;
    case AccountFault::Sender:
        Complain(TextOf(texts_, ProgramText::MailBadAddress, account.Sender.Address), *TextAddress);
        return false;
    case AccountFault::User: // a name that is no text, which the box cannot hold
    case AccountFault::None: break;
    }
    const bool needsPassword = !account.User.empty() && !IsKnownPassword(account);
    if (needsPassword && TextPassword->text().isEmpty()) {
        Complain(TextOf(texts_, ProgramText::MailNeedsPassword), *TextPassword);
        return false;
    }
    return true;
}

void MailLogOn::ComSave_Click() {
    const MailAccount account = Typed();
    if (!Check(account)) {
        return;
    }
    const std::string password = account.User.empty() ? "" : FromQt(TextPassword->text());
    const Status taken = hooks_.Take(account, password);
    if (!taken) {
        Complain(texts_.Text(texts::kFileHandlingError) + "\n" + taken.Failure().Text, *ComSave);
        return;
    }
    TextPassword->clear();
    accepted_ = true;
    hide();
}

} // namespace kestrova
