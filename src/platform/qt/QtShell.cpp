// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/QtShell.h"

#include "platform/qt/QtText.h"

#include <QFileInfo>
#include <QProcess>

namespace kestrova {

Status QtShell::OpenPage(const std::string& path) {
    const QString file = ToQt(path);
    if (!QFileInfo::exists(file)) {
        return Error{ErrorCode::NotFound, path};
    }
    if (!QProcess::startDetached(QStringLiteral("xdg-open"), {file})) {
        return Error{ErrorCode::Failed, path};
    }
    return Done{};
}

} // namespace kestrova
