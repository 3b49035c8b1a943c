// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace kestrova::fuzz {

// Ends the process, which is a finding, when a promise of the code under test does not hold.
inline void Expect(bool holds, const char* promise) {
    if (!holds) {
        std::fprintf(stderr, "broken promise: %s\n", promise);
        std::abort();
    }
}

// The bytes as the code under test takes them.
inline std::string_view View(const unsigned char* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

// Whether every carriage return is the half of a line end, and there is no NUL: bytes that a text
// file holds by accident only, and that are written as blanks.
inline bool HasPlainLines(std::string_view bytes) {
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const bool lineEnd = i + 1 == bytes.size() || bytes[i + 1] == '\n';
        if (bytes[i] == '\0' || (bytes[i] == '\r' && !lineEnd)) {
            return false;
        }
    }
    return true;
}

} // namespace kestrova::fuzz

// What libFuzzer calls; 0 is the only answer it knows.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size);
