// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "phone/ModemLine.h"
#include "phone/ModemScript.h"
#include "platform/Dialogs.h"
#include "platform/FileStore.h"
#include "settings/AppSettings.h"

#include <string>

namespace kestrova {

// How the port is opened. Modems fall in with the speed of the first command.
inline constexpr std::string_view kPortSettings = "9600,N,8,1";

// Finds out whether a modem answers on the port that the settings name, which one it is, and by
// which script it is driven.
class ModemProbe {
public:
    struct Rooms {
        ModemLine& Line;
        FileStore& Files;
        Dialogs& Boxes;
        const StringTable& Texts;
        AppSettings& Settings;
        const std::string& Folder; // the program folder, where the modem list is
    };

    explicit ModemProbe(const Rooms& rooms) : rooms_(rooms) {}

    // Whether a modem has identified itself: its description and its family are then in the
    // settings. When nothing answers at all, the settings name no port any more. Takes up to 25
    // seconds, handling events, and leaves the port open.
    bool ModemPresent();

    // Why the port could not be opened the last time; empty when it could.
    [[nodiscard]] const std::string& Trouble() const { return trouble_; }

    // Finds the script of the modem that the settings describe. Tells the user when there is no
    // modem list.
    void ValidSpeechModem();

    [[nodiscard]] const ModemScript& Script() const { return script_; }

private:
    Rooms rooms_;
    ModemScript script_;
    std::string trouble_;
};

// What a modem has said to an identification query: the first line of its reply that is not the
// query itself, without what cannot be printed.
[[nodiscard]] std::string AnswerIn(std::string_view reply, std::string_view query);

} // namespace kestrova
