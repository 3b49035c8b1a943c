// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/media/MadeFiles.h"

#include <QProcess>

#include <cmath>
#include <fstream>
#include <numbers>
#include <sstream>

namespace kestrova {

namespace {

constexpr int kRate = 44100;
constexpr std::size_t kSectorBytes = 2352;

void AppendNumber(std::string& bytes, std::uint32_t number, int size) {
    for (int i = 0; i < size; ++i) {
        bytes += static_cast<char>(number >> (8 * i));
    }
}

std::string SamplesOf(const Tone& tone) {
    std::string bytes;
    for (int i = 0; i < static_cast<int>(tone.Seconds * kRate); ++i) {
        const double value = 0.5 * std::sin(2 * std::numbers::pi * tone.Pitch * i / kRate);
        const auto sample = static_cast<std::uint16_t>(static_cast<int>(value * 32767));
        AppendNumber(bytes, sample, 2);
        AppendNumber(bytes, sample, 2);
    }
    return bytes;
}

std::string TimeOf(std::size_t sector) {
    char text[32];
    std::snprintf(text, sizeof text, "%02zu:%02zu:%02zu", sector / 75 / 60, sector / 75 % 60,
                  sector % 75);
    return text;
}

QString Text(const std::string& text) {
    return QString::fromStdString(text);
}

} // namespace

std::string ContentOf(const std::string& path) {
    std::ostringstream bytes;
    bytes << std::ifstream(path, std::ios::binary).rdbuf();
    return bytes.str();
}

void WriteBytes(const std::string& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

void WriteWave(const std::string& path, const Tone& tone) {
    const std::string samples = SamplesOf(tone);
    const auto size = static_cast<std::uint32_t>(samples.size());
    std::string bytes = "RIFF";
    AppendNumber(bytes, 36 + size, 4);
    bytes += "WAVEfmt ";
    AppendNumber(bytes, 16, 4);
    AppendNumber(bytes, 1, 2); // plain samples
    AppendNumber(bytes, 2, 2); // channels
    AppendNumber(bytes, kRate, 4);
    AppendNumber(bytes, kRate * 4, 4);
    AppendNumber(bytes, 4, 2);
    AppendNumber(bytes, 16, 2); // bits
    bytes += "data";
    AppendNumber(bytes, size, 4);
    WriteBytes(path, bytes + samples);
}

std::string WriteDiscImage(const std::string& folder, const std::vector<Tone>& tones) {
    std::string image(kSectorBytes * 75 * 4, '\x55');
    std::string sheet = "FILE \"disc.bin\" BINARY\n  TRACK 01 MODE1/2352\n    INDEX 01 00:00:00\n";
    int number = 1;
    for (const Tone& tone : tones) {
        char track[64];
        std::snprintf(track, sizeof track, "  TRACK %02d AUDIO\n    INDEX 01 %s\n", ++number,
                      TimeOf(image.size() / kSectorBytes).c_str());
        sheet += track;
        image += SamplesOf(tone);
        image.resize((image.size() + kSectorBytes - 1) / kSectorBytes * kSectorBytes);
    }
    WriteBytes(folder + "/disc.bin", image);
    WriteBytes(folder + "/disc.cue", sheet);
    return folder + "/disc.cue";
}

bool Encode(const QStringList& arguments, const std::string& path) {
    const QStringList quiet = {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-y")};
    return QProcess::execute(QStringLiteral("ffmpeg"),
                             quiet + arguments + QStringList{Text(path)}) == 0;
}

bool WriteVideo(const std::string& path, int width, int height, double seconds,
                const QStringList& format) {
    const std::string size = std::to_string(width / 2) + "x" + std::to_string(height);
    const std::string length = ":r=25:d=" + std::to_string(seconds);
    const std::string graph =
        "color=red:s=" + size + length + "[l];color=blue:s=" + size + length +
        "[r];[l][r]hstack[out0];sine=440:r=44100:d=" + std::to_string(seconds) + "[out1]";
    return Encode(QStringList{QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
                              Text(graph)} +
                      format,
                  path);
}

} // namespace kestrova
