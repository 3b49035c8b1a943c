// SPDX-License-Identifier: GPL-3.0-or-later
// The settings file: what is read and written reads back equal.
#include "Expect.h"

#include "settings/SettingsFile.h"
#include "text/Encoding.h"

using kestrova::AppSettings;
using kestrova::fuzz::Expect;

namespace {

AppSettings ReadBack(const std::string& bytes) {
    AppSettings settings;
    Expect(kestrova::ReadSettings(bytes, settings).Ok(), "what is written can be read");
    return settings;
}

} // namespace

int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    AppSettings read;
    (void)kestrova::ReadSettings(kestrova::fuzz::View(data, size), read);
    Expect(kestrova::IsUtf8(read.Reserved1) && kestrova::IsUtf8(read.Farewell), "texts are UTF-8");

    // Also a record that a damaged file has filled in part is one that the program may save.
    const std::string bytes = kestrova::WriteSettings(read);
    const AppSettings once = ReadBack(bytes);
    const AppSettings twice = ReadBack(kestrova::WriteSettings(once));
    Expect(once == twice, "a record that came from a written file is written for good");

    if (kestrova::fuzz::HasPlainLines(kestrova::fuzz::View(data, size))) {
        Expect(once == read, "a record that was read is written for good");
    }
    return 0;
}
