// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ThumbEntry.h"

#include <cstdint>
#include <functional>
#include <list>
#include <unordered_map>

namespace chronomender {

/// The thumbnails of a session by the number of their item, within two bounds: one for what is
/// decoded, one for the compressed bytes. What was not asked for the longest goes first. Decoded
/// pictures go silently, as they can be made again; losing an entry with its bytes is told.
/// Main thread.
class ThumbCache {
public:
    ThumbCache(std::size_t decodedBytes, std::size_t compressedBytes)
        : m_decoded{decodedBytes, 0, {}}, m_compressed{compressedBytes, 0, {}} {}

    /// Called for each entry that is lost for want of room, and never for one that is replaced or
    /// removed.
    void setWillEvictObject(std::function<void(std::uint32_t)> willEvict) {
        m_willEvict = std::move(willEvict);
    }

    /// Null without an entry. Counts as used, and holds until the cache is changed.
    const ThumbEntry *entry(std::uint32_t sessionUniqueId);
    bool contains(std::uint32_t sessionUniqueId) const { return m_nodes.contains(sessionUniqueId); }
    /// What nobody has looked at yet never drives out what somebody did.
    enum class Seen : bool { No, Yes };
    void setEntry(std::uint32_t sessionUniqueId, ThumbEntry entry, Seen seen);
    void remove(std::uint32_t sessionUniqueId);

    std::size_t decodedBytes() const { return m_decoded.bytes; }
    std::size_t compressedBytes() const { return m_compressed.bytes; }

private:
    using Order = std::list<std::uint32_t>; // the one used last in front
    struct Shelf {
        std::size_t mostBytes, bytes;
        Order order;
        bool isOverfull() const { return bytes > mostBytes; }
    };
    struct Node {
        ThumbEntry entry;
        Order::iterator decodedAt, compressedAt;
        std::size_t decodedBytes = 0; ///< 0: stands in no order of decoded ones
    };

    Order::iterator put(Shelf &shelf, std::uint32_t sessionUniqueId, std::size_t bytes, Seen seen);
    void dropDecoded(Node &node);

    Shelf m_decoded, m_compressed;
    std::unordered_map<std::uint32_t, Node> m_nodes;
    std::function<void(std::uint32_t)> m_willEvict;
};

} // namespace chronomender
