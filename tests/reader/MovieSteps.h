// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "LittleAvi.h"
#include "LittleMovie.h"
#include "MemoryFile.h"
#include "MySingleFolderDataReader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace chronomender::steps {

using little::MovieFields;
using little::Part;

/// Reads the bytes as a movie of this format.
inline std::optional<MovieHeader> header(const std::string &bytes,
                                         FileFormatType format = FileFormatQuickTime) {
    const little::MemoryFile file(bytes);
    MySingleFolderDataReader reader;
    EXPECT_TRUE(reader.borrow(file.descriptor()));
    return reader.readMovieHeader(format);
}
inline MovieDetails details(const std::string &bytes) {
    const little::MemoryFile file(bytes);
    MySingleFolderDataReader reader;
    EXPECT_TRUE(reader.borrow(file.descriptor()));
    return reader.readMovieDetails();
}

/// The value stands at the place of that name, with these bytes and room for them.
inline ::testing::AssertionResult standsAt(const std::optional<LocatedBytes> &value,
                                           const Part &movie, const std::string &name) {
    if (!value)
        return ::testing::AssertionFailure() << name << " is absent";
    const std::string_view there =
        std::string_view(movie.bytes).substr(movie.at(name), value->data.size());
    if (value->offset != movie.at(name) || value->data != there)
        return ::testing::AssertionFailure() << name << " was read at " << value->offset;
    if (value->room != value->data.size())
        return ::testing::AssertionFailure() << name << " has room for " << value->room;
    return ::testing::AssertionSuccess();
}

} // namespace chronomender::steps
