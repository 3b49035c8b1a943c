// SPDX-License-Identifier: GPL-3.0-or-later
// The paper that an unfinished save leaves behind: what is read and written reads back equal.
#include "Expect.h"

#include "diary/NoteName.h"
#include "diary/SaveJournal.h"

using kestrova::fuzz::Expect;

int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const std::string_view bytes = kestrova::fuzz::View(data, size);
    const auto journal = kestrova::ReadJournal(bytes);
    if (!journal) {
        return 0;
    }
    for (const auto& [name, text] : journal->Notes) {
        Expect(kestrova::IsNoteName(name), "only notes are written or deleted");
    }
    const std::string written = kestrova::WriteJournal(*journal);
    Expect(kestrova::ReadJournal(written) == journal, "a journal that was read reads back equal");
    for (std::size_t length = 0; length < written.size(); length += 1 + written.size() / 64) {
        Expect(!kestrova::ReadJournal(std::string_view(written).substr(0, length)),
               "a journal that is cut short is none");
    }
    return 0;
}
