// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kestrova {

// What some programs put before a UTF-8 text.
inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

// The line end of every text file this program writes.
inline constexpr std::string_view kLineEnd = "\r\n";

// Cuts a file's bytes into lines, front to back, without copying them. Lines end in CR LF or in LF
// alone; the last may have no end. A UTF-8 byte-order mark at the front is passed over. The bytes
// must outlive the reader.
class LineReader {
public:
    explicit LineReader(std::string_view bytes);

    // The next line without its end; nothing when all have been read.
    std::optional<std::string_view> Next();

    // What has not been read yet.
    [[nodiscard]] std::string_view Rest() const { return rest_; }

private:
    std::string_view rest_;
};

// The text as one line: every line break and NUL in it, which a line of a file cannot carry, is
// turned into a blank.
[[nodiscard]] std::string AsOneLine(std::string_view text);

} // namespace kestrova
