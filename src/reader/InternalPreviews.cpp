// SPDX-License-Identifier: GPL-3.0-or-later
#include "InternalPreviews.h"

#include "JpegFormat.h"
#include "JpegWalk.h"

#include <algorithm>

namespace chronomender {

namespace {

constexpr int kMostNested = 3;
constexpr std::int32_t kLargeEnough = 640;
/// As many bytes as tell a start marker; an end marker has one less.
constexpr std::size_t kMarkerBytes = 3;

enum class Marker : std::uint8_t { Start, End };
struct FoundMarker {
    Marker kind;
    std::uint64_t offset;
};

/// Gives the start and end markers of a file one after the other.
class MarkerScan {
public:
    MarkerScan(FileWindow &window, std::uint64_t mostBytes)
        : m_window(window), m_bytesLeft(mostBytes) {}

    std::optional<FoundMarker> next() {
        while (m_hasMore) {
            if (const auto marker = nextInBlock())
                return marker;
            fetch();
        }
        return std::nullopt;
    }

    /// To be called after other looks into the file: they replaced the block.
    void reload() {
        m_begin += m_at;
        m_block = {};
        m_at = 0;
    }

private:
    void fetch() {
        // A marker may lie across two blocks.
        const bool isFirst = m_block.empty();
        const std::uint64_t from =
            isFirst ? m_begin + m_at : m_begin + m_block.size() - (kMarkerBytes - 1);
        m_begin = m_window.nextData(from);
        m_block = m_bytesLeft > 0 ? m_window.block(m_begin) : std::string_view();
        m_bytesLeft -= std::min<std::uint64_t>(m_bytesLeft, m_block.size());
        m_at = 0;
        m_hasMore = m_block.size() >= kMarkerBytes;
    }

    std::optional<FoundMarker> nextInBlock() {
        while ((m_at = m_block.find(kJpegMarkerPrefix, m_at)) != std::string_view::npos) {
            const std::string_view bytes = m_block.substr(m_at, kMarkerBytes);
            const std::uint64_t offset = m_begin + m_at;
            const bool isStart = bytes == kJpegSignature;
            if (bytes.size() < kMarkerBytes && m_block.size() == FileWindow::kScanBlock)
                break; // comes again at the beginning of the next block
            ++m_at;
            if (isStart)
                return FoundMarker{Marker::Start, offset};
            if (bytes.size() > 1 && static_cast<std::uint8_t>(bytes[1]) == kJpegMarkerEndOfImage)
                return FoundMarker{Marker::End, offset};
        }
        m_at = m_block.size();
        return std::nullopt;
    }

    FileWindow &m_window;
    std::uint64_t m_bytesLeft;
    std::string_view m_block;
    std::uint64_t m_begin = 0; ///< of the block in the file
    std::size_t m_at = 0;      ///< in the block
    bool m_hasMore = true;
};

bool isLarger(const JpegSize &size, const std::optional<InternalPreview> &best) {
    return !best || (size.width > best->width && size.height > best->height);
}

} // namespace

std::optional<InternalPreview> savereadInternalJPGs(FileWindow &window, std::uint64_t mostBytes) {
    std::optional<InternalPreview> best;
    MarkerScan scan(window, mostBytes);
    int nested = 0;
    std::uint64_t start = 0;
    while (const auto marker = scan.next()) {
        if (marker->kind == Marker::Start) {
            if (nested == kMostNested)
                break;
            if (nested++ == 0)
                start = marker->offset;
            continue;
        }
        if (nested == 0 || --nested > 0)
            continue;
        const ByteBlock bytes{start, marker->offset + kJpegMarkerLength - start};
        const auto size = jpegFrameSize(ByteRange(window).part(bytes.offset, bytes.length));
        if (!size)
            break;
        if (isLarger(*size, best))
            best = InternalPreview{bytes, size->width, size->height};
        if (best->width > kLargeEnough && best->height > kLargeEnough)
            break;
        scan.reload();
    }
    return best;
}

} // namespace chronomender
