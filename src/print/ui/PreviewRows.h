// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "print/ui/Preview.h"

namespace kestrova {

// A row of one of the window's menus.
// The order of the columns is for who reads the rows, not for the machine.
struct Preview::MenuRow { // NOLINT(clang-analyzer-optin.performance.Padding)
    enum class Sort {
        Menu,   // a menu within
        Plain,  // an entry
        Check,  // one that is ticked or not
        Choice, // one of several of which one is ticked
        Line    // between groups
    };
    using Click = void (*)(Preview&, int index);

    const char* Menu; // that it belongs to
    Sort What = Sort::Line;
    const char* Name = nullptr;
    ProgramText Text = ProgramText::Count;
    Click Clicked = nullptr;
    int Index = kNoIndex;          // in an array
    const char* Caption = nullptr; // the same in every language, in place of the text

    static constexpr int kNoIndex = -1;

    [[nodiscard]] QString FullName() const;
};

} // namespace kestrova
