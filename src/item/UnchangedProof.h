// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FileLayer.h"
#include "MySingleFolder.h"

#include <string>
#include <vector>

namespace chronomender {

// The proof that a file is still the file that was read. Nothing is ever written before it.

/// Size, times (each less than one second apart) and, where recorded, birth time, device and inode
/// are those of import.
bool areTheFileAttributesUnchanged(const SinglePicAttributes &recorded, const FileAttributes &now);

/// Every recorded value still stands at its place in the open file. Reads only; all values are
/// compared, with as few reads as their places allow.
bool areRecordedValuesUnchanged(const SinglePicAttributes &recorded, OpenFile &file);

/// The whole proof; the caller stores the answer. Free of I/O when the item was checked since the
/// folder's last local change.
FileUnchangedState updatedUnchangedFileState(MySinglePic &pic, const MySingleFolder &folder,
                                             FileLayer &files);

/// Joins the states of the two sides of a group.
FileUnchangedState bundleUnchangedState(const MySinglePic &pic);

} // namespace chronomender
