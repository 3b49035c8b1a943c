// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "media/ui/BusyCursor.h"
#include "print/ui/Preview.h"

namespace kestrova {

// While something takes its time and events go on beside it, the window does not listen.
class Preview::Wait {
public:
    explicit Wait(Preview& window) : window_(window) {
        window_.busy_ = true;
        window_.centralWidget()->setEnabled(false);
    }
    ~Wait() {
        window_.busy_ = false;
        window_.centralWidget()->setEnabled(true);
        window_.Picture1->setFocus();
    }
    Wait(const Wait&) = delete;
    Wait& operator=(const Wait&) = delete;

private:
    Preview& window_;
    BusyCursor cursor_;
};

} // namespace kestrova
