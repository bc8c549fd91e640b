// SPDX-License-Identifier: GPL-3.0-or-later
#include "SystemFiles.h"

#include <fcntl.h>
#include <linux/limits.h>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <cstring>
#include <vector>

namespace chronomender::systemFiles {
namespace {

constexpr unsigned wantedFields =
    STATX_TYPE | STATX_MODE | STATX_NLINK | STATX_INO | STATX_SIZE | STATX_MTIME | STATX_BTIME;

Date dateOf(const statx_timestamp &stamp) {
    return absl::FromUnixSeconds(stamp.tv_sec) + absl::Nanoseconds(stamp.tv_nsec);
}

FileAttributes::Kind kindOf(unsigned mode) {
    switch (mode & S_IFMT) {
    case S_IFREG:
        return FileAttributes::Kind::Regular;
    case S_IFDIR:
        return FileAttributes::Kind::Directory;
    case S_IFLNK:
        return FileAttributes::Kind::SymbolicLink;
    default:
        return FileAttributes::Kind::Other;
    }
}

std::optional<FileAttributes> queried(int directory, const char *name, int flags) {
    struct statx found;
    if (retryInterrupted([&] { return statx(directory, name, flags, wantedFields, &found); }) != 0)
        return std::nullopt;
    FileAttributes attributes;
    attributes.size = found.stx_size;
    attributes.modificationDate = dateOf(found.stx_mtime);
    if ((found.stx_mask & STATX_BTIME) != 0)
        attributes.birthDate = dateOf(found.stx_btime);
    attributes.device = makedev(found.stx_dev_major, found.stx_dev_minor);
    attributes.inode = found.stx_ino;
    attributes.hardLinks = found.stx_nlink;
    attributes.kind = kindOf(found.stx_mode);
    return attributes;
}

} // namespace

std::optional<FileAttributes> attributesOf(int descriptor) {
    return queried(descriptor, "", AT_EMPTY_PATH);
}

std::optional<FileAttributes> attributesOf(int directory, const char *name) {
    return queried(directory, name, AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT);
}

bool renameByLink(const char *from, const char *to) {
    if (link(from, to) != 0) {
        if (errno == EPERM || errno == EMLINK || errno == ENOSYS)
            errno = EOPNOTSUPP;
        return false;
    }
    if (unlink(from) == 0)
        return true;
    const int reason = errno;
    unlink(to); // both names are the same file: taking the new one back loses nothing
    errno = reason;
    return false;
}

bool syncFolder(int directory) {
    return retryInterrupted([&] { return fsync(directory); }) == 0 || errno == EINVAL;
}

bool syncFolder(const std::string &path) {
    const int directory = open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (directory < 0)
        return false;
    const bool isSynced = syncFolder(directory);
    const int reason = errno;
    close(directory);
    errno = reason;
    return isSynced;
}

void copyExtendedAttributes(int from, int to) {
    std::vector<char> names(XATTR_LIST_MAX), value(XATTR_SIZE_MAX);
    const ssize_t length = flistxattr(from, names.data(), names.size());
    for (ssize_t at = 0; at < length;) {
        const char *name = &names[static_cast<std::size_t>(at)];
        const ssize_t size = fgetxattr(from, name, value.data(), value.size());
        if (size >= 0)
            (void)fsetxattr(to, name, value.data(), static_cast<std::size_t>(size), 0);
        at += static_cast<ssize_t>(std::strlen(name)) + 1;
    }
}

namespace {

bool copyContent(int from, int to, off_t length) {
    off_t at = 0;
    while (at < length) {
        const auto left = static_cast<std::size_t>(length - at);
        if (retryInterrupted([&] { return sendfile(to, from, &at, left); }) <= 0)
            return false;
    }
    return true;
}

/// Whose file it is may only be said by the system's administrator; everything else must be kept.
bool copyProperties(int from, int to, const struct stat &properties) {
    (void)!fchown(to, properties.st_uid, properties.st_gid);
    copyExtendedAttributes(from, to);
    const timespec times[2] = {properties.st_atim, properties.st_mtim};
    return fchmod(to, properties.st_mode) == 0 && futimens(to, times) == 0 && fsync(to) == 0;
}

} // namespace

bool restoreAt(const std::string &path, int original) {
    const std::string copy = path + "_chronomender_tmp";
    constexpr mode_t ownerOnly = 0600;
    const int to =
        ::open(copy.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, ownerOnly);
    if (to < 0)
        return false;
    struct stat properties;
    const bool isRestored =
        fstat(original, &properties) == 0 && copyContent(original, to, properties.st_size) &&
        copyProperties(original, to, properties) && ::rename(copy.c_str(), path.c_str()) == 0;
    close(to);
    if (!isRestored)
        unlink(copy.c_str());
    return isRestored;
}

} // namespace chronomender::systemFiles
