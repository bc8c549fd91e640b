// SPDX-License-Identifier: GPL-3.0-or-later
#include "FileLayer.h"

#include "SystemFiles.h"

#include <fcntl.h>
#include <locale.h>
#include <string.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <limits>

namespace chronomender {

using systemFiles::attributesOf;
using systemFiles::retryInterrupted;

namespace {

constexpr auto largestOffset = static_cast<std::uint64_t>(std::numeric_limits<off_t>::max());

void report(FileError *error, int code) {
    if (error != nullptr)
        error->code = code;
}

class SystemFile final : public OpenFile {
public:
    explicit SystemFile(int descriptor) : m_descriptor(descriptor) {}
    ~SystemFile() override { ::close(m_descriptor); }
    SystemFile(const SystemFile &) = delete;
    SystemFile &operator=(const SystemFile &) = delete;

    std::optional<std::size_t> pread(std::span<char> room, std::uint64_t offset) override;
    bool pwrite(std::string_view bytes, std::uint64_t offset) override;
    std::optional<FileAttributes> attributes() override;
    bool setModificationDate(Date date) override;
    bool sync() override;
    bool syncFileSystem() override;
    LockResult lockExclusively() override;
    FileError lastError() const override { return m_lastError; }
    int descriptor() const override { return m_descriptor; }

private:
    bool failed(int code) {
        m_lastError.code = code;
        return false;
    }
    bool isInsideFile(std::uint64_t offset, std::size_t length);

    int m_descriptor;
    FileError m_lastError;
};

std::optional<std::size_t> SystemFile::pread(std::span<char> room, std::uint64_t offset) {
    std::size_t count = 0;
    while (count < room.size()) {
        if (offset > largestOffset - count)
            return count; // no file reaches that far
        const ssize_t got = retryInterrupted([&] {
            return ::pread(m_descriptor, room.data() + count, room.size() - count,
                           static_cast<off_t>(offset + count));
        });
        if (got < 0) {
            failed(errno);
            return std::nullopt;
        }
        if (got == 0)
            break;
        count += static_cast<std::size_t>(got);
    }
    return count;
}

// The size is asked for at each write: another program may have cut the file since it was opened,
// and a write behind its end would fill the gap with zeros.
bool SystemFile::isInsideFile(std::uint64_t offset, std::size_t length) {
    struct stat present;
    if (fstat(m_descriptor, &present) != 0)
        return failed(errno);
    const auto size = static_cast<std::uint64_t>(present.st_size);
    return (length <= size && offset <= size - length) || failed(EFBIG);
}

bool SystemFile::pwrite(std::string_view bytes, std::uint64_t offset) {
    if (!isInsideFile(offset, bytes.size()))
        return false;
    for (std::size_t done = 0; done < bytes.size();) {
        const ssize_t put = retryInterrupted([&] {
            return ::pwrite(m_descriptor, bytes.data() + done, bytes.size() - done,
                            static_cast<off_t>(offset + done));
        });
        if (put <= 0)
            return failed(put < 0 ? errno : EIO);
        done += static_cast<std::size_t>(put);
    }
    return true;
}

std::optional<FileAttributes> SystemFile::attributes() {
    auto found = attributesOf(m_descriptor);
    if (!found)
        failed(errno);
    return found;
}

bool SystemFile::setModificationDate(Date date) {
    if (isMarker(date))
        return failed(EINVAL);
    const timespec times[2] = {{0, UTIME_OMIT}, absl::ToTimespec(date)};
    return futimens(m_descriptor, times) == 0 || failed(errno);
}

bool SystemFile::sync() {
    return retryInterrupted([&] { return fsync(m_descriptor); }) == 0 || failed(errno);
}

bool SystemFile::syncFileSystem() {
    return syncfs(m_descriptor) == 0 || failed(errno);
}

LockResult SystemFile::lockExclusively() {
    if (retryInterrupted([&] { return flock(m_descriptor, LOCK_EX | LOCK_NB); }) == 0)
        return LockResult::Locked;
    failed(errno);
    return errno == EWOULDBLOCK ? LockResult::HeldByAnother : LockResult::NotSupported;
}

class SystemFileLayer final : public FileLayer {
public:
    std::unique_ptr<OpenFile> open(const std::string &path, OpenMode mode,
                                   FileError *error) override;
    std::optional<FileAttributes> attributes(const std::string &path) override {
        return attributesOf(AT_FDCWD, path.c_str());
    }
    bool renameExclusively(const std::string &from, const std::string &to,
                           FileError *error) override;
    bool touchDirectory(const std::string &path) override;
};

// Without O_NONBLOCK, opening a named pipe would wait for its other end.
std::unique_ptr<OpenFile> SystemFileLayer::open(const std::string &path, OpenMode mode,
                                                FileError *error) {
    const int access = mode == OpenMode::Update ? O_RDWR : O_RDONLY;
    const int descriptor = retryInterrupted(
        [&] { return ::open(path.c_str(), access | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK); });
    if (descriptor < 0) {
        report(error, errno);
        return nullptr;
    }
    auto file = std::make_unique<SystemFile>(descriptor);
    struct stat found;
    if (fstat(descriptor, &found) != 0) {
        report(error, errno);
        return nullptr;
    }
    if (!S_ISREG(found.st_mode)) {
        report(error, S_ISDIR(found.st_mode) ? EISDIR : EOPNOTSUPP);
        return nullptr;
    }
    return file;
}

bool SystemFileLayer::renameExclusively(const std::string &from, const std::string &to,
                                        FileError *error) {
    if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0)
        return true;
    const bool isUnsupported = errno == EINVAL || errno == ENOSYS;
    if (isUnsupported && systemFiles::renameByLink(from.c_str(), to.c_str()))
        return true;
    report(error, errno);
    return false;
}

bool SystemFileLayer::touchDirectory(const std::string &path) {
    const timespec times[2] = {{0, UTIME_OMIT}, {0, UTIME_NOW}};
    const std::string directory = path + "/."; // fails for anything that is no directory
    return utimensat(AT_FDCWD, directory.c_str(), times, 0) == 0;
}

} // namespace

std::string FileError::text() const {
    static const locale_t plainLocale = newlocale(LC_ALL_MASK, "C", nullptr);
    return strerror_l(code, plainLocale);
}

std::unique_ptr<FileLayer> makeSystemFileLayer() {
    return std::make_unique<SystemFileLayer>();
}

} // namespace chronomender
