// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace kestrova {

// One part of a character, as an SVG document of its own.
struct CharacterLayer {
    std::string Id;
    std::string Document;
};

// A speaking character. Its file (*.acs) is one SVG picture. Each group directly in the root is a
// layer, named by its id; what is drawn lies on top of what stands before it. The names are
//
//   body, body-*                    always there
//   eyes-open, eyes-closed
//   mouth-closed, mouth-open        and, where wanted, mouth-small, mouth-wide, mouth-round and
//                                   mouth-teeth; "open" stands for a missing one
//   rest                            what a gesture replaces, such as an arm that hangs down
//   gesture-1 ... gesture-8         the frames of the gesture with which the character appears
//
// and beside the layers the root may hold a title, a description and definitions of gradients. A
// character comes from anywhere, so the file may say only what drawing it takes: shapes, groups and
// gradients. Whatever refers to another file, has text or runs is refused, and so are numbers and
// nestings that no picture needs.
struct CharacterFigure {
    double Width = 0; // of the view box
    double Height = 0;
    std::vector<CharacterLayer> Layers; // the lowest first
    int GestureFrames = 0;

    [[nodiscard]] bool Has(std::string_view layer) const;
};

// Why a file is no character.
struct CharacterFault {
    enum class Reason {
        Unreadable,  // or not a picture of this kind, or torn
        TooLarge,    // more than any character takes
        Forbidden,   // holds what a character may not; the detail says what
        LayerMissing // the detail says which
    };
    Reason Why = Reason::Unreadable;
    std::string Detail;

    bool operator==(const CharacterFault&) const = default;
};

inline constexpr std::size_t kCharacterLimit = std::size_t{512} << 10U; // bytes
inline constexpr int kMostGestureFrames = 8;

[[nodiscard]] std::variant<CharacterFigure, CharacterFault> ReadFigure(std::string_view bytes);

} // namespace kestrova
