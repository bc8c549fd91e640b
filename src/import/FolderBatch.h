// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ImportRun.h"

#include <optional>
#include <string>
#include <vector>

namespace chronomender {

/// One name that a run has to look at.
struct BatchEntry {
    std::string name;                         ///< raw bytes as on disk, without a folder
    FileFormatType promised = FileFormatNone; ///< what the extension says
    bool isNamed = false;                     ///< a person asked for this very name
    std::optional<SkipReason> refusal;        ///< decided without opening the file

    /// A person would miss this entry if nothing were said about it.
    bool isMissedByPerson() const { return isNamed || promised != FileFormatNone; }
};

/// A file that may accompany one of the folder's items.
struct SidecarFile {
    std::string name;
    bool isFoundAutomatically = false; ///< not part of the batch: nothing is said if it fits nobody
};

/// The work of one run; every list in natural order of names.
struct FolderBatch {
    std::vector<BatchEntry> entries;
    std::vector<SidecarFile> sidecars;
    std::vector<std::string>
        subfolders; ///< names of folders inside the folder, and of links to them
};

/// The names that a run has to look at: the given ones, or with none given those of the whole
/// folder, as far as they pass the filter. Left out are names that the folder holds already and
/// names to be passed over. Folders inside are told only by the first import of a folder. None when
/// the folder cannot be listed.
std::optional<FolderBatch> takeBatch(const MySingleFolder &folder, const FolderReference &reference,
                                     ImportBatch batch);

} // namespace chronomender
