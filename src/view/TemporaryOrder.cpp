// SPDX-License-Identifier: GPL-3.0-or-later
#include "TemporaryOrder.h"

#include "NaturalCompare.h"

#include <QCollator>

#include <algorithm>
#include <tuple>
#include <utility>

namespace chronomender {

/// Keys of the names in natural order, each made when it is first asked for: few dates tie.
struct TemporaryOrder::Names {
    explicit Names(std::size_t count) : keys(count) {}

    const QCollatorSortKey &key(const MySinglePic &pic, std::size_t position) {
        std::optional<QCollatorSortKey> &key = keys[position];
        if (!key)
            key = order.sortKey(pic.spSortNameCachedErrorOrReal());
        return *key;
    }

    NaturalCompare order;
    std::vector<std::optional<QCollatorSortKey>> keys; ///< by position
};

TemporaryOrder::TemporaryOrder(std::vector<MySinglePicPtr> list, const Asks &isMoving)
    : m_list(std::move(list)), m_names(std::make_unique<Names>(m_list.size())) {
    m_dates.reserve(m_list.size());
    for (std::size_t position = 0; position < m_list.size(); ++position) {
        const MySinglePicPtr &pic = m_list[position];
        m_dates.push_back(pic->spDateTimeModified_sort());
        (isMoving(pic) ? m_moving : m_staying).push_back(position);
    }
}

TemporaryOrder::~TemporaryOrder() = default;

/// The places of two items that show one date: where they tied in the list, that knows them.
bool TemporaryOrder::isBeforeAtSameDate(std::size_t a, std::size_t b) const {
    if (m_dates[a] == m_dates[b])
        return a < b;
    const MySinglePic &picA = *m_list[a], &picB = *m_list[b];
    const int byName = m_names->key(picA, a).compare(m_names->key(picB, b));
    return byName != 0 ? byName < 0
                       : std::pair(picA.spCategory(), picA.sessionUniqueId) <
                             std::pair(picB.spCategory(), picB.sessionUniqueId);
}

bool TemporaryOrder::isBefore(const Moved &a, const Moved &b) const {
    return a.date == b.date ? isBeforeAtSameDate(a.position, b.position) : a.date < b.date;
}

/// The moving items. Those that all keep their offsets are in order already.
std::vector<TemporaryOrder::Moved> TemporaryOrder::inOrder(const std::vector<Date> &dates) const {
    std::vector<Moved> moved;
    moved.reserve(m_moving.size());
    for (std::size_t i = 0; i < m_moving.size(); ++i)
        moved.push_back({dates[i], m_moving[i]});
    const auto isBefore = [this](const Moved &a, const Moved &b) {
        return TemporaryOrder::isBefore(a, b);
    };
    if (!std::ranges::is_sorted(moved, isBefore))
        std::ranges::sort(moved, isBefore);
    return moved;
}

void TemporaryOrder::arrange(const std::vector<Date> &dates) {
    m_arranged.clear();
    m_arrangedIndex.resize(m_list.size());
    const auto put = [&](std::size_t position) {
        m_arrangedIndex[position] = static_cast<std::int64_t>(m_arranged.size());
        m_arranged.push_back(position);
    };
    auto staying = m_staying.begin();
    for (const Moved &each : inOrder(dates)) {
        while (staying != m_staying.end() && isBefore({m_dates[*staying], *staying}, each))
            put(*staying++);
        put(each.position);
    }
    std::for_each(staying, m_staying.end(), put);
}

void TemporaryOrder::copyTo(std::vector<MySinglePicPtr> &list) const {
    if (list.size() != m_list.size())
        list = m_list;
    // Counting references of items that stay in their place would cost more than the merge.
    for (std::size_t i = 0; i < m_arranged.size(); ++i)
        if (list[i] != m_list[m_arranged[i]])
            list[i] = m_list[m_arranged[i]];
}

std::int64_t TemporaryOrder::arrangedIndex(std::size_t position) const {
    return m_arrangedIndex[position];
}

} // namespace chronomender
