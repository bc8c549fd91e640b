// SPDX-License-Identifier: GPL-3.0-or-later
#include "AlignRows.h"

#include "TimeTexts.h"

#include <algorithm>
#include <unordered_map>

namespace chronomender {
namespace {

using enum CommandId;

constexpr AlignChoice choices[] = {
    {AlignCommand::MatchingGaps, AlignMatchingGaps, "align_matchingGaps"},
    {AlignCommand::MinimizingGaps, AlignMinimizingGaps, "align_minimizingGaps"},
    {AlignCommand::Filename, AlignFilename, "align_filename"},
    {AlignCommand::Reversing, AlignReversing, "align_reversing"},
    {AlignCommand::ReversingAlt, AlignReversingAlt, "align_reversingAlt"},
    {AlignCommand::CopyDigitizedOld, CopyDigitizedOld, "align_copyOld"},
    {AlignCommand::CopyDigitizedNew, CopyDigitizedNew, "align_copyNew"},
    {AlignCommand::CopyTiffOld, CopyTiffOld, "align_copyOld"},
    {AlignCommand::CopyTiffNew, CopyTiffNew, "align_copyNew"},
    {AlignCommand::CopyFileCreationOld, CopyFileCreationOld, "align_copyOld"},
    {AlignCommand::CopyFileCreationNew, CopyFileCreationNew, "align_copyNew"},
    {AlignCommand::CopyFileModificationOld, CopyFileModificationOld, "align_copyOld"},
    {AlignCommand::CopyFileModificationNew, CopyFileModificationNew, "align_copyNew"},
};

} // namespace

std::span<const AlignChoice> alignChoices() {
    return choices;
}

const AlignChoice *alignChoiceOf(CommandId id) {
    const auto *found = std::ranges::find(choices, id, &AlignChoice::id);
    return found == std::end(choices) ? nullptr : found;
}

std::vector<AlignRow> alignRows(AlignCommand command, const AlignSelection &selection,
                                const NewDateContext &context, const Zones &zones,
                                std::size_t most) {
    const Alignment wanted = alignment(command, selection, context);
    if (wanted.records.empty())
        return {};
    std::unordered_map<const MySinglePic *, absl::Duration> differences;
    for (const ShiftRecord &record : wanted.records)
        differences.emplace(record.thumb.get(), record.dateDifference);
    const absl::TimeZone zone = zones.systemZone().rules;
    std::vector<AlignRow> rows;
    for (const MySinglePicPtr &pic : selection.sortedSelectedThumbsArray) {
        if (rows.size() == most)
            break;
        const Date now = pic->spDateTimeModified_sort();
        const auto found = differences.find(pic.get());
        const bool moves =
            found != differences.end() && found->second != absl::ZeroDuration() && isMovable(*pic);
        rows.push_back({pic->spName, dayAndTimeText(now, zone),
                        moves ? dayAndTimeText(now + found->second, zone) : std::string()});
    }
    return rows;
}

} // namespace chronomender
