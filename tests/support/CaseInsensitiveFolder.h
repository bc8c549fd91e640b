// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "TemporaryFolder.h"

#include <cstdlib>
#include <string>

namespace chronomender::little {

/// A folder on a file system of its own (ext4 in a file) that does not tell upper from lower case.
/// Only an administrator can have one, and only where the system's kernel can do it.
class CaseInsensitiveFolder {
public:
    CaseInsensitiveFolder() {
        const std::string image = m_place.path("image"), point = m_place.path("mounted");
        std::filesystem::create_directory(point);
        m_isMounted = does("truncate -s 32M '" + image + '\'') &&
                      does("mkfs.ext4 -q -O casefold -E encoding=utf8 '" + image + '\'') &&
                      does("mount -o loop '" + image + "' '" + point + '\'');
        m_path = point + "/folder";
        if (m_isMounted && does("mkdir '" + m_path + '\'') && does("chattr +F '" + m_path + '\''))
            m_obstacle.clear();
    }
    ~CaseInsensitiveFolder() {
        if (m_isMounted)
            does("umount '" + m_place.path("mounted") + '\'');
    }
    CaseInsensitiveFolder(const CaseInsensitiveFolder &) = delete;
    CaseInsensitiveFolder &operator=(const CaseInsensitiveFolder &) = delete;

    const std::string &path() const { return m_path; }
    /// The command that failed; "" when the folder is there.
    const std::string &obstacle() const { return m_obstacle; }

private:
    bool does(const std::string &command) {
        m_obstacle = command;
        return std::system((command + " >/dev/null 2>&1").c_str()) == 0;
    }

    TemporaryFolder m_place;
    std::string m_path, m_obstacle;
    bool m_isMounted = false;
};

} // namespace chronomender::little
