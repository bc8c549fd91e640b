// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FileLayer.h"
#include "MySingleFolder.h"

#include <string>
#include <string_view>
#include <vector>

namespace chronomender {

// The proof that a file is still the file that was read. Nothing is ever written before it.

/// Size, times (each less than one second apart) and, where recorded, birth time, device and inode
/// are those of import.
bool areTheFileAttributesUnchanged(const SinglePicAttributes &recorded, const FileAttributes &now);

/// The part of a recorded value that stands in the file: a stamp's 19 characters without the zero
/// byte that is kept behind them. `value` is one of `recorded`'s own.
std::string_view bytesInFile(const SinglePicAttributes &recorded, const LocatedBytes &value);

/// Every recorded value still stands at its place in the open file. Reads only; all values are
/// compared, with as few reads as their places allow.
bool areRecordedValuesUnchanged(const SinglePicAttributes &recorded, OpenFile &file);

/// Attributes and values of a file that is open already.
FileUnchangedState stateOfOpenFile(const MySinglePic &pic, OpenFile &file);

/// The whole proof; the caller stores the answer. Free of I/O when the item was checked since the
/// folder's last local change.
FileUnchangedState updatedUnchangedFileState(MySinglePic &pic, const MySingleFolder &folder,
                                             FileLayer &files);
/// The same for a caller that knows the item's path already.
FileUnchangedState updatedUnchangedFileState(MySinglePic &pic, const MySingleFolder &folder,
                                             const std::string &path, FileLayer &files);
/// A copy of the item with its proof: for workers, which leave the item itself alone.
MySinglePicPtr provedCopy(const MySinglePic &pic, const MySingleFolder &folder,
                          const std::string &folderPath, FileLayer &files);

/// Every companion file of the item is there.
bool areSidecarsPresent(const MySinglePic &pic, FileLayer &files);

/// The error says that there is no such file, as opposed to one that cannot be opened.
bool isAbsence(const FileError &error);

} // namespace chronomender
