// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "LittlePhotos.h"
#include "MemoryFile.h"
#include "MySingleFolderDataReader.h"
#include "ReadValues.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

// The words in which the reader's tests are told.
namespace chronomender::steps {

using little::BuiltPhoto;
using little::BuiltTiff;
using little::Directory;
using little::Endian;
using little::Jpeg;
using little::littleExif;
using little::photoOf;
using little::Tiff;
using little::valuesByName;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

inline DatesData readBytes(std::string_view bytes, FileFormatType format,
                           std::string_view extension = "", std::uint64_t startOffset = 0) {
    const little::MemoryFile file(bytes);
    MySingleFolderDataReader reader;
    EXPECT_TRUE(reader.borrow(file.descriptor()));
    return reader.readDates(format, extension, startOffset);
}

/// What a walk finds in a file of these bytes.
template<MetadataBlocks (*find)(const ByteRange &)>
MetadataBlocks blocksOf(std::string_view bytes) {
    const little::MemoryFile file(bytes);
    FileWindow window(file.descriptor(), bytes.size(), false);
    return find(ByteRange(window));
}

inline DatesData readJpeg(std::string_view bytes) {
    return readBytes(bytes, FileFormatJpeg, "jpg");
}
inline DatesData readTiff(std::string_view bytes) {
    return readBytes(bytes, FileFormatTiff, "tif");
}

inline std::string text(const std::optional<LocatedBytes> &value) {
    return value ? value->data.substr(0, value->data.find('\0')) : std::string("absent");
}

inline ::testing::AssertionResult standsInFile(const DatesData &dates, std::string_view file) {
    const auto untruth = little::firstUntruth(dates, file);
    return untruth ? ::testing::AssertionFailure() << *untruth : ::testing::AssertionSuccess();
}

} // namespace chronomender::steps
