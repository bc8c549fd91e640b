// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FileWindow.h"
#include "MovieData.h"

namespace chronomender {

/// Dates and places of a QuickTime or MPEG-4 movie (`moov`): header times, metadata keys with their
/// items, and "\xA9xyz" in the user data. The media data is never read, wherever it stands. With
/// `mustBeginWithFtyp`, a file whose first atom is another one is refused. None when nothing was
/// found.
std::optional<MovieHeader> readQuicktimeHeader(FileWindow &window, bool mustBeginWithFtyp);

/// The date text of an AVI (`RIFF`, `LIST hdrl`, `IDIT`) and its `ISFT`; none without a date.
std::optional<MovieHeader> readRiffHeader(FileWindow &window);

/// Duration, size, camera words, content identifier and the marks of a live photo.
MovieDetails readMovieDetails(FileWindow &window);

} // namespace chronomender
