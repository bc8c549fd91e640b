// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace chronomender {

class StripView;

// A strip for screen readers: a list whose entries are the thumbnails in view.

/// To be called before the first strip is made; again at no cost.
void installStripAccessibility();
/// Other items stand on the strip.
void tellItems(StripView &view);
/// Another item is the main one, or the strip has got the focus.
void tellMainItem(StripView &view);

} // namespace chronomender
