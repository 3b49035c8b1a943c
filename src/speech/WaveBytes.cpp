// SPDX-License-Identifier: GPL-3.0-or-later
#include "speech/WaveBytes.h"

#include <cstdint>

namespace kestrova {

namespace {

constexpr std::uint32_t kSampleBytes = 2;
constexpr std::uint32_t kFormatBytes = 16;
constexpr std::uint32_t kHeadBytes = 36; // what follows the size in front, without the samples

void Append(std::string& bytes, std::uint32_t value, int count) {
    for (int i = 0; i < count; ++i) {
        bytes += static_cast<char>(value >> (8 * i) & 0xFFU);
    }
}

} // namespace

std::string WaveBytes(const SpokenSound& sound) {
    const auto rate = static_cast<std::uint32_t>(sound.Rate);
    const auto size = static_cast<std::uint32_t>(sound.Samples.size()) * kSampleBytes;
    std::string bytes = "RIFF";
    bytes.reserve(size + kHeadBytes + 8);
    Append(bytes, kHeadBytes + size, 4);
    bytes += "WAVEfmt ";
    Append(bytes, kFormatBytes, 4);
    Append(bytes, 1, 2); // plain samples
    Append(bytes, 1, 2); // one channel
    Append(bytes, rate, 4);
    Append(bytes, rate * kSampleBytes, 4);
    Append(bytes, kSampleBytes, 2);
    Append(bytes, 8 * kSampleBytes, 2);
    bytes += "data";
    Append(bytes, size, 4);
    for (const std::int16_t sample : sound.Samples) {
        Append(bytes, static_cast<std::uint16_t>(sample), 2);
    }
    return bytes;
}

} // namespace kestrova
