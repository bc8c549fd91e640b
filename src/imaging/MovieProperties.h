// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace chronomender {

/// What the movie library tells of a movie whose container the reader does not know. Absent values
/// are empty.
struct MovieProperties {
    double duration = -1; ///< seconds; -1 unknown
    std::int32_t width = 0, height = 0;
    std::string make, model;
};

/// Reads a Matroska, MPEG, transport stream, Windows Media or AVI file, or one of atoms; none when
/// the library cannot read it. Only the file itself is looked at, never one that it names, and of
/// it no more than a few MiB, for a few seconds at most. Never throws, any thread; dates never
/// depend on this.
std::optional<MovieProperties> readMovieProperties(const std::string &path);

/// Keeps the movie library from writing messages. Called by `initialiseImaging()`.
void muteMovieLibrary();

} // namespace chronomender
