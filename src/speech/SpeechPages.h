// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/FileStore.h"

#include <string>
#include <string_view>
#include <vector>

namespace kestrova {

// A page of the speech set-up and the name of its file.
struct SpeechPage {
    std::string Name;
    std::string Text;
};

// What the last page says that depends on where the program runs.
struct SetUpAdvice {
    std::string Address; // where characters are to be had
    std::string Text;    // how voices are installed here
};

// The chain of pages by which a browser installs the parts that speech takes, one after the other,
// and the list of characters at its end. The first is the one to open.
[[nodiscard]] std::vector<SpeechPage> SpeechPages(int languageIndex, const SetUpAdvice& advice);

// Writes the pages into the program folder. On a failure some of them may be there.
[[nodiscard]] Status WriteSpeechPages(FileStore& files, const std::string& folder,
                                      const std::vector<SpeechPage>& pages);

// Deletes whatever pages there are (FileCleanUp).
void RemoveSpeechPages(FileStore& files, const std::string& folder);

} // namespace kestrova
