// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/WmfFile.h"

#include "media/ByteFields.h"

namespace kestrova {

namespace {

constexpr std::uint32_t kPlaceableKey = 0x9AC6CDD7;
constexpr std::size_t kPlaceableSize = 22;
constexpr std::size_t kHeaderWords = 9;
constexpr std::size_t kRecordHeadSize = 6;

bool IsPlaceable(std::string_view bytes) {
    return ByteFields(bytes).UInt32() == kPlaceableKey;
}

// The header that every metafile has: in memory or on disc, of nine words, of version 1 or 3.
bool IsHeader(std::string_view bytes) {
    ByteFields fields(bytes);
    const unsigned type = fields.UInt16();
    const unsigned words = fields.UInt16();
    const unsigned version = fields.UInt16();
    return fields.Ok() && (type == 1 || type == 2) && words == kHeaderWords &&
           (version == 0x0100 || version == 0x0300);
}

} // namespace

bool IsWmf(std::string_view beginning) {
    return IsPlaceable(beginning) || IsHeader(beginning);
}

Result<WmfFile> WmfFile::Open(std::string_view bytes) {
    WmfFile file;
    if (IsPlaceable(bytes)) {
        ByteFields fields(bytes);
        fields.Bytes(6); // the key, and a handle that means nothing in a file
        WmfBox frame;
        frame.Left = fields.Int16();
        frame.Top = fields.Int16();
        frame.Right = fields.Int16();
        frame.Bottom = fields.Int16();
        file.unitsPerInch_ = static_cast<int>(fields.UInt16());
        if (frame.Width() != 0 && frame.Height() != 0) {
            file.frame_ = frame;
        }
        bytes.remove_prefix(bytes.size() < kPlaceableSize ? bytes.size() : kPlaceableSize);
    }
    if (!IsHeader(bytes) || bytes.size() < kHeaderWords * 2) {
        return Error{ErrorCode::Damaged, "not a Windows metafile"};
    }
    file.rest_ = bytes.substr(kHeaderWords * 2);
    return file;
}

std::optional<WmfRecord> WmfFile::Next() {
    ByteFields fields(rest_);
    const std::size_t words = fields.UInt32();
    const unsigned function = fields.UInt16();
    if (!fields.Ok() || words * 2 < kRecordHeadSize || words > rest_.size() / 2 || function == 0) {
        return std::nullopt;
    }
    const WmfRecord record{function, rest_.substr(kRecordHeadSize, words * 2 - kRecordHeadSize)};
    rest_.remove_prefix(words * 2);
    return record;
}

} // namespace kestrova
