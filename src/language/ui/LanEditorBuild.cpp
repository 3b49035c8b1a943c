// SPDX-License-Identifier: GPL-3.0-or-later
// How the language editor is put together.
#include "language/ui/LanEditor.h"

#include "platform/qt/QtText.h"
#include "ui/Look.h"
#include "ui/Names.h"
#include "ui/ScrolledContent.h"

#include <QBoxLayout>
#include <QGridLayout>

#include <vector>

namespace kestrova {

namespace {

// The groups as their translators know them, in every language.
constexpr std::array kGroupNames = {"Captions", "Buttons & Options", "Selectors",
                                    "Labels",   "Mouse Tip Text",    "Message Boxes"};
static_assert(kGroupNames.size() == kTextGroups);

} // namespace

LanEditor::LanEditor(QWidget* parent, const Rooms& rooms, Hooks hooks)
    : QDialog(parent), rooms_(rooms), hooks_(std::move(hooks)), english_(MsgDefaults()) {
    setObjectName(QStringLiteral("LanEditor"));
    setWindowModality(Qt::WindowModal);
    BuildControls();
    auto* const content = new QWidget;
    auto* const columns = new QHBoxLayout(content);
    columns->setContentsMargins(look::kMargin, look::kMargin, look::kMargin, look::kSpacing);
    columns->setSpacing(2 * look::kMargin);
    columns->addLayout(BuildNames());
    columns->addLayout(BuildTexts(), 1);
    auto* const all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    // A small screen, or a large font, scrolls the boxes; the buttons stay.
    area_ = new ScrolledContent(content, this);
    all->addWidget(area_, 1);
    auto* const buttons = new QHBoxLayout;
    buttons->setContentsMargins(look::kMargin, 0, look::kMargin, look::kMargin);
    buttons->addWidget(ComFont);
    buttons->addStretch(1);
    buttons->addWidget(ComCancel);
    buttons->addWidget(ComSave);
    all->addLayout(buttons);
    OrderTabs();
    Connect();
    LoadCaptions();
}

void LanEditor::BuildControls() {
    const auto label = [this](const char* name) {
        auto* const made = Named(new QLabel(this), name);
        made->setTextFormat(Qt::PlainText);
        return made;
    };
    LabName = label("LabName");
    LabMon = label("LabMon");
    LabDay = label("LabDay");
    LabTexts = label("LabTexts");
    LabEnglish = label("LabEnglish");
    LabEnglish->setWordWrap(true);
    LabEnglish->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    const auto box = [this](const QString& name) {
        auto* const made = new QLineEdit(this);
        made->setObjectName(name);
        made->setMaxLength(kLongestTyped);
        return made;
    };
    TexName = box(QStringLiteral("TexName"));
    TexTrans = box(QStringLiteral("TexTrans"));
    for (int i = 0; i < kMonths; ++i) {
        const auto month = static_cast<std::size_t>(i);
        TexMon[month] = box(ArrayName("TexMon", i));
        TexMn[month] = box(ArrayName("TexMn", i));
        const QString english = ToQt(EnglishMonthName(i));
        TexMon[month]->setAccessibleName(english);
        TexMn[month]->setAccessibleName(english + QStringLiteral(" &"));
    }
    for (int i = 0; i < kDaysOfWeek; ++i) {
        const auto day = static_cast<std::size_t>(i);
        TexDay[day] = box(ArrayName("TexDay", i));
        LabEnglishDay[day] = new QLabel(this);
        LabEnglishDay[day]->setBuddy(TexDay[day]);
    }
    CombTop = Named(new QComboBox(this), "CombTop");
    LabTexts->setBuddy(CombTop);
    LabName->setBuddy(TexName);
    for (const char* const name : kGroupNames) {
        CombTop->addItem(QLatin1String(name));
    }
    CombSel = Named(new QComboBox(this), "CombSel");
    CombSel->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    CombSel->setMinimumContentsLength(40);
    CombSel->setMaxVisibleItems(20);
    const auto button = [this](const char* name) {
        auto* const made = Named(new QPushButton(this), name);
        made->setAutoDefault(false);
        return made;
    };
    ComFont = button("ComFont");
    ComCancel = button("ComCancel");
    ComSave = button("ComSave");
}

QLayout* LanEditor::BuildNames() {
    auto* const grid = new QGridLayout;
    grid->setHorizontalSpacing(look::kSpacing);
    grid->setVerticalSpacing(4);
    grid->addWidget(LabName, 0, 0, 1, 3);
    grid->addWidget(TexName, 1, 0, 1, 3);
    grid->addWidget(LabMon, 2, 0, 1, 3);
    int row = 3;
    for (int i = 0; i < kMonths; ++i) {
        const auto month = static_cast<std::size_t>(i);
        auto* const english = new QLabel(ToQt(EnglishMonthName(i)), this);
        english->setBuddy(TexMon[month]);
        grid->addWidget(english, row, 0);
        grid->addWidget(TexMon[month], row, 1);
        grid->addWidget(TexMn[month], row, 2);
        TexMon[month]->setMinimumWidth(130);
        TexMn[month]->setMinimumWidth(70);
        ++row;
    }
    grid->setRowMinimumHeight(2, 3 * look::kSpacing);
    grid->setRowStretch(row, 1);
    grid->setColumnStretch(1, 2);
    grid->setColumnStretch(2, 1);
    return grid;
}

QLayout* LanEditor::BuildTexts() {
    auto* const rows = new QVBoxLayout;
    rows->setSpacing(4);
    rows->addWidget(LabTexts);
    rows->addWidget(CombTop);
    rows->addWidget(CombSel);
    rows->addWidget(TexTrans);
    rows->addWidget(LabEnglish);
    rows->addStretch(1);
    rows->addWidget(LabDay);
    auto* const days = new QGridLayout;
    days->setVerticalSpacing(4);
    days->setHorizontalSpacing(look::kSpacing);
    for (int i = 0; i < kDaysOfWeek; ++i) {
        const auto day = static_cast<std::size_t>(i);
        days->addWidget(LabEnglishDay[day], i, 0);
        days->addWidget(TexDay[day], i, 1);
        TexDay[day]->setMaximumWidth(260);
    }
    days->setColumnStretch(2, 1);
    rows->addLayout(days);
    return rows;
}

// The tab key goes from a month's name to its menu entry, and on as the eye does.
void LanEditor::OrderTabs() {
    std::vector<QWidget*> order = {TexName};
    for (std::size_t month = 0; month < kMonths; ++month) {
        order.insert(order.end(), {TexMon[month], TexMn[month]});
    }
    order.insert(order.end(), {CombTop, CombSel, TexTrans});
    order.insert(order.end(), TexDay.begin(), TexDay.end());
    order.insert(order.end(), {ComFont, ComCancel, ComSave});
    for (std::size_t i = 1; i < order.size(); ++i) {
        setTabOrder(order[i - 1], order[i]);
    }
}

void LanEditor::Connect() {
    connect(CombTop, &QComboBox::activated, this, [this] { CombTop_Click(); });
    connect(CombSel, &QComboBox::activated, this, [this] { CombSel_Click(); });
    connect(TexTrans, &QLineEdit::editingFinished, this, [this] { TexTrans_LostFocus(); });
    connect(ComFont, &QPushButton::clicked, this, [this] { ComFont_Click(); });
    connect(ComCancel, &QPushButton::clicked, this, [this] { Leave(); });
    connect(ComSave, &QPushButton::clicked, this, [this] { ComSave_Click(); });
}

} // namespace kestrova
