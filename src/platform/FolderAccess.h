// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FileLayer.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace chronomender {

/// A reference to a folder by an open directory descriptor: a folder that is moved or renamed while
/// the session lives is still found. Safe on all threads.
class FolderReference {
public:
    /// None when the path is no readable directory; `error` then tells why (ENOTDIR, EACCES, …).
    static std::shared_ptr<FolderReference> open(const std::string &path,
                                                 FileError *error = nullptr);
    ~FolderReference();
    FolderReference(const FolderReference &) = delete;
    FolderReference &operator=(const FolderReference &) = delete;

    /// The present absolute path; "" when the folder has been deleted.
    std::string path() const;
    int descriptor() const { return m_descriptor; }
    bool isWritable() const;
    std::optional<FileAttributes> attributes() const;

private:
    explicit FolderReference(int descriptor) : m_descriptor(descriptor) {}
    int m_descriptor;
};

/// One name of a folder listing. The kind is that of the entry itself: a link is a link.
struct FolderEntry {
    std::string name; ///< raw bytes as on disk
    FileAttributes::Kind kind = FileAttributes::Kind::Other;
    bool isValidUtf8 = true;
};

/// All entries but "." and "..", in no order; none when the folder cannot be read.
std::optional<std::vector<FolderEntry>> listFolder(const FolderReference &folder);

bool isValidUtf8(std::string_view text);

} // namespace chronomender
