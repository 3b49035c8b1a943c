// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/media/LoopbackSound.h"

#include <QStandardPaths>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <csignal>
#include <cstring>
#include <sys/prctl.h>

namespace kestrova {

namespace {

constexpr int kRate = 44100;
constexpr int kFrameBytes = 4;
constexpr double kSilent = 0.003;
constexpr int kLongest = 20000;                    // milliseconds, for a machine that is busy
constexpr qsizetype kSilenceAfter = kRate * 2 / 5; // samples

constexpr auto kServer = "PULSE_SERVER";

double SampleAt(const QByteArray& stereo, qsizetype frame) {
    std::int16_t sample = 0;
    std::memcpy(&sample, stereo.constData() + frame * kFrameBytes, sizeof sample);
    return sample / 32768.0;
}

// A test that crashes leaves no server behind.
void EndWithUs(QProcess& process) {
    process.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
}

qsizetype LastSound(const QByteArray& stereo) {
    qsizetype frame = stereo.size() / kFrameBytes - 1;
    while (frame >= 0 && std::abs(SampleAt(stereo, frame)) < kSilent) {
        --frame;
    }
    return frame;
}

} // namespace

Heard::Heard(const QByteArray& stereo) {
    for (qsizetype frame = 0; frame < stereo.size() / kFrameBytes; ++frame) {
        samples_.push_back(SampleAt(stereo, frame));
    }
    const auto sounds = [](double sample) { return std::abs(sample) >= kSilent; };
    samples_.erase(std::find_if(samples_.rbegin(), samples_.rend(), sounds).base(), samples_.end());
    samples_.erase(samples_.begin(), std::find_if(samples_.begin(), samples_.end(), sounds));
}

double Heard::Seconds() const {
    return static_cast<double>(samples_.size()) / kRate;
}

double Heard::Level() const {
    double sum = 0;
    for (const double sample : samples_) {
        sum += sample * sample;
    }
    return samples_.empty() ? 0 : std::sqrt(sum / static_cast<double>(samples_.size()));
}

double Heard::LongestPause() const {
    int longest = 0;
    int now = 0;
    for (const double sample : samples_) {
        now = std::abs(sample) < kSilent ? now + 1 : 0;
        longest = std::max(longest, now);
    }
    return static_cast<double>(longest) / kRate;
}

double Heard::Pitch(double seconds) const {
    constexpr int kWindow = kRate / 5;
    const auto begin = static_cast<std::size_t>(seconds * kRate);
    if (begin + kWindow > samples_.size()) {
        return 0;
    }
    int crossings = 0;
    for (std::size_t i = begin + 1; i < begin + kWindow; ++i) {
        crossings += samples_[i - 1] < 0 && samples_[i] >= 0 ? 1 : 0;
    }
    return crossings * static_cast<double>(kRate) / kWindow;
}

bool LoopbackSound::IsThere() {
    return !QStandardPaths::findExecutable(QStringLiteral("pulseaudio")).isEmpty() &&
           !QStandardPaths::findExecutable(QStringLiteral("parec")).isEmpty();
}

LoopbackSound::LoopbackSound()
    : before_(qgetenv(kServer)),
      address_("unix:" + folder_.filePath(QStringLiteral("s")).toUtf8()) {
    qputenv(kServer, address_);
}

LoopbackSound::~LoopbackSound() {
    EndRecorder();
    Kill();
    if (before_.isEmpty()) {
        qunsetenv(kServer);
    } else {
        qputenv(kServer, before_);
    }
}

bool LoopbackSound::Start() {
    server_ = std::make_unique<QProcess>();
    EndWithUs(*server_);
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), folder_.path());
    environment.insert(QStringLiteral("HOME"), folder_.path());
    environment.remove(QString::fromLatin1(kServer));
    server_->setProcessEnvironment(environment);
    // A rewind may end the server by an assertion of its own when its last client goes.
    server_->start(QStringLiteral("pulseaudio"),
                   {QStringLiteral("-n"), QStringLiteral("--daemonize=no"),
                    QStringLiteral("--exit-idle-time=-1"), QStringLiteral("--use-pid-file=no"),
                    QStringLiteral("--realtime=no"), QStringLiteral("--high-priority=no"),
                    QStringLiteral("--load=module-null-sink sink_name=ear rate=44100 norewinds=1"),
                    QStringLiteral("--load=module-native-protocol-unix auth-anonymous=1 socket=") +
                        QString::fromUtf8(address_.mid(5))});
    const auto answers = [] {
        QProcess question;
        question.start(QStringLiteral("pactl"), {QStringLiteral("info")});
        return question.waitForFinished(3000) && question.exitCode() == 0;
    };
    const auto isUp = [&] {
        return QFile::exists(QString::fromUtf8(address_.mid(5))) && answers();
    };
    return server_->waitForStarted() && QTest::qWaitFor(isUp, kLongest);
}

void LoopbackSound::Kill() {
    if (server_) {
        server_->kill();
        server_->waitForFinished();
        server_.reset();
    }
}

void LoopbackSound::EndRecorder() {
    if (recorder_) {
        recorder_->kill();
        recorder_->waitForFinished();
        recorder_.reset();
    }
}

void LoopbackSound::Hang() {
    ::kill(static_cast<pid_t>(server_->processId()), SIGSTOP);
}

bool LoopbackSound::Record() {
    recorded_.clear();
    recorder_ = std::make_unique<QProcess>();
    EndWithUs(*recorder_);
    QObject::connect(recorder_.get(), &QProcess::readyReadStandardOutput, recorder_.get(),
                     [this] { recorded_ += recorder_->readAllStandardOutput(); });
    recorder_->start(QStringLiteral("parec"),
                     {QStringLiteral("--device=ear.monitor"), QStringLiteral("--raw"),
                      QStringLiteral("--format=s16le"), QStringLiteral("--rate=44100"),
                      QStringLiteral("--channels=2"), QStringLiteral("--latency-msec=30")});
    return QTest::qWaitFor([this] { return !recorded_.isEmpty(); }, kLongest);
}

bool LoopbackSound::HasSounded() const {
    return LastSound(recorded_) >= 0;
}

bool LoopbackSound::IsSilentAgain() const {
    const qsizetype last = LastSound(recorded_);
    return last >= 0 && recorded_.size() / kFrameBytes - last > kSilenceAfter;
}

Heard LoopbackSound::StopRecording() {
    // What is still going on then, the test sees by the length.
    (void)QTest::qWaitFor([this] { return IsSilentAgain(); }, kLongest);
    EndRecorder();
    return Heard(recorded_);
}

} // namespace kestrova
