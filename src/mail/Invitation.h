// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace kestrova {

// Where the program is to be had.
inline constexpr std::string_view kWebAddress = "https://kestrova.org";

inline constexpr std::string_view kInvitationSubject = "Free Kestrova Software";
inline constexpr std::size_t kInvitedFriends = 5;

// Whom the invitation goes to; empty places are passed over.
using InvitedFriends = std::array<std::string, kInvitedFriends>;

// The mail by which somebody recommends the program to a friend, in lines parted by CR LF.
[[nodiscard]] std::string InvitationText(std::string_view name);

} // namespace kestrova
