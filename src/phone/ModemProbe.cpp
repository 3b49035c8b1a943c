// SPDX-License-Identifier: GPL-3.0-or-later
#include "phone/ModemProbe.h"

#include "language/Texts.h"
#include "phone/ModemList.h"

namespace kestrova {

namespace {

constexpr const char* kListFile = "Modem.Dat";
constexpr std::string_view kWakeUp = "ATV1Q0 E1"; // results in words, results at all, echo
constexpr int kAnswerSeconds = 3;

struct Query {
    std::string_view Command;
    std::string_view Family; // whose modems answer it
};

constexpr Query kQueries[] = {{"AT+FMM?", kIs101Family},    {"AT+FMI?", kIs101Family},
                              {"AT+FMR?", kIs101Family},    {"AT#MDL?", kRockwellFamily},
                              {"AT#MFR?", kRockwellFamily}, {"AT#REV?", kRockwellFamily}};

bool HoldsOk(std::string_view reply) {
    return reply.find(kOkLine) != std::string_view::npos;
}

} // namespace

std::string AnswerIn(std::string_view reply, std::string_view query) {
    constexpr std::size_t kFurthest = 1000;
    constexpr std::size_t kLeast = 2; // one stray character is no answer yet
    if (reply.starts_with(query)) {
        reply.remove_prefix(query.size());
    }
    std::string answer;
    for (const char c : reply.substr(0, kFurthest)) {
        if (c >= ' ' && c <= '~') {
            answer += c;
        } else if (answer.size() >= kLeast) {
            break;
        }
    }
    return answer;
}

bool ModemProbe::ModemPresent() {
    const Status opened = rooms_.Line.Open(rooms_.Settings.ModemPort, kPortSettings);
    trouble_ = opened ? std::string() : opened.Failure().Text;
    if (!opened || !HoldsOk(rooms_.Line.Ask(kWakeUp, kAnswerSeconds))) {
        rooms_.Settings.ModemPort = rooms_.Texts.Text(texts::kModemPorts);
        return false;
    }
    std::string description;
    for (const Query& query : kQueries) {
        const std::string reply = rooms_.Line.Ask(query.Command, kAnswerSeconds);
        if (HoldsOk(reply)) {
            description += AnswerIn(reply, query.Command);
            rooms_.Settings.ModemName = query.Family;
        }
    }
    rooms_.Settings.ModemDescription = description;
    if (description.empty()) {
        return false;
    }
    ValidSpeechModem();
    return true;
}

void ModemProbe::ValidSpeechModem() {
    const auto name = rooms_.Files.FindEntry(rooms_.Folder, kListFile);
    const auto bytes = rooms_.Files.Read(rooms_.Folder + name.value_or(kListFile), kModemListLimit);
    ModemInUse modem{rooms_.Settings.ModemDescription, rooms_.Settings.ModemName, script_};
    if (bytes) {
        ChooseScript(bytes.Value(), modem);
    } else {
        rooms_.Boxes.Show({rooms_.Texts.Text(texts::kMessengerTitle),
                           rooms_.Texts.Text(texts::kNoModemList), DialogIcon::Critical});
        ChooseBuiltInScript(modem);
    }
    rooms_.Settings.ModemDescription = modem.Description;
    script_ = modem.Script;
}

} // namespace kestrova
