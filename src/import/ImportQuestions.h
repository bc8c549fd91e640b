// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MySingleFolder.h"

namespace chronomender {

/// What import must ask a person. A window shows a sheet, the command line answers from its
/// options. Called on the import thread; an implementation that needs the main thread goes there
/// and waits.
class ImportQuestions {
public:
    virtual ~ImportQuestions() = default;
    /// Once per folder, at the first file whose date tags exist and are empty.
    virtual PerFolderImportOptions emptyTagOptions(const MySingleFolder &folder) = 0;
};

} // namespace chronomender
