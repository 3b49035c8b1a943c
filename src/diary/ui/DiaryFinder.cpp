// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/ui/DiaryFinder.h"

#include "language/ProgramTexts.h"
#include "language/ui/ApplyCaptions.h"
#include "platform/qt/QtText.h"
#include "ui/Look.h"
#include "ui/Names.h"

#include <QAction>
#include <QApplication>
#include <QBoxLayout>
#include <QIcon>
#include <QKeyEvent>
#include <QPainter>
#include <QStackedLayout>

#include <utility>

namespace kestrova {

namespace {

constexpr QSize kFirstSize{720, 460};
constexpr QSize kSmallestSize{480, 280};
constexpr int kLongestQuery = 200; // characters
constexpr int kPatience = 40;      // milliseconds between two looks whether the notes are there
constexpr int kIconSize = 16;
constexpr int kLineHeight = 32;

// A magnifying glass in the colour of the text, whatever theme the desktop has.
QIcon GlassIcon(const QWidget& widget) {
    const qreal scale = widget.devicePixelRatioF();
    QPixmap drawing(QSize(kIconSize, kIconSize) * scale);
    drawing.setDevicePixelRatio(scale);
    drawing.fill(Qt::transparent);
    QPainter painter(&drawing);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor colour = look::Between(widget.palette().color(QPalette::Base),
                                        widget.palette().color(QPalette::Text), 0.6);
    painter.setPen(QPen(colour, 1.6, Qt::SolidLine, Qt::RoundCap));
    painter.drawEllipse(QPointF(6.5, 6.5), 4.5, 4.5);
    painter.drawLine(QPointF(10, 10), QPointF(14, 14));
    return drawing;
}

bool IsEnter(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

} // namespace

DiaryFinder::DiaryFinder(QWidget* parent, const Rooms& rooms, Hooks hooks)
    : QDialog(parent), rooms_(rooms), hooks_(std::move(hooks)) {
    setObjectName(QStringLiteral("DiaryFinder"));
    setMinimumSize(kSmallestSize);
    resize(kFirstSize);
    Build();
    patience_.setInterval(kPatience);
    connect(&patience_, &QTimer::timeout, this, [this] { LookForNotes(); });
    connect(TextFind, &QLineEdit::textChanged, this, [this] { Search(); });
    connect(ListFound, &QListView::doubleClicked, this, [this] { Choose(); });
    LoadCaptions();
}

void DiaryFinder::Build() {
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(look::kMargin, look::kMargin, look::kMargin, look::kSpacing);
    column->setSpacing(look::kSpacing);
    TextFind = Named(new QLineEdit(this), "TextFind");
    TextFind->setMaxLength(kLongestQuery);
    TextFind->setClearButtonEnabled(true);
    TextFind->setMinimumHeight(kLineHeight);
    TextFind->addAction(GlassIcon(*TextFind), QLineEdit::LeadingPosition);
    TextFind->installEventFilter(this);
    column->addWidget(TextFind);

    pages_ = new QStackedLayout;
    LabAdvice = Named(new QLabel(this), "LabAdvice");
    LabAdvice->setTextFormat(Qt::PlainText);
    LabAdvice->setAlignment(Qt::AlignCenter);
    LabAdvice->setWordWrap(true);
    LabAdvice->setForegroundRole(QPalette::PlaceholderText);
    LabAdvice->setBackgroundRole(QPalette::Base);
    LabAdvice->setAutoFillBackground(true);
    LabAdvice->setFrameShape(QFrame::StyledPanel);
    LabAdvice->setMargin(look::kMargin);
    pages_->addWidget(LabAdvice);
    ListFound = Named(new QListView(this), "ListFound");
    found_ = new FoundList(ListFound, rooms_.Texts);
    rows_ = new FoundRows(ListFound, *found_);
    ListFound->setModel(found_);
    ListFound->setItemDelegate(rows_);
    ListFound->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    ListFound->setEditTriggers(QAbstractItemView::NoEditTriggers);
    ListFound->installEventFilter(this);
    pages_->addWidget(ListFound);
    column->addLayout(pages_, 1);

    LabState = Named(new QLabel(this), "LabState");
    LabState->setTextFormat(Qt::PlainText);
    column->addWidget(LabState);
}

void DiaryFinder::LoadCaptions() {
    ApplyCaptions(*this, rooms_.Texts, TipTexts::Leave);
    setWindowTitle(ToQt(TextOf(rooms_.Texts, ProgramText::SearchTitle)));
    TextFind->setPlaceholderText(ToQt(TextOf(rooms_.Texts, ProgramText::SearchPrompt)));
    TextFind->setAccessibleName(TextFind->placeholderText());
    ListFound->setAccessibleName(windowTitle());
    rows_->Measure(ListFound->font());
    if (search_) {
        Search(Current());
    }
}

void DiaryFinder::Open(QWidget* over) {
    if (!isVisible() || parentWidget() != over) {
        if (isVisible()) {
            last_ = Current();
            hide();
        }
        setParent(over, windowFlags()); // a page that has come over it would shut it out
        TakeIn();
        Search(last_);
        show();
        rows_->Measure(ListFound->font());
    }
    raise();
    activateWindow();
    TextFind->setFocus();
    TextFind->selectAll();
}

void DiaryFinder::Reload() {
    if (search_) {
        const auto current = Current();
        TakeIn();
        Search(current);
    }
}

// Takes in the diary as it is now, and has its notes read.
void DiaryFinder::TakeIn() {
    search_ = std::make_shared<DiarySearch>(rooms_.Store.Table(), rooms_.Dates.BaseYear);
    notesComplete_ = true;
    reading_ = std::make_unique<NoteReading>(
        [read = hooks_.ReadNotes, folder = rooms_.Store.Folder(), names = search_->NoteNames()](
            const std::stop_token& stop) { return read(folder, names, stop); });
    patience_.start();
}

void DiaryFinder::LookForNotes() {
    auto notes = reading_->Take();
    if (!notes) {
        return;
    }
    patience_.stop();
    reading_.reset();
    notesComplete_ = notes->Complete;
    search_->TakeNotes(std::move(*notes));
    Search(Current());
}

void DiaryFinder::hideEvent(QHideEvent* event) {
    QDialog::hideEvent(event);
    patience_.stop();
    reading_.reset();
    found_->Show(nullptr, {}, {});
    search_.reset();
}

std::optional<DiarySearch::Event> DiaryFinder::Current() const {
    const QModelIndex current = ListFound->currentIndex();
    return current.isValid() ? std::optional(found_->EventAt(current.row())) : std::nullopt;
}

// Finds what is typed now. The row of an event that one stood on stays the current one; else it is
// the next that is to come.
void DiaryFinder::Search(std::optional<DiarySearch::Event> stayOn) {
    if (!search_) {
        return;
    }
    auto words = DiarySearch::WordsOf(FromQt(TextFind->text()));
    auto events = search_->Find(words);
    found_->Show(search_, std::move(words), std::move(events));
    Tell(); // only a list that is to be seen can be scrolled
    if (found_->rowCount() > 0) {
        const Selection& dates = rooms_.Dates;
        const auto stay = stayOn ? found_->RowOf(*stayOn) : std::nullopt;
        const int row =
            stay ? *stay : found_->FirstFrom({dates.BaseYear, dates.TodayMonth, dates.TodayDay});
        ListFound->setCurrentIndex(found_->index(row));
        ListFound->scrollTo(found_->index(row), QAbstractItemView::PositionAtCenter);
    }
}

void DiaryFinder::Tell() {
    const auto words = [this](ProgramText text) { return ToQt(TextOf(rooms_.Texts, text)); };
    const QString typed = TextFind->text().simplified();
    const int rows = found_->rowCount();
    QString advice;
    if (search_->IsEmpty()) {
        advice = words(ProgramText::SearchEmptyDiary);
    } else if (typed.isEmpty()) {
        advice = words(ProgramText::SearchAdvice);
    } else if (rows == 0) {
        advice = ToQt(TextOf(rooms_.Texts, ProgramText::SearchNothing, FromQt(typed)));
    }
    LabAdvice->setText(advice);
    pages_->setCurrentWidget(rows > 0 ? static_cast<QWidget*>(ListFound) : LabAdvice);
    QString state;
    if (rows > 0) {
        state = ToQt(TextOf(rooms_.Texts, ProgramText::SearchFound, std::to_string(rows)));
    }
    if (!typed.isEmpty() && (reading_ || !notesComplete_)) {
        state +=
            (state.isEmpty() ? QString() : QStringLiteral("   ")) +
            words(reading_ ? ProgramText::SearchReadingNotes : ProgramText::SearchNotesLeftOut);
    }
    LabState->setText(state);
    TextFind->setAccessibleDescription(advice.isEmpty() ? state : advice);
}

void DiaryFinder::Choose() {
    if (const auto event = Current()) {
        last_ = event;
        hide();
        hooks_.Show(*event);
    }
}

bool DiaryFinder::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        auto& press = static_cast<QKeyEvent&>(*event);
        if ((watched == TextFind && HandleLineKey(press)) ||
            (watched == ListFound && HandleListKey(press))) {
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

// While one types, the keys that mean nothing in a line go through the list.
bool DiaryFinder::HandleLineKey(QKeyEvent& event) {
    if (IsEnter(event)) {
        Choose();
        return true;
    }
    const int key = event.key();
    if (key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp ||
        key == Qt::Key_PageDown) {
        QApplication::sendEvent(ListFound, &event);
        return true;
    }
    return false;
}

// And on the list, what is typed goes on in the line.
bool DiaryFinder::HandleListKey(QKeyEvent& event) {
    if (IsEnter(event)) {
        Choose();
        return true;
    }
    const QString text = event.text();
    if (ListFound->hasFocus() &&
        (event.key() == Qt::Key_Backspace || (!text.isEmpty() && text.front().isPrint()))) {
        TextFind->setFocus();
        TextFind->end(false);
        QApplication::sendEvent(TextFind, &event);
        return true;
    }
    return false;
}

} // namespace kestrova
