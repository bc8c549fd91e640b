// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "PaintPalette.h"
#include "RowTexts.h"

#include <QLabel>

namespace chronomender {

class WindowSession;

/// The colours that hold for a widget now: of its palette and of the user's folders.
PaintPalette paletteOf(const QWidget &widget, WindowSession &session);
QColor colorOf(RowTone tone, const PaintPalette &palette);
/// Gives a label's text a colour.
void setTextColor(QLabel &label, const QColor &color);

} // namespace chronomender
