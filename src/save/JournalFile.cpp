// SPDX-License-Identifier: GPL-3.0-or-later
#include "JournalFile.h"

#include "SystemFiles.h"

#include <fcntl.h>
#include <stdlib.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <utility>

namespace chronomender {

using systemFiles::retryInterrupted;
using systemFiles::syncFolder;

namespace {

constexpr std::string_view suffix = ".intents";
constexpr int mostAttempts = 16;

std::string folderOf(const std::string &supportFolder) {
    return supportFolder + "/journal";
}

void report(FileError *error, int code) {
    if (error != nullptr)
        error->code = code;
}

/// Makes the folders that are missing and, where they must last, syncs those that hold a new one.
bool makeFolder(const std::string &folder, bool isSynced) {
    namespace fs = std::filesystem;
    std::error_code failure;
    if (fs::is_directory(folder, failure))
        return true;
    const std::string parent = fs::path(folder).parent_path().string();
    if (parent.size() >= folder.size() || !makeFolder(parent, isSynced))
        return false;
    if (mkdir(folder.c_str(), S_IRWXU) != 0 && errno != EEXIST)
        return false;
    if (!fs::is_directory(folder, failure)) {
        errno = ENOTDIR;
        return false;
    }
    return !isSynced || syncFolder(parent);
}

bool writeAll(int descriptor, std::string_view bytes, std::size_t offset) {
    while (!bytes.empty()) {
        const ssize_t put = retryInterrupted([&] {
            return ::pwrite(descriptor, bytes.data(), bytes.size(), static_cast<off_t>(offset));
        });
        if (put <= 0)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(put));
        offset += static_cast<std::size_t>(put);
    }
    return true;
}

} // namespace

JournalFile::JournalFile(std::string path, int descriptor, Durability durability)
    : m_path(std::move(path)), m_descriptor(descriptor), m_durability(durability) {}

JournalFile::JournalFile(JournalFile &&other) noexcept
    : m_path(std::move(other.m_path)),
      m_descriptor(std::exchange(other.m_descriptor, -1)),
      m_durability(other.m_durability),
      m_size(other.m_size) {}

JournalFile::~JournalFile() {
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

// Whoever removes a record does so under its lock: one that still has its name once it is locked
// stays.
bool JournalFile::lock() {
    struct stat found;
    if (retryInterrupted([&] { return flock(m_descriptor, LOCK_EX | LOCK_NB); }) != 0 ||
        fstat(m_descriptor, &found) != 0)
        return false;
    m_size = static_cast<std::size_t>(found.st_size);
    errno = EWOULDBLOCK;
    return S_ISREG(found.st_mode) && found.st_nlink > 0;
}

std::optional<JournalFile> JournalFile::create(const std::string &supportFolder,
                                               Durability durability, FileError *error) {
    const bool isSynced = durability == Durability::Synced;
    const std::string folder = folderOf(supportFolder);
    if (!makeFolder(folder, isSynced)) {
        report(error, errno);
        return std::nullopt;
    }
    for (int attempt = 0; attempt < mostAttempts; ++attempt) {
        std::string path = folder + '/' + std::to_string(getpid()) + "-XXXXXX";
        path += suffix;
        const int descriptor = mkostemps(path.data(), static_cast<int>(suffix.size()), O_CLOEXEC);
        if (descriptor < 0)
            break;
        JournalFile file(path, descriptor, durability);
        // A new name outlives a loss of power only when its folder is on disk too.
        if (file.lock() && (!isSynced || syncFolder(folder)))
            return file;
        const int reason = errno;
        ::unlink(path.c_str());
        errno = reason;
        // A recovery that looked in between has it, or took it for a leftover.
        if (errno != EWOULDBLOCK)
            break;
    }
    report(error, errno);
    return std::nullopt;
}

std::optional<JournalFile> JournalFile::takeOver(const std::string &path) {
    const int descriptor = retryInterrupted(
        [&] { return ::open(path.c_str(), O_RDWR | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK); });
    if (descriptor < 0)
        return std::nullopt;
    JournalFile file(path, descriptor, Durability::Synced);
    return file.lock() ? std::optional(std::move(file)) : std::nullopt;
}

std::vector<std::string> JournalFile::list(const std::string &supportFolder) {
    std::vector<std::string> paths;
    std::error_code failure;
    for (std::filesystem::directory_iterator each(folderOf(supportFolder), failure), end;
         !failure && each != end; each.increment(failure))
        if (each->path().native().ends_with(suffix))
            paths.push_back(each->path().native());
    std::sort(paths.begin(), paths.end());
    return paths;
}

bool JournalFile::isThere() const {
    struct stat found;
    return fstat(m_descriptor, &found) == 0 && found.st_nlink > 0;
}

std::optional<Record> JournalFile::read() {
    std::string bytes(std::min(m_size, largestRecord), '\0');
    std::size_t count = 0;
    while (count < bytes.size()) {
        const ssize_t got = retryInterrupted([&] {
            return ::pread(m_descriptor, bytes.data() + count, bytes.size() - count,
                           static_cast<off_t>(count));
        });
        if (got < 0)
            return std::nullopt;
        if (got == 0)
            break;
        count += static_cast<std::size_t>(got);
    }
    Record record = readRecord(std::string_view(bytes).substr(0, count));
    if (record.end < m_size)
        cut(record.end);
    return record;
}

bool JournalFile::append(std::string_view frame, FileError *error) {
    const bool isSynced = m_durability == Durability::Synced;
    errno = EFBIG;
    if (frame.size() <= largestRecord - std::min(m_size, largestRecord) &&
        writeAll(m_descriptor, frame, m_size) &&
        (!isSynced || retryInterrupted([&] { return fdatasync(m_descriptor); }) == 0)) {
        m_size += frame.size();
        return true;
    }
    report(error, errno);
    cut(m_size);
    return false;
}

bool JournalFile::cut(std::size_t size) {
    m_size = size;
    return retryInterrupted([&] { return ftruncate(m_descriptor, static_cast<off_t>(size)); }) == 0;
}

void JournalFile::remove() {
    ::unlink(m_path.c_str());
}

} // namespace chronomender
