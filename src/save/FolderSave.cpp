// SPDX-License-Identifier: GPL-3.0-or-later
#include "FolderSave.h"

#include "AfterSave.h"
#include "BatchWriter.h"
#include "CompoundLivePhotos.h"
#include "MainThread.h"
#include "Texts.h"
#include "ZoneLookup.h"

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

bool isWritten(SlotResult result) {
    return result == SlotResult::WrittenInPlace || result == SlotResult::WrittenByTool;
}

} // namespace

FolderSave::FolderSave(const MySingleFolderPtr &folder, std::span<const ItemOutcome> items,
                       const SaveRequest &request, const SaveServices &services)
    : m_folder(folder), m_items(items), m_request(request), m_services(services) {}

void FolderSave::run(ProgressCounter &progress, SaveRunResult &result) {
    m_reachablePath = m_folder->unlockedSecUrl();
    m_path = m_reachablePath.value_or(m_folder->sfFolderPath());
    std::vector<Step> all = steps();
    refuseObstructed(all);
    write(all, progress);
    report(all);
    const auto any = [&](auto isSo) { return std::any_of(all.begin(), all.end(), isSo); };
    if (any([](const Step &step) { return step.outcome.isWritten; }) &&
        m_request.type == SaveProcessType::Save)
        (void)m_services.files.touchDirectory(m_path);
    if (any([](const Step &step) { return step.isReached; }))
        mainThread::callAndWait([&] { applyToModel(all); });
    for (Step &step : all) {
        // What a half says of the other's error is the same error.
        if (!step.outcome.isOfOtherHalf)
            result.errors.insert(result.errors.end(), step.report.errors.begin(),
                                 step.report.errors.end());
        result.wasCancelled = result.wasCancelled || !step.isReached;
        result.items.push_back(std::move(step.report));
    }
}

/// A group's dependent stands right before its master.
std::vector<FolderSave::Step> FolderSave::steps() const {
    std::vector<Step> all(m_items.size());
    for (std::size_t i = 0; i < all.size(); ++i) {
        const bool isMaster =
            i > 0 && m_items[i].pic->group.bundleDependentImage == m_items[i - 1].pic;
        all[i].item = &m_items[i];
        all[i].group = isMaster ? i - 1 : i;
    }
    return all;
}

std::size_t FolderSave::sizeOfGroup(const std::vector<Step> &steps, std::size_t first) {
    return first + 1 < steps.size() && steps[first + 1].group == first ? 2 : 1;
}

/// What keeps one file of a group from being written keeps the other.
void FolderSave::refuseObstructed(std::vector<Step> &steps) const {
    const Step *obstructed = nullptr;
    for (std::size_t first = 0; first < steps.size(); first += sizeOfGroup(steps, first)) {
        const std::span<Step> group(&steps[first], sizeOfGroup(steps, first));
        for (Step &step : group)
            if (auto obstacle = obstacleOf(*step.item)) {
                step.outcome = *std::move(obstacle);
                obstructed = &step;
            }
        if (!obstructed)
            continue;
        for (Step &step : group) {
            step.isReached = true;
            if (!step.outcome.error) {
                step.outcome.error = obstructed->outcome.error;
                step.outcome.isOfOtherHalf = true;
            }
        }
        obstructed = nullptr;
    }
}

void FolderSave::write(std::vector<Step> &steps, ProgressCounter &progress) const {
    std::vector<WriteUnit> units;
    std::vector<std::size_t> firstSteps;
    units.reserve(steps.size());
    firstSteps.reserve(steps.size());
    for (std::size_t first = 0; first < steps.size(); first += sizeOfGroup(steps, first)) {
        const std::size_t count = sizeOfGroup(steps, first);
        if (steps[first].isReached) {
            for (std::size_t i = 0; i < count; ++i)
                progress.oneDone();
            continue;
        }
        std::vector<PatchJob> jobs;
        jobs.reserve(count);
        for (const Step &step : std::span(steps).subspan(first, count))
            jobs.push_back(jobOf(*step.item));
        units.emplace_back(std::move(jobs), m_services.files);
        firstSteps.push_back(first);
    }
    const std::size_t done = BatchWriter(m_services, [&progress](const WriteUnit &unit) {
                                 for (std::size_t i = 0; i < unit.fileCount(); ++i)
                                     progress.oneDone();
                             }).run(units);
    for (std::size_t unit = 0; unit < done; ++unit)
        for (std::size_t i = 0; i < units[unit].fileCount(); ++i) {
            Step &step = steps[firstSteps[unit] + i];
            step.isReached = true;
            step.outcome = units[unit].outcome(i);
        }
}

PatchJob FolderSave::jobOf(const ItemOutcome &item) const {
    const MySinglePic &pic = *item.pic;
    const PatchPlan &plan = *item.plan;
    PatchJob job{pic, m_path + '/' + pic.spName, plan};
    if (plan.toolAction)
        job.readAgain = [&pic, &plan,
                         zone = targetTimeZoneForPic(pic, *m_folder, m_services.zones).rules](
                            OpenFile &file) { return readBehindTool(pic, plan, file, zone); };
    return job;
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

void FolderSave::report(std::vector<Step> &steps) const {
    for (Step &step : steps)
        reportItem(step);
    for (std::size_t i = 0; i < steps.size(); ++i)
        if (steps[i].outcome.isOfOtherHalf)
            steps[i].report.errors = steps[2 * steps[i].group + 1 - i].report.errors;
}

void FolderSave::reportItem(Step &step) const {
    const ItemOutcome &item = *step.item;
    ItemOutcome &report = step.report;
    report.pic = item.pic;
    report.result = step.isReached ? resultOf(step.outcome) : ItemResult::NotReached;
    report.slots = item.slots;
    if (!step.outcome.error)
        return;
    // Of an item that was not written, no slot is.
    for (SlotOutcome &slot : report.slots)
        if (isWritten(slot.result))
            slot.result = SlotResult::Refused;
    report.errors.push_back(
        {*step.outcome.error, m_path + '/' + item.pic->spName, step.outcome.systemText});
}

/// Whether what was verified here is asked for behind this step.
bool FolderSave::isReadByLaterSteps() const {
    return m_request.type != SaveProcessType::Save ||
           m_services.defaults.boolForKey("syncXMPDataOnSave");
}

void FolderSave::applyToModel(const std::vector<Step> &steps) const {
    FolderSaveSummary summary;
    m_folder->fixedDates = 0;
    m_folder->saveErrors = 0;
    for (const Step &step : steps) {
        if (!step.isReached)
            continue;
        MySinglePic &pic = *step.report.pic;
        if (step.outcome.error) {
            applySaveFailure(pic, step.outcome, m_request.savingAll);
            m_folder->saveErrors += step.outcome.isOfOtherHalf ? 0 : 1;
            continue;
        }
        pic.save.isVerifiedDuringSave = isReadByLaterSteps();
        if (summary.saved.empty() || summary.saved.back() != step.report.pic)
            summary.saved.push_back(step.report.pic);
        // A master whose dependent was saved alone had nothing else to be saved for.
        if (const MySinglePicPtr master = pic.bundleMasterImage())
            summary.saved.push_back(master);
        if (!pic.hasCorrectableDate())
            continue;
        if (needsFullUpdate(pic, *step.item->plan))
            summary.needingFullUpdate.push_back(step.report.pic);
        applySavedPlan(pic, *step.item->plan, step.outcome, *m_folder, m_services.zones);
    }
    clearDateValuesAfterSavingFolder(*m_folder, summary, m_services.undo, m_services.zones,
                                     m_services.defaults.integerForKey("dateComparisonThresold"));
    refreshCompoundLivePhotosStates(*m_folder, m_services.defaults);
}

} // namespace chronomender
