// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Dialogs.h"

#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace kestrova {

// A user who answers what a test has told them to, and remembers what they were shown. Asked more
// than they were told, they cancel.
class ScriptedDialogs : public Dialogs {
public:
    std::vector<Message> Shown;
    std::vector<Message> Asked;
    std::vector<std::string> Prompts;
    std::deque<bool> Answers;
    std::deque<std::size_t> Choices;
    std::deque<std::optional<std::string>> Inputs;
    std::deque<std::optional<std::string>> Files;
    std::deque<std::optional<FontChoice>> Fonts;
    std::deque<std::optional<std::int32_t>> Colours;
    std::function<void()> WhileOpen; // called while a message is open

    void Show(const Message& message) override {
        Shown.push_back(message);
        if (WhileOpen) {
            WhileOpen();
        }
    }

    bool Ask(const Message& message, const AnswerCaptions& /*captions*/) override {
        Asked.push_back(message);
        if (WhileOpen) {
            WhileOpen();
        }
        return Take(Answers, false);
    }

    std::size_t AskAmong(const Message& message,
                         const std::vector<std::string>& captions) override {
        Asked.push_back(message);
        if (WhileOpen) {
            WhileOpen();
        }
        return Take(Choices, captions.size() - 1);
    }

    std::optional<std::string> Input(const std::string& /*title*/, const std::string& prompt,
                                     const std::string& offered) override {
        Prompts.push_back(prompt + " " + offered);
        return Take(Inputs, std::optional<std::string>());
    }

    std::optional<std::string> OpenFile(const std::string& /*folder*/,
                                        const std::string& filter) override {
        Prompts.push_back(filter);
        return Take(Files, std::optional<std::string>());
    }

    std::optional<std::string> SaveFile(const std::string& /*folder*/,
                                        const std::string& filter) override {
        Prompts.push_back(filter);
        return Take(Files, std::optional<std::string>());
    }

    std::optional<FontChoice> ChooseFont(const FontChoice& /*offered*/) override {
        return Take(Fonts, std::optional<FontChoice>());
    }

    std::optional<std::int32_t> ChooseColour(std::int32_t /*offered*/) override {
        return Take(Colours, std::optional<std::int32_t>());
    }

private:
    template<typename T> static T Take(std::deque<T>& answers, T otherwise) {
        if (answers.empty()) {
            return otherwise;
        }
        T answer = std::move(answers.front());
        answers.pop_front();
        return answer;
    }
};

} // namespace kestrova
