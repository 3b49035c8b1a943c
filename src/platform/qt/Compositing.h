// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace kestrova {

// Whether the desktop puts windows together, so that what lies under a window can show through it.
[[nodiscard]] bool IsComposited();

} // namespace kestrova
