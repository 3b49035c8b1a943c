// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace kestrova {

// A user's text as a tip: shown as it is. Given as it is, the toolkit would take some for markup.
[[nodiscard]] inline QString PlainTip(const QString& text) {
    return text.isEmpty() ? text : QStringLiteral("<span>%1</span>").arg(text.toHtmlEscaped());
}

} // namespace kestrova
