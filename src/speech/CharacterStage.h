// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "speech/CharacterFigure.h"
#include "speech/MouthShapes.h"

#include <functional>
#include <string>
#include <vector>

namespace kestrova {

// Words that the character says: in a balloon and by its mouth.
struct Saying {
    std::string Words;
    std::vector<MouthChange> Mouth;
    double Seconds = 0; // that it takes
};

// Where the character stands: the desktop. Nothing here is heard.
class CharacterStage {
public:
    // They come from the event loop, never from within a call.
    struct Events {
        std::function<void()> Clicked; // also when it has been hidden and is about to go
        std::function<void()> TimeUp;  // what was given to Say has had its time
    };

    virtual ~CharacterStage() = default;
    virtual void SetEvents(Events events) = 0;

    // Whose turn it is from now on; nothing is drawn before it is shown. Hides the one before.
    virtual void Load(CharacterFigure figure) = 0;
    virtual void Unload() = 0;

    virtual void Show() = 0;
    virtual void Hide() = 0;
    [[nodiscard]] virtual bool IsVisible() const = 0;

    // Begins to say something, in the place of what is being said. TimeUp comes once, after `limit`
    // seconds.
    virtual void Say(const Saying& saying, double limit) = 0;

    // How far the sound has come, in seconds. Without being told, the stage goes by its own clock.
    virtual void SetPosition(double seconds) = 0;

    // The words have been said, or are not to be said any more: the mouth closes, TimeUp does not
    // come.
    virtual void EndSaying() = 0;
};

} // namespace kestrova
