// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ui/Program.h"
#include "platform/qt/DataFolder.h"
#include "platform/qt/QtInstanceLink.h"
#include "platform/qt/QtText.h"
#include "platform/qt/SignalWatch.h"

#include <QApplication>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("kestrova"));
    QApplication::setApplicationVersion(QStringLiteral(KESTROVA_VERSION));
    // Hidden, the program goes on giving reminders.
    QApplication::setQuitOnLastWindowClosed(false);

    kestrova::QtInstanceLink link;
    if (link.Join() == kestrova::InstanceRole::Newcomer) {
        return 0;
    }
    // The whole command line is one path, blanks and all, unless the session starts the program.
    QStringList words = QApplication::arguments().mid(1);
    const bool hidden = words.removeAll(QStringLiteral("--hidden")) > 0;
    kestrova::Program program(kestrova::FindDataFolder(),
                              kestrova::FromQt(words.join(QLatin1Char(' '))), link);
    const kestrova::SignalWatch signals([&program] { program.End(); });
    // The desktop says when the session ends, too.
    QObject::connect(&application, &QGuiApplication::commitDataRequest, &application,
                     [&program] { program.End(); });
    return program.Run(hidden ? kestrova::FirstShow::Hidden : kestrova::FirstShow::Shown);
}
