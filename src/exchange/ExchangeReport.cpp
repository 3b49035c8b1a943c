// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/ExchangeReport.h"

#include "language/ProgramTexts.h"

#include <initializer_list>

namespace kestrova {

namespace {

struct Count {
    ProgramText Text;
    int Number;
};

// The first line always stands there.
std::string Lines(const StringTable& texts, std::initializer_list<Count> counts) {
    std::string lines;
    for (const Count& count : counts) {
        if (lines.empty() || count.Number > 0) {
            lines.append(lines.empty() ? "" : "\n");
            lines += TextOf(texts, count.Text, std::to_string(count.Number));
        }
    }
    return lines;
}

std::string ImportLines(const StringTable& texts, ProgramText first, const ImportTally& tally) {
    return Lines(texts, {{first, tally.Added},
                         {ProgramText::ImportReaching, tally.Reaching},
                         {ProgramText::ImportAlreadyThere, tally.AlreadyThere},
                         {ProgramText::ImportNoRoom, tally.NoRoom},
                         {ProgramText::ImportOutside, tally.Outside},
                         {ProgramText::ImportTextless, tally.Textless},
                         {ProgramText::ImportUnreadable, tally.Unreadable}});
}

} // namespace

std::string ReportOf(const StringTable& texts, const ExportTally& tally) {
    return Lines(texts, {{ProgramText::ExportedEvents, tally.Written},
                         {ProgramText::ExportLeftOut, tally.LeftOut},
                         {ProgramText::ExportNotesLeftOut, tally.NotesLeftOut}});
}

std::string ReportOf(const StringTable& texts, const ImportTally& tally) {
    return ImportLines(texts, ProgramText::ImportedEvents, tally);
}

std::string QuestionOf(const StringTable& texts, const ImportTally& tally) {
    return ImportLines(texts, ProgramText::ImportQuestion, tally);
}

} // namespace kestrova
