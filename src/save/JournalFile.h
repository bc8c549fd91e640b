// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "IntentRecord.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace chronomender {

/// One record on disk, open and locked by us. The lock goes with the object, and with the program.
class JournalFile {
public:
    using Durability = RunJournal::Durability;

    /// A new, empty one in the support folder, of which the folders are made where they are
    /// missing; none on an error.
    static std::optional<JournalFile> create(const std::string &supportFolder,
                                             Durability durability, FileError *error);
    /// One that an interrupted run has left; none when its program lives, or it is gone.
    static std::optional<JournalFile> takeOver(const std::string &path);
    /// Paths of all records, those of living programs too, in order of their names.
    static std::vector<std::string> list(const std::string &supportFolder);

    JournalFile(JournalFile &&other) noexcept;
    JournalFile &operator=(JournalFile &&) = delete;
    ~JournalFile();

    std::size_t size() const { return m_size; }
    /// False when somebody has removed the file: what is written to it would be lost.
    bool isThere() const;
    /// What the file holds; what is not whole behind it is cut off. None when it cannot be read.
    std::optional<Record> read();
    /// Puts a frame behind the others; when it answers true it is on disk. After a failure the file
    /// is as it was.
    bool append(std::string_view frame, FileError *error = nullptr);
    /// Takes away all frames that begin at `size` or behind.
    bool cut(std::size_t size);
    void remove();

private:
    JournalFile(std::string path, int descriptor, Durability durability);
    bool lock();

    std::string m_path;
    int m_descriptor;
    Durability m_durability;
    std::size_t m_size = 0;
};

} // namespace chronomender
