// SPDX-License-Identifier: GPL-3.0-or-later
#include "MovieWalk.h"

namespace chronomender {

std::optional<MovieHeader> readQuicktimeHeader(FileWindow & /*window*/,
                                               bool /*mustBeginWithFtyp*/) {
    return std::nullopt;
}

std::optional<MovieHeader> readRiffHeader(FileWindow & /*window*/) {
    return std::nullopt;
}

MovieDetails readMovieDetails(FileWindow & /*window*/) {
    return {};
}

} // namespace chronomender
