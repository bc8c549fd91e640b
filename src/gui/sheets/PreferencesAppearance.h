// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "UserDefaults.h"

namespace chronomender {

/// Gives the application the appearance that the preference of that name says: the system's, light
/// or dark. Main thread; at the start of a window, and whenever the preference changes.
void applyAppearance(const UserDefaults &defaults);

} // namespace chronomender
