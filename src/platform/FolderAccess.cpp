// SPDX-License-Identifier: GPL-3.0-or-later
#include "FolderAccess.h"

#include "SystemFiles.h"

#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <cstdio>

namespace chronomender {

using systemFiles::attributesOf;
using systemFiles::retryInterrupted;

namespace {

constexpr std::string_view deletedMark = " (deleted)";

int openDirectory(int parent, const char *path) {
    return retryInterrupted(
        [&] { return openat(parent, path, O_DIRECTORY | O_RDONLY | O_CLOEXEC); });
}

/// Where the system says that an open descriptor's name stands; empty when it says nothing.
std::string namedPath(int descriptor) {
    std::array<char, 32> link{};
    std::snprintf(link.data(), link.size(), "/proc/self/fd/%d", descriptor);
    std::array<char, PATH_MAX> target;
    const ssize_t length = readlink(link.data(), target.data(), target.size());
    return length > 0 ? std::string(target.data(), static_cast<std::size_t>(length))
                      : std::string();
}

FileAttributes::Kind kindOf(int directory, const dirent &entry) {
    using enum FileAttributes::Kind;
    switch (entry.d_type) {
    case DT_REG:
        return Regular;
    case DT_DIR:
        return Directory;
    case DT_LNK:
        return SymbolicLink;
    case DT_UNKNOWN: { // some file systems do not tell
        const auto attributes = attributesOf(directory, entry.d_name);
        return attributes ? attributes->kind : Other;
    }
    default:
        return Other;
    }
}

bool isSelfOrParent(std::string_view name) {
    return name == "." || name == "..";
}

struct CloseDirectory {
    void operator()(DIR *directory) const { closedir(directory); }
};

} // namespace

std::shared_ptr<FolderReference> FolderReference::open(const std::string &path, FileError *error) {
    const int descriptor = openDirectory(AT_FDCWD, path.c_str());
    if (descriptor < 0) {
        if (error != nullptr)
            error->code = errno;
        return nullptr;
    }
    return std::shared_ptr<FolderReference>(new FolderReference(descriptor));
}

FolderReference::~FolderReference() {
    ::close(m_descriptor);
}

std::string FolderReference::path() const {
    std::string path = namedPath(m_descriptor);
    if (!path.starts_with('/'))
        return {};
    if (!path.ends_with(deletedMark))
        return path;
    // The words may also be a part of the folder's own name.
    const auto named = attributesOf(AT_FDCWD, path.c_str());
    const auto own = attributes();
    return named && own && named->isSameFile(*own) ? path : std::string();
}

bool FolderReference::isWritable() const {
    return faccessat(m_descriptor, ".", W_OK | X_OK, AT_EACCESS) == 0;
}

std::optional<FileAttributes> FolderReference::attributes() const {
    return attributesOf(m_descriptor);
}

std::optional<std::vector<FolderEntry>> listFolder(const FolderReference &folder) {
    // A descriptor of its own, so that two threads listing one folder do not share a position.
    const int descriptor = openDirectory(folder.descriptor(), ".");
    if (descriptor < 0)
        return std::nullopt;
    const std::unique_ptr<DIR, CloseDirectory> directory(fdopendir(descriptor));
    if (!directory) {
        ::close(descriptor);
        return std::nullopt;
    }
    std::vector<FolderEntry> entries;
    errno = 0;
    while (const dirent *entry = readdir(directory.get())) {
        if (!isSelfOrParent(entry->d_name))
            entries.push_back(
                {entry->d_name, kindOf(descriptor, *entry), isValidUtf8(entry->d_name)});
        errno = 0;
    }
    if (errno != 0)
        return std::nullopt;
    return entries;
}

} // namespace chronomender
