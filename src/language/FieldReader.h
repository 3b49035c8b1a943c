// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "text/Lines.h"

#include <optional>
#include <string>
#include <string_view>

namespace kestrova {

// Reads a file field by field: fields end at a comma or at the line end, leading blanks are
// skipped, and a field that begins with a double quote ends at the next one, the quotes dropped. A
// quote that nothing closes ends with its line, so that one stray character cannot swallow a file.
class FieldReader {
public:
    explicit FieldReader(std::string_view bytes) : begin_(bytes.data()), lines_(bytes) {}

    // The next field in UTF-8; nothing at the end of the file.
    std::optional<std::string> Next();

    // Passes over so many fields; false when the file ended before.
    bool Skip(int count);

    // How many bytes lie before what is read next.
    [[nodiscard]] std::size_t Position() const {
        return static_cast<std::size_t>((line_ ? line_->data() : lines_.Rest().data()) - begin_);
    }

private:
    std::optional<std::string_view> NextRaw();

    const char* begin_;
    LineReader lines_;
    std::optional<std::string_view> line_; // what is left of the line being read
};

} // namespace kestrova
