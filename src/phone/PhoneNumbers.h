// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/StringTable.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace kestrova {

// The telephone numbers that the user gives for a reminder: at most three, of which one is
// selected.
class PhoneNumbers {
public:
    static constexpr std::size_t kMost = 3;

    // Takes those of the numbers that are not empty, as far as there is room.
    void Fill(const std::array<std::string, 4>& numbers);

    [[nodiscard]] const std::vector<std::string>& List() const { return list_; }
    [[nodiscard]] std::size_t Selected() const { return selected_; }
    void Select(std::size_t index);

    // The list is opened with this text in the box: the text becomes a number of the list, in the
    // place of the selected one when there is no room, and an empty one takes the selected number
    // away. A number that is in the list already stays where it is.
    void Opened(const std::string& text);

    // The box is left with this text, which is added.
    void Left(const std::string& text);

    // Whether every number is made of digits alone (`CheckNumbers`). They may have come from a file
    // that someone else has written.
    [[nodiscard]] bool AreValid() const;

    // The number that a test call dials: what stands in the box, else the first of the list.
    [[nodiscard]] std::string ToDial(const std::string& text) const;

    // The numbers as a reminder holds them, with nothing at 0.
    [[nodiscard]] std::array<std::string, 4> Stored() const;

private:
    std::vector<std::string> list_;
    std::size_t selected_ = 0;
};

[[nodiscard]] bool IsDigits(std::string_view text);

// The command that dials a number on a modem of this family.
[[nodiscard]] std::string DialString(std::string_view number, std::string_view family);

// The number in such a command.
[[nodiscard]] std::string NumberIn(std::string_view dialString);

// The question whether these are the right numbers, one a line.
[[nodiscard]] std::string NumbersWarning(const StringTable& texts, const PhoneNumbers& numbers);

} // namespace kestrova
