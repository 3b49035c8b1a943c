// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/ToolkitTexts.h"

#include "platform/qt/QtText.h"

#include <QCoreApplication>
#include <QLibraryInfo>

namespace kestrova {

ToolkitTexts::~ToolkitTexts() {
    QCoreApplication::removeTranslator(&translator_);
}

void ToolkitTexts::Use(std::string_view locale) {
    QCoreApplication::removeTranslator(&translator_);
    if (translator_.load(QStringLiteral("qtbase_") + ToQt(locale),
                         QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(&translator_);
    }
}

} // namespace kestrova
