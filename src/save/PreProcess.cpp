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

namespace chronomender {
namespace {

bool isToBeSaved(const MySinglePic &pic, bool savingAll) {
    return pic.positions.indexInSource_full >= 0 && !pic.isMovedToTrash &&
           !pic.importState.isLeftAlone && (savingAll || pic.isUnsavedOrGroupHarmonized());
}

ItemResult resultOfDryRun(const FileUnchangedState state, const PatchPlan &plan) {
    if (state != FileUnchangedState::Unchanged)
        return ItemResult::Refused;
    if (plan.obstacle != PlanObstacle::None)
        return ItemResult::Failed;
    return plan.isEmpty() ? ItemResult::Unchanged : ItemResult::Saved;
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
    mainThread::callAndWait([&] {
        for (std::size_t i = 0; i < done; ++i)
            store(m_items[i], findings[i]);
    });
    for (std::size_t i = 0; i < done; ++i) {
        ItemOutcome &outcome = findings[i].outcome;
        result.problems.insert(result.problems.end(), outcome.problems.begin(),
                               outcome.problems.end());
        result.items.push_back(std::move(outcome));
    }
    return done == m_items.size();
}

/// The calculation writes into its item, so it works on a copy: views may be looking at the item.
void FolderPreProcess::examine(const MySinglePicPtr &pic, Finding &finding) const {
    MySinglePic work = *pic;
    const std::string path = m_path + '/' + work.spName;
    finding.state = updatedUnchangedFileState(work, *m_folder, path, m_services.files);
    work.save.fileUnchangedState = finding.state;
    ItemOutcome &outcome = finding.outcome;
    outcome.pic = pic;
    if (const auto problem = checkFileUnchangedStateForSaveRenameErrors(work))
        outcome.problems.push_back({pic, *problem, {}});
    calculateNewDates(work, m_dates);
    const auto planned = std::make_shared<PatchPlan>(planForPic(work, m_plans));
    const PatchPlan &plan = *planned;
    outcome.plan = planned;
    if (m_request.savingAll || work.isUnsavedIgnoringSaveError() ||
        work.isBundleMasterAffectedByHarmonization())
        checkCalculatedValuesForSaveErrors(pic, work, plan, outcome.problems);
    if (plan.obstacle != PlanObstacle::None)
        outcome.errors.push_back(
            {SaveErrorId::NotWrittenUnreadableBack, path, text(textKey(plan.obstacle))});
    outcome.result = resultOfDryRun(finding.state, plan);
    outcome.slots = slotOutcomes(work, plan);
    finding.lastCheckedAt = work.save.lastCheckedAt;
    finding.slots = work.slots;
    finding.modified = work.spDateTimeModified_tempFIX;
    finding.isAffectedBySave = work.save.isAffectedBySave;
}

void FolderPreProcess::store(const MySinglePicPtr &pic, const Finding &finding) {
    pic->save.fileUnchangedState = finding.state;
    pic->save.lastCheckedAt = finding.lastCheckedAt;
    pic->slots = finding.slots;
    pic->spDateTimeModified_tempFIX = finding.modified;
    pic->save.isAffectedBySave = finding.isAffectedBySave;
}

void FolderPreProcess::refuseUnreachable(PreProcessResult &result) const {
    for (const MySinglePicPtr &pic : m_items) {
        const PreSaveFinding finding{pic, PreSaveProblem::error_10_disconnected, {}};
        result.problems.push_back(finding);
        result.items.push_back({pic, ItemResult::Refused, {}, {finding}, {}});
    }
}

} // namespace chronomender
