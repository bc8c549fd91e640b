// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>

namespace chronomender {

/// The preference "appearance".
enum class Appearance : int { System = 0, Light = 1, Dark = 2 };

/// Gives all windows of the application the appearance. System: the colours that the desktop set
/// at start.
void applyAppearance(Appearance appearance);

/// The picture of the program, at every size.
QIcon applicationIcon();

} // namespace chronomender
