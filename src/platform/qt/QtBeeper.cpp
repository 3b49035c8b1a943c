// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/QtBeeper.h"

#include <QApplication>

namespace kestrova {

void QtBeeper::Beep() {
    QApplication::beep();
}

} // namespace kestrova
