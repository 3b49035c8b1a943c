// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace kestrova {

// The two families of voice commands, by the names under which the settings and the modem list know
// them.
inline constexpr std::string_view kIs101Family = "Generic IS-101 Voice Modem";
inline constexpr std::string_view kRockwellFamily = "Generic Rockwell Voice Modem";

// What a modem is called that no script is known for.
inline constexpr std::string_view kUnknownModem = "Generic Modem Found";

// Lines from First to Last.
struct ScriptLines {
    int First = 1;
    int Last = 1;
};

// The commands that drive a modem through a voice call: lines numbered from 1, an empty one being
// no command.
class ModemScript {
public:
    static constexpr int kLines = 34;
    static constexpr int kFileLines = 33; // as many as a block of the modem list gives

    // What the lines are for.
    static constexpr ScriptLines kSetUp{1, 12};
    static constexpr ScriptLines kBeforeDialling{13, 15};
    static constexpr ScriptLines kAfterDialling{16, 21};
    static constexpr ScriptLines kBeforeWords{22, 24};
    static constexpr ScriptLines kAfterWords{25, 27};
    static constexpr ScriptLines kBeeps{28, 30};
    static constexpr ScriptLines kAfterBeeps{10, 10};

    [[nodiscard]] const std::string& Line(int number) const { return lines_[Index(number)]; }
    void SetLine(int number, std::string command) { lines_[Index(number)] = std::move(command); }

    // Empties these lines.
    void Clear(ScriptLines lines) {
        for (int number = lines.First; number <= lines.Last; ++number) {
            lines_[Index(number)].clear();
        }
    }

    bool operator==(const ModemScript&) const = default;

private:
    [[nodiscard]] static std::size_t Index(int number) {
        return static_cast<std::size_t>(number - 1);
    }

    std::array<std::string, kLines> lines_;
};

// Whether a command makes the modem take what is sent to it for sound on the line.
[[nodiscard]] inline bool TransmitsVoice(std::string_view command) {
    return command.find("+VTX") != std::string_view::npos ||
           command.find("#VTX") != std::string_view::npos;
}

// The number of the line before the words at which the modem begins to take sound: the last one of
// them, when it says so. 0: the words are spoken by the sound card.
[[nodiscard]] inline int TransmitLine(const ModemScript& script) {
    for (int number = ModemScript::kBeforeWords.Last; number >= ModemScript::kBeforeWords.First;
         --number) {
        if (!script.Line(number).empty()) {
            return TransmitsVoice(script.Line(number)) ? number : 0;
        }
    }
    return 0;
}

} // namespace kestrova
