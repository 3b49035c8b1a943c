// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include <cstdint>
#include <string>
#include <vector>

namespace kestrova {

struct Tone {
    double Pitch = 440; // cycles a second
    double Seconds = 1;
};

// A wave at half of the full level, whose root mean square is 0.354.
void WriteWave(const std::string& path, const Tone& tone);

// The image of a disc, "disc.cue" and "disc.bin": four seconds of data, loud if taken for sound,
// and an audio track of each tone. Returns the path to open.
[[nodiscard]] std::string WriteDiscImage(const std::string& folder, const std::vector<Tone>& tones);

// Has ffmpeg write a file, with the arguments before its name.
[[nodiscard]] bool Encode(const QStringList& arguments, const std::string& path);

// A video, its left half red and its right half blue, of ten pictures a second or as told, and a
// tone.
[[nodiscard]] bool WriteVideo(const std::string& path, int width, int height, double seconds,
                              const QStringList& format = {});

[[nodiscard]] std::string ContentOf(const std::string& path);
void WriteBytes(const std::string& path, const std::string& bytes);

} // namespace kestrova
