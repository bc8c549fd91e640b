// SPDX-License-Identifier: GPL-3.0-or-later
#include "FolderSave.h"

#include "AfterSave.h"
#include "MainThread.h"
#include "Parallel.h"
#include "Texts.h"

#include <algorithm>

namespace chronomender {
namespace {

ItemResult resultOf(const PatchOutcome &outcome) {
    if (!outcome.error)
        return outcome.isWritten ? ItemResult::Saved : ItemResult::Unchanged;
    const bool hasProofFailed = *outcome.error == SaveErrorId::ChangedSinceImport ||
                                *outcome.error == SaveErrorId::NotReachable;
    return hasProofFailed ? ItemResult::Refused : ItemResult::Failed;
}

bool isSuccess(const PatchOutcome &outcome) {
    return !outcome.error;
}

} // namespace

FolderSave::FolderSave(const MySingleFolderPtr &folder, std::span<const ItemOutcome> items,
                       const SaveRequest &request, const SaveServices &services)
    : m_folder(folder), m_items(items), m_request(request), m_services(services) {}

void FolderSave::run(ProgressCounter &progress, SaveRunResult &result) {
    const auto path = m_folder->unlockedSecUrl();
    m_path = path.value_or(m_folder->sfFolderPath());
    std::vector<Step> steps(m_items.size());
    const std::size_t done = parallelFor(
        m_items.size(),
        [&](std::size_t i) {
            // What stage one could not reach has no plan.
            steps[i] = path && m_items[i].plan ? save(m_items[i]) : unreachable();
            report(m_items[i], steps[i]);
            progress.oneDone();
        },
        [&] { return m_services.cancellation.isRequested(); });
    steps.resize(done);
    const bool isAnythingWritten =
        std::any_of(steps.begin(), steps.end(), [](const Step &s) { return s.outcome.isWritten; });
    if (isAnythingWritten && m_request.type == SaveProcessType::Save)
        (void)m_services.files.touchDirectory(m_path);
    if (done > 0)
        mainThread::callAndWait([&] { applyToModel(steps); });
    for (Step &step : steps) {
        result.errors.insert(result.errors.end(), step.report.errors.begin(),
                             step.report.errors.end());
        result.items.push_back(std::move(step.report));
    }
    for (const ItemOutcome &item : m_items.subspan(done))
        result.items.push_back({item.pic, ItemResult::NotReached, item.slots, {}, {}});
    result.wasCancelled = result.wasCancelled || done < m_items.size();
}

FolderSave::Step FolderSave::save(const ItemOutcome &item) const {
    Step step{item.plan.get(), {}, {}};
    const PatchPlan &plan = *item.plan;
    const PlanObstacle obstacle = plan.obstacle != PlanObstacle::None ? plan.obstacle
                                  : !isAccepted(plan, item.problems)  ? PlanObstacle::NotAccepted
                                                                      : PlanObstacle::None;
    if (obstacle == PlanObstacle::None) {
        step.outcome =
            patchFile(*item.pic, m_path + '/' + item.pic->spName, plan, m_services.files);
        return step;
    }
    step.outcome.error = SaveErrorId::NotWrittenUnreadableBack;
    step.outcome.systemText = text(textKey(obstacle));
    return step;
}

FolderSave::Step FolderSave::unreachable() {
    Step step;
    step.outcome.error = SaveErrorId::NotReachable;
    step.outcome.state = FileUnchangedState::NotFound;
    return step;
}

void FolderSave::report(const ItemOutcome &item, Step &step) const {
    ItemOutcome &report = step.report;
    report.pic = item.pic;
    report.result = resultOf(step.outcome);
    report.slots = item.slots;
    if (isSuccess(step.outcome))
        return;
    // Of an item that was not written, no slot is.
    for (SlotOutcome &slot : report.slots)
        slot.result = slot.result == SlotResult::WrittenInPlace ? SlotResult::Refused : slot.result;
    report.errors.push_back(
        {*step.outcome.error, m_path + '/' + item.pic->spName, step.outcome.systemText});
}

void FolderSave::applyToModel(std::vector<Step> &steps) const {
    FolderSaveSummary summary;
    m_folder->fixedDates = 0;
    m_folder->saveErrors = 0;
    for (const Step &step : steps) {
        MySinglePic &pic = *step.report.pic;
        if (!isSuccess(step.outcome)) {
            applySaveFailure(pic, step.outcome, m_request.savingAll);
            ++m_folder->saveErrors;
            continue;
        }
        summary.saved.push_back(step.report.pic);
        if (!pic.hasCorrectableDate())
            continue;
        if (needsFullUpdate(pic, *step.plan))
            summary.needingFullUpdate.push_back(step.report.pic);
        applySavedPlan(pic, *step.plan, step.outcome, *m_folder, m_services.zones);
    }
    clearDateValuesAfterSavingFolder(*m_folder, summary, m_services.undo, m_services.zones,
                                     m_services.defaults.integerForKey("dateComparisonThresold"));
}

} // namespace chronomender
