// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <string>
#include <vector>

namespace chronomender::bench {

/// What any program must pay that reads or patches these files: bare system calls on two threads,
/// with nothing done about what was read.

/// open, fstat, one pread of 64 KiB, close. None of the files may be missing; a negative duration
/// tells that one was.
std::chrono::duration<double> readLimit(const std::vector<std::string> &paths);

/// open, pread of 4 KiB, three pwrite of 19 bytes (each writing what stands there already),
/// futimens (setting the time that the file has already), close. The files are the same afterwards.
std::chrono::duration<double> patchLimit(const std::vector<std::string> &paths);

/// The same 480 files at a time, with the syncs of a save: before each batch a record of it is
/// written beside the first file and synced, behind it the file system is.
std::chrono::duration<double> syncedPatchLimit(const std::vector<std::string> &paths);

/// Moves each file to another name and, when all have moved, back: two renames that replace nothing
/// for each file, on one thread, as they take each other's turn in a folder.
std::chrono::duration<double> renameLimit(const std::vector<std::string> &paths);

} // namespace chronomender::bench
