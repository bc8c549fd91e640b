// SPDX-License-Identifier: GPL-3.0-or-later
#include "FolderChoices.h"

#include <algorithm>

namespace chronomender {
namespace {

std::optional<ExtensionFilter> filterOf(const FolderBlock &block) {
    if (block.filterExt)
        return ExtensionFilter{*block.filterExt, ExtensionFilter::Kind::Keep};
    if (block.filterExtNot)
        return ExtensionFilter{*block.filterExtNot, ExtensionFilter::Kind::Remove};
    return std::nullopt;
}

} // namespace

KeyStates keyStates(const FolderPlan &plan) {
    KeyStates states;
    const bool isAnyShifted =
        std::ranges::any_of(plan.pics, [](const PicPlan &pic) { return pic.shift.has_value(); });
    states.sfEditMode = isAnyShifted ? EditMode::Single : EditMode::Together;
    states.adaptedZone = {plan.zones.source, plan.zones.target};
    states.filter = filterOf(plan.block);
    if (plan.block.subfolderDepth) {
        states.isSubFolderAutoImportEnabled = *plan.block.subfolderDepth > 0;
        states.subFolderAutoImportMaxDepth = plan.block.subfolderDepth;
    }
    return states;
}

DateSequence dateSequence(const EmptyTagsSpec &spec, const Zones &zones) {
    const PerFolderImportOptions options = importOptions(spec, zones.systemZone().rules);
    return {options.prefFixDateDate.value_or(Date()),
            static_cast<int>(absl::ToInt64Seconds(options.step)),
            DateSequence::StepperKind::Seconds};
}

void settleMovieOptions(const FolderBlock &block, const UserDefaults &defaults,
                        MySingleFolder &folder) {
    folder.isQuicktimeMDTADateEnabled = block.movieDate ? *block.movieDate == MovieDate::Mdta
                                                        : defaults.boolForKey("isMDTADateEnabled");
    folder.isQuicktimeMVHDTimezoneCorrectionEnabled =
        block.movieClock ? *block.movieClock == MovieClock::Local
                         : defaults.boolForKey("isMVHDTimezoneCorrectionEnabled");
    folder.areMovieOptionsSettled = true;
}

} // namespace chronomender
