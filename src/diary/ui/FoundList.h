// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diary/DiarySearch.h"
#include "language/StringTable.h"

#include <QAbstractListModel>
#include <QHash>
#include <QStyledItemDelegate>

#include <memory>
#include <string>
#include <vector>

namespace kestrova {

// A text with the places in it that were searched for, in the toolkit's characters.
struct ShownText {
    QString Text;
    std::vector<std::pair<int, int>> Found; // begin and length
};

// What a search has found, one event to a row.
class FoundList : public QAbstractListModel {
public:
    // What a row shows. Only of those that are looked at it is made.
    struct Row {
        QString Date;
        QString Time;
        ShownText Message;
        ShownText Note; // no text: nothing was found there
    };

    FoundList(QObject* parent, const StringTable& texts)
        : QAbstractListModel(parent), texts_(texts) {}

    // Shows these events of a search, which stays as it is until others are shown.
    void Show(std::shared_ptr<const DiarySearch> search, std::vector<std::string> words,
              std::vector<std::size_t> events);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

    [[nodiscard]] const Row& At(int row) const;
    [[nodiscard]] bool HasNote(int row) const;
    [[nodiscard]] const DiarySearch::Event& EventAt(int row) const;

    // The row of the first event of this day or a later one, of the last when there is none.
    [[nodiscard]] int FirstFrom(const CalendarDate& date) const;

    // The row that shows this event; nothing when none does.
    [[nodiscard]] std::optional<int> RowOf(const DiarySearch::Event& event) const;

    // The width that no date in the language in use exceeds.
    [[nodiscard]] int DateWidth(const QFontMetrics& metrics) const;

private:
    [[nodiscard]] QString DateText(const CalendarDate& date) const;

    const StringTable& texts_;
    std::shared_ptr<const DiarySearch> search_;
    std::vector<std::string> words_;
    std::vector<std::size_t> events_;
    mutable QHash<int, Row> made_;
};

// Paints such rows: date, time and message, below them what stands in the note.
class FoundRows : public QStyledItemDelegate {
public:
    FoundRows(QObject* parent, const FoundList& list) : QStyledItemDelegate(parent), list_(list) {}

    // The font or the language has changed.
    void Measure(const QFont& font);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const override;

private:
    const FoundList& list_;
    int line_ = 0; // the height of one, in pixels
    int dateWidth_ = 0;
    int timeWidth_ = 0;
};

} // namespace kestrova
