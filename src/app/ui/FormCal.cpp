// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ui/FormCal.h"

#include "app/Navigation.h"
#include "calendar/MonthSheet.h"
#include "diary/DayPage.h"
#include "language/ProgramTexts.h"
#include "language/Texts.h"
#include "language/ui/ApplyCaptions.h"
#include "platform/qt/QtText.h"
#include "settings/ListChoices.h"
#include "ui/Look.h"
#include "ui/Names.h"
#include "ui/PlainTip.h"

#include <QApplication>
#include <QBoxLayout>
#include <QCloseEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QMenu>
#include <QScreen>

#include <algorithm>

namespace kestrova {

namespace {

constexpr double kBesideRatio = 1.15; // a window wider than this has the picture beside the grid
constexpr double kCardShare = 0.40;   // of the window's width, at most, for the grid beside it
constexpr double kPictureShape = 4.0 / 3.0; // of the pictures that ship
constexpr int kCardWidth = 340;             // at least
constexpr int kMinutesUntilReturn = 7;

QColor ToColour(const Colour& colour) {
    return {colour.Red, colour.Green, colour.Blue};
}

} // namespace

void FormCal::Redraw(int month) {
    if (month < kMonths) {
        rooms_.Dates.PageMonth = month;
    }
    if (!windowReady_ || isMinimized()) {
        return;
    }
    card_->setUpdatesEnabled(false);
    PlaceDates();
    MarkDates();
    SetTitle();
    DoMNUDays(rooms_.Dates.PageMonth);
    FitToWindow();
    card_->setUpdatesEnabled(true);
    if (firstDraw_) {
        firstDraw_ = false;
        hooks_.FirstDrawn();
    }
}

void FormCal::PlaceDates() {
    const Selection& dates = rooms_.Dates;
    for (DateLabel* const label : LabDates) {
        label->setVisible(false);
    }
    for (const SheetCell& cell :
         MonthSheet(dates.PageYear, dates.PageMonth, rooms_.Settings.Week)) {
        DateLabel* const label = LabDates[static_cast<std::size_t>(cell.Day - 1)];
        grid_->addWidget(label, cell.Row + 1, cell.Column);
        label->setVisible(true);
    }
}

void FormCal::MarkDates() {
    const Selection& dates = rooms_.Dates;
    const auto year = dates.PageYearIndex();
    const auto colour = [this](ColourRole role) {
        return ToColour(rooms_.Settings.ColourOf(role));
    };
    for (int day = 1; day <= NofDays(dates.PageYear, dates.PageMonth); ++day) {
        DateLabel* const label = LabDates[static_cast<std::size_t>(day - 1)];
        const auto mark =
            year ? DayMark(rooms_.Store.Table(), {day, dates.PageMonth, *year}) : std::nullopt;
        const bool today = dates.ShowsToday() && day == dates.TodayDay;
        const ColourRole role =
            today ? ColourRole::Today : (mark ? ColourRole::Event : ColourRole::Text);
        const QString tip = ToQt(mark.value_or(std::string()));
        label->SetLook({colour(role), tip, today, day == dates.PageDay});
        label->setToolTip(PlainTip(tip));
        label->setAccessibleName(
            ToQt(DayHeading(rooms_.Texts, {dates.PageYear, dates.PageMonth, day})).simplified());
        label->setAccessibleDescription(tip);
    }
}

void FormCal::SetTitle() {
    const Selection& dates = rooms_.Dates;
    LabCurMth->setText(ToQt(rooms_.Texts.MonthNames[static_cast<std::size_t>(dates.PageMonth)] +
                            "  " + std::to_string(dates.PageYear)));
    card_->setAccessibleName(LabCurMth->text().simplified());
    QPalette colours = card_->palette();
    colours.setColor(QPalette::Window, ToColour(rooms_.Settings.ColourOf(ColourRole::Background)));
    const QColor text = ToColour(rooms_.Settings.ColourOf(ColourRole::Text));
    for (const auto role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text}) {
        colours.setColor(role, text);
    }
    card_->setPalette(colours);
}

// Lays picture and grid out beside or above one another, and sizes the type to the room there is.
void FormCal::FitToWindow() {
    const QSize room = centralWidget()->size();
    const bool beside = room.width() > kBesideRatio * room.height();
    layout_->setDirection(beside ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    // The grid takes what a picture of the usual shape leaves of the width.
    const int left = room.width() - 3 * look::kMargin -
                     static_cast<int>((room.height() - 2 * look::kMargin) * kPictureShape);
    const int width =
        std::max(kCardWidth, std::min(left, static_cast<int>(room.width() * kCardShare)));
    card_->setMinimumWidth(beside ? width : 0);
    card_->setMaximumWidth(beside ? width : QWIDGETSIZE_MAX);

    const double scale = std::clamp(width / double(kCardWidth), 1.0, 2.0);
    const TitleFont& title = rooms_.Texts.Title;
    QFont font = this->font();
    font.setPointSizeF(title.Size * scale);
    font.setBold(title.Bold);
    font.setItalic(title.Italic);
    LabCurMth->setFont(font);
    QFont small = this->font();
    small.setPointSizeF(std::max(7.0, small.pointSizeF() * std::min(scale, 1.5) * 0.9));
    int widest = 0;
    for (const std::string& name : rooms_.Texts.WeekdayNames) {
        widest = std::max(widest, QFontMetrics(small).horizontalAdvance(ToQt(name)));
    }
    const bool full = (width - 2 * look::kMargin) / kDaysOfWeek > widest + look::kSpacing;
    for (int column = 0; column < kDaysOfWeek; ++column) {
        ClickLabel* const label = LabDays[static_cast<std::size_t>(column)];
        const QString name = ToQt(rooms_.Texts.DayName(column, rooms_.Settings.Week));
        label->setFont(small);
        label->setText(full ? name : name.left(3));
        label->setAccessibleName(name);
    }
}

void FormCal::GetPicture() {
    const auto month = static_cast<std::size_t>(rooms_.Dates.PageMonth);
    Image1->SetPicture(ToQt(rooms_.Pictures.MonthPicture[month]));
}

void FormCal::ApplySettings() {
    Image1->SetFit(rooms_.Settings.KeepAspect != 0 ? PictureFit::KeepAspect : PictureFit::Fill);
    MNU_Full->setChecked(rooms_.Settings.VideoFullScreen != 0);
    MNU_Repeat->setChecked(rooms_.Settings.VideoRepeat != 0);
    rooms_.Media.SettingsChanged();
}

void FormCal::Form_Activate() {
    setWindowState(rooms_.Settings.StartMaximised != 0 ? Qt::WindowMaximized : Qt::WindowNoState);
    GetPicture();
    windowReady_ = true;
    const QSize screen = this->screen()->availableSize();
    if (!isMaximized()) {
        resize(size().boundedTo(screen));
    }
    Redraw(rooms_.Dates.PageMonth);
}

void FormCal::ShowNormal() {
    show();
    setWindowState(Qt::WindowNoState);
    raise();
    activateWindow();
}

// Becoming visible is what activates the window; only then is there a size to draw for.
void FormCal::showEvent(QShowEvent* event) {
    QMainWindow::showEvent(event);
    if (!event->spontaneous()) {
        Form_Activate();
    }
}

void FormCal::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
        hooks_.GotFocus();
    }
    const bool back =
        event->type() == QEvent::WindowStateChange || event->type() == QEvent::ActivationChange;
    if (back && windowReady_ && isVisible() && !isMinimized()) {
        GetPicture();
        Redraw(kSameMonth);
    }
}

void FormCal::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    if (windowReady_ && !isMinimized()) {
        FitToWindow();
    }
}

void FormCal::closeEvent(QCloseEvent* event) {
    rooms_.Media.CleanUp();
    if (rooms_.Settings.ReminderOnClose != 0) {
        event->ignore();
        hide();
        return;
    }
    event->setAccepted(hooks_.Quit());
}

void FormCal::MNU_Exit_Click() {
    close();
}

bool FormCal::HandleMoveKey(const QKeyEvent& event) {
    Selection& dates = rooms_.Dates;
    const bool control = event.modifiers().testFlag(Qt::ControlModifier);
    switch (event.key()) {
    case Qt::Key_Left: AfterMove(StepDay(dates, -1)); return true;
    case Qt::Key_Right: AfterMove(StepDay(dates, 1)); return true;
    case Qt::Key_Up: AfterMove(StepDay(dates, -kDaysOfWeek)); return true;
    case Qt::Key_Down: AfterMove(StepDay(dates, kDaysOfWeek)); return true;
    case Qt::Key_PageUp:
        AfterMove(control ? StepYear(dates, -1) : StepMonth(dates, -1));
        return true;
    case Qt::Key_PageDown:
        AfterMove(control ? StepYear(dates, 1) : StepMonth(dates, 1));
        return true;
    case Qt::Key_Home: AfterMove(ShowToday(dates)); return true;
    default: return false;
    }
}

void FormCal::keyPressEvent(QKeyEvent* event) {
    if (stage_->HandleKey(*event) || HandleMoveKey(*event)) {
        return;
    }
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        hooks_.OpenDiary(rooms_.Dates.PageDay);
        return;
    }
    QMainWindow::keyPressEvent(event);
}

void FormCal::AfterMove(bool otherMonth) {
    if (otherMonth) {
        hooks_.SetReturnCountdown(0); // the user is looking for something
        GetPicture();
        Redraw(kSameMonth);
        voice_.SayPictureSoon();
    } else {
        MarkDates();
    }
}

void FormCal::LabDates_Click(int day) {
    rooms_.Dates.PageDay = day;
    MarkDates();
    voice_.SayDaySoon(day);
}

void FormCal::LabDates_DblClick(int day) {
    voice_.SayNothing();
    hooks_.OpenDiary(day);
}

void FormCal::DoMNUDays(int month) {
    const int days = NofDays(rooms_.Dates.PageYear, month);
    for (int i = 0; i < kMaxDays; ++i) {
        MNU_Day[static_cast<std::size_t>(i)]->setVisible(i < days);
    }
}

void FormCal::LabYrAdv_Click() {
    AfterMove(StepYear(rooms_.Dates, 1));
}

void FormCal::LabYrRtd_Click() {
    AfterMove(StepYear(rooms_.Dates, -1));
}

void FormCal::LabCurMth_DblClick() {
    const auto year = AskYear(rooms_.Boxes, rooms_.Texts, rooms_.Dates.BaseYear);
    if (year) {
        ShowYear(rooms_.Dates, *year);
        hooks_.SetReturnCountdown(0);
        GetPicture();
        Redraw(rooms_.Dates.TodayMonth);
        voice_.SayPictureSoon();
    }
}

void FormCal::LabCurMth_Click() {
    voice_.SayTime(FromQt(LabCurMth->text()));
}

void FormCal::LabHelp_Click() {
    const std::string page = rooms_.DataFolder + "Help.htm";
    if (!rooms_.Desktop.OpenPage(page)) {
        rooms_.Boxes.Show({rooms_.Texts.Text(texts::kProgramTitle),
                           TextOf(rooms_.Texts, ProgramText::NoHelp, page), DialogIcon::Critical});
    }
}

void FormCal::MNU_Mon_Click(int month) {
    ShowMonth(rooms_.Dates, month);
    GetPicture();
    Redraw(month);
    hooks_.SetReturnCountdown(kMinutesUntilReturn);
    voice_.SayPictureSoon();
}

void FormCal::MNU_WeekSt_Click(int index) {
    rooms_.Settings.Week = static_cast<WeekStart>(2 - index);
    hooks_.ReloadLanguage();
    hooks_.SettingsChanged();
    Redraw(kSameMonth);
}

void FormCal::MNU_Lan_Click(int index) {
    hooks_.ChangeLanguage(index);
}

void FormCal::MNU_Settings_Click() {
    hooks_.OpenSettings();
}

// Whether the picture, film or puzzle has the window to itself.
bool FormCal::IsHalf() const {
    return rooms_.Media.View() == MediaViewMode::Half || game_->WantsWindow();
}

void FormCal::ViewChanged() {
    const bool half = IsHalf();
    if (half == card_->isHidden()) {
        return;
    }
    card_->setVisible(!half);
    if (!half) {
        card_->setFocus();
        Redraw(kSameMonth);
    } else if (!game_->IsRunning()) {
        setFocus();
    }
}

void FormCal::MNU_File_Click() {
    const bool film = rooms_.Media.ShowsVideo();
    MNU_Half->setEnabled(!film);
    MNU_Half->setChecked(!film && rooms_.Media.View() == MediaViewMode::Half);
    MNU_Save->setEnabled(!film && Image1->HasPicture());
    MNU_Full->setChecked(rooms_.Settings.VideoFullScreen != 0);
    MNU_Repeat->setChecked(rooms_.Settings.VideoRepeat != 0);
    MNU_Pdf->setChecked(rooms_.Settings.PrintNumber1 != 0);
}

void FormCal::MNU_Full_Click() {
    rooms_.Settings.VideoFullScreen = MNU_Full->isChecked() ? 1 : 0;
    hooks_.VideoChosen();
    rooms_.Media.LabMusic_DblClick();
}

void FormCal::MNU_Half_Click() {
    rooms_.Media.LabMusic_Click();
}

// GetVideo
void FormCal::MNU_Media_Click() {
    if (const auto path =
            rooms_.Boxes.OpenFile("", TextOf(rooms_.Texts, ProgramText::MediaFilter))) {
        rooms_.Media.PlayFile(*path);
    }
}

void FormCal::MNU_Picture_Click() {
    const int month = rooms_.Dates.PageMonth; // the clock may show another while the user chooses
    hooks_.ChPic();
    MNU_Mon_Click(month);
}

void FormCal::MNU_Repeat_Click() {
    rooms_.Settings.VideoRepeat = MNU_Repeat->isChecked() ? 1 : 0;
    rooms_.Media.SettingsChanged();
    hooks_.VideoChosen();
}

void FormCal::MNU_About_Click() {
    const std::string version = FromQt(QApplication::applicationVersion());
    rooms_.Boxes.Show({rooms_.Texts.Text(texts::kProgramTitle),
                       rooms_.Texts.Text(texts::kProgramTitle) + " " + version + "\n" +
                           TextOf(rooms_.Texts, ProgramText::AboutText),
                       DialogIcon::None});
}

} // namespace kestrova
