// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Dialogs.h"

namespace kestrova {

// Message boxes and file dialogs of the desktop, over the window that is active.
class QtDialogs : public Dialogs {
public:
    void Show(const Message& message) override;
    bool Ask(const Message& message, const AnswerCaptions& captions) override;
    std::size_t AskAmong(const Message& message, const std::vector<std::string>& captions) override;
    std::optional<std::string> Input(const std::string& title, const std::string& prompt,
                                     const std::string& offered) override;
    std::optional<std::string> OpenFile(const std::string& folder,
                                        const std::string& filter) override;
    std::optional<std::string> SaveFile(const std::string& folder,
                                        const std::string& filter) override;
    std::optional<FontChoice> ChooseFont(const FontChoice& offered) override;
    std::optional<std::int32_t> ChooseColour(std::int32_t offered) override;
};

} // namespace kestrova
