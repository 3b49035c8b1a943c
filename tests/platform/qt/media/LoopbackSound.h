// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QProcess>
#include <QTemporaryDir>

#include <cstdint>
#include <memory>
#include <vector>

namespace kestrova {

// What was heard: one channel, 44,100 samples a second.
class Heard {
public:
    explicit Heard(const QByteArray& stereo);

    [[nodiscard]] double Seconds() const;      // from the first sound to the last
    [[nodiscard]] double Level() const;        // the root mean square of what lies between, 0 to 1
    [[nodiscard]] double LongestPause() const; // seconds of silence between
    // Cycles a second around a place, counted in seconds from the first sound.
    [[nodiscard]] double Pitch(double seconds) const;

private:
    std::vector<double> samples_; // without the silence around
};

// A sound server of its own, in a folder of its own, whose only loudspeaker is a recorder. It is
// what this process finds as its sound server.
class LoopbackSound {
public:
    // Whether the programs that it takes are installed.
    [[nodiscard]] static bool IsThere();

    LoopbackSound();
    ~LoopbackSound();
    LoopbackSound(const LoopbackSound&) = delete;
    LoopbackSound& operator=(const LoopbackSound&) = delete;

    [[nodiscard]] bool Start();
    void Kill();
    void Hang(); // it keeps its connections and answers nothing; until killed

    [[nodiscard]] bool Record();
    [[nodiscard]] bool HasSounded() const;
    [[nodiscard]] bool IsSilentAgain() const; // a sound was heard, and then none for a while
    [[nodiscard]] Heard StopRecording();      // waits for the silence

private:
    void EndRecorder();

    QTemporaryDir folder_;
    QByteArray before_;
    QByteArray address_;
    std::unique_ptr<QProcess> server_;
    std::unique_ptr<QProcess> recorder_;
    QByteArray recorded_;
};

} // namespace kestrova
