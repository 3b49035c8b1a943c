// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTranslator>

#include <string_view>

namespace kestrova {

// The toolkit's own texts, on the buttons of message boxes and in file dialogs, in the language of
// the program. English where the toolkit has no translation, or none is installed.
class ToolkitTexts {
public:
    ToolkitTexts() = default;
    ~ToolkitTexts();
    ToolkitTexts(const ToolkitTexts&) = delete;
    ToolkitTexts& operator=(const ToolkitTexts&) = delete;

    // `locale` is a name like "pt_BR".
    void Use(std::string_view locale);

private:
    QTranslator translator_;
};

} // namespace kestrova
