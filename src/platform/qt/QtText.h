// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace kestrova {

// Texts are UTF-8 in the program and UTF-16 in the toolkit. Bytes that are no UTF-8 (there should
// be none) show as replacement characters.
[[nodiscard]] inline QString ToQt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

[[nodiscard]] inline std::string FromQt(const QString& text) {
    return text.toStdString();
}

} // namespace kestrova
