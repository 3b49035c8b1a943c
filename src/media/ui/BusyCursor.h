// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>

namespace kestrova {

// Shows that the user has to wait, for as long as it lives.
class BusyCursor {
public:
    BusyCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~BusyCursor() { QApplication::restoreOverrideCursor(); }
    BusyCursor(const BusyCursor&) = delete;
    BusyCursor& operator=(const BusyCursor&) = delete;
};

} // namespace kestrova
