// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/ShortCut.h"

#include "language/FixedLanguages.h"
#include "language/ProgramTexts.h"
#include "settings/SettingsRules.h"

#include <algorithm>

namespace kestrova {

namespace {

// A path as the first word of an Exec line. Within its quotes four characters take a backslash, a
// percent sign is doubled, and the line as a whole doubles every backslash once more.
std::string ExecWord(const std::string& path) {
    std::string word = "\"";
    for (const char c : path) {
        switch (c) {
        case '\\': word += R"(\\\\)"; break;
        case '"':
        case '`':
        case '$': word.append(R"(\\)") += c; break;
        case '%': word += "%%"; break;
        default: word += c; break;
        }
    }
    return word += '"';
}

// A path as a value of its own, in which only a backslash is doubled.
std::string Value(const std::string& path) {
    std::string value;
    for (const char c : path) {
        value.append(c == '\\' ? 2 : 1, c);
    }
    return value;
}

bool IsControl(char c) {
    return static_cast<unsigned char>(c) < ' ' || c == '\x7F';
}

} // namespace

Result<std::string> ShortCut::Entry(const AppSettings& settings) const {
    if (std::any_of(executable_.begin(), executable_.end(), IsControl)) {
        return Error{ErrorCode::Failed, executable_}; // no desktop entry can name such a path
    }
    std::string entry = "[Desktop Entry]\nType=Application\nVersion=1.0\nName=Kestrova\n";
    for (int language = 0; language < kFixedLanguages; ++language) {
        StringTable table;
        table.ProgramLanguage = language;
        entry += "Comment";
        if (language > 0) {
            entry.append("[").append(FixedLanguages()[static_cast<std::size_t>(language)].Locale);
            entry += ']';
        }
        entry += "=" + TextOf(table, ProgramText::DesktopComment) + "\n";
    }
    // A session passes over what it cannot find: the program may have been removed from the system.
    entry += "TryExec=" + Value(executable_) + "\nExec=" + ExecWord(executable_);
    if ((settings.StartOnBoot & kStartsHidden) != 0) {
        entry += " --hidden";
    }
    entry += "\nIcon=x-office-calendar\nTerminal=false\nCategories=Office;Calendar;\n";
    return entry;
}

Status ShortCut::GetShortCut(const AppSettings& settings) {
    if (files_.Stamp(entry_)) {
        return Done{};
    }
    const auto entry = Entry(settings);
    return entry ? files_.Replace(entry_, entry.Value()) : Status(entry.Failure());
}

Status ShortCut::SetShortCut(const AppSettings& settings) {
    const auto entry = Entry(settings);
    if (!entry) {
        return entry.Failure();
    }
    const Status written = files_.Replace(entry_, entry.Value());
    if ((settings.StartOnBoot & kStartsOnBoot) == 0) {
        const Status removed = files_.Remove(Started());
        return written ? removed : written;
    }
    // A program folder that takes no entry is no reason not to start from it.
    const Status made = files_.MakeFolder(autostartFolder_);
    const Status copied = made ? files_.Replace(Started(), entry.Value()) : made;
    return written ? copied : written;
}

Status ShortCut::Remove() {
    const Status entry = files_.Remove(entry_);
    const Status started = files_.Remove(Started());
    return entry ? started : entry;
}

} // namespace kestrova
