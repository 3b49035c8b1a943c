// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Dialogs.h"

namespace kestrova::bench {

// A user who is not there: nothing is answered or chosen.
struct NoDialogs : Dialogs {
    void Show(const Message& /*message*/) override {}
    bool Ask(const Message& /*message*/, const AnswerCaptions& /*captions*/) override {
        return false;
    }
    std::size_t AskAmong(const Message& /*message*/,
                         const std::vector<std::string>& captions) override {
        return captions.size() - 1;
    }
    std::optional<std::string> Input(const std::string& /*title*/, const std::string& /*prompt*/,
                                     const std::string& /*offered*/) override {
        return std::nullopt;
    }
    std::optional<std::string> OpenFile(const std::string& /*folder*/,
                                        const std::string& /*filter*/) override {
        return std::nullopt;
    }
    std::optional<std::string> SaveFile(const std::string& /*folder*/,
                                        const std::string& /*filter*/) override {
        return std::nullopt;
    }
    std::optional<FontChoice> ChooseFont(const FontChoice& /*offered*/) override {
        return std::nullopt;
    }
    std::optional<std::int32_t> ChooseColour(std::int32_t /*offered*/) override {
        return std::nullopt;
    }
};

} // namespace kestrova::bench
