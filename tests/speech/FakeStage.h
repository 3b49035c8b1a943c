// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "speech/CharacterStage.h"

#include <string>
#include <vector>

namespace kestrova {

// A desktop on which a test has the time pass and clicks.
class FakeStage : public CharacterStage {
public:
    Events On;
    int Loads = 0;
    bool Loaded = false;
    bool Visible = false;
    bool Saying = false;
    double Limit = 0;
    std::vector<double> Positions;
    std::vector<kestrova::Saying> Said;

    [[nodiscard]] std::vector<std::string> Words() const {
        std::vector<std::string> words;
        for (const auto& saying : Said) {
            words.push_back(saying.Words);
        }
        return words;
    }
    void PassTime() {
        if (Saying) {
            On.TimeUp();
        }
    }

    void SetEvents(Events events) override { On = std::move(events); }
    void Load(CharacterFigure /*figure*/) override {
        ++Loads;
        Loaded = true;
    }
    void Unload() override { Loaded = false; }
    void Show() override { Visible = true; }
    void Hide() override { Visible = false; }
    [[nodiscard]] bool IsVisible() const override { return Visible; }
    void Say(const kestrova::Saying& saying, double limit) override {
        Said.push_back(saying);
        Limit = limit;
        Saying = true;
    }
    void SetPosition(double seconds) override { Positions.push_back(seconds); }
    void EndSaying() override { Saying = false; }
};

} // namespace kestrova
