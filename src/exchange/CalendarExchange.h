// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diary/DiaryStore.h"
#include "exchange/DiaryImport.h"
#include "exchange/ExchangeReport.h"
#include "language/ProgramTexts.h"
#include "platform/CalendarFormat.h"
#include "platform/FileStore.h"

#include <optional>
#include <string>

namespace kestrova {

// Brings the diary shown into a calendar file, and the events of such a file into the diary. Errors
// come with a sentence for the user.
class CalendarExchange {
public:
    struct Rooms {
        FileStore& Files;
        DiaryStore& Store;
        CalendarFormat& Format;
        const Clock& Time;
        const StringTable& Texts;
    };

    explicit CalendarExchange(const Rooms& rooms) : rooms_(rooms) {}

    // Writes the diary as the disc has it, notes and all. A file that is there is replaced as one
    // step.
    Result<ExportTally> Export(const std::string& path, int baseYear);

    // The events of a file, for a diary that begins with `baseYear`.
    Result<ImportPlan> Read(const std::string& path, int baseYear);

    // What Import would do to the diary as it is now.
    [[nodiscard]] ImportTally Preview(const ImportPlan& plan) const;

    // Adds them and saves, all of them or none. Nothing when it cannot be saved, of which the store
    // has told the user.
    Result<std::optional<ImportTally>> Import(const ImportPlan& plan, int baseYear);

private:
    [[nodiscard]] Error Sentence(ProgramText text, const Error& error,
                                 const std::string& value) const;

    Rooms rooms_;
};

} // namespace kestrova
