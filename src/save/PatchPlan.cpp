// SPDX-License-Identifier: GPL-3.0-or-later
#include "PatchPlan.h"

#include "GpsTimePlan.h"
#include "MoviePlan.h"
#include "SourceSlot.h"
#include "StampPlan.h"
#include "ToolActions.h"
#include "XmpPlan.h"

#include <algorithm>
#include <iterator>

namespace chronomender {
namespace {

/// A stamp without room is left as it is, unless it is the one that holds the item's date.
bool isInTheWay(PlanObstacle obstacle, StampSlot slot, SpType type) {
    return obstacle != PlanObstacle::None &&
           (obstacle != PlanObstacle::NoRoom || sourceSlot(type) == slot);
}

OptionalDate wantedGpsDate(const MySinglePic &pic, const PlanContext &context) {
    const OptionalDate &present = pic.location.spGpsUTCDate;
    if (!present || !context.syncGPSDataOnSave)
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
    if (!isCleanDate(wanted))
        return;
    if (pic.location.isGpsXmp) {
        // Also a date that stays may be told by another wall clock, in another zone.
        plan.newGpsDate = planXmpGpsStamp(pic, *wanted, context, patches);
    } else if (wanted != pic.location.spGpsUTCDate && planGpsStamps(pic, *wanted, patches)) {
        plan.newGpsDate = cleanDate(wanted);
    }
    if (plan.newGpsDate == pic.location.spGpsUTCDate)
        plan.newGpsDate.reset();
}

/// Writing values moves the file's modification date, so it is set whenever something is written.
void planModificationDate(const MySinglePic &pic, PatchPlan &plan) {
    const OptionalDate &wanted = pic.slots.fileModificationDateNEW;
    if (!plan.patches.empty() || plan.toolAction || wanted != pic.slots.fileModificationDateOLD)
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

/// A stamp of the file's own tags, and the one of the packet that goes along with it.
StampPlan planTag(const MySinglePic &pic, StampSlot slot, const PlanContext &context,
                  std::vector<ValuePatch> &patches, PlanObstacle &obstacle) {
    StampPlan plan = planStamp(pic, slot, context, patches, obstacle);
    if (obstacle != PlanObstacle::None)
        return plan;
    const StampPlan follower = planXmpStamps(pic, slot, context, patches, obstacle);
    plan.isAmbiguous = plan.isAmbiguous || follower.isAmbiguous;
    if (plan.zoneChange.empty())
        plan.zoneChange = follower.zoneChange;
    return plan;
}

StampPlan planSlot(const MySinglePic &pic, StampSlot slot, const PlanContext &context,
                   std::vector<ValuePatch> &patches, PlanObstacle &obstacle) {
    if (pic.isMovie())
        return planMovieStamp(pic, slot, context, patches, obstacle);
    if (isTagToBeAdded(pic, slot))
        return planAddedTag(pic, slot, context, obstacle);
    return pic.isSlotXmp(slot) ? planXmpStamps(pic, slot, context, patches, obstacle)
                               : planTag(pic, slot, context, patches, obstacle);
}

void planToolAction(const MySinglePic &pic, const PlanContext &context, PatchPlan &plan) {
    if (pic.save.shouldAddExifDateTimeTags) {
        plan.toolAction = completeFullExifDateTags(pic, context);
        // Beside the new tags the packet is not read any more, though it is kept in step once more.
        if (pic.location.isGpsXmp)
            plan.newGpsDate.reset();
    }
    const std::vector<SupportStamp> support = supportStamps(pic, context);
    if (support.empty())
        return;
    ToolAction widening = extendShortXmpDateTags(support);
    if (plan.toolAction)
        std::ranges::move(widening.lines, std::back_inserter(plan.toolAction->lines));
    else
        plan.toolAction = std::move(widening);
}

/// One obstacle keeps the whole item from being written.
void refuseAllSlots(PatchPlan &plan) {
    for (StampPlan &stamp : plan.stamps) {
        if (stamp.result != SlotResult::WrittenInPlace && stamp.result != SlotResult::WrittenByTool)
            continue;
        stamp.result = SlotResult::Refused;
        stamp.obstacle = plan.obstacle;
    }
    plan.newGpsDate.reset();
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
    std::vector<ValuePatch> patches;
    patches.reserve(2 * stampSlots.size() + 2);
    for (std::size_t i = 0; i < stampSlots.size(); ++i) {
        PlanObstacle obstacle{};
        plan.stamps[i] = planSlot(pic, stampSlots[i], context, patches, obstacle);
        plan.stamps[i].obstacle = obstacle;
        if (isInTheWay(obstacle, stampSlots[i], pic.spType))
            plan.obstacle = obstacle;
    }
    planGps(pic, context, patches, plan);
    if (doPatchesCollide(pic.singlePicAttributes, patches))
        plan.obstacle = PlanObstacle::ValuesCollide;
    planToolAction(pic, context, plan);
    if (plan.obstacle != PlanObstacle::None) {
        plan.toolAction.reset();
        refuseAllSlots(plan);
        return plan;
    }
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
        SlotOutcome outcome{slot.name, pic.slots.*slot.oldDate, pic.slots.*slot.newDate};
        if (i < plan.stamps.size()) {
            outcome.result = plan.stamps[i].result;
            // Stamps hold whole seconds: what is told is what the file is found to say.
            if (isCleanDate(outcome.newDate))
                outcome.newDate = cleanDate(*outcome.newDate);
        } else if (plan.obstacle == PlanObstacle::None)
            outcome.result = fileSlotResult(pic, slot);
        if (outcome.result == SlotResult::Refused)
            outcome.reasonKey = textKey(plan.stamps[i].obstacle);
        outcomes.push_back(outcome);
    }
    return outcomes;
}

} // namespace chronomender
