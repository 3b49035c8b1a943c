// SPDX-License-Identifier: GPL-3.0-or-later
// Plays a thousand chimes and a hundred films through the real media module, without a sound
// server, and has a voice say five hundred sentences, and prints rows as bench/run-all explains
// them: the memory that was taken from the middle of each run to its end, which may be no more than
// a little, and our own time for drawing the picture of a film of 720 x 576. The memory on the way
// goes to the standard error. Ends with 1 when a bound is not met. Takes two minutes.
//
//   MediaSoak MODULE SPEECH_MODULE [CHIMES [FILMS [SENTENCES]]]
#include "ScratchFolder.h"
#include "platform/qt/MediaModule.h"
#include "platform/qt/SpeechModule.h"

#include <QCoreApplication>
#include <QProcess>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

namespace {

using namespace kestrova;

constexpr double kGrowthBound = 2048; // KiB
constexpr double kDrawBound = 4;      // milliseconds
constexpr double kNothingDrawn = 1e9;
constexpr int kWidth = 720;
constexpr int kHeight = 576;

int Memory(const std::string& kind) {
    std::ifstream facts("/proc/self/smaps_rollup");
    std::string word;
    int kib = 0;
    while (facts >> word && word != kind + ":") {
    }
    facts >> kib;
    return kib;
}

void Encode(const QString& graph, const QStringList& format, const std::string& path) {
    const QStringList arguments =
        QStringList{QStringLiteral("-v"),    QStringLiteral("error"), QStringLiteral("-f"),
                    QStringLiteral("lavfi"), QStringLiteral("-i"),    graph} +
        format + QStringList{QString::fromStdString(path)};
    if (QProcess::execute(QStringLiteral("ffmpeg"), arguments) != 0) {
        std::fprintf(stderr, "ffmpeg has not made %s\n", path.c_str());
        std::exit(1);
    }
}

// Plays a file to its end; draws each picture that comes, and keeps the milliseconds of each.
class Screen {
public:
    explicit Screen(MediaModule& module) : module_(module) {}

    void Make(MediaKind kind) {
        MediaPlayer::Events events;
        events.Ended = [this](MediaEnd end, const std::string& words) {
            ended_ = true;
            if (end == MediaEnd::Failed) {
                std::fprintf(stderr, "%s\n", words.c_str());
                std::exit(1);
            }
        };
        events.FrameReady = [this] { Draw(); };
        player_ = module_.MakePlayer(kind, std::move(events));
        if (!player_) {
            std::fprintf(stderr, "%s\n", module_.Trouble().c_str());
            std::exit(1);
        }
    }

    void PlayToTheEnd(const std::string& path) {
        ended_ = false;
        player_->Play(path);
        while (!ended_) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    }

    [[nodiscard]] double MedianDraw() {
        std::sort(times_.begin(), times_.end());
        return times_.empty() ? kNothingDrawn : times_[times_.size() / 2];
    }

private:
    void Draw() {
        const auto before = std::chrono::steady_clock::now();
        const bool drawn =
            player_->Render({pixels_.data(), kWidth, kHeight, std::ptrdiff_t{kWidth} * 4});
        const std::chrono::duration<double, std::milli> time =
            std::chrono::steady_clock::now() - before;
        if (drawn) {
            times_.push_back(time.count());
        }
    }

    MediaModule& module_;
    std::unique_ptr<MediaPlayer> player_;
    std::vector<std::byte> pixels_ = std::vector<std::byte>(std::size_t{kWidth} * kHeight * 4);
    std::vector<double> times_;
    bool ended_ = false;
};

bool PrintRow(const char* work, const char* unit, double measured, double bound) {
    const bool met = measured <= bound;
    std::printf("%s\t%.2f %s\t-\t%.2f\t%.0f %s\t%s\n", work, measured, unit, measured / bound,
                bound, unit, met ? "met" : "NOT MET");
    return met;
}

// The growth from the middle to the end, in KiB: what is set up once is there by the middle.
double Growth(const char* work, int count, const std::function<void(int)>& playOne) {
    int middle = 0;
    for (int i = 0; i < count; ++i) {
        if (i == 0 || i == count / 2) {
            middle = Memory("Pss");
            std::fprintf(stderr, "%s, %d of %d: RSS %d KiB, PSS %d KiB\n", work, i, count,
                         Memory("Rss"), middle);
        }
        playOne(i);
    }
    const int end = Memory("Pss");
    std::fprintf(stderr, "%s, %d of %d: RSS %d KiB, PSS %d KiB\n", work, count, count,
                 Memory("Rss"), end);
    return end - middle;
}

} // namespace

int main(int argc, char* argv[]) {
    // A server would only make it slower, and be heard.
    qputenv("PULSE_SERVER", "unix:/nonexistent");
    const QCoreApplication application(argc, argv);
    if (argc < 3) {
        std::fprintf(stderr,
                     "usage: MediaSoak MODULE SPEECH_MODULE [CHIMES [FILMS [SENTENCES]]]\n");
        return 2;
    }
    const int chimes = argc > 3 ? std::atoi(argv[3]) : 1000;
    const int films = argc > 4 ? std::atoi(argv[4]) : 100;
    const int sentences = argc > 5 ? std::atoi(argv[5]) : 500;

    const bench::ScratchFolder folder;
    const std::string chime = folder.Path() + "chime.wav";
    const std::string film = folder.Path() + "film.mpg";
    const std::string drawn = folder.Path() + "drawn.vob";
    Encode(QStringLiteral("sine=880:d=0.03"), {}, chime);
    Encode(QStringLiteral("testsrc=s=352x288:r=25:d=0.4[out0];sine=440:d=0.4[out1]"), {}, film);
    Encode(QStringLiteral("testsrc=s=720x576:r=25:d=4"),
           {QStringLiteral("-target"), QStringLiteral("pal-dvd")}, drawn);

    MediaModule module(argv[1]);
    Screen screen(module);
    screen.Make(MediaKind::Sound);
    const double chimeGrowth = Growth("chimes", chimes, [&](int i) {
        if (i % 2 == 0) { // by the same player, and by a new one
            screen.Make(MediaKind::Sound);
        }
        screen.PlayToTheEnd(chime);
    });
    const double filmGrowth = Growth("films", films, [&](int i) {
        if (i % 2 == 0) {
            screen.Make(MediaKind::Video);
        }
        screen.PlayToTheEnd(film);
    });
    SpeechModule voices(argv[2]);
    const double voiceGrowth = Growth("sentences", sentences, [&](int i) {
        const char* const locale = i % 2 == 0 ? "en" : "de"; // a voice is loaded anew each time
        const auto said =
            voices.Say("Reminder number " + std::to_string(i) + ", at noon.", {locale, 100, 150});
        if (!said) {
            std::fprintf(stderr, "%s\n", said.Failure().Text.c_str());
            std::exit(1);
        }
    });
    Screen large(module);
    large.Make(MediaKind::Video);
    large.PlayToTheEnd(drawn);

    bool met =
        PrintRow("memory taken by the later of the chimes", "KiB", chimeGrowth, kGrowthBound);
    met &= PrintRow("memory taken by the later of the films", "KiB", filmGrowth, kGrowthBound);
    met &= PrintRow("memory taken by the later of the words", "KiB", voiceGrowth, kGrowthBound);
    met &= PrintRow("a film's picture of 720 x 576 drawn", "ms", large.MedianDraw(), kDrawBound);
    return met ? 0 : 1;
}
