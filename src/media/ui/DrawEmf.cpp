// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/EmfHeader.h"
#include "media/PictureLimits.h"
#include "media/ui/Drawings.h"
#include "platform/qt/QtText.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>

namespace kestrova {

namespace {

constexpr qint64 kMostTime = 10'000;              // milliseconds
constexpr int kLookEvery = 50;                    // milliseconds, whether to stop
constexpr qint64 kMostAnswer = qint64{128} << 20; // bytes

// Ends whatever still runs, and waits for it, so that none is left behind.
class Painter : public QProcess {
public:
    ~Painter() override { End(); }

    void End() {
        if (state() != NotRunning) {
            kill();
            waitForFinished(1000);
        }
    }
};

} // namespace

Result<QImage> DrawEmf(const QString& path, const QByteArray& beginning, const QSize& area,
                       const std::stop_token& stop) {
    const auto natural =
        EmfSizeOf({beginning.constData(), static_cast<std::size_t>(beginning.size())});
    if (!natural) {
        return Error{ErrorCode::Damaged, FromQt(path)};
    }
    const QSize size = DrawnSize({natural->Width, natural->Height}, area);
    Painter painter;
    painter.setProgram(QCoreApplication::applicationDirPath() + QStringLiteral("/kestrova-emf"));
    painter.setArguments({path, QString::number(size.width()), QString::number(size.height())});
    painter.setStandardInputFile(QProcess::nullDevice());
    painter.setStandardErrorFile(QProcess::nullDevice());
    painter.start(QIODevice::ReadOnly);
    if (!painter.waitForStarted()) {
        return Error{ErrorCode::NotFound, FromQt(painter.program())};
    }
    QElapsedTimer time;
    time.start();
    QByteArray answer;
    while (painter.state() != QProcess::NotRunning) {
        painter.waitForReadyRead(kLookEvery);
        answer += painter.readAllStandardOutput();
        if (stop.stop_requested() || time.elapsed() > kMostTime || answer.size() > kMostAnswer) {
            return Error{ErrorCode::Failed, FromQt(path)};
        }
    }
    answer += painter.readAllStandardOutput();
    const bool well = painter.exitStatus() == QProcess::NormalExit && painter.exitCode() == 0;
    QImage image = well ? QImage::fromData(answer, "png") : QImage();
    if (image.size() != size) {
        return Error{ErrorCode::Damaged, FromQt(path)};
    }
    return image;
}

} // namespace kestrova
