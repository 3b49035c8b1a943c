// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/FontChoice.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace kestrova {

enum class DialogIcon { None, Critical, Question };

// A message box. Lines of the text are parted by '\n'.
struct Message {
    std::string Title;
    std::string Text;
    DialogIcon Icon = DialogIcon::None;
};

enum class DefaultAnswer { Yes, No };

// Captions of the two answers, empty ones being the desktop's own "OK" and "Cancel", and the one
// that Enter gives.
struct AnswerCaptions {
    std::string Yes;
    std::string No;
    DefaultAnswer Default = DefaultAnswer::Yes;
};

// The windows in which the program asks and tells. Each call returns when the user has answered;
// events, the timer's included, go on meanwhile.
class Dialogs {
public:
    virtual ~Dialogs() = default;

    virtual void Show(const Message& message) = 0;

    // True for the first answer. Closing the window is the second.
    virtual bool Ask(const Message& message, const AnswerCaptions& captions) = 0;

    // The index of one of several answers. The first is what Enter gives, closing the window is the
    // last.
    virtual std::size_t AskAmong(const Message& message,
                                 const std::vector<std::string>& captions) = 0;

    // One line of text. Nothing when the user cancels.
    virtual std::optional<std::string> Input(const std::string& title, const std::string& prompt,
                                             const std::string& offered) = 0;

    // The path of an existing file. `folder` is where to begin (empty: wherever the desktop likes),
    // `filter` is "Caption|*.a;*.b". Nothing when the user cancels.
    virtual std::optional<std::string> OpenFile(const std::string& folder,
                                                const std::string& filter) = 0;

    // The path of a file to write, which may exist: the user has been asked about that. It ends in
    // the first ending of the filter. Nothing when the user cancels.
    virtual std::optional<std::string> SaveFile(const std::string& folder,
                                                const std::string& filter) = 0;

    // A font of this machine. Nothing when the user cancels.
    virtual std::optional<FontChoice> ChooseFont(const FontChoice& offered) = 0;

    // A colour, red + 256 x green + 65536 x blue. Nothing when the user cancels.
    virtual std::optional<std::int32_t> ChooseColour(std::int32_t offered) = 0;
};

} // namespace kestrova
