// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QKeyEvent;

namespace chronomender {

class StripPointer;
class StripView;

/// Does what a key means on a strip, or in a drag that arrow keys lead; false for other keys.
bool handleStripKey(StripView &view, StripPointer &pointer, const QKeyEvent &event);

} // namespace chronomender
