// SPDX-License-Identifier: GPL-3.0-or-later
// The modem list, and what a modem says: whatever they hold, a script is lines that can be sent.
#include "Expect.h"

#include "phone/LineSound.h"
#include "phone/ModemList.h"
#include "phone/ModemProbe.h"

#include <algorithm>

using kestrova::ModemInUse;
using kestrova::ModemScript;
using kestrova::fuzz::Expect;

namespace {

bool IsPrintable(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return c >= ' ' && c <= '~'; });
}

void CheckScript(const ModemScript& script) {
    for (int number = 1; number <= ModemScript::kLines; ++number) {
        Expect(IsPrintable(script.Line(number)), "a command can be sent");
        Expect(script.Line(number).size() <= 250, "a command has an end");
    }
    const int transmit = TransmitLine(script);
    Expect(transmit == 0 || (transmit >= 22 && transmit <= 24), "words have their place");
    const int rate = FormatOf(script).Rate;
    Expect(rate >= 4800 && rate <= 11025, "sound goes at a telephone's rate");
}

} // namespace

int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const std::string_view input = kestrova::fuzz::View(data, size);
    // What a modem says may be the name of any record, for there is one of every family.
    const std::string answer = kestrova::AnswerIn(input, "AT+FMM?");
    Expect(IsPrintable(answer) && answer.size() <= 1000, "an answer is a line");
    for (const std::string_view description : {std::string_view("Box"), std::string_view(answer)}) {
        ModemInUse modem{std::string(description), std::string(kestrova::kIs101Family), {}};
        ChooseScript(input, modem);
        Expect(modem.Description == description || modem.Description == modem.Family ||
                   modem.Description == kestrova::kUnknownModem,
               "a modem is named by itself, its family or not at all");
        CheckScript(modem.Script);
    }
    return 0;
}
