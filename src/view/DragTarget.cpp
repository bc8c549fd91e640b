// SPDX-License-Identifier: GPL-3.0-or-later
#include "DragTarget.h"

#include <algorithm>
#include <iterator>
#include <vector>

namespace chronomender {
namespace {

bool hasDate(const TemporaryOrder &order, std::size_t position) {
    return !isMarker(order.date(position));
}

DragAim aimAtEdge(std::size_t index, const TemporaryOrder &order, absl::Duration outwards) {
    const auto isDated = [&](std::size_t position) { return hasDate(order, position); };
    const std::vector<std::size_t> &staying = order.staying();
    const auto first = std::find_if(staying.begin(), staying.end(), isDated);
    if (first == staying.end())
        return {};
    const auto last = std::find_if(staying.rbegin(), staying.rend(), isDated);
    if (index == 0)
        return {DragType::OuterEdge, order.date(*first), {}, -outwards};
    if (index == order.list().size())
        return {DragType::OuterEdge, order.date(*last), {}, outwards};
    return {};
}

DragAim aimAtGap(std::size_t index, const TemporaryOrder &order) {
    const auto right = std::ranges::lower_bound(order.staying(), index);
    if (right == order.staying().begin() || right == order.staying().end())
        return {};
    const std::size_t left = *std::prev(right);
    if (!hasDate(order, left) || !hasDate(order, *right))
        return {};
    return {DragType::Between, order.date(left), order.date(*right)};
}

DragAim aimAtItem(DragType dragType, std::size_t index, const TemporaryOrder &order) {
    if (!std::ranges::binary_search(order.staying(), index) || !hasDate(order, index))
        return {};
    return {dragType, order.date(index), {}};
}

} // namespace

DragAim aimAt(DragTarget target, const TemporaryOrder &order, absl::Duration dragGapOuterEdges) {
    if (target.index < 0 || target.index > std::ssize(order.list()))
        return {};
    const auto index = static_cast<std::size_t>(target.index);
    switch (target.dragType) {
    case DragType::OuterEdge:
        return aimAtEdge(index, order, dragGapOuterEdges);
    case DragType::Between:
        return aimAtGap(index, order);
    default:
        return aimAtItem(target.dragType, index, order);
    }
}

} // namespace chronomender
