// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FileFormatType.h"
#include "MemoryFile.h"
#include "MySingleFolderDataReader.h"
#include "ReadValues.h"

#include <cstdio>
#include <cstdlib>

namespace chronomender::fuzz {

/// What is reported must stand in the input.
template<class Read>
void requireTruth(const Read &read, std::string_view bytes) {
    if (const auto untruth = little::firstUntruth(read, bytes)) {
        std::fprintf(stderr, "%s\n", untruth->c_str());
        std::abort();
    }
}

/// Reads the input as a file of this format, its XMP packet too.
inline void readAs(std::string_view bytes, FileFormatType format) {
    static little::MemoryFile file;
    static MySingleFolderDataReader reader;
    if (!file.fill(bytes) || !reader.borrow(file.descriptor()))
        std::abort();
    DatesData dates = reader.readDates(format, "");
    requireTruth(dates, bytes);
    requireTruth(reader.readXmpDates(format, dates).value_or(XmpDateInfos()), bytes);
    requireTruth(reader.readXmpLocation(format, dates), bytes);
}

/// Reads the input as a movie of this format.
inline void readMovieAs(std::string_view bytes, FileFormatType format) {
    static little::MemoryFile file;
    static MySingleFolderDataReader reader;
    if (!file.fill(bytes) || !reader.borrow(file.descriptor()))
        std::abort();
    const auto header = reader.readMovieHeader(format);
    requireTruth(header.value_or(MovieHeader()), bytes);
    (void)reader.readMovieDetails();
}

inline std::string_view textOf(const std::uint8_t *data, std::size_t size) {
    return {reinterpret_cast<const char *>(data), size};
}

} // namespace chronomender::fuzz
