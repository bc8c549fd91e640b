// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FileFormatType.h"
#include "MemoryFile.h"
#include "MySingleFolderDataReader.h"
#include "ReadValues.h"

#include <cstdio>
#include <cstdlib>

namespace chronomender::fuzz {

/// Reads the input as a file of this format; what is reported must stand in it.
inline void readAs(std::string_view bytes, FileFormatType format) {
    static little::MemoryFile file;
    static MySingleFolderDataReader reader;
    if (!file.fill(bytes) || !reader.borrow(file.descriptor()))
        std::abort();
    const DatesData dates = reader.readDates(format, "");
    if (const auto untruth = little::firstUntruth(dates, bytes)) {
        std::fprintf(stderr, "%s\n", untruth->c_str());
        std::abort();
    }
}

/// Reads the input as a movie of this format.
inline void readMovieAs(std::string_view bytes, FileFormatType format) {
    static little::MemoryFile file;
    static MySingleFolderDataReader reader;
    if (!file.fill(bytes) || !reader.borrow(file.descriptor()))
        std::abort();
    const auto header = reader.readMovieHeader(format);
    const auto untruth = header ? little::firstUntruth(*header, bytes) : std::nullopt;
    if (untruth) {
        std::fprintf(stderr, "%s\n", untruth->c_str());
        std::abort();
    }
    (void)reader.readMovieDetails(format);
}

inline std::string_view textOf(const std::uint8_t *data, std::size_t size) {
    return {reinterpret_cast<const char *>(data), size};
}

} // namespace chronomender::fuzz
