// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FileLayer.h"

#include <memory>
#include <string>
#include <string_view>

namespace chronomender {

/// The growing file from which the tool reads its arguments, locked against other programs of ours
/// as long as the object lives, and removed with it.
class ArgumentFile {
public:
    /// Creates ".args.txt" empty in `folder`, which is made if need be. When another program holds
    /// it, or it cannot be written: a file with a name of its own in the temporary folder. Neither:
    /// none, and `error` says why.
    static std::unique_ptr<ArgumentFile> create(const std::string &folder, FileError &error);
    ~ArgumentFile();
    ArgumentFile(const ArgumentFile &) = delete;
    ArgumentFile &operator=(const ArgumentFile &) = delete;

    const std::string &path() const { return m_path; }
    /// False when the system refused; a part may stand in the file then.
    bool append(std::string_view text);
    FileError lastError() const { return m_error; }

private:
    ArgumentFile(std::string path, int descriptor);
    static std::unique_ptr<ArgumentFile> open(std::string path, int furtherFlags, FileError &error);

    std::string m_path;
    int m_descriptor;
    FileError m_error;
};

} // namespace chronomender
