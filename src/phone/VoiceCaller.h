// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "phone/CallScreen.h"
#include "phone/ModemLine.h"
#include "phone/ModemProbe.h"
#include "phone/PhoneCaller.h"
#include "speech/Speaker.h"

#include <chrono>
#include <functional>
#include <string>

namespace kestrova {

// Telephone calls through a modem on a serial port. One call at a time: what is asked for while one
// runs is refused, not put off.
class VoiceCaller : public PhoneCaller {
public:
    struct Rooms {
        SerialPort& Port;
        EventLoop& Loop;
        Speaker& Speech;
        FileStore& Files;
        Dialogs& Boxes;
        const StringTable& Texts;
        AppSettings& Settings;
        const std::string& Folder;           // the program folder
        std::function<CallScreen&()> Screen; // asked for when the first call begins
    };

    explicit VoiceCaller(const Rooms& rooms);

    // A line that is still open is hung up.
    ~VoiceCaller() override;
    VoiceCaller(const VoiceCaller&) = delete;
    VoiceCaller& operator=(const VoiceCaller&) = delete;

    // Leaves the port closed. While a call runs there is a modem.
    bool ModemPresent() override;

    // Why the port could not be opened in the last search; empty when it could.
    [[nodiscard]] const std::string& PortTrouble() const { return probe_.Trouble(); }

    // On while the settings name a port, unless the user has switched telephoning off since.
    [[nodiscard]] ModemState Modem() const override;

    bool SendMessage(const std::string& dialString, const std::string& message) override;
    void Delay(int seconds) override;

    // Telephoning is switched off until a port is chosen or a modem found.
    void SwitchOff() { off_ = true; }
    void PortChosen() { off_ = false; }

    // A call, or the search for a modem, is under way.
    [[nodiscard]] bool IsBusy() const { return busy_; }

    // Ends the call that is under way; it hangs up, and `SendMessage` returns.
    void Stop();
    [[nodiscard]] bool WasStopped() const override { return line_.Stopped(); }

    // To be called with the clock's ticks: a call that something holds up is given up, so that no
    // line stays open for as long as a message stands.
    void Tick(std::chrono::steady_clock::time_point now) { line_.DropOverdue(now); }

    // The program is ending: so does the call, and no other begins.
    void End();

private:
    void StopWords();

    Rooms rooms_;
    ModemLine line_;
    ModemProbe probe_;
    bool busy_ = false;
    bool off_ = false;
};

} // namespace kestrova
