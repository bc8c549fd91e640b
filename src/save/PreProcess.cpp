// SPDX-License-Identifier: GPL-3.0-or-later
#include "PreProcess.h"

#include "MainThread.h"
#include "Parallel.h"
#include "PatchPlan.h"
#include "PreSaveCheck.h"
#include "Texts.h"
#include "UnchangedProof.h"

#include <algorithm>
#include <iterator>
#include <memory>

namespace chronomender {
namespace {

bool takesPart(const MySinglePicPtr &pic) {
    return pic && !pic->importState.isLeftAlone;
}

bool isToBeSaved(const MySinglePic &pic, bool savingAll) {
    if (pic.positions.indexInSource_full < 0 || pic.isMovedToTrash)
        return false;
    const bool isAnySideReady =
        !pic.importState.isLeftAlone || takesPart(pic.group.bundleDependentImage);
    return savingAll ? isAnySideReady : pic.isUnsavedOrGroupHarmonized();
}

/// Which files of a group a save writes.
enum class Scope { Both, Item, Dependent };

Scope scopeOf(const MySinglePic &pic, bool savingAll) {
    const MySinglePicPtr &dependent = pic.group.bundleDependentImage;
    if (!takesPart(dependent))
        return Scope::Item;
    if (pic.importState.isLeftAlone)
        return Scope::Dependent;
    if (savingAll || pic.isUnsavedIgnoringSaveError())
        return Scope::Both;
    // An error of the other half's earlier save is made good with it.
    if (pic.isBundleMasterAffectedByHarmonization())
        return dependent->save.saveErrorType != 0 ? Scope::Both : Scope::Item;
    return pic.save.saveErrorType != 0 ? Scope::Both : Scope::Dependent;
}

ItemResult resultOfDryRun(const FileUnchangedState state, const PatchPlan &plan) {
    if (state != FileUnchangedState::Unchanged)
        return ItemResult::Refused;
    if (plan.obstacle != PlanObstacle::None)
        return ItemResult::Failed;
    return plan.isEmpty() ? ItemResult::Unchanged : ItemResult::Saved;
}

bool isImpossible(const ItemOutcome &outcome) {
    return outcome.result == ItemResult::Refused || outcome.result == ItemResult::Failed;
}

/// Of a group both files are written or none.
void alignResults(ItemOutcome &a, ItemOutcome &b) {
    if (isImpossible(a) != isImpossible(b))
        (isImpossible(a) ? b : a).result = ItemResult::Refused;
}

} // namespace

std::vector<MySinglePicPtr> itemsToSave(const MySingleFolder &folder, bool savingAll) {
    std::vector<MySinglePicPtr> items;
    std::copy_if(folder.sfPicDetails_fullArray.begin(), folder.sfPicDetails_fullArray.end(),
                 std::back_inserter(items),
                 [&](const MySinglePicPtr &pic) { return isToBeSaved(*pic, savingAll); });
    return items;
}

FolderPreProcess::FolderPreProcess(const MySingleFolderPtr &folder,
                                   std::vector<MySinglePicPtr> items, const SaveRequest &request,
                                   const SaveServices &services, const DateChangeOptions &options)
    : m_folder(folder),
      m_items(std::move(items)),
      m_request(request),
      m_services(services),
      m_plans(*folder, services.zones, services.defaults) {
    m_dates.mode = CalculationMode::Save;
    m_dates.options = options;
    m_dates.dateComparisonThresold = services.defaults.integerForKey("dateComparisonThresold");
    m_dates.dateChangeTypeAtLocationOnlyChanges =
        services.defaults.integerForKey("dateChangeTypeAtLocationOnlyChanges");
}

bool FolderPreProcess::run(ProgressCounter &progress, PreProcessResult &result) {
    const auto path = m_folder->unlockedSecUrl();
    if (!path) {
        refuseUnreachable(result);
        return true;
    }
    m_path = *path;
    std::vector<Finding> findings(m_items.size());
    const std::size_t done = parallelFor(
        m_items.size(),
        [&](std::size_t i) {
            examine(m_items[i], findings[i]);
            progress.oneDone();
        },
        [&] { return m_services.cancellation.isRequested(); });
    findings.resize(done);
    mainThread::callAndWait([&] {
        for (const Finding &finding : findings) {
            store(finding.item);
            if (finding.dependent)
                store(*finding.dependent);
        }
    });
    for (Finding &finding : findings) {
        if (finding.dependent)
            append(*finding.dependent, result);
        append(finding.item, result);
    }
    return done == m_items.size();
}

/// The calculation writes into its item, and into the dependent that it reaches for. So it works on
/// copies of both: views may be looking at the items.
void FolderPreProcess::examine(const MySinglePicPtr &pic, Finding &finding) const {
    const auto proved = [&](const MySinglePic &original) {
        return provedCopy(original, *m_folder, m_path, m_services.files);
    };
    const MySinglePicPtr copy = proved(*pic);
    const MySinglePicPtr dependent = pic->group.bundleDependentImage;
    const MySinglePicPtr copyOfDependent = dependent ? proved(*dependent) : nullptr;
    if (dependent) {
        copy->group.bundleDependentImage = copyOfDependent;
        copyOfDependent->group.bundleMasterImage = copy;
    }
    const Scope scope = scopeOf(*copy, m_request.savingAll);
    calculateNewDates(*copy, m_dates);
    finding.item = found(pic, *copy, scope != Scope::Dependent);
    if (dependent)
        finding.dependent = found(dependent, *copyOfDependent, scope != Scope::Item);
    // The item speaks for both files where both are written.
    Side &speaker = scope == Scope::Dependent ? *finding.dependent : finding.item;
    const MySinglePic &spoken = scope == Scope::Dependent ? *copyOfDependent : *copy;
    if (const auto problem = checkFileUnchangedStateForSaveRenameErrors(spoken))
        speaker.outcome.problems.insert(speaker.outcome.problems.begin(),
                                        {speaker.pic, *problem, {}});
    if (scope != Scope::Both)
        return;
    ItemOutcome &outcome = finding.item.outcome;
    if (isDriftingApart(*copy, *outcome.plan, *copyOfDependent, *finding.dependent->outcome.plan))
        outcome.problems.push_back({pic, PreSaveProblem::error_04_livePhotoDriftingApart, {}});
    alignResults(outcome, finding.dependent->outcome);
}

FolderPreProcess::Side FolderPreProcess::found(const MySinglePicPtr &pic, const MySinglePic &copy,
                                               bool isPartOfSave) const {
    Side side{pic,
              copy.save.fileUnchangedState,
              copy.save.lastCheckedAt,
              copy.slots,
              copy.spDateTimeModified_tempFIX,
              copy.save.isAffectedBySave,
              isPartOfSave,
              {}};
    if (isPartOfSave)
        judge(copy, side);
    return side;
}

void FolderPreProcess::judge(const MySinglePic &copy, Side &side) const {
    ItemOutcome &outcome = side.outcome;
    outcome.pic = side.pic;
    const auto planned = std::make_shared<PatchPlan>(planForPic(copy, m_plans));
    const PatchPlan &plan = *planned;
    outcome.plan = planned;
    if (m_request.savingAll || copy.isUnsavedIgnoringSaveError() ||
        copy.isBundleMasterAffectedByHarmonization())
        checkCalculatedValuesForSaveErrors(side.pic, copy, plan, outcome.problems);
    if (plan.obstacle != PlanObstacle::None)
        outcome.errors.push_back({SaveErrorId::NotWrittenUnreadableBack, m_path + '/' + copy.spName,
                                  text(textKey(plan.obstacle))});
    outcome.result = resultOfDryRun(side.state, plan);
    outcome.slots = slotOutcomes(copy, plan);
}

void FolderPreProcess::store(const Side &side) {
    side.pic->save.fileUnchangedState = side.state;
    side.pic->save.lastCheckedAt = side.lastCheckedAt;
    side.pic->slots = side.slots;
    side.pic->spDateTimeModified_tempFIX = side.modified;
    side.pic->save.isAffectedBySave = side.isAffectedBySave;
}

void FolderPreProcess::append(Side &side, PreProcessResult &result) {
    if (!side.isPartOfSave)
        return;
    ItemOutcome &outcome = side.outcome;
    result.problems.insert(result.problems.end(), outcome.problems.begin(), outcome.problems.end());
    result.items.push_back(std::move(outcome));
}

void FolderPreProcess::refuseUnreachable(PreProcessResult &result) const {
    for (const MySinglePicPtr &pic : m_items) {
        const PreSaveFinding finding{pic, PreSaveProblem::error_10_disconnected, {}};
        result.problems.push_back(finding);
        if (const MySinglePicPtr &dependent = pic->group.bundleDependentImage)
            result.items.push_back({dependent, ItemResult::Refused, {}, {}, {}});
        result.items.push_back({pic, ItemResult::Refused, {}, {finding}, {}});
    }
}

} // namespace chronomender
