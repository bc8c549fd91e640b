// SPDX-License-Identifier: GPL-3.0-or-later
#include "Alignment.h"

#include "NaturalCompare.h"

#include <QCollator>

#include <algorithm>
#include <cstdint>
#include <optional>
#include <utility>

namespace chronomender {
namespace {

Date floored(Date date) {
    return cleanDate(date).value_or(date);
}

/// An item of a selection in display order, with its place on the timeline.
struct Timed {
    MySinglePicPtr pic;
    Date date;   ///< with its fraction
    Date second; ///< cut to the whole second
};
using TimedItems = std::vector<Timed>;
using Records = std::vector<ShiftRecord>;

/// An item without a date has no place in any order and gives none to others.
TimedItems timedItems(const std::vector<MySinglePicPtr> &pics) {
    TimedItems items;
    items.reserve(pics.size());
    for (const MySinglePicPtr &pic : pics)
        if (const Date date = pic->spDateTimeModified_sort(); !isMarker(date))
            items.push_back({pic, date, floored(date)});
    return items;
}

ShiftRecord moveTo(const Timed &item, Date target) {
    return {item.pic, target - item.second};
}

/// `first` and `part` of `parts` equal steps over `span` seconds, to the nearest whole second. A
/// half goes away from 1970, on both sides of it. Exact, where a quotient in floating point would
/// have to hit the half.
Date afterSteps(Date first, std::int64_t span, std::int64_t part, std::int64_t parts) {
    const std::int64_t rest = (span % parts + parts) % parts;
    const std::int64_t step = (span - rest) / parts;
    const Date below = first + absl::Seconds(part * step + part * rest / parts);
    const std::int64_t twiceBeyond = 2 * (part * rest % parts);
    const bool isUp = twiceBeyond == parts ? below >= absl::UnixEpoch() : twiceBeyond > parts;
    return isUp ? below + absl::Seconds(1) : below;
}

Records matchGaps(const TimedItems &items, const MySinglePicPtr &) {
    const Timed &first = items.front(), &last = items.back();
    const std::int64_t parts = std::ssize(items) - 1;
    const std::int64_t span = absl::ToInt64Seconds(last.second - first.second);
    Records records{moveTo(first, first.second), moveTo(last, last.second)};
    for (std::int64_t part = 1; part < parts; ++part)
        records.push_back(moveTo(items[static_cast<std::size_t>(part)],
                                 afterSteps(first.second, span, part, parts)));
    return records;
}

Records minimizeGaps(const TimedItems &items, const MySinglePicPtr &main) {
    const auto found = std::ranges::find(items, main, &Timed::pic);
    const auto anchor = found == items.end() ? items.begin() : found;
    Records records;
    for (auto item = items.begin(); item != items.end(); ++item)
        records.push_back(moveTo(*item, anchor->second + absl::Seconds(item - anchor)));
    return records;
}

/// Equal names keep their display order.
Records orderByName(const TimedItems &items, const MySinglePicPtr &) {
    struct Named {
        QCollatorSortKey key;
        std::size_t index;
    };
    const NaturalCompare order;
    std::vector<Named> named;
    for (std::size_t i = 0; i < items.size(); ++i)
        named.push_back({order.sortKey(items[i].pic->spSortNameCachedErrorOrReal()), i});
    std::ranges::stable_sort(
        named, [](const Named &a, const Named &b) { return a.key.compare(b.key) < 0; });
    Records records;
    if (std::ranges::is_sorted(named, {}, &Named::index))
        return records;
    for (std::size_t i = 0; i < items.size(); ++i)
        records.push_back(moveTo(items[named[i].index], items[i].second));
    return records;
}

Records reverse(const TimedItems &items, const MySinglePicPtr &) {
    Records records;
    for (std::size_t i = 0; i < items.size(); ++i)
        records.push_back(moveTo(items[i], items[items.size() - 1 - i].second));
    return records;
}

/// The last item takes the first date, and so on backwards; what lay between two items lies between
/// them again.
Records mirror(const TimedItems &items, const MySinglePicPtr &) {
    Records records;
    Date target = items.front().date;
    for (std::size_t i = items.size(); i-- > 0;) {
        records.push_back(moveTo(items[i], floored(target)));
        if (i > 0)
            target += items[i].date - items[i - 1].date;
    }
    return records;
}

struct Rule {
    AlignCommand command;
    std::size_t leastItems;
    const char *actionName;
    Records (*records)(const TimedItems &items, const MySinglePicPtr &main);
};

constexpr Rule rules[] = {
    {AlignCommand::MatchingGaps, 3, "alignByMatchingGaps", matchGaps},
    {AlignCommand::MinimizingGaps, 1, "alignByMinimizingGaps", minimizeGaps},
    {AlignCommand::Filename, 1, "alignByFileName", orderByName},
    {AlignCommand::Reversing, 1, "alignByReversing", reverse},
    {AlignCommand::ReversingAlt, 2, "alignByReversingAlt", mirror},
};

/// Where a copying command takes its date from.
struct CopySource {
    const SlotDescription &slot;
    bool isNew;
};

/// None for a command that copies nothing.
std::optional<CopySource> copySource(AlignCommand command) {
    constexpr auto first = AlignCommand::CopyDigitizedOld;
    if (command < first || command > AlignCommand::CopyFileModificationNew)
        return std::nullopt;
    const int position = static_cast<int>(command) - static_cast<int>(first);
    return CopySource{slotDescriptions[1 + static_cast<std::size_t>(position) / 2],
                      position % 2 != 0};
}

/// The dates of the item that speaks for another in sorting, with the wanted one as it is now.
struct CopyDates {
    Date original, modified;
    OptionalDate oldDate, wanted;
};

CopyDates copyDates(const MySinglePic &pic, const CopySource &source,
                    const NewDateContext &context) {
    const MySinglePic &speaker = pic.sortPic();
    const OptionalDate &oldDate = speaker.slots.*source.slot.oldDate;
    CopyDates dates{speaker.spDateTimeOriginal, speaker.spDateTimeModified(), oldDate, oldDate};
    if (source.isNew) {
        // On a copy: asking what could be done leaves the item as it is.
        MySinglePic calculated = speaker;
        calculateNewDates(calculated, context);
        dates.wanted = calculated.slots.*source.slot.newDate;
    }
    return dates;
}

Alignment copyOtherFileDate(const CopySource &source, const AlignSelection &selection,
                            const NewDateContext &context) {
    Alignment result{{}, "alignByCopyingOtherFileDate"};
    for (const MySinglePicPtr &pic : selection.sortedSelectedThumbsArray) {
        const CopyDates dates = copyDates(*pic, source, context);
        if (isCleanDate(dates.wanted) && !isMarker(dates.modified))
            result.records.push_back({pic, floored(*dates.wanted) - floored(dates.modified)});
    }
    return result;
}

} // namespace

Alignment alignment(AlignCommand command, const AlignSelection &selection,
                    const NewDateContext &context) {
    if (const auto source = copySource(command))
        return copyOtherFileDate(*source, selection, context);
    const auto rule = std::ranges::find(rules, command, &Rule::command);
    const TimedItems items = timedItems(selection.sortedSelectedThumbsArray);
    if (rule == std::end(rules) || items.size() < rule->leastItems)
        return {};
    const bool isSpreadingTies = command == AlignCommand::MinimizingGaps &&
                                 areThereIdenticalTimesIn(selection.sortedSelectedThumbsArray);
    return {rule->records(items, selection.picSelection),
            isSpreadingTies ? "alignByMinimizingGapsAlt" : rule->actionName};
}

bool areThereIdenticalTimesIn(const std::vector<MySinglePicPtr> &pics) {
    Date before = absl::UnixEpoch();
    return std::ranges::any_of(pics, [&before](const MySinglePicPtr &pic) {
        const Date second = floored(pic->spDateTimeModified_sort());
        return second == std::exchange(before, second);
    });
}

AlignOutcome realignSelection(AlignCommand command, const AlignSelection &selection,
                              const NewDateContext &context, UndoManager &undo) {
    Alignment wanted = alignment(command, selection, context);
    std::erase_if(wanted.records, [](const auto &record) { return !isMovable(*record.thumb); });
    if (wanted.records.empty())
        return AlignOutcome::NothingChanged;
    std::vector<MySinglePicPtr> pics;
    for (const auto &[pic, difference] : wanted.records) {
        if (difference != absl::ZeroDuration() &&
            !staysInsideBounds(*pic, pic->presentShift() + difference))
            return AlignOutcome::RefusedOutOfBounds;
        pics.push_back(pic);
    }
    const UndoGroup group(undo);
    for (const MySingleFolderPtr &folder : foldersOf(pics))
        changeEditMode(*folder, EditMode::Single, undo);
    updateThumbValues(wanted.records, undo, selection.picSelection);
    undo.setActionName(wanted.actionName);
    return AlignOutcome::Done;
}

bool isCopyOffered(AlignCommand command, const std::vector<MySinglePicPtr> &pics,
                   const NewDateContext &context) {
    const auto source = copySource(command);
    return source && std::ranges::any_of(pics, [&](const MySinglePicPtr &pic) {
               const CopyDates dates = copyDates(*pic, *source, context);
               return isCleanDate(dates.wanted) && dates.wanted != dates.original &&
                      dates.wanted != dates.modified &&
                      (!source->isNew || dates.wanted != dates.oldDate);
           });
}

} // namespace chronomender
