// SPDX-License-Identifier: GPL-3.0-or-later
// The language file: any bytes may be asked for any block.
#include "Expect.h"

#include "language/LanguageFile.h"
#include "text/Encoding.h"

using kestrova::ErrorCode;
using kestrova::fuzz::Expect;

namespace {

constexpr int kBlocks = 4;

void CheckTexts(const kestrova::StringTable& table) {
    for (const auto& group : table.Texts) {
        for (const std::string& text : group) {
            Expect(kestrova::IsUtf8(text), "texts are UTF-8");
            Expect(text.find('\n') == std::string::npos, "a text is one line");
        }
    }
    Expect(table.Title.Size >= 1 && table.Title.Size <= 200, "a title that a screen can show");
}

} // namespace

int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const std::string_view bytes = kestrova::fuzz::View(data, size);
    const auto names = kestrova::LanguageNames(bytes);
    for (int block = 0; block < kBlocks; ++block) {
        const auto table = kestrova::ReadLanguage(bytes, block);
        const bool whole = static_cast<std::size_t>(block) < names.size();
        if (table) {
            Expect(whole, "a block that can be read is among the names");
            CheckTexts(table.Value());
        } else {
            Expect(!whole || table.Failure().Code == ErrorCode::Damaged,
                   "a block that is among the names is there");
        }
    }
    Expect(kestrova::ReadLanguage(bytes, -1).Ok() == false, "there is no block before the first");
    return 0;
}
