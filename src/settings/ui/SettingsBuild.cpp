// SPDX-License-Identifier: GPL-3.0-or-later
// How the settings window is put together.
#include "settings/ui/Settings.h"

#include "language/ItemLists.h"
#include "platform/qt/QtText.h"
#include "settings/SettingsRules.h"
#include "ui/ElidedLabel.h"
#include "ui/Look.h"
#include "ui/Names.h"
#include "ui/ScrolledContent.h"
#include "ui/SteadyList.h"

#include <QBoxLayout>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QPainter>
#include <QShortcut>

#include <functional>
#include <initializer_list>
#include <utility>

namespace kestrova {

namespace {

constexpr int kBarHeight = 110;
constexpr int kPatchWidth = 56;
constexpr int kLeastButtonWidth = 110;
constexpr int kIndent = 22; // of choices that belong to the one above them
constexpr int kLongestSentence = 200;

// Shows a colour as it is set.
class Patch : public QWidget {
public:
    Patch(QWidget* parent, std::function<QColor()> colour)
        : QWidget(parent), colour_(std::move(colour)) {
        setMinimumWidth(kPatchWidth);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(look::Between(palette().color(QPalette::Window),
                                     palette().color(QPalette::WindowText), 0.35));
        painter.setBrush(colour_());
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 6, 6);
    }

private:
    std::function<QColor()> colour_;
};

// A scroll bar that says when the keyboard is on it, which the desktop's own does not.
class KeyBar : public QScrollBar {
public:
    using QScrollBar::QScrollBar;

protected:
    void paintEvent(QPaintEvent* event) override {
        QScrollBar::paintEvent(event);
        if (hasFocus()) {
            QPainter painter(this);
            painter.setPen(QPen(look::Accent(palette()), 2));
            painter.drawRect(rect().adjusted(1, 1, -1, -1));
        }
    }
    void focusInEvent(QFocusEvent* event) override {
        QScrollBar::focusInEvent(event);
        update();
    }
    void focusOutEvent(QFocusEvent* event) override {
        QScrollBar::focusOutEvent(event);
        update();
    }
};

QScrollBar* Bar(QWidget* parent, const char* name, int least, int greatest) {
    auto* const bar = Named(new KeyBar(Qt::Vertical, parent), name);
    bar->setRange(least, greatest);
    bar->setSingleStep(1);
    bar->setPageStep(16);
    bar->setMinimumHeight(kBarHeight);
    new WheelGuard(bar);
    return bar;
}

} // namespace

Settings::Settings(QWidget* parent, const Rooms& rooms) : QDialog(parent), rooms_(rooms) {
    setObjectName(QStringLiteral("Settings"));
    setWindowFlag(Qt::WindowMinimizeButtonHint);
    BuildControls();
    BuildFrames();
    OrderTabs();
    ConnectClock();
    ConnectColours();
    ConnectOperation();
    ConnectSpeech();
    ConnectButtons();
    LoadCaptions();
    ShowRecord();
}

void Settings::BuildControls() {
    const auto label = [this](const char* name) {
        auto* const made = Named(new QLabel(this), name);
        made->setTextFormat(Qt::PlainText);
        return made;
    };
    Label1 = label("Label1");
    Label2 = label("Label2");
    Label3 = label("Label3");
    Label4 = label("Label4");
    Label5 = label("Label5");
    Label6 = label("Label6");
    Label7 = label("Label7");
    Label8 = label("Label8");
    Label10 = label("Label10");
    Label11 = label("Label11");
    LabRpt = label("LabRpt");
    LabLan = label("LabLan");
    LabChime = Named(new ElidedLabel(this), "LabChime");
    LabColour = Named(new Patch(this,
                                [this] {
                                    const Colour& colour = rooms_.Record.ColourOf(role_);
                                    return QColor(colour.Red, colour.Green, colour.Blue);
                                }),
                      "LabColour");
    for (std::size_t i = 1; i < Check.size(); ++i) {
        Check[i] = new QCheckBox(this);
        Check[i]->setObjectName(QStringLiteral("Check%1").arg(i));
    }
    ChkHidden = Named(new QCheckBox(this), "ChkHidden");
    ChkFscr = Named(new QCheckBox(this), "ChkFscr");
    ChkRep = Named(new QCheckBox(this), "ChkRep");
    constexpr std::array kOptions = {"OptionBack", "OptionText", "OptionToday", "OptionEvent"};
    for (std::size_t i = 0; i < kOptions.size(); ++i) {
        options_[i] = Named(new QRadioButton(this), kOptions[i]);
        options_[i]->installEventFilter(this);
    }
    VSRed = Bar(this, "VSRed", kColourBarSum - 255, kColourBarSum);
    VSGreen = Bar(this, "VSGreen", kColourBarSum - 255, kColourBarSum);
    VSBlue = Bar(this, "VSBlue", kColourBarSum - 255, kColourBarSum);
    VSPitch = Bar(this, "VSPitch", kPitchBarSum - kGreatestPitch, kPitchBarSum - kLeastPitch);
    VSpeed = Bar(this, "VSpeed", kSpeedBarSum - kGreatestSpeed, kSpeedBarSum - kLeastSpeed);
    const auto list = [this](const char* name) {
        auto* const made = Named(new QComboBox(this), name);
        made->setSizeAdjustPolicy(QComboBox::AdjustToContents);
        new WheelGuard(made);
        return made;
    };
    CombChimes = list("CombChimes");
    CombInterval = list("CombInterval");
    CombLan = list("CombLan");
    CombChr = list("CombChr");
    CombCom = list("CombCom");
    new SteadyList(CombLan); // each language passed on the way would be loaded
    new SteadyList(CombChimes);
    TexGreeting = Named(new QLineEdit(this), "TexGreeting");
    TexFarewell = Named(new QLineEdit(this), "TexFarewell");
    TextSpch = Named(new QLineEdit(this), "TextSpch");
    for (QLineEdit* const box : {TexGreeting, TexFarewell, TextSpch}) {
        box->setMaxLength(kLongestSentence);
    }
    TextRpt = Named(new QLineEdit(this), "TextRpt");
    TextRpt->setAlignment(Qt::AlignRight);
    TextRpt->setFixedWidth(TextRpt->fontMetrics().horizontalAdvance(QStringLiteral("99999")) + 16);
    TextRpt->installEventFilter(this);
    const auto button = [this](const char* name) {
        auto* const made = Named(new QPushButton(this), name);
        made->setAutoDefault(false);
        return made;
    };
    ComSet = button("ComSet");
    ComDefault = button("ComDefault");
    ComCngYr = button("ComCngYr");
    ComFormat = button("ComFormat");
    ComSpchTest = button("ComSpchTest");
    ComModem = button("ComModem");
    ComSet->setDefault(true);
    const std::pair<QLabel*, QWidget*> labelled[] = {
        {Label4, CombCom},     {Label5, CombChimes}, {Label6, CombInterval}, {Label7, TexGreeting},
        {Label8, TexFarewell}, {Label11, CombChr},   {LabLan, CombLan},      {LabRpt, TextRpt}};
    for (const auto& [words, control] : labelled) {
        words->setBuddy(control); // screen readers ask for it; the texts have no access keys
    }
}

void Settings::BuildFrames() {
    auto* const content = new QWidget;
    auto* const columns = new QHBoxLayout(content);
    columns->setContentsMargins(look::kMargin, look::kMargin, look::kMargin, look::kMargin);
    columns->setSpacing(look::kMargin);
    auto* const left = new QVBoxLayout;
    left->setSpacing(look::kMargin);
    left->addWidget(BuildOperatingFrame());
    left->addWidget(BuildColourFrame(), 1);
    auto* const right = new QVBoxLayout;
    right->setSpacing(look::kMargin);
    right->addWidget(BuildClockFrame());
    right->addWidget(BuildMediaFrame());
    right->addWidget(BuildSpeechFrame(), 1);
    right->addWidget(BuildModemFrame());
    columns->addLayout(left);
    columns->addLayout(right, 1);

    auto* const all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->setSpacing(0);
    // On a small screen the frames are scrolled, the buttons below them stay.
    area_ = new ScrolledContent(content, this);
    all->addWidget(area_, 1);
    all->addWidget(BuildButtons());
}

QWidget* Settings::BuildOperatingFrame() {
    auto* const frame = Named(new QGroupBox(this), "FrmOps");
    auto* const rows = new QVBoxLayout(frame);
    rows->setSpacing(look::kSpacing);
    auto* const language = new QHBoxLayout;
    language->addWidget(LabLan);
    language->addWidget(CombLan, 1);
    rows->addLayout(language);
    for (const std::size_t i : {std::size_t{1}, std::size_t{2}, std::size_t{3}, std::size_t{4}}) {
        rows->addWidget(Check[i]);
    }
    auto* const hidden = new QHBoxLayout;
    hidden->setContentsMargins(kIndent, 0, 0, 0);
    hidden->addWidget(ChkHidden);
    rows->addLayout(hidden);
    rows->addWidget(Check[9]);
    rows->addWidget(Check[10]);
    rows->addStretch(1);
    return frame;
}

QWidget* Settings::BuildColourFrame() {
    auto* const frame = Named(new QGroupBox(this), "FrmCol");
    auto* const columns = new QHBoxLayout(frame);
    auto* const roles = new QVBoxLayout;
    for (QRadioButton* const option : options_) {
        roles->addWidget(option);
    }
    roles->addStretch(1);
    auto* const bars = new QGridLayout;
    bars->setHorizontalSpacing(look::kSpacing);
    bars->addWidget(Label1, 0, 0, 1, 3, Qt::AlignHCenter);
    bars->addWidget(VSRed, 1, 0, Qt::AlignHCenter);
    bars->addWidget(VSGreen, 1, 1, Qt::AlignHCenter);
    bars->addWidget(VSBlue, 1, 2, Qt::AlignHCenter);
    bars->addWidget(LabColour, 1, 3);
    bars->setRowStretch(1, 1);
    columns->addLayout(roles, 1);
    columns->addLayout(bars);
    return frame;
}

QWidget* Settings::BuildClockFrame() {
    auto* const frame = Named(new QGroupBox(this), "FrmClk");
    auto* const form = new QFormLayout(frame);
    form->setSpacing(look::kSpacing);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->addRow(Label5, CombChimes);
    form->addRow(QString(), LabChime);
    form->addRow(Label6, CombInterval);
    form->addRow(Label7, TexGreeting);
    form->addRow(Label8, TexFarewell);
    return frame;
}

QWidget* Settings::BuildSpeechFrame() {
    auto* const frame = Named(new QGroupBox(this), "FrmSpk");
    auto* const columns = new QHBoxLayout(frame);
    auto* const choices = new QVBoxLayout;
    choices->setSpacing(look::kSpacing);
    choices->addWidget(Check[5]);
    auto* const details = new QHBoxLayout;
    details->setContentsMargins(kIndent, 0, 0, 0);
    for (const std::size_t i : {std::size_t{6}, std::size_t{7}, std::size_t{8}}) {
        details->addWidget(Check[i]);
    }
    details->addStretch(1);
    choices->addLayout(details);
    auto* const character = new QHBoxLayout;
    character->addWidget(Label11);
    character->addWidget(CombChr, 1);
    choices->addLayout(character);
    auto* const repeat = new QHBoxLayout;
    repeat->addWidget(LabRpt);
    repeat->addWidget(TextRpt);
    repeat->addWidget(Label10);
    repeat->addStretch(1);
    choices->addLayout(repeat);
    auto* const sample = new QHBoxLayout;
    sample->addWidget(TextSpch, 1);
    sample->addWidget(ComSpchTest);
    choices->addLayout(sample);
    choices->addStretch(1);
    auto* const bars = new QGridLayout;
    bars->addWidget(Label2, 0, 0, Qt::AlignHCenter);
    bars->addWidget(Label3, 0, 1, Qt::AlignHCenter);
    bars->addWidget(VSPitch, 1, 0, Qt::AlignHCenter);
    bars->addWidget(VSpeed, 1, 1, Qt::AlignHCenter);
    bars->setRowStretch(1, 1);
    columns->addLayout(choices, 1);
    columns->addLayout(bars);
    return frame;
}

QWidget* Settings::BuildModemFrame() {
    auto* const frame = Named(new QGroupBox(this), "FrmMod");
    auto* const row = new QHBoxLayout(frame);
    row->addWidget(Label4);
    row->addWidget(CombCom, 1);
    row->addWidget(ComModem);
    return frame;
}

QWidget* Settings::BuildMediaFrame() {
    auto* const frame = Named(new QGroupBox(this), "FrmMedia");
    auto* const row = new QHBoxLayout(frame);
    row->addWidget(ChkFscr);
    row->addWidget(ChkRep);
    row->addStretch(1);
    return frame;
}

QWidget* Settings::BuildButtons() {
    auto* const bar = new QWidget(this);
    auto* const row = new QHBoxLayout(bar);
    row->setContentsMargins(look::kMargin, 0, look::kMargin, look::kMargin);
    row->setSpacing(look::kSpacing);
    row->addWidget(ComDefault);
    row->addWidget(ComCngYr);
    row->addWidget(ComFormat);
    row->addStretch(1);
    row->addWidget(ComSet);
    ComSet->setMinimumWidth(kLeastButtonWidth);
    return bar;
}

// The tab key goes through the frames as the eye does.
void Settings::OrderTabs() {
    QWidget* previous = CombLan;
    for (QWidget* const next : std::initializer_list<QWidget*>{
             Check[1],  Check[2],    Check[3],    Check[4],     ChkHidden,   Check[9],
             Check[10], options_[0], options_[1], options_[2],  options_[3], VSRed,
             VSGreen,   VSBlue,      CombChimes,  CombInterval, TexGreeting, TexFarewell,
             ChkFscr,   ChkRep,      Check[5],    Check[6],     Check[7],    Check[8],
             CombChr,   TextRpt,     TextSpch,    ComSpchTest,  VSPitch,     VSpeed,
             CombCom,   ComModem,    ComDefault,  ComCngYr,     ComFormat,   ComSet}) {
        setTabOrder(previous, next);
        previous = next;
    }
}

void Settings::ConnectClock() {
    connect(CombChimes, &QComboBox::activated, this,
            [this](int index) { CombChimes_Click(index); });
    connect(CombInterval, &QComboBox::activated, this, [this](int index) {
        rooms_.Record.ChimeInterval = rooms_.Texts.Text(lists::kChimeIntervals.Item(index));
    });
    connect(TexGreeting, &QLineEdit::textEdited, this,
            [this](const QString& text) { rooms_.Record.Greeting = FromQt(text); });
    connect(TexFarewell, &QLineEdit::textEdited, this,
            [this](const QString& text) { rooms_.Record.Farewell = FromQt(text); });
}

void Settings::ConnectColours() {
    for (std::size_t i = 0; i < options_.size(); ++i) {
        connect(options_[i], &QRadioButton::clicked, this,
                [this, i] { Option_GotFocus(static_cast<ColourRole>(i)); });
    }
    const std::pair<QScrollBar*, std::int16_t Colour::*> bars[] = {
        {VSRed, &Colour::Red}, {VSGreen, &Colour::Green}, {VSBlue, &Colour::Blue}};
    for (const auto& [bar, component] : bars) {
        connect(bar, &QScrollBar::valueChanged, this,
                [this, part = component](int value) { VSColour_Change(part, value); });
    }
}

void Settings::ConnectOperation() {
    const auto keep = [this](QCheckBox* box, std::int16_t AppSettings::*field, bool shown) {
        connect(box, &QCheckBox::clicked, this, [this, field, shown](bool on) {
            rooms_.Record.*field = on ? 1 : 0;
            if (shown) {
                rooms_.Actions.ShowChoices();
            }
        });
    };
    keep(Check[1], &AppSettings::KeepAspect, true);
    keep(Check[2], &AppSettings::StartMaximised, false);
    keep(Check[3], &AppSettings::ReminderOnClose, false);
    keep(Check[6], &AppSettings::SpeakPicture, false);
    keep(Check[7], &AppSettings::SpeakWeekDay, false);
    keep(Check[8], &AppSettings::SpeakDate, false);
    keep(ChkFscr, &AppSettings::VideoFullScreen, true);
    keep(ChkRep, &AppSettings::VideoRepeat, true);
    connect(Check[4], &QCheckBox::clicked, this, [this] { Check4_Click(); });
    connect(ChkHidden, &QCheckBox::clicked, this, [this] { Check4_Click(); });
    connect(Check[9], &QCheckBox::clicked, this, [this](bool on) {
        rooms_.Record.SwapDayMonth = on;
        rooms_.Actions.DateOrderChanged();
    });
    connect(Check[10], &QCheckBox::clicked, this, [this] { Check10_Click(); });
    connect(CombLan, &QComboBox::activated, this, [this](int index) { CombLan_Click(index); });
    connect(CombCom, &QComboBox::activated, this, [this](int index) { CombCom_Click(index); });
}

void Settings::ConnectSpeech() {
    connect(Check[5], &QCheckBox::clicked, this, [this] { Check5_Click(); });
    connect(CombChr, &QComboBox::activated, this, [this] { CombChr_Click(); });
    connect(TextRpt, &QLineEdit::textEdited, this, [this] { TextRpt_Change(); });
    connect(VSPitch, &QScrollBar::valueChanged, this, [this](int value) {
        rooms_.Record.SpeechPitch = static_cast<std::int16_t>(kPitchBarSum - value);
    });
    connect(VSpeed, &QScrollBar::valueChanged, this, [this](int value) {
        rooms_.Record.SpeechSpeed = static_cast<std::int16_t>(kSpeedBarSum - value);
    });
    connect(ComSpchTest, &QPushButton::clicked, this,
            [this] { rooms_.Actions.Talk(FromQt(TextSpch->text())); });
}

void Settings::ConnectButtons() {
    connect(ComModem, &QPushButton::clicked, this, [this] { ComModem_Click(); });
    connect(ComCngYr, &QPushButton::clicked, this, [this] { ComCngYr_Click(); });
    connect(ComDefault, &QPushButton::clicked, this, [this] { ComDefault_Click(); });
    connect(ComFormat, &QPushButton::clicked, this, [this] { ComFormat_Click(); });
    connect(ComSet, &QPushButton::clicked, this, [this] { ComSet_Click(); });
    auto* const undo = new QShortcut(QKeySequence::Undo, this);
    connect(undo, &QShortcut::activated, this, [this] { UndoDefault(); });
}

} // namespace kestrova
