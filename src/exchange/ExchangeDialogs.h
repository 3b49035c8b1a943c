// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/Selection.h"
#include "exchange/CalendarExchange.h"
#include "platform/Dialogs.h"

namespace kestrova {

// The exchange as the user of a window sees it: which file, whether they want that, what has come
// of it.
class ExchangeDialogs {
public:
    struct Rooms {
        CalendarExchange& Exchange;
        Dialogs& Boxes;
        const StringTable& Texts;
        const Selection& Dates;
    };

    explicit ExchangeDialogs(const Rooms& rooms) : rooms_(rooms) {}

    void Export();

    // Whether the diary has changed.
    bool Import();

private:
    void Tell(const std::string& text);
    void Refuse(const Error& error);
    [[nodiscard]] bool Asks(const ImportTally& tally);

    Rooms rooms_;
};

} // namespace kestrova
