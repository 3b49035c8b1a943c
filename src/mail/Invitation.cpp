// SPDX-License-Identifier: GPL-3.0-or-later
#include "mail/Invitation.h"

#include "text/Lines.h"

namespace kestrova {

std::string InvitationText(std::string_view name) {
    const std::array<std::string_view, 11> lines = {
        "I've found this great shareware package at",
        kWebAddress,
        "Its a personalizable picture calendar with",
        "Mail reminder system and built in CD player.",
        "You can include your own pictures, create a personal diary",
        "and print out your own designs.",
        "",
        "",
        "All the best",
        "",
        name};
    std::string text;
    for (const std::string_view line : lines) {
        text.append(line).append(kLineEnd);
    }
    text.resize(text.size() - kLineEnd.size()); // parted by line ends, not ended by one
    return text;
}

} // namespace kestrova
