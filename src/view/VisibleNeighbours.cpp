// SPDX-License-Identifier: GPL-3.0-or-later
#include "VisibleNeighbours.h"

#include <algorithm>
#include <optional>

namespace chronomender {
namespace {

using Index = std::int64_t;

/// -1 for an item that is not listed.
Index indexOf(const std::vector<MySinglePicPtr> &source_full, const MySinglePicPtr &pic) {
    const Index index = pic ? pic->positions.indexInSource_full : -1;
    const bool isListed = index >= 0 && index < std::ssize(source_full) &&
                          source_full[static_cast<std::size_t>(index)] == pic;
    return isListed ? index : -1;
}

/// Walks from item to item that shows, in one direction.
class Walk {
public:
    Walk(const std::vector<MySinglePicPtr> &list, Index start, Index step, Shown where)
        : m_list(list), m_index(start), m_step(step), m_where(where) {}

    /// The next one; null at the end of the list.
    MySinglePicPtr next() {
        for (; m_index >= 0 && m_index < std::ssize(m_list); m_index += m_step)
            if (const auto &pic = m_list[static_cast<std::size_t>(m_index)];
                isShown(*pic, m_where)) {
                m_index += m_step;
                return pic;
            }
        return nullptr;
    }

private:
    const std::vector<MySinglePicPtr> &m_list;
    Index m_index, m_step;
    Shown m_where;
};

} // namespace

bool isShown(const MySinglePic &pic, Shown where) {
    const ListPositions &positions = pic.positions;
    const bool isOnMainStrip = positions.indexInSource_filtered >= 0;
    switch (where) {
    case Shown::OnMainStrip:
        return isOnMainStrip;
    case Shown::OnShelf:
        return !isOnMainStrip && positions.indexInFolder_filtered >= 0;
    case Shown::OnEither:
        break;
    }
    return positions.indexInFolder_filtered >= 0;
}

MySinglePicPtr nextShownAfter(const std::vector<MySinglePicPtr> &source_full,
                              const MySinglePicPtr &pic, bool useLooping, Shown where) {
    const Index start = indexOf(source_full, pic) + 1;
    MySinglePicPtr found = Walk(source_full, start, 1, where).next();
    if (!found && useLooping)
        found = Walk(source_full, 0, 1, where).next();
    return found;
}

MySinglePicPtr nearestShownTo(const std::vector<MySinglePicPtr> &source_full,
                              const MySinglePicPtr &pic, const PicSet &candidates, Shown where) {
    if (!pic || candidates.empty())
        return nullptr;
    if (candidates.size() == 1)
        return *candidates.begin();
    Index start = indexOf(source_full, pic);
    if (start < 0)
        start = std::ssize(source_full) - 1;
    Walk forward(source_full, start, 1, where), backward(source_full, start - 1, -1, where);
    for (;;) {
        MySinglePicPtr later = forward.next();
        if (candidates.contains(later))
            return later;
        MySinglePicPtr earlier = backward.next();
        if (candidates.contains(earlier))
            return earlier;
        if (!later && !earlier)
            return nullptr;
    }
}

} // namespace chronomender
