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

/// The names that a run has to look at, in natural order: the given ones, or with none given those
/// of the whole folder. Left out are names that the folder holds already, names to be passed over,
/// and folders inside the folder (with the links to them). None when the folder cannot be listed.
std::optional<std::vector<BatchEntry>> takeBatch(const MySingleFolder &folder,
                                                 const FolderReference &reference,
                                                 std::vector<std::string> names);

} // namespace chronomender
