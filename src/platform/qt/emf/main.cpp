// SPDX-License-Identifier: GPL-3.0-or-later
// kestrova-emf FILE WIDTH HEIGHT
//
// Draws an enhanced metafile in that size and writes it as a PNG to the standard output. Such files
// are read by a library that was never meant for those of strangers, so it does not get into the
// calendar's own process: this one has little memory, little time and may write no file, and when
// it crashes, there is just no picture. Ends with 0 when all went well.
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <csignal>
#include <cstdlib>
#include <cstring>

#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

extern "C" {
#include <emf2svg.h>
}

namespace {

constexpr rlim_t kMostMemory = rlim_t{1536} << 20;
constexpr rlim_t kMostSeconds = 8;
constexpr qint64 kMostBytes = qint64{64} << 20;
constexpr int kMostSide = 8192;
constexpr int kQuickly = 90; // quality of a PNG, which for this format says how little is packed

void Limit(__rlimit_resource what, rlim_t most) {
    const rlimit limit{most, most};
    ::setrlimit(what, &limit);
}

void LimitAll() {
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    std::signal(SIGXFSZ, SIG_IGN); // the fonts' own cache cannot be written either, and need not be
    Limit(RLIMIT_CORE, 0);
    Limit(RLIMIT_FSIZE, 0);
    Limit(RLIMIT_CPU, kMostSeconds);
#ifndef __SANITIZE_ADDRESS__ // which maps more than any machine has
    Limit(RLIMIT_AS, kMostMemory);
#endif
}

QByteArray SvgOf(QByteArray bytes) {
    generatorOptions options{};
    options.svgDelimiter = true;
    options.emfplus = true;
    char* text = nullptr;
    std::size_t length = 0;
    const int drawn =
        emf2svg(bytes.data(), static_cast<std::size_t>(bytes.size()), &text, &length, &options);
    QByteArray svg;
    if (drawn != 0 && text != nullptr) {
        svg = QByteArray(text, static_cast<qsizetype>(length));
    }
    std::free(text); // NOLINT(cppcoreguidelines-no-malloc): it is the library's
    return svg;
}

// Whether everything that the drawing refers to lies in itself: a stranger's file is not to bring
// others of this machine into the picture.
bool KeepsToItself(const QByteArray& svg) {
    constexpr char kReference[] = "href=";
    for (qsizetype at = svg.indexOf(kReference); at >= 0; at = svg.indexOf(kReference, at + 1)) {
        const QByteArray target =
            svg.mid(at + static_cast<qsizetype>(std::strlen(kReference)) + 1, 5);
        if (!target.startsWith('#') && target != "data:") {
            return false;
        }
    }
    return true;
}

bool Draw(const QString& path, const QSize& size) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > kMostBytes) {
        return false;
    }
    const QByteArray svg = SvgOf(file.readAll());
    if (svg.isEmpty() || !KeepsToItself(svg)) {
        return false;
    }
    QSvgRenderer renderer(svg);
    QImage image(size, QImage::Format_RGB32);
    if (!renderer.isValid() || image.isNull()) {
        return false;
    }
    image.fill(Qt::white);
    {
        QPainter painter(&image);
        renderer.render(&painter, QRectF(QPointF(), size));
    }
    QFile output;
    return output.open(STDOUT_FILENO, QIODevice::WriteOnly) &&
           image.save(&output, "png", kQuickly) && output.flush();
}

} // namespace

int main(int argc, char* argv[]) {
    LimitAll();
    if (argc != 4) {
        return 2;
    }
    const int width = std::atoi(argv[2]);
    const int height = std::atoi(argv[3]);
    if (width < 1 || width > kMostSide || height < 1 || height > kMostSide) {
        return 2;
    }
    const QString path = QFile::decodeName(argv[1]);
    ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
    const QGuiApplication application(argc, argv);
    const bool drawn = Draw(path, {width, height});
    // Whatever the library has left lying about goes with the process.
    std::_Exit(drawn ? 0 : 1);
}
