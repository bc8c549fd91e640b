// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>

namespace chronomender {

/// What a look into a file is for, and so how much is fetched at once.
enum class Reading : std::uint8_t {
    Values, ///< others stand near it: a whole block
    Headers ///< the next one may be far away: little, and more and more where they follow closely
};

/// How often and how much was read from a file.
struct ReadCount {
    std::uint32_t reads = 0;
    std::uint64_t bytes = 0;
};

/// A file seen through small blocks of memory. Every look is bounded by the length that the file
/// had when the window was made; a file that has shrunk since answers none, like any place outside.
///
/// The first block stays in memory, one more follows the reader around. So a view from `head()`
/// holds as long as the window, one from `bytes()` or `block()` until the next call of either. The
/// descriptor is the caller's; its read position is moved by `nextData()` only.
class FileWindow {
public:
    static constexpr std::size_t kBlock = 16 * 1024;      ///< bytes fetched at once for values
    static constexpr std::size_t kScanBlock = 128 * 1024; ///< bytes fetched at once for scans
    static constexpr std::size_t kLongestView = 4096;     ///< the most that `bytes()` gives
    static constexpr std::size_t kHeaderBlock = 256;      ///< bytes fetched for a lonely header

    FileWindow(int descriptor, std::uint64_t length, bool hasHoles);

    std::uint64_t length() const { return m_length; }

    /// The first `kBlock` bytes of the file, fewer if it is shorter.
    std::string_view head();

    /// Exactly `length` bytes at `offset`; none unless all of them lie in the file, and none for
    /// more than `kLongestView`.
    std::optional<std::string_view> bytes(std::uint64_t offset, std::size_t length,
                                          Reading reading = Reading::Values);

    /// As many bytes at `offset` as are there, at most `most` and never more than `kScanBlock`;
    /// empty at the end of the file.
    std::string_view block(std::uint64_t offset, std::uint64_t most = kScanBlock);

    /// The first place at or behind `offset` that is not in a hole of a sparse file; the file's
    /// length when only holes follow.
    std::uint64_t nextData(std::uint64_t offset);

    /// What was read since the window was made.
    const ReadCount &readCount() const { return m_count; }

private:
    void fetch(std::uint64_t offset, std::size_t length);
    void fetchFor(Reading reading, std::uint64_t offset, std::size_t length);
    std::size_t readInto(char *target, std::uint64_t offset, std::size_t length);

    int m_descriptor;
    std::uint64_t m_length;
    bool m_hasHoles;
    bool m_hasHead = false;
    std::unique_ptr<char[]> m_headBuffer, m_buffer;
    std::size_t m_headLength = 0;
    std::size_t m_capacity = 0;
    std::size_t m_heldLength = 0;
    std::uint64_t m_heldOffset = 0;
    ReadCount m_count;
};

/// How much a walk may still read: a file of ever more headers ends the walk, whatever its length.
/// The count begins when the budget is made.
class ReadBudget {
public:
    explicit ReadBudget(const FileWindow &window)
        : m_window(&window), m_before(window.readCount()) {}

    bool isSpent() const {
        const ReadCount &now = m_window->readCount();
        return now.reads - m_before.reads >= kMostReads || now.bytes - m_before.bytes >= kMostBytes;
    }

private:
    static constexpr std::uint32_t kMostReads = 64;
    static constexpr std::uint64_t kMostBytes = 128 * 1024;

    const FileWindow *m_window;
    ReadCount m_before;
};

} // namespace chronomender
