// SPDX-License-Identifier: GPL-3.0-or-later
#include "PngChecksums.h"

#include "ByteOrder.h"
#include "PngFormat.h"

#include <zlib.h>

#include <algorithm>
#include <array>
#include <string>

namespace chronomender {
namespace {

constexpr std::size_t kLengthOfNumber = 4; ///< of a chunk's length, type and checksum
constexpr std::uint32_t kLongestChunk = 0x7FFFFFFF;
/// A chunk's header is looked for so far in front of a place in its data.
constexpr std::uint64_t kReachOfHint = 320;
constexpr std::size_t kBufferLength = 16384;
/// No encoder makes so many; a file of nothing but empty chunks is not walked to its end.
constexpr std::size_t kMostChunks = 1U << 20;

struct Chunk {
    std::uint64_t at = 0; ///< of its length
    std::uint32_t length = 0;
    std::string type = {};

    std::uint64_t dataAt() const { return at + kPngChunkHeader; }
    std::uint64_t checksumAt() const { return dataAt() + length; }
    std::uint64_t next() const { return at + kPngChunkOverhead + length; }
    bool holds(const Patch &patch) const {
        return patch.offset() >= dataAt() && patch.end() <= checksumAt();
    }
    bool mayHoldValues() const { return type == kPngExifChunk || type == kPngTextChunk; }
};

/// The checksum that a chunk has, and the one that its bytes ask for before and after the patches.
struct Checksums {
    std::uint32_t stored = 0, before = 0, after = 0;
};

Bytes bytesOf(std::uint32_t number) {
    Bytes bytes;
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes.push_back(static_cast<char>(number >> shift & 0xFF));
    return bytes;
}

std::uint32_t checksumOf(std::uint32_t sum, std::string_view bytes) {
    return static_cast<std::uint32_t>(
        crc32(sum, reinterpret_cast<const Bytef *>(bytes.data()), static_cast<uInt>(bytes.size())));
}

/// Writes what of the patch falls into `bytes`, which stand at `offset` in the file.
void apply(const Patch &patch, std::span<char> bytes, std::uint64_t offset) {
    const std::uint64_t start = std::max(patch.offset(), offset);
    const std::uint64_t end = std::min(patch.end(), offset + bytes.size());
    for (std::uint64_t at = start; at < end; ++at)
        bytes[static_cast<std::size_t>(at - offset)] =
            patch.after()[static_cast<std::size_t>(at - patch.offset())];
}

/// One file and what is to be written into it.
class Checksummer {
public:
    Checksummer(OpenFile &file, std::uint64_t size, std::span<const Patch> patches)
        : m_file(file), m_size(size), m_left(patches.begin(), patches.end()) {}

    /// Without the chunks in front of it a chunk is known by its checksum only.
    void lookNear(std::uint64_t hint) {
        std::array<char, kReachOfHint> room;
        const std::uint64_t start = std::max(kPngFirstChunk, hint - std::min(hint, kReachOfHint));
        if (hint <= start || hint > m_size)
            return;
        const std::span<char> wanted(room.data(), static_cast<std::size_t>(hint - start));
        if (m_file.pread(wanted, start) != wanted.size())
            return;
        const std::string_view bytes(wanted.data(), wanted.size());
        for (const std::string_view type : {kPngExifChunk, kPngTextChunk}) {
            const std::size_t place = bytes.rfind(type);
            if (place == bytes.npos || place < kLengthOfNumber)
                continue;
            if (const auto chunk = chunkAt(start + place - kLengthOfNumber))
                renew(*chunk, Trust::OnlyByChecksum);
        }
    }

    /// False when the chunks end, or a read fails, before all patches are found.
    bool walk() {
        std::array<char, kPngSignature.size()> signature;
        if (m_file.pread(signature, 0) != signature.size() ||
            std::string_view(signature.data(), signature.size()) != kPngSignature)
            return false;
        std::uint64_t at = kPngFirstChunk;
        for (std::size_t count = 0; !m_left.empty(); ++count) {
            const auto chunk = count < kMostChunks ? chunkAt(at) : std::nullopt;
            if (!chunk || chunk->type == kPngEndChunk || !renew(*chunk, Trust::ByPlace))
                return false;
            at = chunk->next();
        }
        return true;
    }

    std::vector<Patch> take() { return std::move(m_checksums); }

private:
    enum class Trust { OnlyByChecksum, ByPlace };

    /// None where the file has no room for the chunk that its header claims.
    std::optional<Chunk> chunkAt(std::uint64_t at) {
        std::array<char, kPngChunkHeader> header;
        if (at > m_size || m_size - at < kPngChunkOverhead ||
            m_file.pread(header, at) != header.size())
            return std::nullopt;
        const std::string_view bytes(header.data(), header.size());
        Chunk chunk{at, number32(bytes, ByteOrder::Motorola),
                    std::string(bytes.substr(kLengthOfNumber))};
        const bool hasRoom = chunk.length <= m_size - at - kPngChunkOverhead;
        return hasRoom && chunk.length <= kLongestChunk ? std::optional(chunk) : std::nullopt;
    }

    /// Settles the patches inside the chunk; false when it cannot be read.
    bool renew(const Chunk &chunk, Trust trust) {
        std::vector<Patch> inside;
        std::ranges::copy_if(m_left, std::back_inserter(inside),
                             [&](const Patch &patch) { return chunk.holds(patch); });
        if (inside.empty() || !chunk.mayHoldValues())
            return true;
        const auto sums = checksums(chunk, inside);
        if (!sums)
            return false;
        if (trust == Trust::OnlyByChecksum && sums->stored != sums->before)
            return true;
        std::erase_if(m_left, [&](const Patch &patch) { return chunk.holds(patch); });
        m_checksums.emplace_back(chunk.checksumAt(), bytesOf(sums->stored), bytesOf(sums->after));
        return true;
    }

    std::optional<Checksums> checksums(const Chunk &chunk, std::span<const Patch> patches) {
        std::array<char, kBufferLength> room;
        Checksums sums;
        for (std::uint64_t at = chunk.at + kLengthOfNumber; at < chunk.checksumAt();) {
            const std::span<char> bytes(
                room.data(), static_cast<std::size_t>(
                                 std::min<std::uint64_t>(room.size(), chunk.checksumAt() - at)));
            if (m_file.pread(bytes, at) != bytes.size())
                return std::nullopt;
            const std::string_view text(bytes.data(), bytes.size());
            sums.before = checksumOf(sums.before, text);
            for (const Patch &patch : patches)
                apply(patch, bytes, at);
            sums.after = checksumOf(sums.after, text);
            at += bytes.size();
        }
        const std::span<char> stored(room.data(), kLengthOfNumber);
        if (m_file.pread(stored, chunk.checksumAt()) != stored.size())
            return std::nullopt;
        sums.stored = number32({stored.data(), stored.size()}, ByteOrder::Motorola);
        return sums;
    }

    OpenFile &m_file;
    std::uint64_t m_size;
    std::vector<Patch> m_left; ///< whose chunk is not found yet
    std::vector<Patch> m_checksums;
};

} // namespace

std::optional<std::vector<Patch>> checksumPatches(OpenFile &file, std::span<const Patch> patches,
                                                  std::uint64_t hint) {
    const auto attributes = file.attributes();
    if (!attributes)
        return std::nullopt;
    Checksummer checksummer(file, attributes->size, patches);
    checksummer.lookNear(hint);
    if (!checksummer.walk())
        return std::nullopt;
    return checksummer.take();
}

} // namespace chronomender
