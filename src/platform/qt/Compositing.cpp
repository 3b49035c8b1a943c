// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/Compositing.h"

#include <QGuiApplication>
#include <QLibrary>

namespace kestrova {

namespace {

// Two functions of the X library, which the toolkit has loaded when it is on such a desktop.
using InternAtom = unsigned long (*)(void* display, const char* name, int onlyIfExists);
using GetSelectionOwner = unsigned long (*)(void* display, unsigned long selection);

} // namespace

// Whoever composites a screen of the X system owns a selection that is named after it.
bool IsComposited() {
    const auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (x11 == nullptr || x11->display() == nullptr) {
        return true; // any other desktop does
    }
    QLibrary library(QStringLiteral("X11"), 6);
    const auto internAtom = reinterpret_cast<InternAtom>(library.resolve("XInternAtom"));
    const auto owner = reinterpret_cast<GetSelectionOwner>(library.resolve("XGetSelectionOwner"));
    if (internAtom == nullptr || owner == nullptr) {
        return false; // edges are rough then, and nothing is worse
    }
    const unsigned long manager = internAtom(x11->display(), "_NET_WM_CM_S0", 1);
    return manager != 0 && owner(x11->display(), manager) != 0;
}

} // namespace kestrova
