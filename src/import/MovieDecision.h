// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DateDecision.h"
#include "MovieAnswers.h"

#include <optional>

namespace chronomender {

/// What deciding about movies needs besides the movie.
struct MovieContext {
    EmbeddedData embedded;
    const absl::TimeZone &sourceZone; ///< in which local times of the folder's movies are meant
    EmptyTagAnswers &emptyTags;
    MovieAnswers &movies;
};

/// Decides a movie's main date; may ask how movies are to be read. None when header times are empty
/// and the folder's answer gives no date. Import thread, movie after movie.
///
///     embedded data ignored                 no date
///     metadata date, if it is preferred     or if the header has no times
///     header's creation, modification time  in UTC, or as local times of the source zone
///     RIFF date                             in the source zone
///     header times that are empty           the folder's answer: the file's date, or a fixed one
///     nothing of all that                   the file's date
std::optional<DateDecision> decideMovieDate(const FileRecord &record, const MovieContext &context);

/// A QuickTime movie with a metadata date may be half of a live photo, which is known only when all
/// files are there. Until then its date is the metadata date, and nobody is asked. None for movies
/// that are decided at once.
std::optional<DateDecision> decideForTheTimeBeing(const FileRecord &record,
                                                  const absl::TimeZone &sourceZone);

} // namespace chronomender
