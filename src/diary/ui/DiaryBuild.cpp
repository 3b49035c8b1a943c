// SPDX-License-Identifier: GPL-3.0-or-later
// How the day page is put together, and where its controls stand.
#include "diary/ui/Diary.h"

#include "diary/ui/FitText.h"
#include "diary/ui/SlimComboBox.h"
#include "ui/Look.h"
#include "ui/Names.h"
#include "ui/PlainTip.h"
#include "ui/SteadyList.h"
#include "ui/Twips.h"

#include <QMenuBar>
#include <QPainter>
#include <QResizeEvent>

#include <algorithm>

namespace kestrova {

namespace {

constexpr int kRowHeight = 315; // twips
constexpr int kRowsTop = 840;   // of the headings; row i stands i rows below
constexpr int kTimeLeft = 300;
constexpr int kTimeWidth = 900;
constexpr int kEventLeft = 1300;
constexpr int kTimeIndent = 8; // pixels
constexpr int kEventIndent = 6;
constexpr int kAddTop = 4305;
constexpr int kAddHeight = 500;
constexpr int kDiariesTop = 4620;
constexpr int kButtonsTop = 5000;
constexpr int kButtonHeight = 450;
constexpr int kPageHeight = 5650;
constexpr int kPageWidth = 12600;
constexpr int kLeastPageWidth = 9000;
constexpr int kAddLineSlot = 11; // the editor of a new event stands where an eleventh row would

// The sheet behind the rows: every other one a little darker, as in a printed diary.
class Page : public QWidget {
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        const QColor stripe = palette().color(QPalette::AlternateBase);
        const QColor base = palette().color(QPalette::Base);
        const int left = Pixels(kTimeLeft);
        const int right = width() - left / 2;
        for (int row = 1; row <= kEventsPerDay; ++row) {
            const QRect area(left, Pixels(kRowsTop + row * kRowHeight), right - left,
                             Pixels(kRowHeight));
            painter.fillRect(area, row % 2 == 0 ? stripe : base);
        }
        painter.setPen(look::Between(palette().color(QPalette::Window),
                                     palette().color(QPalette::WindowText), 0.25));
        const int head = Pixels(kRowsTop + kRowHeight) - 1;
        painter.drawLine(left, head, right, head);
        const int foot = Pixels(kRowsTop + (kEventsPerDay + 1) * kRowHeight);
        painter.drawLine(left, foot, right, foot);
    }
};

} // namespace

Diary::Diary(QWidget* parent, const Rooms& rooms, Hooks hooks)
    : QDialog(parent), rooms_(rooms), hooks_(std::move(hooks)) {
    setObjectName(QStringLiteral("Diary"));
    setWindowModality(Qt::WindowModal);
    menus_ = new QMenuBar(this);
    page_ = new Page(this);
    BuildRows();
    BuildEditor();
    BuildButtons();
    BuildMenus();
    LoadCaptions();
    const int menuHeight = menus_->sizeHint().height();
    setMinimumWidth(Pixels(kLeastPageWidth));
    setFixedHeight(Pixels(kPageHeight) + menuHeight);
    resize(Pixels(kPageWidth), height());
}

// Whatever ends the program, the note that is being written is kept.
Diary::~Diary() {
    (void)SaveNote(SaveMessages::Keep);
}

void Diary::BuildRows() {
    const auto label = [this](const QString& name) {
        auto* const made = new QLabel(page_);
        made->setObjectName(name);
        made->setTextFormat(Qt::PlainText);
        return made;
    };
    LabHead = label(QStringLiteral("LabHead"));
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.5);
    large.setBold(true);
    LabHead->setFont(large);
    LabHead->setAlignment(Qt::AlignCenter);
    LabMsg = label(QStringLiteral("LabMsg"));
    const auto column = [this](const QString& name) {
        auto* const made = new ElidedLabel(page_);
        made->setObjectName(name);
        return made;
    };
    LabHide = column(QStringLiteral("LabHide"));
    for (int i = 0; i <= kEventsPerDay; ++i) {
        const auto index = static_cast<std::size_t>(i);
        LabTime[index] = column(ArrayName("LabTime", i));
        LabTime[index]->setIndent(kTimeIndent);
        LabRpt[index] = column(ArrayName("LabRpt", i));
        LabRmd[index] = column(ArrayName("LabRmd", i));
        auto* const row = new RowLabel(page_);
        row->setObjectName(ArrayName("LabEvent", i));
        row->setTextFormat(Qt::PlainText);
        row->setIndent(kEventIndent);
        row->setAttribute(Qt::WA_Hover);
        row->Clicked = [this, i] { LabEvent_DblClick(i); };
        row->DoubleClicked = row->Clicked;
        row->installEventFilter(this);
        LabEvent[index] = row;
        ChkHide[index] = new QCheckBox(page_);
        ChkHide[index]->setObjectName(ArrayName("ChkHide", i));
    }
    for (int i = 0; i < kEventsPerDay; ++i) {
        QLabel* const number = label(ArrayName("LabNum", i));
        number->setText(QString::number(i + 1));
        number->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        number->setEnabled(false);
        LabNum[static_cast<std::size_t>(i)] = number;
    }
    QFont bold = font();
    bold.setBold(true);
    for (QLabel* const heading : {LabMsg, static_cast<QLabel*>(LabEvent[0])}) {
        heading->setFont(bold); // FitTexts sees to those with little room
    }
    LabEvent[0]->setFocusPolicy(Qt::TabFocus);
    LabEvent[0]->setCursor(Qt::PointingHandCursor);
}

void Diary::BuildEditor() {
    const auto box = [this](const char* name) {
        auto* const made = new QLineEdit(page_);
        made->setObjectName(QLatin1String(name));
        made->setTextMargins(0, 0, 0, 0);
        return made;
    };
    TextTme = box("TextTme");
    TextTmm = box("TextTmm");
    TextMsg = box("TextMsg");
    TextTme->setAlignment(Qt::AlignCenter);
    TextTmm->setAlignment(Qt::AlignCenter);
    CombRpt = new SlimComboBox(page_);
    CombRpt->setObjectName(QStringLiteral("CombRpt"));
    CombRmd = new SlimComboBox(page_);
    CombRmd->setObjectName(QStringLiteral("CombRmd"));
    connect(TextTme, &QLineEdit::textChanged, this,
            [this] { TextTime_Change(*TextTme, acceptedHour_, kMaxHour); });
    connect(TextTmm, &QLineEdit::textChanged, this,
            [this] { TextTime_Change(*TextTmm, acceptedMinute_, kMaxMinute); });
    TextTme->installEventFilter(this);
    TextTmm->installEventFilter(this);
}

void Diary::BuildButtons() {
    const auto button = [this](const char* name, void (Diary::*handler)()) {
        auto* const made = new QPushButton(page_);
        made->setObjectName(QLatin1String(name));
        made->setAutoDefault(false);
        connect(made, &QPushButton::clicked, this, [this, handler] { (this->*handler)(); });
        return made;
    };
    ComDataAcpt = button("ComDataAcpt", &Diary::ComDataAcpt_Click);
    ComInfo = button("ComInfo", &Diary::ComInfo_Click);
    ComMonPic = button("ComMonPic", &Diary::ComMonPic_Click);
    ComDayPic = button("ComDayPic", &Diary::ComDayPic_Click);
    CombNet = new QComboBox(page_);
    CombNet->setObjectName(QStringLiteral("CombNet"));
    new SteadyList(CombNet); // a diary passed on the way would be loaded
    connect(CombNet, &QComboBox::activated, this, [this](int index) { CombNet_Click(index); });
    QWidget* previous = TextTme;
    for (QWidget* const next :
         {static_cast<QWidget*>(TextTmm), static_cast<QWidget*>(TextMsg),
          static_cast<QWidget*>(CombRpt), static_cast<QWidget*>(CombRmd),
          static_cast<QWidget*>(ChkHide[0]), static_cast<QWidget*>(ComDataAcpt),
          static_cast<QWidget*>(ComInfo), static_cast<QWidget*>(ComMonPic),
          static_cast<QWidget*>(ComDayPic), static_cast<QWidget*>(CombNet)}) {
        setTabOrder(previous, next);
        previous = next;
    }
}

void Diary::BuildMenus() {
    MNU_File = menus_->addMenu(QString());
    MNU_File->setObjectName(QStringLiteral("MNU_File"));
    const auto entry = [this](const char* name, void (Diary::*handler)()) {
        QAction* const action = MNU_File->addAction(QString());
        action->setObjectName(QLatin1String(name));
        connect(action, &QAction::triggered, this, [this, handler] { (this->*handler)(); });
        return action;
    };
    MNU_Insert = MNU_File->addAction(QString());
    MNU_Insert->setObjectName(QStringLiteral("MNU_Insert"));
    MNU_Insert->setShortcut(QKeySequence::New);
    connect(MNU_Insert, &QAction::triggered, this, [this] { LabEvent_DblClick(0); });
    entry("MNU_Search", &Diary::MNU_Search_Click)->setShortcut(QKeySequence::Find);
    MNU_File->addSeparator();
    MNU_Delete = entry("MNU_Delete", &Diary::MNU_Delete_Click);
    MNU_DelAll = entry("MNU_DelAll", &Diary::MNU_DelAll_Click);
    MNU_Undo = entry("MNU_Undo", &Diary::MNU_Undo_Click);
    MNU_Undo->setShortcut(QKeySequence::Undo);
    MNU_File->addSeparator();
    entry("MNU_Export", &Diary::MNU_Export_Click);
    entry("MNU_Import", &Diary::MNU_Import_Click);
    MNU_File->addSeparator();
    MNU_New = entry("MNU_New", &Diary::MNU_New_Click);
    MNU_Remove = entry("MNU_Remove", &Diary::MNU_Remove_Click);
    MNU_File->addSeparator();
    entry("MNU_Exit", &Diary::reject)->setShortcut(QKeySequence::Close);
    connect(MNU_File, &QMenu::aboutToShow, this, [this] { MNU_File_Click(); });
    // A shortcut must find its entry ready although the menu has not been opened.
    connect(MNU_File, &QMenu::aboutToHide, this, [this] {
        MNU_Insert->setEnabled(true);
        MNU_Undo->setEnabled(true);
    });
}

int Diary::RowTop(int row) const {
    return Pixels(kRowsTop + row * kRowHeight);
}

void Diary::PlaceControls() {
    const int width = Twips(page_->width());
    const int height = Pixels(kRowHeight);
    const auto place = [height](QWidget* control, int left, int top, int controlWidth) {
        control->setGeometry(Pixels(left), top, Pixels(controlWidth), height);
    };
    LabHead->setGeometry(0, Pixels(150), page_->width(), Pixels(600));
    place(LabMsg, 1000, Pixels(kRowsTop), width - 3900);
    LabMsg->setIndent(Pixels(kEventLeft - 1000) + kEventIndent);
    place(LabHide, width - 600, Pixels(kRowsTop), 600);
    for (int row = 0; row <= kEventsPerDay; ++row) {
        const auto i = static_cast<std::size_t>(row);
        const int top = RowTop(row);
        // The heading has the room up to the first letter of the next.
        place(LabTime[i], kTimeLeft, top, row == 0 ? kEventLeft - kTimeLeft : kTimeWidth);
        place(LabRpt[i], width - 3100, top, 1350);
        place(LabRmd[i], width - 1700, top, 1050);
        if (row > 0) {
            place(LabEvent[i], kEventLeft, top, width - 4500);
            place(ChkHide[i], width - 600, top, 400);
            LabNum[i - 1]->setGeometry(0, Pixels((row - 1) * kRowHeight + 1140),
                                       Pixels(kTimeLeft) - 4, height);
        }
    }
    LabEvent[0]->setGeometry(Pixels(kEventLeft), Pixels(kAddTop), Pixels(width - 4500),
                             Pixels(kAddHeight));
    place(ChkHide[0], width - 600, Pixels(kAddTop), 400);
    place(CombNet, width - 2800, Pixels(kDiariesTop), 2500);
    PlaceButtons();
    FitTexts();
    if (IsEditing()) {
        PlaceEditor();
    }
}

// Four of equal width stand side by side.
void Diary::PlaceButtons() {
    constexpr int kPlaces = 4;
    constexpr int kGap = 100;
    const int width = (Twips(page_->width()) - 2 * kTimeLeft - (kPlaces - 1) * kGap) / kPlaces;
    int left = kTimeLeft;
    for (QPushButton* const button : {ComDataAcpt, ComInfo, ComMonPic, ComDayPic}) {
        button->setGeometry(Pixels(left), Pixels(kButtonsTop), Pixels(width),
                            Pixels(kButtonHeight));
        left += width + kGap;
    }
}

// Where there is little room, texts get smaller before they are cut, and cut ones have a tip.
void Diary::FitTexts() {
    constexpr int kButtonPadding = 8; // pixels
    QFont bold = font();
    bold.setBold(true);
    for (ElidedLabel* const heading : {LabTime[0], LabRpt[0], LabRmd[0], LabHide}) {
        const int room = heading->width() - std::max(heading->indent(), 0);
        heading->setFont(FittingFont(bold, heading->text(), room));
        heading->setToolTip(PlainTip(heading->text()));
    }
    LabEvent[0]->setFont(
        FittingFont(bold, LabEvent[0]->text(), LabEvent[0]->width() - kEventIndent));
    for (std::size_t row = 1; row <= kEventsPerDay; ++row) {
        for (ElidedLabel* const label : {LabRpt[row], LabRmd[row]}) {
            label->setFont(FittingFont(font(), label->text(), label->width()));
        }
    }
    for (QPushButton* const button : {ComDataAcpt, ComInfo, ComMonPic, ComDayPic}) {
        button->setFont(FittingFont(font(), button->text(), button->width() - 2 * kButtonPadding));
    }
}

// The editor stands over the row that is edited.
void Diary::PlaceEditor() {
    const int row = *editSlot_ == 0 ? kAddLineSlot : *editSlot_;
    const int top = RowTop(row);
    const int width = Twips(page_->width());
    const int height = Pixels(kRowHeight);
    TextTme->setGeometry(Pixels(kTimeLeft), top, Pixels(470), height);
    TextTmm->setGeometry(Pixels(kTimeLeft + 480), top, Pixels(470), height);
    TextMsg->setGeometry(Pixels(kEventLeft), top, Pixels(width - 4500), height);
    CombRpt->setGeometry(Pixels(width - 3150), top, Pixels(1420), height);
    CombRmd->setGeometry(Pixels(width - 1720), top, Pixels(1080), height);
    ChkHide[0]->setGeometry(Pixels(width - 600), top, Pixels(400), height);
    for (QWidget* const control :
         {static_cast<QWidget*>(TextTme), static_cast<QWidget*>(TextTmm),
          static_cast<QWidget*>(TextMsg), static_cast<QWidget*>(CombRpt),
          static_cast<QWidget*>(CombRmd), static_cast<QWidget*>(ChkHide[0])}) {
        control->show();
        control->raise();
    }
}

void Diary::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    const int menuHeight = menus_->sizeHint().height();
    menus_->setGeometry(0, 0, width(), menuHeight);
    page_->setGeometry(0, menuHeight, width(), height() - menuHeight);
    PlaceControls();
}

} // namespace kestrova
