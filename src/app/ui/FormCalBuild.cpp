// SPDX-License-Identifier: GPL-3.0-or-later
// How the main window is put together: its controls, its menus and their texts.
#include "app/ui/FormCal.h"

#include "app/Navigation.h"
#include "calendar/MonthSheet.h"
#include "language/ProgramTexts.h"
#include "language/Texts.h"
#include "language/ui/ApplyCaptions.h"
#include "platform/qt/QtText.h"
#include "ui/Look.h"
#include "ui/Names.h"

#include <QActionGroup>
#include <QApplication>
#include <QBoxLayout>
#include <QGridLayout>
#include <QMenuBar>
#include <QPainter>
#include <QStyle>

namespace kestrova {

namespace {

constexpr QSize kFirstSize{1200, 664};
constexpr QSize kSmallestSize{640, 480};

// The sheet behind the dates, in the background colour that the user has chosen.
class Card : public QWidget {
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(palette().color(QPalette::Window));
        painter.drawRoundedRect(QRectF(rect()), look::kRadius, look::kRadius);
    }
};

// An arrow in the colour of the text around it, whatever theme the desktop has.
class ArrowButton : public QToolButton {
public:
    ArrowButton(QWidget* parent, bool forward) : QToolButton(parent), forward_(forward) {
        setAutoRaise(true);
        setFocusPolicy(Qt::TabFocus);
        setFixedSize(32, 32);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QColor colour = palette().color(QPalette::WindowText);
        if (underMouse() || hasFocus()) {
            painter.setPen(hasFocus() ? QPen(look::Accent(palette()), 2) : QPen(Qt::NoPen));
            painter.setBrush(look::Faded(colour, isDown() ? 0.2 : 0.1));
            painter.drawEllipse(QRectF(rect()).adjusted(2, 2, -2, -2));
        }
        painter.setPen(QPen(colour, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        const QPointF centre = QRectF(rect()).center();
        const double step = forward_ ? 4 : -4;
        const QPointF points[] = {centre + QPointF(-step / 2, -6), centre + QPointF(step, 0),
                                  centre + QPointF(-step / 2, 6)};
        painter.drawPolyline(points, 3);
    }

private:
    bool forward_;
};

} // namespace

FormCal::FormCal(const Rooms& rooms, Hooks hooks)
    : rooms_(rooms), hooks_(std::move(hooks)),
      voice_({rooms.Dates, rooms.Texts, rooms.Settings, rooms.Store, rooms.Pictures, rooms.Files,
              rooms.Time, rooms.Speech}) {
    setObjectName(QStringLiteral("FormCal"));
    setMinimumSize(kSmallestSize);
    resize(kFirstSize);
    auto* const centre = new QWidget(this);
    layout_ = new QBoxLayout(QBoxLayout::LeftToRight, centre);
    layout_->setContentsMargins(look::kMargin, look::kMargin, look::kMargin, look::kMargin);
    layout_->setSpacing(look::kMargin);
    stage_ = new MediaStage(
        centre, rooms_.Media, rooms_.Texts,
        {[this] { ViewChanged(); }, [this] { ShowNormal(); }, [this] { hooks_.VideoSwitched(); }});
    Image1 = &stage_->Picture();
    Image1->Clicked = [this] { LabCurMth_Click(); };
    Image1->DoubleClicked = [this] { MNU_Settings_Click(); };
    layout_->addWidget(stage_, 3);
    card_ = new Card(centre);
    card_->setFocusPolicy(Qt::StrongFocus);
    layout_->addWidget(card_, 2);
    BuildCard();
    setCentralWidget(centre);
    BuildMenus();
    centre->setCursor(Qt::CrossCursor);
    card_->setFocus();
}

void FormCal::BuildCard() {
    auto* const column = new QVBoxLayout(card_);
    column->setContentsMargins(look::kMargin, look::kMargin, look::kMargin, look::kSpacing);
    column->setSpacing(look::kSpacing);

    LabYrRtd = new ArrowButton(card_, false);
    LabYrRtd->setObjectName(QStringLiteral("LabYrRtd"));
    LabYrAdv = new ArrowButton(card_, true);
    LabYrAdv->setObjectName(QStringLiteral("LabYrAdv"));
    connect(LabYrRtd, &QToolButton::clicked, this, &FormCal::LabYrRtd_Click);
    connect(LabYrAdv, &QToolButton::clicked, this, &FormCal::LabYrAdv_Click);
    LabCurMth = new ClickLabel(card_);
    LabCurMth->setObjectName(QStringLiteral("LabCurMth"));
    LabCurMth->setAlignment(Qt::AlignCenter);
    LabCurMth->Clicked = [this] { LabCurMth_Click(); };
    LabCurMth->DoubleClicked = [this] { LabCurMth_DblClick(); };
    auto* const title = new QHBoxLayout;
    title->addWidget(LabYrRtd);
    title->addWidget(LabCurMth, 1);
    title->addWidget(LabYrAdv);
    column->addLayout(title);

    BuildGrid();
    column->addLayout(grid_, 1);

    LabHelp = new ClickLabel(card_);
    LabHelp->setObjectName(QStringLiteral("LabHelp"));
    LabHelp->setCursor(Qt::PointingHandCursor);
    LabHelp->setFocusPolicy(Qt::TabFocus);
    LabHelp->Clicked = [this] { LabHelp_Click(); };
    column->addWidget(LabHelp, 0, Qt::AlignRight);
}

// The day names over six rows of dates.
void FormCal::BuildGrid() {
    grid_ = new QGridLayout;
    grid_->setSpacing(2);
    for (int i = 0; i < kDaysOfWeek; ++i) {
        auto* const label = new ClickLabel(card_);
        label->setObjectName(ArrayName("LabDays", i));
        label->setAlignment(Qt::AlignCenter);
        label->Clicked = [this] { voice_.SayClipboard(); };
        LabDays[static_cast<std::size_t>(i)] = label;
        grid_->addWidget(label, 0, i);
        grid_->setColumnStretch(i, 1);
    }
    for (int row = 1; row <= kSheetRows; ++row) {
        grid_->setRowStretch(row, 1);
        grid_->setRowMinimumHeight(row, 24);
    }
    for (int i = 0; i < kMaxDays; ++i) {
        auto* const label = new DateLabel(card_);
        label->setObjectName(ArrayName("LabDates", i));
        label->setText(QString::number(i + 1));
        label->Clicked = [this, i] { LabDates_Click(i + 1); };
        label->DoubleClicked = [this, i] { LabDates_DblClick(i + 1); };
        label->hide();
        LabDates[static_cast<std::size_t>(i)] = label;
    }
}

QAction* FormCal::AddAction(QMenu* menu, const QString& name, std::function<void()> handler) {
    QAction* const action = menu->addAction(QString());
    action->setObjectName(name);
    connect(action, &QAction::triggered, this, [handler = std::move(handler)] { handler(); });
    return action;
}

void FormCal::BuildMenus() {
    const auto menu = [this](const char* name) {
        QMenu* const added = menuBar()->addMenu(QString());
        added->setObjectName(QLatin1String(name));
        return added;
    };
    MNU_File = menu("MNU_File");
    MNU_Month = menu("MNU_Month");
    MNU_Date = menu("MNU_Date");
    MNU_Week = menu("MNU_Week");
    MNU_Language = menu("MNU_Language");
    MNU_Game = menu("MNU_Game");
    MNU_Help = menu("MNU_Help");
    BuildFileMenu();
    BuildMonthMenu();
    BuildChoiceMenus();
    game_ = new GameMenu(
        {rooms_.Texts, rooms_.Settings, rooms_.Boxes, rooms_.Pieces}, MNU_Game, Image1,
        {[this] {
             return rooms_.Pictures.MonthPicture[static_cast<std::size_t>(rooms_.Dates.PageMonth)];
         },
         [this] { rooms_.Media.VideoCleanUp(); }, [this] { ViewChanged(); }});
    AddAction(MNU_Help, QStringLiteral("MNU_Manual"), [this] {
        LabHelp_Click();
    })->setShortcut(QKeySequence::HelpContents);
    AddAction(MNU_Help, QStringLiteral("MNU_TellFriend"), [this] { hooks_.TellAFriend(); });
    AddAction(MNU_Help, QStringLiteral("MNU_MailAccount"), [this] { hooks_.OpenMailAccount(); });
    AddAction(MNU_Help, QStringLiteral("MNU_About"), [this] { MNU_About_Click(); });
}

void FormCal::BuildFileMenu() {
    MNU_Full = AddAction(MNU_File, QStringLiteral("MNU_Full"), [this] { MNU_Full_Click(); });
    MNU_Full->setCheckable(true);
    MNU_Half = AddAction(MNU_File, QStringLiteral("MNU_Half"), [this] { MNU_Half_Click(); });
    MNU_Half->setCheckable(true);
    MNU_Repeat = AddAction(MNU_File, QStringLiteral("MNU_Repeat"), [this] { MNU_Repeat_Click(); });
    MNU_Repeat->setCheckable(true);
    MNU_File->addSeparator();
    AddAction(MNU_File, QStringLiteral("MNU_Media"), [this] {
        MNU_Media_Click();
    })->setShortcut(QKeySequence::Open);
    AddAction(MNU_File, QStringLiteral("MNU_Picture"), [this] { MNU_Picture_Click(); });
    MNU_Save = AddAction(MNU_File, QStringLiteral("MNU_Save"), [this] { hooks_.SavePic(); });
    MNU_Save->setShortcut(QKeySequence::Save);
    MNU_File->addSeparator();
    AddAction(MNU_File, QStringLiteral("MNU_Preview"), [this] {
        hooks_.Preview();
    })->setShortcut(QKeySequence::Print);
    AddAction(MNU_File, QStringLiteral("MNU_PrDiary"), [this] { hooks_.PrintDiary(); });
    MNU_Pdf = AddAction(MNU_File, QStringLiteral("MNU_Pdf"),
                        [this] { hooks_.PrintToPdf(MNU_Pdf->isChecked()); });
    MNU_Pdf->setCheckable(true);
    MNU_File->addSeparator();
    AddAction(MNU_File, QStringLiteral("MNU_Settings"), [this] {
        MNU_Settings_Click();
    })->setShortcut(Qt::CTRL | Qt::Key_Comma);
    MNU_File->addSeparator();
    AddAction(MNU_File, QStringLiteral("MNU_Exit"), [this] {
        MNU_Exit_Click();
    })->setShortcut(QKeySequence::Quit);
    connect(MNU_File, &QMenu::aboutToShow, this, [this] { MNU_File_Click(); });
    // A shortcut must find its entry ready although the menu has not been opened.
    connect(MNU_File, &QMenu::aboutToHide, this, [this] { MNU_Save->setEnabled(true); });
}

void FormCal::BuildMonthMenu() {
    for (int i = 0; i < kMonths; ++i) {
        MNU_Mon[static_cast<std::size_t>(i)] =
            AddAction(MNU_Month, ArrayName("MNU_Mon", i), [this, i] { MNU_Mon_Click(i); });
    }
    MNU_Month->addSeparator();
    AddAction(MNU_Month, QStringLiteral("MNU_Today"),
              [this] { AfterMove(ShowToday(rooms_.Dates)); });
    AddAction(MNU_Month, QStringLiteral("MNU_Previous"),
              [this] { AfterMove(StepMonth(rooms_.Dates, -1)); });
    AddAction(MNU_Month, QStringLiteral("MNU_Next"),
              [this] { AfterMove(StepMonth(rooms_.Dates, 1)); });
    AddAction(MNU_Month, QStringLiteral("MNU_Year"), [this] {
        LabCurMth_DblClick();
    })->setShortcut(Qt::CTRL | Qt::Key_Y);
    AddAction(MNU_Date, QStringLiteral("MNU_Search"), [this] {
        hooks_.OpenFinder();
    })->setShortcut(QKeySequence::Find);
    MNU_Date->addSeparator();
    for (int i = 0; i < kMaxDays; ++i) {
        QAction* const day =
            AddAction(MNU_Date, ArrayName("MNU_Day", i), [this, i] { hooks_.OpenDiary(i + 1); });
        day->setText(QString::number(i + 1));
        MNU_Day[static_cast<std::size_t>(i)] = day;
    }
}

void FormCal::BuildChoiceMenus() {
    auto* const weeks = new QActionGroup(this);
    for (int i = 0; i < 3; ++i) {
        QAction* const action =
            AddAction(MNU_Week, ArrayName("MNU_WeekSt", i), [this, i] { MNU_WeekSt_Click(i); });
        action->setCheckable(true);
        weeks->addAction(action);
        MNU_WeekSt[static_cast<std::size_t>(i)] = action;
    }
    for (int i = 0; i < kFixedLanguages; ++i) {
        QAction* const action =
            AddAction(MNU_Language, ArrayName("MNU_Lan", i), [this, i] { MNU_Lan_Click(i); });
        action->setCheckable(true);
        action->setText(ToQt(FixedLanguages()[static_cast<std::size_t>(i)].MenuCaption));
        MNU_Lan[static_cast<std::size_t>(i)] = action;
    }
}

void FormCal::LoadCaptions() {
    const StringTable& table = rooms_.Texts;
    const auto words = [&table](ProgramText text) { return ToQt(TextOf(table, text)); };
    ApplyCaptions(*this, table, TipTexts::Leave);
    setWindowTitle(ToQt(table.Text(texts::kProgramTitle)));
    MNU_File->setTitle(words(ProgramText::MenuFile));
    MNU_Month->setTitle(words(ProgramText::MenuMonth));
    MNU_Week->setTitle(words(ProgramText::MenuWeekStart));
    MNU_Language->setTitle(words(ProgramText::MenuLanguage));

    struct Entry {
        const char* Name;
        ProgramText Text;
    };
    constexpr Entry kEntries[] = {
        {"MNU_Full", ProgramText::MenuFullScreen},
        {"MNU_Half", ProgramText::MenuHalfScreen},
        {"MNU_Repeat", ProgramText::MenuRepeatMode},
        {"MNU_Media", ProgramText::MenuMedia},
        {"MNU_Picture", ProgramText::MenuMonthPicture},
        {"MNU_Save", ProgramText::MenuSavePicture},
        {"MNU_Preview", ProgramText::MenuPrintPreview},
        {"MNU_PrDiary", ProgramText::MenuPrintDiary},
        {"MNU_Pdf", ProgramText::MenuPdfPrinter},
        {"MNU_Settings", ProgramText::MenuSettings},
        {"MNU_Exit", ProgramText::MenuExit},
        {"MNU_Today", ProgramText::MenuThisMonth},
        {"MNU_Previous", ProgramText::MenuPreviousMonth},
        {"MNU_Next", ProgramText::MenuNextMonth},
        {"MNU_Year", ProgramText::MenuYear},
        {"MNU_Search", ProgramText::MenuSearch},
        {"MNU_Manual", ProgramText::MenuManual},
        {"MNU_TellFriend", ProgramText::MenuTellFriend},
        {"MNU_MailAccount", ProgramText::MenuMailAccount},
        {"MNU_About", ProgramText::MenuAbout},
    };
    for (const Entry& entry : kEntries) {
        findChild<QAction*>(QLatin1String(entry.Name))->setText(words(entry.Text));
    }
    Image1->setAccessibleName(words(ProgramText::PictureOfMonth));
    LabYrRtd->setAccessibleName(words(ProgramText::PreviousYear));
    LabYrAdv->setAccessibleName(words(ProgramText::NextYear));

    for (std::size_t month = 0; month < kMonths; ++month) {
        MNU_Mon[month]->setText(ToQt(table.MonthMenu[month]));
    }
    // Saturday, Sunday, Monday: the reverse of the numbers in the settings.
    constexpr std::array<std::size_t, 3> kWeekdays = {5, 6, 0};
    for (std::size_t i = 0; i < kWeekdays.size(); ++i) {
        MNU_WeekSt[i]->setText(ToQt(table.WeekdayNames[kWeekdays[i]]));
        MNU_WeekSt[i]->setChecked(static_cast<int>(rooms_.Settings.Week) ==
                                  2 - static_cast<int>(i));
    }
    game_->LoadCaptions();
    stage_->LoadCaptions();
    GiveAccessKeys();
    LoadTips();
    const LanguageChoices& choices = rooms_.Tongues.Choices();
    for (std::size_t i = 0; i < kFixedLanguages; ++i) {
        MNU_Lan[i]->setEnabled(choices.Enabled[i]);
        MNU_Lan[i]->setChecked(choices.Checked == static_cast<int>(i));
    }
}

// The table's texts for two of the menus have no access keys: they get the first letters that the
// others leave.
void FormCal::GiveAccessKeys() {
    QString taken;
    for (const QMenu* const menu : {MNU_File, MNU_Month, MNU_Week, MNU_Language, MNU_Game}) {
        const QString title = menu->title();
        taken += title.mid(title.indexOf(u'&') + 1, 1).toLower();
    }
    for (QMenu* const menu : {MNU_Date, MNU_Help}) {
        QString title = menu->title();
        for (qsizetype i = 0; i < title.size() && !title.contains(u'&'); ++i) {
            const QString letter = title.mid(i, 1).toLower();
            if (letter.front().isLetter() && !taken.contains(letter)) {
                taken += letter;
                menu->setTitle(title.insert(i, u'&'));
            }
        }
    }
}

void FormCal::LoadTips() {
    const bool on = rooms_.Settings.HelpTextOn != 0;
    ApplyTips(*this, rooms_.Texts, on ? TipTexts::Apply : TipTexts::Remove);
    for (QToolButton* const arrow : {LabYrRtd, LabYrAdv}) {
        arrow->setToolTip(on ? arrow->accessibleName() : QString());
    }
    stage_->LoadTips(on);
}

} // namespace kestrova
