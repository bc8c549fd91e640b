// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Date.h"

#include <cstddef>
#include <string>

namespace chronomender {

/// "errorLog.txt" in the support folder: what went wrong in the runs of the last time, for the user
/// to read and to delete. Each entry is a line with the date in UTC and the run, and then the text
/// of its alert. Any thread; a log that cannot be written is silently left out.
class ErrorLog {
public:
    static constexpr std::size_t mebibyte = 1'048'576;

    /// Of a file that grows beyond `mostBytes` the newest whole entries stay.
    explicit ErrorLog(const std::string &supportFolder, std::size_t mostBytes = mebibyte);

    void append(Date date, const std::string &run, const std::string &errors) const;
    const std::string &path() const { return m_path; }

private:
    void keepNewest() const;

    std::string m_folder, m_path;
    std::size_t m_mostBytes;
};

} // namespace chronomender
