// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MovieData.h"
#include "MySingleFolder.h"
#include "Zones.h"

#include <string>

namespace chronomender {

/// Fills a movie from what the reader found: recorded values, OLD slots by its type, camera words,
/// duration, the marks of a live photo, and its location. The item's type and main date are decided
/// already; sizes and times of the file come afterwards.
void setMovieAttributes(MySinglePic &pic, MovieHeader header, const MovieDetails &details,
                        const MySingleFolder &folder, const Zones &zones);

/// The place becomes the item's location, unless it has one already: so the first of a movie that
/// is a place on earth wins. 0/0 is none.
void setQTLocationFromLocDic(MySinglePic &pic, const QtLocation &location);

/// The movie becomes the moving half of a live photo: it is dated by its metadata, whatever the
/// folder says of others, as the still has the same moment there.
void transformToLivePhotoMovie(MySinglePic &movie);

/// The metadata date as text; "" without one.
std::string qTMetaDateString(const MySinglePic &pic);
/// That date is in the form that says UTC.
bool isMdtaUtc(const MySinglePic &pic);

} // namespace chronomender
