// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Result.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace kestrova {

// A corner and the one opposite, in whatever units; the first may lie to the right or below.
struct WmfBox {
    double Left = 0;
    double Top = 0;
    double Right = 0;
    double Bottom = 0;

    [[nodiscard]] double Width() const { return Right - Left; }
    [[nodiscard]] double Height() const { return Bottom - Top; }

    bool operator==(const WmfBox&) const = default;
};

// One order of a Windows metafile: what is to be done, and with what. The fields stand in the
// reverse order of the call that they were.
struct WmfRecord {
    unsigned Function = 0;
    std::string_view Fields;
};

// The orders of a Windows metafile, one after another: an optional header of 22 bytes that says
// where the drawing is to be placed, a header of 18 bytes, and records, each led by its length in
// words of two bytes. The bytes are not owned.
class WmfFile {
public:
    // Damaged when the bytes are not led by a metafile's header.
    static Result<WmfFile> Open(std::string_view bytes);

    // Where the drawing lies, in its own units, and how many of those make an inch; for a file that
    // says so.
    [[nodiscard]] const std::optional<WmfBox>& Frame() const { return frame_; }
    [[nodiscard]] int UnitsPerInch() const { return unitsPerInch_; }

    // The next order; nothing at the end, and where a length leads out of the file.
    std::optional<WmfRecord> Next();

private:
    WmfFile() = default;

    std::optional<WmfBox> frame_;
    int unitsPerInch_ = 0;
    std::string_view rest_;
};

// Whether a file that begins so is a Windows metafile.
[[nodiscard]] bool IsWmf(std::string_view beginning);

} // namespace kestrova
