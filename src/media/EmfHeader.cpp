// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/EmfHeader.h"

#include "media/ByteFields.h"

#include <algorithm>

namespace kestrova {

namespace {

constexpr std::uint32_t kHeaderRecord = 1;
constexpr std::uint32_t kSignature = 0x464D4520; // " EMF"
constexpr double kFramePerPixel = 2540.0 / 96;   // hundredths of a millimetre
constexpr double kMostSlant = 1000;              // one side to the other

} // namespace

bool IsEmf(std::string_view beginning) {
    ByteFields fields(beginning);
    const bool header = fields.UInt32() == kHeaderRecord;
    fields.Bytes(36);
    return header && fields.UInt32() == kSignature;
}

std::optional<EmfSize> EmfSizeOf(std::string_view beginning) {
    ByteFields fields(beginning);
    fields.Bytes(8);
    const auto side = [](double first, double last) { return last - first; };
    double bounds[4]; // left, top, right, bottom; in pixels, the last ones included
    double frame[4];
    for (double& value : bounds) {
        value = fields.Int32();
    }
    for (double& value : frame) {
        value = fields.Int32();
    }
    if (!fields.Ok()) {
        return std::nullopt;
    }
    EmfSize size{side(frame[0], frame[2]) / kFramePerPixel,
                 side(frame[1], frame[3]) / kFramePerPixel};
    if (size.Width <= 0 || size.Height <= 0) {
        size = {side(bounds[0], bounds[2]) + 1, side(bounds[1], bounds[3]) + 1};
    }
    if (size.Width <= 0 || size.Height <= 0) {
        return std::nullopt;
    }
    size.Width = std::clamp(size.Width, size.Height / kMostSlant, size.Height * kMostSlant);
    return size;
}

} // namespace kestrova
