// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/ui/FoundList.h"

#include "diary/DayPage.h"
#include "platform/qt/QtText.h"
#include "ui/Look.h"

#include <QApplication>
#include <QPainter>

#include <algorithm>

namespace kestrova {

namespace {

constexpr int kPadding = 6; // above and below the text of a row, in pixels
constexpr int kLead = 3;    // between its two lines
constexpr int kIndent = 10; // at its ends, and between its columns

ShownText Shown(const MarkedText& text) {
    ShownText shown{ToQt(text.Text), {}};
    const auto length = [&text](std::size_t begin, std::size_t end) {
        return static_cast<int>(ToQt(text.Text.substr(begin, end - begin)).size());
    };
    for (const TextPart& part : text.Found) {
        shown.Found.emplace_back(length(0, part.Begin), length(part.Begin, part.End));
    }
    return shown;
}

// The text without its beginning where the first place found would not be seen otherwise.
ShownText InRoom(const ShownText& text, const QFontMetrics& metrics, int room) {
    constexpr int kKept = 12; // characters before it
    if (text.Found.empty() || metrics.horizontalAdvance(text.Text) <= room) {
        return text;
    }
    const auto [begin, length] = text.Found.front();
    const int seen = metrics.horizontalAdvance(text.Text.left(begin + length) + u'…');
    int cut = begin - kKept;
    if (seen <= room || cut <= 0) {
        return text;
    }
    const auto blank = static_cast<int>(text.Text.indexOf(u' ', cut));
    cut = blank >= 0 && blank < begin ? blank + 1 : cut;
    ShownText rest{u'…' + text.Text.mid(cut), {}};
    for (const auto& [at, size] : text.Found) {
        rest.Found.emplace_back(at - cut + 1, size);
    }
    return rest;
}

// Draws a text in one line, what was found in it on a ground of its own.
void DrawMarked(QPainter& painter, const QRect& area, const ShownText& text, const QColor& mark) {
    const QFontMetrics metrics = painter.fontMetrics();
    const ShownText whole = InRoom(text, metrics, area.width());
    const QString line = metrics.elidedText(whole.Text, Qt::ElideRight, area.width());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    for (const auto& [begin, length] : whole.Found) {
        const int left = metrics.horizontalAdvance(line.left(begin));
        const int right = metrics.horizontalAdvance(line.left(begin + length));
        if (right > left) {
            const int top = area.top() + (area.height() - metrics.height()) / 2;
            painter.setPen(Qt::NoPen);
            painter.setBrush(mark);
            painter.drawRoundedRect(
                QRectF(area.left() + left - 1, top, right - left + 2, metrics.height()), 3, 3);
        }
    }
    painter.restore();
    painter.drawText(area, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, line);
}

} // namespace

void FoundList::Show(std::shared_ptr<const DiarySearch> search, std::vector<std::string> words,
                     std::vector<std::size_t> events) {
    beginResetModel();
    search_ = std::move(search);
    words_ = std::move(words);
    events_ = std::move(events);
    made_.clear();
    endResetModel();
}

int FoundList::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(events_.size());
}

// The row as it is read aloud; what is seen, the delegate paints.
QVariant FoundList::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::AccessibleTextRole)) {
        return {};
    }
    const Row& row = At(index.row());
    const QString note = row.Note.Text.isEmpty() ? QString() : QStringLiteral(": ") + row.Note.Text;
    return QStringLiteral("%1, %2, ").arg(row.Date, row.Time) + row.Message.Text + note;
}

const DiarySearch::Event& FoundList::EventAt(int row) const {
    return search_->At(events_[static_cast<std::size_t>(row)]);
}

bool FoundList::HasNote(int row) const {
    return search_->HasSnippet(events_[static_cast<std::size_t>(row)], words_);
}

const FoundList::Row& FoundList::At(int row) const {
    auto made = made_.find(row);
    if (made == made_.end()) {
        const std::size_t number = events_[static_cast<std::size_t>(row)];
        const DiarySearch::Event& event = search_->At(number);
        const auto note = search_->Snippet(number, words_);
        made = made_.insert(row, {DateText(event.Date), ToQt(EventTime(event.Holds)),
                                  Shown(search_->Message(number, words_)),
                                  note ? Shown(*note) : ShownText{}});
    }
    return *made;
}

int FoundList::FirstFrom(const CalendarDate& date) const {
    const auto first = std::find_if(events_.begin(), events_.end(), [&](std::size_t number) {
        return search_->At(number).Date >= date;
    });
    const auto row = static_cast<int>(first - events_.begin());
    return std::min(row, static_cast<int>(events_.size()) - 1);
}

std::optional<int> FoundList::RowOf(const DiarySearch::Event& event) const {
    const auto same = std::find_if(events_.begin(), events_.end(), [&](std::size_t number) {
        const DiarySearch::Event& other = search_->At(number);
        return other.Date == event.Date && other.Slot == event.Slot &&
               other.Holds.SameAppointment(event.Holds);
    });
    return same == events_.end() ? std::nullopt
                                 : std::optional(static_cast<int>(same - events_.begin()));
}

QString FoundList::DateText(const CalendarDate& date) const {
    return ToQt(DayHeading(texts_, date)).simplified();
}

int FoundList::DateWidth(const QFontMetrics& metrics) const {
    const auto widest = [&metrics](const auto& names) {
        int width = 0;
        for (const std::string& name : names) {
            width = std::max(width, metrics.horizontalAdvance(ToQt(name).simplified()));
        }
        return width;
    };
    return widest(texts_.WeekdayNames) + widest(texts_.MonthNames) +
           metrics.horizontalAdvance(QStringLiteral("   30 2030"));
}

void FoundRows::Measure(const QFont& font) {
    const QFontMetrics metrics(font);
    line_ = metrics.height();
    dateWidth_ = list_.DateWidth(metrics);
    timeWidth_ = metrics.horizontalAdvance(QStringLiteral("00:00"));
}

QSize FoundRows::sizeHint(const QStyleOptionViewItem& /*option*/, const QModelIndex& index) const {
    const int more = list_.HasNote(index.row()) ? kLead + line_ : 0;
    return {dateWidth_ + timeWidth_ + 4 * kIndent, line_ + more + 2 * kPadding};
}

void FoundRows::paint(QPainter* painter, const QStyleOptionViewItem& option,
                      const QModelIndex& index) const {
    // The ground as the desktop paints it, be the row selected or pointed at.
    const QStyle& style =
        *(option.widget != nullptr ? option.widget->style() : QApplication::style());
    style.drawPrimitive(QStyle::PE_PanelItemViewItem, &option, painter, option.widget);

    const FoundList::Row& row = list_.At(index.row());
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    const QColor ink = option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text);
    const QColor ground = option.palette.color(selected ? QPalette::Highlight : QPalette::Base);
    const QColor soft = look::Between(ground, ink, 0.72);
    const bool dark = ground.lightness() < ink.lightness();
    const QColor mark = selected ? look::Faded(ink, 0.3)
                                 : look::Faded(look::Accent(option.palette), dark ? 0.6 : 0.35);
    painter->save();
    painter->setFont(option.font);
    QRect line(option.rect.left() + kIndent, option.rect.top() + kPadding,
               option.rect.width() - 2 * kIndent, line_);
    painter->setPen(soft);
    painter->drawText(line, Qt::AlignLeft | Qt::AlignVCenter, row.Date);
    line.setLeft(line.left() + dateWidth_ + kIndent);
    painter->setPen(ink);
    painter->drawText(line, Qt::AlignLeft | Qt::AlignVCenter, row.Time);
    line.setLeft(line.left() + timeWidth_ + kIndent);
    DrawMarked(*painter, line, row.Message, mark);
    if (!row.Note.Text.isEmpty()) {
        line.translate(0, line_ + kLead);
        painter->setPen(soft);
        DrawMarked(*painter, line, row.Note, mark);
    }
    painter->restore();
}

} // namespace kestrova
