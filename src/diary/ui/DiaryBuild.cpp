// SPDX-License-Identifier: GPL-3.0-or-later
// How the day page is put together, and where its controls stand.
#include "diary/ui/Diary.h"

#include "platform/qt/QtText.h"
#include "ui/Look.h"
#include "ui/Names.h"
#include "ui/Twips.h"

#include <QMenuBar>
#include <QPainter>
#include <QResizeEvent>

namespace kestrova {

namespace {

constexpr int kRowHeight = 315; // twips
constexpr int kRowsTop = 840;   // of the headings; row i stands i rows below
constexpr int kTimeLeft = 300;
constexpr int kTimeWidth = 900;
constexpr int kEventLeft = 1300;
constexpr int kEventIndent = 6; // pixels
constexpr int kAddTop = 4305;
constexpr int kAddHeight = 500;
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

// A row's message; framed when the keyboard stands on it.
class RowLabel : public ClickLabel {
public:
    using ClickLabel::ClickLabel;

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        if (hasFocus() || (underMouse() && focusPolicy() != Qt::NoFocus)) {
            QPainter painter(this);
            const QColor accent = look::Accent(palette());
            painter.fillRect(rect(), look::Faded(accent, hasFocus() ? 0.25 : 0.12));
            painter.fillRect(0, 0, 3, height(), accent);
        }
        PaintElided(*this);
    }
};

} // namespace

Diary::Diary(QWidget* parent, const Rooms& rooms, std::function<void()> changed)
    : QDialog(parent), rooms_(rooms), changed_(std::move(changed)) {
    setObjectName(QStringLiteral("Diary"));
    setWindowModality(Qt::WindowModal);
    menus_ = new QMenuBar(this);
    page_ = new Page(this);
    BuildRows();
    BuildEditor();
    BuildMenus();
    LoadCaptions();
    const int menuHeight = menus_->sizeHint().height();
    setMinimumWidth(Pixels(kLeastPageWidth));
    setFixedHeight(Pixels(kPageHeight) + menuHeight);
    resize(Pixels(kPageWidth), height());
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
    LabHide = label(QStringLiteral("LabHide"));
    for (int i = 0; i <= kEventsPerDay; ++i) {
        const auto index = static_cast<std::size_t>(i);
        LabTime[index] = label(ArrayName("LabTime", i));
        LabTime[index]->setIndent(8);
        LabRpt[index] = new ElidedLabel(page_);
        LabRpt[index]->setObjectName(ArrayName("LabRpt", i));
        LabRmd[index] = new ElidedLabel(page_);
        LabRmd[index]->setObjectName(ArrayName("LabRmd", i));
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
    for (QLabel* const heading :
         {LabMsg, LabHide, LabTime[0], static_cast<QLabel*>(LabRpt[0]),
          static_cast<QLabel*>(LabRmd[0]), static_cast<QLabel*>(LabEvent[0])}) {
        heading->setFont(bold);
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
    CombRpt = new QComboBox(page_);
    CombRpt->setObjectName(QStringLiteral("CombRpt"));
    CombRmd = new QComboBox(page_);
    CombRmd->setObjectName(QStringLiteral("CombRmd"));
    ComDataAcpt = new QPushButton(page_);
    ComDataAcpt->setObjectName(QStringLiteral("ComDataAcpt"));
    ComDataAcpt->setAutoDefault(false);
    connect(TextTme, &QLineEdit::textChanged, this,
            [this] { TextTime_Change(*TextTme, acceptedHour_, kMaxHour); });
    connect(TextTmm, &QLineEdit::textChanged, this,
            [this] { TextTime_Change(*TextTmm, acceptedMinute_, kMaxMinute); });
    connect(ComDataAcpt, &QPushButton::clicked, this, [this] { ComDataAcpt_Click(); });
    TextTme->installEventFilter(this);
    TextTmm->installEventFilter(this);
    QWidget* previous = TextTme;
    for (QWidget* const next :
         {static_cast<QWidget*>(TextTmm), static_cast<QWidget*>(TextMsg),
          static_cast<QWidget*>(CombRpt), static_cast<QWidget*>(CombRmd),
          static_cast<QWidget*>(ChkHide[0]), static_cast<QWidget*>(ComDataAcpt)}) {
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
    MNU_File->addSeparator();
    MNU_Delete = entry("MNU_Delete", &Diary::MNU_Delete_Click);
    MNU_DelAll = entry("MNU_DelAll", &Diary::MNU_DelAll_Click);
    MNU_Undo = entry("MNU_Undo", &Diary::MNU_Undo_Click);
    MNU_Undo->setShortcut(QKeySequence::Undo);
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
        place(LabTime[i], kTimeLeft, top, kTimeWidth);
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
    ComDataAcpt->setGeometry(Pixels(kTimeLeft), Pixels(kButtonsTop), Pixels(2700),
                             Pixels(kButtonHeight));
    if (IsEditing()) {
        PlaceEditor();
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
