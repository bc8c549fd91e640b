// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FileLayer.h"

#include <cerrno>
#include <string>

namespace chronomender::systemFiles {

/// Attributes of an open descriptor, exact to the nanosecond; none on an error (errno is set).
std::optional<FileAttributes> attributesOf(int descriptor);
/// Attributes of a name inside the folder `directory` (or AT_FDCWD); a link is not followed.
std::optional<FileAttributes> attributesOf(int directory, const char *name);

/// Renames by a second hard link, for file systems that cannot rename without replacing: making the
/// link fails with EEXIST where the new name is taken. Where there are no hard links either,
/// nothing is renamed and the error is EOPNOTSUPP.
bool renameByLink(const char *from, const char *to);

/// Waits until the names in a folder have reached the disk, where its file system knows such a
/// thing for folders. False on an error, with errno.
bool syncFolder(int directory);
bool syncFolder(const std::string &path);

/// Gives an open file the extended attributes of another: what other programs keep of a file beside
/// it, such as ratings, and its access list. What the file system refuses is left out.
void copyExtendedAttributes(int from, int to);

/// Puts an open file whose name was taken back under the path, by a copy with its mode, times and
/// extended attributes, which is on disk before it takes the place of what stands there. False,
/// with nothing changed, when that fails.
bool restoreAt(const std::string &path, int original);

/// Repeats a system call that a signal interrupted.
template<class Call>
auto retryInterrupted(Call call) {
    for (;;) {
        const auto result = call();
        if (result != -1 || errno != EINTR)
            return result;
    }
}

} // namespace chronomender::systemFiles
