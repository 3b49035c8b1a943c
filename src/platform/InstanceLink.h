// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace kestrova {

// The conversation by which a second start finds the program that runs already: application and
// topic "Kestrova|FormCal", item "RunCheck". One running program per user and machine.
inline constexpr std::string_view kInstanceTopic = "Kestrova|FormCal";
inline constexpr std::string_view kInstanceItem = "RunCheck";
inline constexpr std::string_view kInstancePoke = "StartTest"; // what a newcomer pokes
inline constexpr std::string_view kInstanceRunning = "Going";  // what the item holds after start-up

enum class InstanceRole {
    First,    // nobody ran: this program answers newcomers from now on
    Newcomer, // somebody ran and has been poked: this program ends at once
    Alone,    // the link cannot be had on this machine; the program runs without it
};

class InstanceLink {
public:
    virtual ~InstanceLink() = default;

    // Finds out, among any number of programs that start at the same moment, whether this is the
    // one that runs. What a killed program left behind is no obstacle. Call once, first of all.
    virtual InstanceRole Join() = 0;

    // Called with each text that a newcomer pokes into the item, on the thread of the window
    // events. Texts that arrived before this call are delivered with it.
    virtual void OnPoke(std::function<void(std::string_view text)> handler) = 0;
};

} // namespace kestrova
