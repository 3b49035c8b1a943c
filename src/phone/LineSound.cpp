// SPDX-License-Identifier: GPL-3.0-or-later
#include "phone/LineSound.h"

#include "text/Numbers.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace kestrova {

namespace {

constexpr int kIs101Rate = 8000;
constexpr int kRockwellRate = 7200;
constexpr int kLeastRate = 4800;
constexpr int kGreatestRate = 11025;
constexpr std::size_t kLongest = 120; // seconds

constexpr std::string_view kIs101Method = "+VSM=";
constexpr std::string_view kRockwellRateCommand = "#VSR=";

// The number that a parameter begins with.
std::optional<int> Parameter(std::string_view text) {
    const std::size_t end = std::min(text.find_first_not_of("0123456789"), text.size());
    const auto number = ReadInt16(text.substr(0, end));
    return number ? std::optional<int>(*number) : std::nullopt;
}

void TakeRate(LineFormat& format, std::string_view text) {
    const auto rate = Parameter(text);
    if (rate && *rate >= kLeastRate && *rate <= kGreatestRate) {
        format.Rate = *rate;
    }
}

void TakeMethod(LineFormat& format, std::string_view text) {
    switch (Parameter(text).value_or(1)) {
    case 0: format.Form = SampleForm::Signed; break;
    case 4:
    case 131: format.Form = SampleForm::MuLaw; break;
    default: format.Form = SampleForm::Unsigned; break;
    }
    if (const std::size_t comma = text.find(','); comma != std::string_view::npos) {
        TakeRate(format, text.substr(comma + 1));
    }
}

// The sample at a place between samples, as the mean of those around it, the near ones counting
// most. Where samples are lost, what the lower rate cannot carry is so kept out of it.
double SampleAt(const std::vector<std::int16_t>& samples, double place, double reach) {
    const auto first = static_cast<std::ptrdiff_t>(std::ceil(place - reach));
    const auto last = static_cast<std::ptrdiff_t>(std::floor(place + reach));
    double sum = 0;
    double weights = 0;
    for (std::ptrdiff_t i = std::max<std::ptrdiff_t>(first, 0);
         i <= std::min(last, static_cast<std::ptrdiff_t>(samples.size()) - 1); ++i) {
        const double weight = reach - std::abs(static_cast<double>(i) - place);
        sum += weight * samples[static_cast<std::size_t>(i)];
        weights += weight;
    }
    return weights > 0 ? sum / weights : 0;
}

// G.711: the sign, then the power of two and four bits below it, all inverted.
unsigned char MuLaw(int sample) {
    constexpr int kBias = 132;
    constexpr int kClip = 32635;
    const int sign = sample < 0 ? 0x80 : 0;
    const int magnitude = std::min(std::abs(sample), kClip) + kBias;
    int exponent = 7;
    while (exponent > 0 && (magnitude & (0x80 << exponent)) == 0) {
        --exponent;
    }
    const int mantissa = (magnitude >> (exponent + 3)) & 0x0F;
    return static_cast<unsigned char>(~(sign | (exponent << 4) | mantissa));
}

char ByteOf(int sample, SampleForm form) {
    switch (form) {
    case SampleForm::Signed: return static_cast<char>(sample >> 8);
    case SampleForm::MuLaw: return static_cast<char>(MuLaw(sample));
    case SampleForm::Unsigned: break;
    }
    return static_cast<char>((sample >> 8) + 128);
}

} // namespace

LineFormat FormatOf(const ModemScript& script) {
    LineFormat format;
    const int transmit = TransmitLine(script);
    const bool rockwell = transmit != 0 && script.Line(transmit).find("#VTX") != std::string::npos;
    format.Rate = rockwell ? kRockwellRate : kIs101Rate;
    for (int number = 1; number < transmit; ++number) {
        const std::string& line = script.Line(number);
        if (const std::size_t at = line.find(kIs101Method); at != std::string::npos) {
            TakeMethod(format, std::string_view(line).substr(at + kIs101Method.size()));
        }
        if (const std::size_t at = line.find(kRockwellRateCommand); at != std::string::npos) {
            TakeRate(format, std::string_view(line).substr(at + kRockwellRateCommand.size()));
        }
    }
    return format;
}

std::string LineBytes(const SpokenSound& sound, const LineFormat& format) {
    std::string bytes;
    if (sound.Rate <= 0 || sound.Samples.empty()) {
        return bytes;
    }
    const double step = static_cast<double>(sound.Rate) / format.Rate;
    const auto rate = static_cast<std::size_t>(format.Rate);
    const auto all = static_cast<std::size_t>(static_cast<double>(sound.Samples.size()) / step);
    const std::size_t count = std::min(all, kLongest * rate);
    bytes.reserve(count + count / 64);
    for (std::size_t i = 0; i < count; ++i) {
        const double sample =
            SampleAt(sound.Samples, static_cast<double>(i) * step, std::max(step, 1.0));
        const char byte = ByteOf(static_cast<int>(std::lround(sample)), format.Form);
        bytes += byte;
        if (byte == kDle) {
            bytes += byte;
        }
    }
    return bytes;
}

} // namespace kestrova
