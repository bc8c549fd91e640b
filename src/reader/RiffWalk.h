// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FileWindow.h"
#include "MovieData.h"

namespace chronomender {

/// True for a file that begins as an AVI does.
bool isRiffMovie(FileWindow &window);

/// Size and duration of the picture stream; the rest of the details stays absent.
MovieDetails readRiffDetails(FileWindow &window);

} // namespace chronomender
