// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Date.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace chronomender {

/// What the system tells of a file. Times are exact as stored on disk.
struct FileAttributes {
    std::uint64_t size = 0;
    Date modificationDate;
    OptionalDate birthDate; ///< absent where the file system has none
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::uint32_t hardLinks = 1;
    enum class Kind : std::uint8_t { Regular, Directory, SymbolicLink, Other } kind = Kind::Regular;

    bool isSameFile(const FileAttributes &other) const {
        return device == other.device && inode == other.inode;
    }
};

/// An error of the file layer: the system's errno and what was tried.
struct FileError {
    int code = 0;
    /// The system's words in the C locale, for example "Permission denied".
    std::string text() const;
};

/// NotSupported: the file system has no such locks, so nobody can hold one.
enum class LockResult : std::uint8_t { Locked, HeldByAnother, NotSupported };

/// An open file. Closing happens with the object. All operations retry on EINTR. One thread at a
/// time.
class OpenFile {
public:
    virtual ~OpenFile() = default;

    /// Reads up to `room.size()` bytes at `offset`; the count read (short only at the end of the
    /// file), or none on an error.
    virtual std::optional<std::size_t> pread(std::span<char> room, std::uint64_t offset) = 0;
    /// Writes all of `bytes` at `offset`, or answers false. A write never lengthens the file: one
    /// that would pass the present end is refused before it starts.
    virtual bool pwrite(std::string_view bytes, std::uint64_t offset) = 0;
    virtual std::optional<FileAttributes> attributes() = 0;
    /// Sets the modification time and leaves the access time alone.
    virtual bool setModificationDate(Date date) = 0;
    /// Waits until data and times have reached the disk.
    virtual bool sync() = 0;
    /// The same for everything that waits on the file's file system: far cheaper than one file
    /// after the other.
    virtual bool syncFileSystem() = 0;
    /// Keeps other programs that ask the same away from the file, as long as this object lives. The
    /// lock is advisory and never waited for.
    virtual LockResult lockExclusively() = 0;
    /// The error of the last operation that failed.
    virtual FileError lastError() const = 0;
    virtual int descriptor() const = 0;
};

enum class OpenMode : std::uint8_t { Read, Update };

/// Every touch of other people's files goes through this interface, so that a test can fail, slow,
/// tear or count it. The system's own implementation is stateless and safe on all threads.
class FileLayer {
public:
    virtual ~FileLayer() = default;

    /// Opens an existing regular file; never creates, never truncates, never follows a symbolic
    /// link in the last component. On failure returns none and sets `error` when given.
    virtual std::unique_ptr<OpenFile> open(const std::string &path, OpenMode mode,
                                           FileError *error = nullptr) = 0;
    /// Attributes of the path itself (a link is reported as a link); none when there is none.
    virtual std::optional<FileAttributes> attributes(const std::string &path) = 0;
    /// Renames without ever replacing an existing name (errno EEXIST then).
    virtual bool renameExclusively(const std::string &from, const std::string &to,
                                   FileError *error = nullptr) = 0;
    /// Sets a directory's modification time to now.
    virtual bool touchDirectory(const std::string &path) = 0;
};

/// The layer over the operating system.
std::unique_ptr<FileLayer> makeSystemFileLayer();

} // namespace chronomender
