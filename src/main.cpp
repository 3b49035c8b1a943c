// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine.h"
#include "app/ui/Program.h"
#include "platform/qt/CalendarModule.h"
#include "platform/qt/DataFolder.h"
#include "platform/qt/QtInstanceLink.h"
#include "platform/qt/QtText.h"
#include "platform/qt/SignalWatch.h"

#include <QApplication>
#include <QFileInfo>
#include <QIcon>

#include <algorithm>
#include <iostream>

namespace {

// Without a window, a display or a running instance.
int Exchange(kestrova::ExchangeOrder order, int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("kestrova"));
    if (!order.Path.empty()) {
        order.Path =
            kestrova::FromQt(QFileInfo(QFile::decodeName(order.Path.c_str())).absoluteFilePath());
    }
    kestrova::PosixFileStore files;
    const kestrova::SystemClock clock;
    kestrova::CalendarModule format(kestrova::CalendarModule::ShippedPath());
    return kestrova::CommandLine(
               {files, clock, format, kestrova::FindDataFolder(), std::cout, std::cerr})
        .Run(order);
}

} // namespace

namespace {

// Drawn beforehand, for reading the drawing itself would load one more library at the start.
QIcon ProgramIcon() {
    QIcon icon;
    for (const int size : {16, 32, 48, 128}) {
        icon.addFile(QStringLiteral(":/icon/kestrova-%1.png").arg(size), QSize(size, size));
    }
    return icon;
}

} // namespace

int main(int argc, char** argv) {
    if (const auto order = kestrova::ExchangeOrderOf({argv + 1, argv + std::max(argc, 1)})) {
        return Exchange(*order, argc, argv);
    }
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("kestrova"));
    QApplication::setApplicationVersion(QStringLiteral(KESTROVA_VERSION));
    // By this name the desktop finds the program's own entry, and its icon.
    QGuiApplication::setDesktopFileName(QStringLiteral("org.kestrova.kestrova"));
    // Hidden, the program goes on giving reminders.
    QApplication::setQuitOnLastWindowClosed(false);

    kestrova::QtInstanceLink link;
    if (link.Join() == kestrova::InstanceRole::Newcomer) {
        return 0;
    }
    QApplication::setWindowIcon(ProgramIcon());
    // The whole command line is one path, blanks and all, but for what the session says when it
    // starts the program and for the disc that the CD player is to play.
    QStringList words = QApplication::arguments().mid(1);
    const bool hidden = words.removeAll(QStringLiteral("--hidden")) > 0;
    QString disc;
    if (const auto option = words.indexOf(QStringLiteral("--cd")); option >= 0) {
        disc = words.value(option + 1);
        words.remove(option, std::min<qsizetype>(2, words.size() - option));
    }
    const QString media = words.join(QLatin1Char(' '));
    const auto absolute = [](const QString& path) {
        return kestrova::FromQt(path.isEmpty() ? path : QFileInfo(path).absoluteFilePath());
    };
    kestrova::Program program({kestrova::FindDataFolder(), absolute(media), absolute(disc)}, link);
    const kestrova::SignalWatch signals([&program] { program.End(); });
    // The desktop says when the session ends, too.
    QObject::connect(&application, &QGuiApplication::commitDataRequest, &application,
                     [&program] { program.End(); });
    return program.Run(hidden ? kestrova::FirstShow::Hidden : kestrova::FirstShow::Shown);
}
