// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace kestrova {

// Somebody who writes a letter or gets one.
struct MailPerson {
    std::string Name;
    std::string Address;

    bool operator==(const MailPerson&) const = default;
};

struct Letter {
    MailPerson From;
    MailPerson To;
    std::string Subject;
    std::string Text; // lines end in CR LF or LF
};

// Longest parts that are taken, in bytes.
inline constexpr std::size_t kLongestAddress = 254;
inline constexpr std::size_t kLongestName = 200;

// Whether a text is a mail address as servers take them: "name@place", in ASCII and without blanks,
// quotes or anything else that could end the line it stands in.
[[nodiscard]] bool IsMailAddress(std::string_view text);

// The headers and the body as they travel. Names, subject and text may hold anything: they are
// written in base64, so that no byte of them is taken for a header, a line end or the end of the
// letter. The addresses must have been found good.
[[nodiscard]] std::string WriteLetter(const Letter& letter);

} // namespace kestrova
