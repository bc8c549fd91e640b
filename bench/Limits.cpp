// SPDX-License-Identifier: GPL-3.0-or-later
#include "Limits.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <functional>
#include <thread>

#include <fcntl.h>
#include <stdio.h>
#include <sys/stat.h>
#include <unistd.h>

namespace chronomender::bench {

namespace {

constexpr std::size_t ReadSize = 64 * 1024, PatchReadSize = 4096, StampSize = 19;
/// Where make_bench_files puts the three stamps of a JPEG; any place does as well.
constexpr std::array<off_t, 3> stampPlaces{268, 826, 846};
/// Bytes of a journal's record of one file, and files of a batch.
constexpr std::size_t RecordSize = 400, FilesOfBatch = 480;
constexpr std::chrono::duration<double> Failed{-1.0};

bool readOne(const std::string &path) {
    thread_local std::array<char, ReadSize> buffer;
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (file < 0)
        return false;
    struct stat status {};
    const bool isRead = fstat(file, &status) == 0 && pread(file, buffer.data(), ReadSize, 0) > 0;
    close(file);
    return isRead;
}

bool patchOne(const std::string &path, const std::array<timespec, 2> &times) {
    thread_local std::array<char, PatchReadSize> buffer;
    const int file = open(path.c_str(), O_RDWR | O_CLOEXEC);
    if (file < 0)
        return false;
    bool isPatched = pread(file, buffer.data(), PatchReadSize, 0) == ssize_t{PatchReadSize};
    for (const off_t place : stampPlaces) {
        const char *present = buffer.data() + place;
        isPatched = pwrite(file, present, StampSize, place) == ssize_t{StampSize} && isPatched;
    }
    isPatched = futimens(file, times.data()) == 0 && isPatched;
    close(file);
    return isPatched;
}

/// What a save writes down of each file before it touches the first of a batch.
class Record {
public:
    explicit Record(const std::vector<std::string> &paths)
        : m_path(paths.empty() ? "" : paths.front() + ".record"),
          m_file(open(m_path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600)) {}
    ~Record() {
        close(m_file);
        unlink(m_path.c_str());
    }
    Record(const Record &) = delete;
    Record &operator=(const Record &) = delete;

    bool isOpen() const { return m_file >= 0; }
    bool write(std::size_t files) const {
        const std::string bytes(files * RecordSize, 'r');
        return pwrite(m_file, bytes.data(), bytes.size(), 0) ==
                   static_cast<ssize_t>(bytes.size()) &&
               fdatasync(m_file) == 0;
    }
    bool syncFileSystem() const { return syncfs(m_file) == 0; }

private:
    std::string m_path;
    int m_file;
};

/// The times that the files have; empty when one is missing.
std::vector<std::array<timespec, 2>> timesOf(const std::vector<std::string> &paths) {
    std::vector<std::array<timespec, 2>> times(paths.size());
    for (std::size_t i = 0; i < paths.size(); ++i) {
        struct stat status {};
        if (stat(paths[i].c_str(), &status) != 0)
            return {};
        times[i] = {timespec{0, UTIME_OMIT}, status.st_mtim};
    }
    return times;
}

/// Runs `work` over the first and the second half of the range on a thread each.
std::chrono::duration<double> onTwoThreads(std::size_t count,
                                           const std::function<bool(std::size_t)> &work) {
    std::atomic<bool> isGood{true};
    const auto half = [&](std::size_t begin, std::size_t end) {
        for (std::size_t i = begin; i < end; ++i)
            if (!work(i))
                isGood = false;
    };
    const auto begin = std::chrono::steady_clock::now();
    std::thread other(half, count / 2, count);
    half(0, count / 2);
    other.join();
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - begin;
    return isGood ? time : Failed;
}

} // namespace

std::chrono::duration<double> readLimit(const std::vector<std::string> &paths) {
    return onTwoThreads(paths.size(), [&](std::size_t i) { return readOne(paths[i]); });
}

std::chrono::duration<double> patchLimit(const std::vector<std::string> &paths) {
    const auto times = timesOf(paths);
    if (times.empty())
        return Failed;
    return onTwoThreads(paths.size(), [&](std::size_t i) { return patchOne(paths[i], times[i]); });
}

std::chrono::duration<double> syncedPatchLimit(const std::vector<std::string> &paths) {
    const auto times = timesOf(paths);
    const Record record(paths);
    if (times.empty() || !record.isOpen())
        return Failed;
    std::chrono::duration<double> sum{0};
    for (std::size_t first = 0; first < paths.size(); first += FilesOfBatch) {
        const std::size_t count = std::min(FilesOfBatch, paths.size() - first);
        const auto begin = std::chrono::steady_clock::now();
        bool isGood = record.write(count);
        isGood = onTwoThreads(
                     count,
                     [&](std::size_t i) {
                         return patchOne(paths[first + i], times[first + i]);
                     }).count() >= 0 &&
                 isGood;
        isGood = record.syncFileSystem() && isGood;
        if (!isGood)
            return Failed;
        sum += std::chrono::steady_clock::now() - begin;
    }
    return sum;
}

std::chrono::duration<double> renameLimit(const std::vector<std::string> &paths) {
    const auto move = [](const std::string &from, const std::string &to) {
        return renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0;
    };
    const auto begin = std::chrono::steady_clock::now();
    bool isGood = true;
    for (const std::string &path : paths)
        isGood = move(path, path + '_') && isGood;
    for (const std::string &path : paths)
        isGood = move(path + '_', path) && isGood;
    return isGood ? std::chrono::steady_clock::now() - begin : Failed;
}

} // namespace chronomender::bench
