// SPDX-License-Identifier: GPL-3.0-or-later
#include "PatchPlan.h"

#include "GpsTimePlan.h"
#include "MoviePlan.h"
#include "SourceSlot.h"
#include "StampPlan.h"

#include <algorithm>

namespace chronomender {
namespace {

/// A stamp without room is left as it is, unless it is the one that holds the item's date.
bool isInTheWay(PlanObstacle obstacle, StampSlot slot, SpType type) {
    return obstacle != PlanObstacle::None &&
           (obstacle != PlanObstacle::NoRoom || sourceSlot(type) == slot);
}

OptionalDate wantedGpsDate(const MySinglePic &pic, const PlanContext &context) {
    const OptionalDate &present = pic.location.spGpsUTCDate;
    if (!present || pic.location.isGpsXmp || !context.syncGPSDataOnSave)
        return std::nullopt;
    if (!context.syncGPSDataOnSaveType)
        return pic.spDateTimeModified_tempFIX;
    return shifted(*present, context.folder.sfEditMode == EditMode::Together
                                 ? context.folder.sfDateModificationsTimeInterval
                                 : pic.shift.singlePicModification);
}

void planGps(const MySinglePic &pic, const PlanContext &context, std::vector<ValuePatch> &patches,
             PatchPlan &plan) {
    const OptionalDate wanted = wantedGpsDate(pic, context);
    if (isCleanDate(wanted) && wanted != pic.location.spGpsUTCDate &&
        planGpsStamps(pic, *wanted, patches))
        plan.newGpsDate = cleanDate(wanted);
}

/// Writing values moves the file's modification date, so it is set whenever something is written.
void planModificationDate(const MySinglePic &pic, PatchPlan &plan) {
    const OptionalDate &wanted = pic.slots.fileModificationDateNEW;
    if (!plan.patches.empty() || wanted != pic.slots.fileModificationDateOLD)
        plan.modificationDate =
            isCleanDate(wanted) ? wanted : pic.singlePicAttributes.fileModificationDate;
}

SlotResult fileSlotResult(const MySinglePic &pic, const SlotDescription &slot) {
    const OptionalDate &wanted = pic.slots.*slot.newDate;
    if (!wanted || wanted == pic.slots.*slot.oldDate)
        return SlotResult::Unchanged;
    const bool isCreation = slot.newDate == &DateSlots::fileCreationDateNEW;
    return isCreation ? SlotResult::NotStorable : SlotResult::WrittenInPlace;
}

/// XMP stamps would go on telling the old date, a chunk of a PNG carries a checksum, and tags are
/// added by a tool of its own: such a file is not touched at all rather than written in part.
bool isWritable(const MySinglePic &pic) {
    return pic.singlePicAttributes.xmpDateInfos.isEmpty() && pic.fileFormatType != FileFormatPng &&
           !pic.save.shouldAddExifDateTimeTags;
}

bool hasProblem(std::span<const PreSaveFinding> problems, PreSaveProblem problem) {
    return std::any_of(problems.begin(), problems.end(),
                       [problem](const auto &each) { return each.problem == problem; });
}

} // namespace

bool isAccepted(const PatchPlan &plan, std::span<const PreSaveFinding> problems) {
    return std::all_of(plan.stamps.begin(), plan.stamps.end(), [&](const StampPlan &stamp) {
        const auto may = [&](PreSaveProblem problem) { return hasProblem(problems, problem); };
        return (!stamp.isAmbiguous || may(PreSaveProblem::error_01_ambiguousStamp)) &&
               (stamp.zoneChange.empty() || may(PreSaveProblem::error_12_zoneStampRewritten)) &&
               (stamp.overwrittenUnreadable.empty() ||
                may(PreSaveProblem::error_13_unreadableStamp));
    });
}

std::string_view textKey(PlanObstacle obstacle) {
    switch (obstacle) {
    case PlanObstacle::None:
        break;
    case PlanObstacle::UnreadableBack:
        return "saveObstacle_unreadableBack";
    case PlanObstacle::NoRoom:
        return "saveObstacle_noRoom";
    case PlanObstacle::ValuesCollide:
        return "saveObstacle_valuesCollide";
    case PlanObstacle::NotAccepted:
        return "saveObstacle_notAccepted";
    case PlanObstacle::OutOfRange:
        return "saveObstacle_outOfRange";
    case PlanObstacle::NotYetWritable:
        return "saveObstacle_notYetWritable";
    }
    return {};
}

PlanContext::PlanContext(const MySingleFolder &theFolder, const Zones &theZones,
                         const UserDefaults &defaults)
    : folder(theFolder),
      zones(theZones),
      syncGPSDataOnSave(defaults.boolForKey("syncGPSDataOnSave")),
      syncGPSDataOnSaveType(defaults.boolForKey("syncGPSDataOnSaveType")),
      syncXMPDataOnSave(defaults.boolForKey("syncXMPDataOnSave")),
      shouldSupportXmpSave(defaults.boolForKey("shouldSupportXmpSave")) {}

PatchPlan planForPic(const MySinglePic &pic, const PlanContext &context) {
    PatchPlan plan;
    if (!pic.hasCorrectableDate())
        return plan;
    if (!isWritable(pic)) {
        plan.obstacle = PlanObstacle::NotYetWritable;
        return plan;
    }
    std::vector<ValuePatch> patches;
    patches.reserve(2 * stampSlots.size() + 2);
    for (std::size_t i = 0; i < stampSlots.size(); ++i) {
        PlanObstacle obstacle{};
        plan.stamps[i] = pic.isMovie()
                             ? planMovieStamp(pic, stampSlots[i], context, patches, obstacle)
                             : planStamp(pic, stampSlots[i], context, patches, obstacle);
        if (isInTheWay(obstacle, stampSlots[i], pic.spType))
            plan.obstacle = obstacle;
    }
    planGps(pic, context, patches, plan);
    if (doPatchesCollide(pic.singlePicAttributes, patches))
        plan.obstacle = PlanObstacle::ValuesCollide;
    if (plan.obstacle != PlanObstacle::None)
        return plan;
    plan.patches.reserve(patches.size());
    for (const ValuePatch &each : patches)
        if (!each.patch.changesNothing())
            plan.patches.push_back(each.patch);
    planModificationDate(pic, plan);
    return plan;
}

std::vector<SlotOutcome> slotOutcomes(const MySinglePic &pic, const PatchPlan &plan) {
    std::vector<SlotOutcome> outcomes;
    outcomes.reserve(slotDescriptions.size());
    for (std::size_t i = 0; i < slotDescriptions.size(); ++i) {
        const SlotDescription &slot = slotDescriptions[i];
        const SlotResult result = i < plan.stamps.size()                ? plan.stamps[i].result
                                  : plan.obstacle == PlanObstacle::None ? fileSlotResult(pic, slot)
                                                                        : SlotResult::Unchanged;
        outcomes.push_back({slot.name, pic.slots.*slot.oldDate, pic.slots.*slot.newDate, result});
    }
    return outcomes;
}

} // namespace chronomender
