// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "phone/ModemScript.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace kestrova {

// "Modem.Dat" in the program folder: which modem is driven by which script. The first part is a
// list of records, one a line, each a quoted identity, a comma and the number of a block; a record
// named "End of List" ends it. The blocks follow, numbered from 1: a script line each line, as it
// stands, at most 33 of them, up to a line "End of Index".

// More than this is no modem list.
inline constexpr std::size_t kModemListLimit = std::size_t{1} << 20U;

// The modem in use.
struct ModemInUse {
    std::string Description; // as it has identified itself, or a generic name
    std::string Family;      // kIs101Family or kRockwellFamily
    ModemScript Script;
};

// Finds the script of a modem in the bytes of the list: by its description, else by its family,
// whose name then becomes its description. A list that knows neither, or that has no end, leaves a
// modem of unknown kind without a script.
void ChooseScript(std::string_view bytes, ModemInUse& modem);

// What is used when there is no list.
void ChooseBuiltInScript(ModemInUse& modem);

} // namespace kestrova
