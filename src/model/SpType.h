// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string_view>

namespace chronomender {

/// Where an item's main date comes from. The numbers stand in saved sessions and never change.
enum class SpType : std::int32_t {
    SpTypeExifOriginal = 1,            ///< Exif DateTimeOriginal, or the XMP creation stamp
    SpTypeExifDigitized = 2,           ///< Exif DateTimeDigitized, or the XMP digitized stamp
    SpTypeTiffDateTime = 3,            ///< TIFF DateTime, or the XMP modification stamp
    SpTypeTiffYoungerThanFile = 4,     ///< file date, as the TIFF date is younger than the file
    SpTypeEmptyOriginalFileDate = 5,   ///< DateTimeOriginal is empty; file date
    SpTypeEmptyDigitizedFileDate = 6,  ///< DateTimeDigitized is empty; file date
    SpTypeEmptyTiffFileDate = 7,       ///< TIFF DateTime is empty; file date
    SpTypeEmptyOriginalFixedDate = 8,  ///< DateTimeOriginal is empty; date given at import
    SpTypeEmptyDigitizedFixedDate = 9, ///< DateTimeDigitized is empty; date given at import
    SpTypeEmptyTiffFixedDate = 10,     ///< TIFF DateTime is empty; date given at import
    SpTypeNoTagsFileDate = 11,         ///< no date tag at all; file date
    SpTypeNoTagsFixedDate = 12,        ///< no date tag; date given at import (older sessions only)
    SpTypeUnsupported = 13,            ///< listed only; no date that can be corrected
    SpTypeMovieFileDate = 14,          ///< movie without a date; file date
    SpTypeMovieRiff = 15,              ///< RIFF date text
    SpTypeMovieMvhdCreation = 16,      ///< movie header creation time
    SpTypeMovieMvhdModification = 17,  ///< movie header modification time
    SpTypeMovieMvhdYoungerThanFile = 18, ///< file date, as the header's is younger than the file
    SpTypeMovieEmptyFileDate = 19,       ///< header times empty; file date
    SpTypeMovieEmptyFixedDate = 20,      ///< header times empty; date given at import
    SpTypeMovieMdta = 21,                ///< movie metadata creation date
    SpTypeMovieIgnored = 22,             ///< movie of a folder whose metadata are ignored
};
using enum SpType;

constexpr bool isInRange(SpType type, SpType first, SpType last) {
    return type >= first && type <= last;
}

constexpr bool isMovie(SpType type) {
    return isInRange(type, SpTypeMovieFileDate, SpTypeMovieIgnored);
}
constexpr bool isQtMovie(SpType type) {
    return isInRange(type, SpTypeMovieMvhdCreation, SpTypeMovieMdta);
}
/// The file's date tags exist and are empty.
constexpr bool isNullerFile(SpType type) {
    return isInRange(type, SpTypeEmptyOriginalFileDate, SpTypeEmptyTiffFixedDate) ||
           type == SpTypeMovieEmptyFileDate || type == SpTypeMovieEmptyFixedDate;
}
constexpr bool hasImportOptionChanges(SpType type) {
    return isNullerFile(type) || type == SpTypeNoTagsFixedDate;
}
constexpr bool isPreferringFileDate(SpType type) {
    return type == SpTypeTiffYoungerThanFile || type == SpTypeMovieMvhdYoungerThanFile;
}
/// Types whose date is a modification stamp, which a younger file date can overrule.
constexpr bool isEligibleForYoungerThanFile(SpType type) {
    return type == SpTypeTiffDateTime || type == SpTypeTiffYoungerThanFile ||
           type == SpTypeMovieMvhdModification || type == SpTypeMovieMvhdYoungerThanFile;
}
/// Types without a date that could be corrected; such items never shift.
constexpr bool hasNoCorrectableDate(SpType type) {
    return type == SpTypeUnsupported || type == SpTypeMovieIgnored;
}
/// Types without any date tag; only file dates can carry their date.
constexpr bool hasNoDateTags(SpType type) {
    return type == SpTypeNoTagsFileDate || type == SpTypeNoTagsFixedDate ||
           type == SpTypeMovieFileDate;
}

/// The type that an empty-tag item has once its tags were written; others stay what they are.
constexpr SpType typeAfterFillingEmptyTags(SpType type) {
    switch (type) {
    case SpTypeEmptyOriginalFileDate:
    case SpTypeEmptyOriginalFixedDate:
        return SpTypeExifOriginal;
    case SpTypeEmptyDigitizedFileDate:
    case SpTypeEmptyDigitizedFixedDate:
        return SpTypeExifDigitized;
    case SpTypeEmptyTiffFileDate:
    case SpTypeEmptyTiffFixedDate:
        return SpTypeTiffDateTime;
    case SpTypeMovieEmptyFileDate:
    case SpTypeMovieEmptyFixedDate:
        return SpTypeMovieMvhdCreation;
    default:
        return type;
    }
}

} // namespace chronomender
