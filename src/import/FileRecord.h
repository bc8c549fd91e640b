// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DatesData.h"
#include "FolderBatch.h"
#include "MovieData.h"
#include "XmpData.h"

#include <optional>

namespace chronomender {

/// What one look at a file gave, before anything is decided about it.
struct FileRecord {
    std::optional<SkipReason> refusal; ///< no item can come of the file; the rest is not filled
    FileAttributes attributes;         ///< of the descriptor that the rest was read from
    FileFormatType format = FileFormatNone;
    DatesData dates;         ///< of stills
    XmpDateInfos xmpDates;   ///< of stills whose own tags have no date of the picture
    XmpLocation xmpLocation; ///< of stills that keep their location there only
    std::optional<MovieHeader> movieHeader;
    MovieDetails movieDetails;
};

/// Whether dates and locations inside the files are to be read.
enum class EmbeddedData : bool { Ignored, Read };

/// Opens, looks and closes: the one place of import that touches media. `folder` is the open
/// directory. The content says what a file is, and where it says nothing, the extension; where
/// embedded data are ignored, content is asked only about extensions that say nothing. Depends on
/// nothing but the file; safe on all threads at once.
FileRecord readFileRecord(int folder, const BatchEntry &entry, EmbeddedData embedded);

} // namespace chronomender
