// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/qt/print/PrintWorker.h"

namespace kestrova {

// Work for a thread of its own: looks for the queue that the user prints with, which is the one
// chosen for the user or by the system, else the first there is.
[[nodiscard]] PrintFinding FindQueue(std::chrono::steady_clock::time_point end);

// Gives the document to that queue, in which it has a number then. A document that the queue has
// taken after nobody waited for it any more is withdrawn.
[[nodiscard]] PrintFinding SendToQueue(const PrintOrder& order,
                                       std::chrono::steady_clock::time_point end);

} // namespace kestrova
