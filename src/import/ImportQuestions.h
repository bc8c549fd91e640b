// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MySingleFolder.h"

namespace chronomender {

/// Which of a movie's dates is its date, and what the clock behind its header times was.
struct MovieOptions {
    bool isMDTADateEnabled = true;                ///< the metadata date wins over the header's
    bool isMVHDTimezoneCorrectionEnabled = false; ///< header times are local time, not UTC
};

/// What import must ask a person. A window shows a sheet, the command line answers from its
/// options. Called on the import thread; an implementation that needs the main thread goes there
/// and waits.
class ImportQuestions {
public:
    virtual ~ImportQuestions() = default;
    /// Once per folder, at the first file whose date tags exist and are empty.
    virtual PerFolderImportOptions emptyTagOptions(const MySingleFolder &folder) = 0;
    /// Once per folder, at the first movie that is not the second half of a live photo.
    virtual MovieOptions movieOptions(const MySingleFolder &folder) = 0;
};

} // namespace chronomender
