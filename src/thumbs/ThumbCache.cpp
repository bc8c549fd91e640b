// SPDX-License-Identifier: GPL-3.0-or-later
#include "ThumbCache.h"

#include <utility>

namespace chronomender {

const ThumbEntry *ThumbCache::entry(std::uint32_t sessionUniqueId) {
    const auto found = m_nodes.find(sessionUniqueId);
    if (found == m_nodes.end())
        return nullptr;
    Node &node = found->second;
    m_compressed.order.splice(m_compressed.order.begin(), m_compressed.order, node.compressedAt);
    if (node.decodedBytes > 0)
        m_decoded.order.splice(m_decoded.order.begin(), m_decoded.order, node.decodedAt);
    return &node.entry;
}

ThumbCache::Order::iterator ThumbCache::put(Shelf &shelf, std::uint32_t sessionUniqueId,
                                            std::size_t bytes, Seen seen) {
    shelf.bytes += bytes;
    return shelf.order.insert(seen == Seen::Yes ? shelf.order.begin() : shelf.order.end(),
                              sessionUniqueId);
}

void ThumbCache::setEntry(std::uint32_t sessionUniqueId, ThumbEntry entry, Seen seen) {
    remove(sessionUniqueId);
    Node &node = m_nodes[sessionUniqueId];
    node.entry = std::move(entry);
    node.compressedAt = put(m_compressed, sessionUniqueId,
                            static_cast<std::size_t>(node.entry.compressedData.size()), seen);
    node.decodedBytes = node.entry.decodedBytes();
    if (node.decodedBytes > 0)
        node.decodedAt = put(m_decoded, sessionUniqueId, node.decodedBytes, seen);
    while (m_decoded.isOverfull())
        dropDecoded(m_nodes.at(m_decoded.order.back()));
    while (m_compressed.isOverfull()) {
        const std::uint32_t lost = m_compressed.order.back();
        remove(lost);
        if (m_willEvict)
            m_willEvict(lost);
    }
}

void ThumbCache::remove(std::uint32_t sessionUniqueId) {
    const auto found = m_nodes.find(sessionUniqueId);
    if (found == m_nodes.end())
        return;
    dropDecoded(found->second);
    m_compressed.bytes -= static_cast<std::size_t>(found->second.entry.compressedData.size());
    m_compressed.order.erase(found->second.compressedAt);
    m_nodes.erase(found);
}

void ThumbCache::dropDecoded(Node &node) {
    if (node.decodedBytes == 0)
        return;
    m_decoded.bytes -= std::exchange(node.decodedBytes, 0);
    m_decoded.order.erase(node.decodedAt);
    node.entry.maxiThumb = node.entry.prevThumb = node.entry.miniThumb = {};
}

} // namespace chronomender
