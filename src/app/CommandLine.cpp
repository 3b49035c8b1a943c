// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine.h"

#include "diary/DiaryStore.h"
#include "exchange/CalendarExchange.h"
#include "language/Languages.h"
#include "language/ProgramTexts.h"
#include "settings/SettingsFile.h"

#include <algorithm>
#include <ostream>
#include <string_view>

namespace kestrova {

namespace {

// Where nobody can answer: what is told goes to the stream, what is asked gets the answer that
// changes nothing.
class StreamDialogs : public Dialogs {
public:
    explicit StreamDialogs(std::ostream& stream) : stream_(stream) {}

    void Show(const Message& message) override { stream_ << message.Text << '\n'; }
    bool Ask(const Message& message, const AnswerCaptions& /*captions*/) override {
        Show(message);
        return false;
    }
    std::size_t AskAmong(const Message& message,
                         const std::vector<std::string>& captions) override {
        Show(message);
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

private:
    std::ostream& stream_;
};

// The user's own diary and language, read and not touched.
class OwnDiary {
public:
    OwnDiary(const CommandLine::Rooms& rooms, Dialogs& boxes)
        : rooms_(rooms), texts_(MsgDefaults()), settings_(FirstSettings(texts_)),
          disc_(rooms.Files, rooms.Time), probe_(rooms.DataFolder,
                                                 [](const std::string&) {
                                                     return true; // no other's folder is asked for
                                                 }),
          store_(disc_, boxes, texts_, probe_, [] {}),
          exchange_({rooms.Files, store_, rooms.Format, rooms.Time, texts_}) {
        settings_.DataYear = 0;
        if (const auto bytes =
                rooms.Files.Read(rooms.DataFolder + "Settings.dat", kSettingsFileLimit)) {
            // What stands before a damage is as good here as all of it.
            (void)ReadSettings(bytes.Value(), settings_);
        }
        int language = settings_.LanguageIndex;
        Languages(rooms.Files, rooms.DataFolder + "Lan.dat", texts_).GetLanguage(language);
    }

    [[nodiscard]] const StringTable& Texts() const { return texts_; }
    [[nodiscard]] CalendarExchange& Exchange() { return exchange_; }

    // The sentence that says why it cannot be had; empty when it can.
    [[nodiscard]] std::string Load() {
        const Status loaded = store_.Load(rooms_.DataFolder);
        if (loaded) {
            return {};
        }
        switch (loaded.Failure().Code) {
        case ErrorCode::Busy: return TextOf(texts_, ProgramText::DiaryBusy);
        case ErrorCode::NotFound:
            return TextOf(texts_, ProgramText::CalendarNoDiary, rooms_.DataFolder);
        default: return TextOf(texts_, ProgramText::CalendarNotRead, loaded.Failure().Text);
        }
    }

    // To which its first year belongs, which is not that of the clock while it has yet to be rolled
    // over.
    [[nodiscard]] int BaseYear() const {
        const int kept =
            std::max<int>(settings_.DataYear, store_.RolledTo(rooms_.DataFolder).value_or(0));
        return kept > 0 ? kept : rooms_.Time.Now().Year;
    }

private:
    const CommandLine::Rooms& rooms_;
    StringTable texts_;
    AppSettings settings_;
    DiaryFiles disc_;
    FolderProbe probe_;
    DiaryStore store_;
    CalendarExchange exchange_;
};

} // namespace

std::optional<ExchangeOrder> ExchangeOrderOf(std::span<const char* const> words) {
    using Direction = ExchangeOrder::Direction;
    for (const std::string_view word : words) {
        if (word != "--export" && word != "--import") {
            continue;
        }
        const bool clear = words.size() == 2 && words[0] == word && *words[1] != '\0';
        if (!clear) {
            return ExchangeOrder{};
        }
        return ExchangeOrder{word == "--export" ? Direction::Export : Direction::Import, words[1]};
    }
    return std::nullopt;
}

int CommandLine::Run(const ExchangeOrder& order) {
    StreamDialogs boxes(rooms_.Trouble);
    OwnDiary diary(rooms_, boxes);
    const auto refuse = [&](const std::string& sentence) {
        rooms_.Trouble << sentence << '\n';
        return 1;
    };
    if (order.Way == ExchangeOrder::Direction::Unclear) {
        return refuse(TextOf(diary.Texts(), ProgramText::CalendarUsage));
    }
    if (const std::string trouble = diary.Load(); !trouble.empty()) {
        return refuse(trouble);
    }
    const int year = diary.BaseYear();
    if (order.Way == ExchangeOrder::Direction::Export) {
        const auto tally = diary.Exchange().Export(order.Path, year);
        if (!tally) {
            return refuse(tally.Failure().Text);
        }
        rooms_.Out << ReportOf(diary.Texts(), tally.Value()) << '\n';
        return 0;
    }
    const auto plan = diary.Exchange().Read(order.Path, year);
    if (!plan) {
        return refuse(plan.Failure().Text);
    }
    const auto tally = diary.Exchange().Import(plan.Value(), year);
    if (!tally) {
        return refuse(tally.Failure().Text);
    }
    if (!tally.Value()) {
        return 1; // the store has told why
    }
    rooms_.Out << ReportOf(diary.Texts(), *tally.Value()) << '\n';
    return 0;
}

} // namespace kestrova
