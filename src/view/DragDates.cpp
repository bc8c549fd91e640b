// SPDX-License-Identifier: GPL-3.0-or-later
#include "DragDates.h"

#include <algorithm>
#include <iterator>

namespace chronomender {
namespace {

constexpr absl::Duration second = absl::Seconds(1);
/// In a gap that is no wider, a run of items is not spread.
constexpr absl::Duration narrowGap = absl::Seconds(2);

Date floored(Date date) {
    return cleanDate(date).value_or(date);
}

std::vector<Date> spread(Date left, Date right, std::size_t count) {
    const absl::Duration step = (right - left) / static_cast<std::int64_t>(count + 1);
    std::vector<Date> dates(count, left);
    for (std::size_t i = 0; i < count; ++i)
        dates[i] += step * static_cast<std::int64_t>(i + 1);
    return dates;
}

} // namespace

Date dragDate(const DragAim &aim, Date main) {
    const Date inWholeSeconds = main + (floored(aim.date) - floored(main));
    switch (aim.dragType) {
    case DragType::OuterEdge:
        return aim.date + aim.outwards;
    case DragType::SecondBefore:
        return inWholeSeconds - second;
    case DragType::SecondAfter:
        return inWholeSeconds + second;
    case DragType::Between:
        return aim.date + (aim.later - aim.date) / 2;
    case DragType::Onto:
        return aim.date;
    case DragType::None:
        break;
    }
    return main;
}

std::vector<Date> dragDates(const DragAim &aim, const std::vector<Date> &dates, std::size_t main,
                            DragUnit unit) {
    const Date mainDate = dragDate(aim, dates[main]);
    const bool isRunInGap =
        aim.dragType == DragType::Between && unit == DragUnit::Items && dates.size() > 1;
    if (isRunInGap && aim.later - aim.date > narrowGap)
        return spread(aim.date, aim.later, dates.size());
    if (isRunInGap)
        return std::vector<Date>(dates.size(), mainDate);
    std::vector<Date> moved;
    moved.reserve(dates.size());
    std::ranges::transform(dates, std::back_inserter(moved),
                           [&](Date date) { return date + (mainDate - dates[main]); });
    return moved;
}

} // namespace chronomender
