// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DatesData.h"
#include "FolderBatch.h"

#include <optional>

namespace chronomender {

/// What one look at a file gave, before anything is decided about it.
struct FileRecord {
    std::optional<SkipReason> refusal; ///< no item can come of the file; the rest is not filled
    FileAttributes attributes;         ///< of the descriptor that the dates were read from
    FileFormatType format = FileFormatNone;
    DatesData dates;
};

/// Whether dates and locations inside the files are to be read.
enum class EmbeddedData : bool { Ignored, Read };

/// Opens, looks and closes: the one place of import that touches files. `folder` is the open
/// directory. Depends on nothing but the file; safe on all threads at once.
FileRecord readFileRecord(int folder, const BatchEntry &entry, EmbeddedData embedded);

/// Formats whose dates this version reads; others are media, and are told as not yet supported.
bool isFormatRead(FileFormatType format, std::string_view extension);

} // namespace chronomender
