// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "InspectorFacts.h"
#include "PaintPalette.h"

#include <QWidget>

#include <functional>

namespace chronomender {

/// The widgets that show facts, from top to bottom. `act` is called by the buttons of alerts. The
/// caller owns the result.
QWidget *makeInspectorContent(const InspectorFacts &facts, const PaintPalette &palette,
                              const std::function<void(const AlertRow &, AlertAction)> &act);

/// All of it as text, for those who listen.
QString wordsOf(const InspectorFacts &facts);

} // namespace chronomender
