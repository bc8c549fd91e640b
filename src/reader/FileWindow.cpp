// SPDX-License-Identifier: GPL-3.0-or-later
#include "FileWindow.h"

#include <algorithm>
#include <cerrno>
#include <unistd.h>

namespace chronomender {

namespace {

constexpr std::uint64_t kPage = 4096;

bool holds(std::uint64_t heldOffset, std::size_t heldLength, std::uint64_t offset,
           std::size_t length) {
    return offset >= heldOffset && length <= heldLength &&
           offset - heldOffset <= heldLength - length;
}

} // namespace

FileWindow::FileWindow(int descriptor, std::uint64_t length, bool hasHoles)
    : m_descriptor(descriptor), m_length(length), m_hasHoles(hasHoles) {}

std::size_t FileWindow::readInto(char *target, std::uint64_t offset, std::size_t length) {
    std::size_t got = 0;
    while (got < length) {
        ++m_count.reads;
        const ssize_t count =
            ::pread(m_descriptor, target + got, length - got, static_cast<off_t>(offset + got));
        if (count > 0)
            got += static_cast<std::size_t>(count);
        else if (count == 0 || errno != EINTR)
            break;
    }
    m_count.bytes += got;
    return got;
}

std::string_view FileWindow::head() {
    if (!m_hasHead) {
        m_hasHead = true;
        m_headBuffer = std::make_unique_for_overwrite<char[]>(kBlock);
        const auto wanted = static_cast<std::size_t>(std::min<std::uint64_t>(kBlock, m_length));
        m_headLength = readInto(m_headBuffer.get(), 0, wanted);
    }
    return {m_headBuffer.get(), m_headLength};
}

void FileWindow::fetch(std::uint64_t offset, std::size_t length) {
    if (m_capacity < length) {
        m_buffer = std::make_unique_for_overwrite<char[]>(length);
        m_capacity = length;
    }
    const auto wanted =
        static_cast<std::size_t>(std::min<std::uint64_t>(length, m_length - offset));
    m_heldOffset = offset;
    m_heldLength = readInto(m_buffer.get(), offset, wanted);
}

/// Fetches around a place that is not held. Headers that follow each other closely get blocks that
/// double; and who asks for values in ever new places gets smaller blocks in the end.
void FileWindow::fetchFor(Reading reading, std::uint64_t offset, std::size_t length) {
    constexpr std::uint32_t kGenerousReads = 12;
    const bool isBehind = m_heldLength > 0 && offset >= m_heldOffset &&
                          offset - m_heldOffset <= m_heldLength + m_heldLength / 2;
    if (reading == Reading::Headers) {
        const std::size_t block = isBehind ? std::min(m_heldLength * 2, kBlock) : kHeaderBlock;
        fetch(offset, std::max(block, length));
        return;
    }
    const std::uint64_t page = offset - offset % kPage;
    const bool isGenerous = isBehind || m_count.reads < kGenerousReads;
    fetch(page, isGenerous ? kBlock : std::size_t{2} * kPage);
}

std::optional<std::string_view> FileWindow::bytes(std::uint64_t offset, std::size_t length,
                                                  Reading reading) {
    if (length > kLongestView || length > m_length || offset > m_length - length)
        return std::nullopt;
    const std::string_view first = head();
    if (holds(0, first.size(), offset, length))
        return first.substr(static_cast<std::size_t>(offset), length);
    if (!holds(m_heldOffset, m_heldLength, offset, length))
        fetchFor(reading, offset, length);
    if (!holds(m_heldOffset, m_heldLength, offset, length))
        return std::nullopt;
    return std::string_view(m_buffer.get() + (offset - m_heldOffset), length);
}

std::string_view FileWindow::block(std::uint64_t offset, std::uint64_t most) {
    if (offset >= m_length)
        return {};
    const auto wanted =
        static_cast<std::size_t>(std::min({most, m_length - offset, std::uint64_t{kScanBlock}}));
    if (!holds(m_heldOffset, m_heldLength, offset, wanted))
        fetch(offset, wanted);
    const auto at = static_cast<std::size_t>(offset - m_heldOffset);
    return {m_buffer.get() + at, std::min(wanted, m_heldLength - at)};
}

std::uint64_t FileWindow::nextData(std::uint64_t offset) {
    if (!m_hasHoles || offset >= m_length)
        return offset;
    const off_t place = ::lseek(m_descriptor, static_cast<off_t>(offset), SEEK_DATA);
    if (place >= 0)
        return static_cast<std::uint64_t>(place);
    return errno == ENXIO ? m_length : offset;
}

} // namespace chronomender
