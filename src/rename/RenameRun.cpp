// SPDX-License-Identifier: GPL-3.0-or-later
#include "RenameRun.h"

#include "AddOnMemory.h"
#include "FolderRename.h"
#include "MainThread.h"
#include "RenameOutcome.h"
#include "RenamePlanner.h"

#include <iterator>

namespace chronomender {
namespace {

/// A file that a save has not brought to its end must stay where it is: the record of that save
/// knows it by its path.
RenamePlanner::Pics leftBySave(const SaveRunResult &result) {
    RenamePlanner::Pics pics;
    for (const ItemOutcome &item : result.items)
        if (item.result == ItemResult::Failed || item.result == ItemResult::Refused ||
            !item.errors.empty())
            pics.insert(item.pic.get());
    return pics;
}

void clearFlags(MySinglePic &pic) {
    pic.save.isInvalidDueToChangesAfterImport = false;
    pic.save.isVerifiedDuringSave = false;
}

/// What was proved for this run, and what was found out in it, does not hold for the next one.
void clearFlags(const RenamePlan &plan, const SaveRunResult &result) {
    for (const FolderMoves &folder : plan.folders)
        for (const ItemMoves &item : folder.items) {
            clearFlags(*item.pic);
            if (const MySinglePicPtr &dependent = item.pic->group.bundleDependentImage)
                clearFlags(*dependent);
        }
    for (const ItemOutcome &item : result.items)
        clearFlags(*item.pic);
}

void append(std::vector<ItemRename> outcomes, SaveRunResult &result) {
    for (const ItemRename &outcome : outcomes)
        result.errors.insert(result.errors.end(), outcome.errors.begin(), outcome.errors.end());
    std::ranges::move(outcomes, std::back_inserter(result.renames));
}

} // namespace

void RenameRun::run(const SaveRequest &request, const PreProcessResult &, SaveRunResult &result) {
    std::optional<RenameChoices> choices;
    RenameScope scope;
    mainThread::callAndWait([&] {
        choices = m_session.choices();
        scope = m_session.scope(request);
        if (choices)
            rememberAddOns(scope, *choices);
    });
    RenamePlan plan;
    if (choices) {
        const RenamePlanner planner(scope, *choices, m_services, leftBySave(result));
        plan = planner.wantedNames();
        const std::size_t total = 2 * itemCount(plan);
        ProgressCounter progress(m_services.progress, total,
                                 SaveDriver::piValueForCount(total / 2));
        planner.prove(plan, progress);
        planner.giveNames(plan);
        moveFiles(plan, *choices, scope.onlyPics.has_value(), progress, result);
    }
    mainThread::callAndWait([&] { clearFlags(plan, result); });
}

void RenameRun::moveFiles(RenamePlan &plan, const RenameChoices &choices, bool isOfSelection,
                          ProgressCounter &progress, SaveRunResult &result) {
    for (FolderMoves &folder : plan.folders) {
        const bool isCancelled = plan.wasCancelled || m_services.cancellation.isRequested();
        if (!isCancelled)
            FolderRename(folder, m_services).run([&progress] { progress.oneDone(); });
        std::vector<ItemRename> outcomes = outcomesOfRun(folder, choices);
        if (!isCancelled)
            mainThread::callAndWait(
                [&] { applyToModel(folder, outcomes, choices, isOfSelection); });
        result.wasCancelled = result.wasCancelled || isCancelled;
        append(std::move(outcomes), result);
    }
}

std::vector<ItemRename> RenameRun::renamePreview(const SaveRequest &request) {
    std::optional<RenameChoices> choices;
    RenameScope scope;
    mainThread::callAndWait([&] {
        choices = m_session.choices();
        scope = m_session.scope(request);
    });
    if (!choices)
        return {};
    return outcomesOf(planRename(scope, *choices, m_services), *choices);
}

} // namespace chronomender
