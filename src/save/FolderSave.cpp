// SPDX-License-Identifier: GPL-3.0-or-later
#include "FolderSave.h"

#include "AfterSave.h"
#include "CompoundLivePhotos.h"
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
                                *outcome.error == SaveErrorId::NotReachable ||
                                outcome.isOfOtherHalf;
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
    m_reachablePath = m_folder->unlockedSecUrl();
    m_path = m_reachablePath.value_or(m_folder->sfFolderPath());
    const std::vector<Items> all = units();
    std::vector<Step> steps(m_items.size());
    const auto placeOf = [this](Items unit) {
        return static_cast<std::size_t>(unit.data() - m_items.data());
    };
    const std::size_t doneUnits = parallelFor(
        all.size(),
        [&](std::size_t i) {
            const Steps ofUnit = Steps(steps).subspan(placeOf(all[i]), all[i].size());
            save(all[i], ofUnit);
            report(all[i], ofUnit);
            std::for_each(ofUnit.begin(), ofUnit.end(), [&](const Step &) { progress.oneDone(); });
        },
        [&] { return m_services.cancellation.isRequested(); });
    const std::size_t done = doneUnits < all.size() ? placeOf(all[doneUnits]) : m_items.size();
    steps.resize(done);
    const bool isAnythingWritten =
        std::any_of(steps.begin(), steps.end(), [](const Step &s) { return s.outcome.isWritten; });
    if (isAnythingWritten && m_request.type == SaveProcessType::Save)
        (void)m_services.files.touchDirectory(m_path);
    if (done > 0)
        mainThread::callAndWait([&] { applyToModel(steps); });
    for (Step &step : steps) {
        // What a half says of the other's error is the same error.
        if (!step.outcome.isOfOtherHalf)
            result.errors.insert(result.errors.end(), step.report.errors.begin(),
                                 step.report.errors.end());
        result.items.push_back(std::move(step.report));
    }
    for (const ItemOutcome &item : m_items.subspan(done))
        result.items.push_back({item.pic, ItemResult::NotReached, item.slots, {}, {}});
    result.wasCancelled = result.wasCancelled || done < m_items.size();
}

std::vector<FolderSave::Items> FolderSave::units() const {
    std::vector<Items> all;
    all.reserve(m_items.size());
    for (std::size_t i = 0; i < m_items.size(); i += all.back().size()) {
        const bool isPair = i + 1 < m_items.size() &&
                            m_items[i + 1].pic->group.bundleDependentImage == m_items[i].pic;
        all.push_back(m_items.subspan(i, isPair ? 2 : 1));
    }
    return all;
}

void FolderSave::save(Items unit, Steps steps) const {
    const Step *obstructed = nullptr;
    for (std::size_t i = 0; i < unit.size(); ++i) {
        steps[i].plan = unit[i].plan.get();
        if (auto obstacle = obstacleOf(unit[i])) {
            steps[i].outcome = *std::move(obstacle);
            obstructed = &steps[i];
        }
    }
    if (obstructed) {
        for (Step &step : steps)
            if (isSuccess(step.outcome)) {
                step.outcome.error = obstructed->outcome.error;
                step.outcome.isOfOtherHalf = true;
            }
    } else if (unit.size() == 1) {
        steps[0].outcome = patchFile(jobOf(unit[0]), m_services.files);
    } else {
        PairOutcome pair = patchPair(jobOf(unit[0]), jobOf(unit[1]), m_services.files);
        steps[0].outcome = std::move(pair.dependent);
        steps[1].outcome = std::move(pair.master);
    }
}

PatchJob FolderSave::jobOf(const ItemOutcome &item) const {
    return {*item.pic, m_path + '/' + item.pic->spName, *item.plan};
}

/// Why the item's file is not even opened.
std::optional<PatchOutcome> FolderSave::obstacleOf(const ItemOutcome &item) const {
    PatchOutcome outcome;
    // What stage one could not reach has no plan.
    if (!m_reachablePath || !item.plan) {
        outcome.error = SaveErrorId::NotReachable;
        outcome.state = FileUnchangedState::NotFound;
        return outcome;
    }
    const PatchPlan &plan = *item.plan;
    const PlanObstacle obstacle = plan.obstacle != PlanObstacle::None ? plan.obstacle
                                  : !isAccepted(plan, item.problems)  ? PlanObstacle::NotAccepted
                                                                      : PlanObstacle::None;
    if (obstacle == PlanObstacle::None)
        return std::nullopt;
    outcome.error = SaveErrorId::NotWrittenUnreadableBack;
    outcome.systemText = text(textKey(obstacle));
    return outcome;
}

void FolderSave::report(Items unit, Steps steps) const {
    for (std::size_t i = 0; i < unit.size(); ++i)
        reportItem(unit[i], steps[i]);
    for (std::size_t i = 0; i < unit.size(); ++i)
        if (steps[i].outcome.isOfOtherHalf)
            steps[i].report.errors = steps[unit.size() - 1 - i].report.errors;
}

void FolderSave::reportItem(const ItemOutcome &item, Step &step) const {
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
            m_folder->saveErrors += step.outcome.isOfOtherHalf ? 0 : 1;
            continue;
        }
        if (summary.saved.empty() || summary.saved.back() != step.report.pic)
            summary.saved.push_back(step.report.pic);
        // A master whose dependent was saved alone had nothing else to be saved for.
        if (const MySinglePicPtr master = pic.bundleMasterImage())
            summary.saved.push_back(master);
        if (!pic.hasCorrectableDate())
            continue;
        if (needsFullUpdate(pic, *step.plan))
            summary.needingFullUpdate.push_back(step.report.pic);
        applySavedPlan(pic, *step.plan, step.outcome, *m_folder, m_services.zones);
    }
    clearDateValuesAfterSavingFolder(*m_folder, summary, m_services.undo, m_services.zones,
                                     m_services.defaults.integerForKey("dateComparisonThresold"));
    refreshCompoundLivePhotosStates(*m_folder, m_services.defaults);
}

} // namespace chronomender
