// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace kestrova {

// The name of a control that is one of an array: "LabDates(14)".
[[nodiscard]] inline QString ArrayName(const char* name, int index) {
    return QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(index);
}

// Gives a control its name, and back the control.
template<typename Control> [[nodiscard]] Control* Named(Control* control, const char* name) {
    control->setObjectName(QLatin1String(name));
    return control;
}

} // namespace kestrova
