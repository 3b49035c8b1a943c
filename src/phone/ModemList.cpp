// SPDX-License-Identifier: GPL-3.0-or-later
#include "phone/ModemList.h"

#include "text/Lines.h"
#include "text/Numbers.h"

#include <algorithm>
#include <optional>

namespace kestrova {

namespace {

constexpr std::string_view kEndOfList = "End of List";
constexpr std::string_view kEndOfBlock = "End of Index";
constexpr std::size_t kLongestCommand = 250; // longer ones no modem takes

struct ListRecord {
    std::string_view Name;
    std::optional<std::int16_t> Block; // nothing: it names none that there could be
};

ListRecord RecordOf(std::string_view line) {
    line = Trim(line);
    const bool quoted = line.starts_with('"');
    if (quoted) {
        line.remove_prefix(1);
    }
    const std::size_t end = std::min(line.find(quoted ? '"' : ','), line.size());
    const std::string_view rest = line.substr(end);
    const std::size_t comma = rest.find(',');
    ListRecord record{quoted ? line.substr(0, end) : Trim(line.substr(0, end)), std::nullopt};
    if (comma != std::string_view::npos) {
        record.Block = ReadInt16(rest.substr(comma + 1));
    }
    if (record.Block && *record.Block < 1) {
        record.Block.reset();
    }
    return record;
}

// A line as it may be sent to a modem: what cannot be printed would only cut it in two.
std::string CommandOf(std::string_view line) {
    std::string command(line.substr(0, kLongestCommand));
    std::erase_if(command, [](char c) { return c < ' ' || c > '~'; });
    return command;
}

struct ListMatch {
    std::optional<int> Own;    // the block of the modem itself
    std::optional<int> Family; // that of its kind
    bool Ended = false;        // the list has an end, behind which the blocks are
};

ListMatch FindInList(LineReader& lines, const ModemInUse& modem) {
    ListMatch match;
    while (const auto line = lines.Next()) {
        const ListRecord record = RecordOf(*line);
        if (record.Name == kEndOfList) {
            match.Ended = true;
            break;
        }
        if (record.Block && !match.Own && record.Name == modem.Description) {
            match.Own = record.Block;
        }
        if (record.Block && !match.Family && record.Name == modem.Family) {
            match.Family = record.Block;
        }
    }
    return match;
}

// The next block, as far as the file has it.
void ReadBlock(LineReader& lines, ModemScript& script) {
    script.Clear({1, ModemScript::kFileLines});
    for (int number = 1;; ++number) {
        const auto line = lines.Next();
        if (!line || Trim(*line) == kEndOfBlock) {
            return;
        }
        if (number <= ModemScript::kFileLines) {
            script.SetLine(number, CommandOf(*line));
        }
    }
}

struct BuiltInLine {
    int Number;
    std::string_view Command;
};

constexpr BuiltInLine kIs101Lines[] = {
    {1, "AT&D0 +FCLASS=8"}, {4, "AT+VTS=0"},         {7, "AT+VIP"},  {10, "AT+VLS=1"},
    {13, "AT+VTX"},         {16, "AT&D0 +FCLASS=8"}, {19, "AT+VTX"}, {22, "AT+VLS=7"},
    {25, "AT+VLS=1"},       {28, "AT+VTS=300,600,5"}};

constexpr BuiltInLine kOtherLines[] = {
    {1, "AT&D0"},         {4, "AT#CLS=8"},      {7, "AT#VRA=0"},
    {10, "AT#VRN=0"},     {13, "AT#VLS=6"},     {16, "AT#VLS=6"},
    {28, "AT#VTS={8,4}"}, {29, "AT#VTS={3,4}"}, {30, "AT#VTS={1,4}"}};

} // namespace

void ChooseScript(std::string_view bytes, ModemInUse& modem) {
    LineReader lines(bytes);
    const ListMatch match = FindInList(lines, modem);
    const auto block = match.Own ? match.Own : match.Family;
    if (!block || !match.Ended) {
        modem.Description = kUnknownModem;
        modem.Script.Clear({1, 32});
        return;
    }
    if (!match.Own) {
        modem.Description = modem.Family;
    }
    // A number past the last block means that one.
    for (int number = 1; number <= *block && (number == 1 || !lines.Rest().empty()); ++number) {
        ReadBlock(lines, modem.Script);
    }
}

void ChooseBuiltInScript(ModemInUse& modem) {
    modem.Description = kUnknownModem;
    modem.Script.Clear({1, 30});
    const auto load = [&](const auto& lines) {
        for (const BuiltInLine& line : lines) {
            modem.Script.SetLine(line.Number, std::string(line.Command));
        }
    };
    if (modem.Family == kIs101Family) {
        load(kIs101Lines);
    } else {
        load(kOtherLines);
    }
}

} // namespace kestrova
