// SPDX-License-Identifier: GPL-3.0-or-later
// How the phone numbers window is put together.
#include "phone/ui/Modem.h"

#include "phone/ui/NumberBox.h"
#include "platform/qt/QtText.h"
#include "ui/Look.h"
#include "ui/Names.h"
#include "ui/SteadyList.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace kestrova {

namespace {

constexpr int kLogLines = 8;
constexpr int kNumberDigits = 20; // of which the box shows this many

} // namespace

Modem::Modem(QWidget* parent, const Rooms& rooms, Hooks hooks)
    : QDialog(parent), rooms_(rooms), hooks_(std::move(hooks)) {
    setObjectName(QStringLiteral("Modem"));
    BuildControls();
    Arrange();
    Connect();
    LoadCaptions();
    ShowNumbers(rooms_.Settings.StoredNumbers);
    SetCalling(false);
}

void Modem::BuildControls() {
    const auto label = [this](const char* name) {
        auto* const made = Named(new QLabel(this), name);
        made->setTextFormat(Qt::PlainText);
        return made;
    };
    LabPhoneNumber = label("LabPhoneNumber");
    LabRpt = label("LabRpt");
    LabMins = label("LabMins");
    CombPhone = Named(new NumberBox(this), "CombPhone");
    CombPhone->setMinimumContentsLength(kNumberDigits);
    new WheelGuard(CombPhone);
    CombPhone->lineEdit()->installEventFilter(this);
    OptionSpeak = Named(new QRadioButton(this), "OptionSpeak");
    OptionBeep = Named(new QRadioButton(this), "OptionBeep");
    auto* const mode = new QButtonGroup(this);
    mode->addButton(OptionSpeak);
    mode->addButton(OptionBeep);
    TextRpt = Named(new QLineEdit(this), "TextRpt");
    TextRpt->setAlignment(Qt::AlignRight);
    TextRpt->setFixedWidth(TextRpt->fontMetrics().horizontalAdvance(QStringLiteral("99999")) + 16);
    TextRpt->installEventFilter(this);
    TextLog = Named(new QPlainTextEdit(this), "TextLog");
    TextLog->setReadOnly(true);
    TextLog->setMaximumBlockCount(200);
    TextLog->setFixedHeight(TextLog->fontMetrics().lineSpacing() * kLogLines + 16);
    const auto button = [this](const char* name) {
        auto* const made = Named(new QPushButton(this), name);
        made->setAutoDefault(false);
        return made;
    };
    ComTestCall = button("ComTestCall");
    ComStop = button("ComStop");
    ComStop->setCursor(Qt::ArrowCursor);
    ComSave = button("ComSave");
    ComSave->setDefault(true);
    LabPhoneNumber->setBuddy(CombPhone);
    LabRpt->setBuddy(TextRpt);
}

void Modem::Arrange() {
    auto* const all = new QVBoxLayout(this);
    all->setContentsMargins(look::kMargin, look::kMargin, look::kMargin, look::kMargin);
    all->setSpacing(look::kSpacing);
    auto* const fields = new QGridLayout;
    fields->setSpacing(look::kSpacing);
    fields->setColumnStretch(1, 1);
    fields->addWidget(LabPhoneNumber, 0, 0);
    fields->addWidget(CombPhone, 0, 1);
    auto* const mode = new QHBoxLayout;
    mode->setSpacing(look::kMargin);
    mode->addWidget(OptionSpeak);
    mode->addWidget(OptionBeep);
    mode->addStretch(1);
    fields->addLayout(mode, 1, 1);
    auto* const repeat = new QHBoxLayout;
    repeat->setSpacing(look::kSpacing);
    repeat->addWidget(TextRpt);
    repeat->addWidget(LabMins);
    repeat->addStretch(1);
    fields->addWidget(LabRpt, 2, 0);
    fields->addLayout(repeat, 2, 1);
    all->addLayout(fields);
    all->addWidget(TextLog);
    all->addStretch(1);
    auto* const buttons = new QHBoxLayout;
    buttons->setSpacing(look::kSpacing);
    buttons->addWidget(ComTestCall);
    buttons->addWidget(ComStop);
    buttons->addStretch(1);
    buttons->addWidget(ComSave);
    all->addLayout(buttons);
    all->setSizeConstraint(QLayout::SetMinimumSize);

    setTabOrder(CombPhone, OptionSpeak);
    setTabOrder(OptionSpeak, OptionBeep);
    setTabOrder(OptionBeep, TextRpt);
    setTabOrder(TextRpt, ComTestCall);
    setTabOrder(ComTestCall, ComStop);
    setTabOrder(ComStop, TextLog);
    setTabOrder(TextLog, ComSave);
}

void Modem::Connect() {
    connect(CombPhone, &QComboBox::editTextChanged, this,
            [this](const QString& text) { CombPhone_Change(text); });
    connect(CombPhone, &QComboBox::activated, this, [this](int index) { CombPhone_Click(index); });
    CombPhone->DropDown = [this] { CombPhone_DropDown(); };
    connect(TextRpt, &QLineEdit::textEdited, this, [this] { TextRpt_Change(); });
    connect(OptionSpeak, &QRadioButton::clicked, this,
            [this] { rooms_.Settings.BeepAcknowledge = 0; });
    connect(OptionBeep, &QRadioButton::clicked, this,
            [this] { rooms_.Settings.BeepAcknowledge = 1; });
    connect(ComTestCall, &QPushButton::clicked, this, [this] { ComTestCall_Click(); });
    connect(ComStop, &QPushButton::clicked, this, [this] { rooms_.Caller.Stop(); });
    connect(ComSave, &QPushButton::clicked, this, [this] { ComSave_Click(); });
}

} // namespace kestrova
