// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FileLayer.h"

#include <cstdint>
#include <set>
#include <tuple>

namespace chronomender {

/// Which files on disk the session holds, whatever their names: one file under two names must not
/// become two items, since both would be corrected and saved. A file is known by device, inode and,
/// because inodes are used again, the time of its birth. One thread at a time.
class SessionFiles {
public:
    /// False when the file is there already.
    bool insert(const FileAttributes &file) { return m_files.insert(key(file)).second; }
    /// To be called when an item leaves the session.
    void erase(const FileAttributes &file) { m_files.erase(key(file)); }

private:
    using Key = std::tuple<std::uint64_t, std::uint64_t, OptionalDate>;
    static Key key(const FileAttributes &file) { return {file.inode, file.device, file.birthDate}; }

    std::set<Key> m_files;
};

} // namespace chronomender
