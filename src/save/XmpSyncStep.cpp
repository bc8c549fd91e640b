// SPDX-License-Identifier: GPL-3.0-or-later
#include "XmpSyncStep.h"

#include "BatchWriter.h"
#include "ItemFilling.h"
#include "MainThread.h"
#include "Parallel.h"
#include "PreProcess.h"
#include "XmpSyncPlan.h"

#include <iterator>

namespace chronomender {

/// One item on its way through the sync.
struct XmpSyncStep::SyncedItem {
    MySinglePicPtr pic;
    std::size_t place = 0; ///< among the run's items
    std::optional<XmpSyncPlan> sync;
    std::optional<XmpSyncProblem> problem;
    PatchOutcome outcome;
};

namespace {

using SyncedItem = XmpSyncStep::SyncedItem;

std::vector<SyncedItem> itemsToSync(const SaveRunResult &result) {
    std::vector<SyncedItem> items;
    for (std::size_t i = 0; i < result.items.size(); ++i)
        if (const MySinglePicPtr &pic = result.items[i].pic;
            pic->save.isVerifiedDuringSave && shouldSyncXmpChangesForPic(*pic))
            items.push_back({pic, i, {}, {}, {}});
    return items;
}

/// Opening a sidecar fails under another id than opening the item's own file.
SaveErrorId idOf(const SyncedItem &item) {
    if (*item.outcome.error != SaveErrorId::CannotBeOpened)
        return *item.outcome.error;
    return item.sync->isSidecar ? SaveErrorId::SidecarCannotBeOpened
                                : SaveErrorId::SyncCannotBeOpened;
}

std::optional<SaveError> errorOf(const SyncedItem &item) {
    if (item.problem)
        return SaveError{item.problem->id, item.problem->path, item.problem->systemText};
    if (item.outcome.error)
        return SaveError{idOf(item), item.sync->path, item.outcome.systemText};
    return std::nullopt;
}

void report(const std::vector<SyncedItem> &items, SaveRunResult &result) {
    for (const SyncedItem &item : items)
        if (const auto error = errorOf(item)) {
            result.errors.push_back(*error);
            result.items[item.place].errors.push_back(*error);
        }
}

void applyToModel(SyncedItem &item) {
    if (!item.outcome.attributes || !item.sync)
        return;
    if (!item.sync->isSidecar) {
        takeFileAttributes(*item.pic, *item.outcome.attributes);
        return;
    }
    SinglePicAttributes &recorded = item.sync->recorded->singlePicAttributes;
    applyPatches(recorded, item.sync->plan.patches);
    item.pic->relevantSidecarInfos.dates = std::move(recorded.xmpDateInfos);
}

} // namespace

bool XmpSyncStep::isPartOf(const SaveRequest &request) const {
    return request.type != SaveProcessType::Rename &&
           m_services.defaults.boolForKey("syncXMPDataOnSave");
}

/// Reads the packets side by side; items behind a cancellation have no plan.
void XmpSyncStep::plan(std::vector<SyncedItem> &items) const {
    parallelFor(
        items.size(),
        [&](std::size_t i) {
            SyncedItem &item = items[i];
            if (const MySingleFolderPtr folder = item.pic->spSingleRealFolder())
                item.sync = planXmpSync(*item.pic,
                                        PlanContext(*folder, m_services.zones, m_services.defaults),
                                        m_services.files, item.problem);
        },
        [&] { return m_services.cancellation.isRequested(); });
}

void XmpSyncStep::write(std::vector<SyncedItem> &items) const {
    ProgressCounter progress(m_services.progress, items.size(),
                             SaveDriver::piValueForCount(items.size()));
    std::vector<WriteUnit> units;
    std::vector<SyncedItem *> itemsOfUnits;
    for (SyncedItem &item : items)
        if (item.sync && !item.sync->plan.isEmpty()) {
            std::vector<PatchJob> jobs{
                {*item.sync->recorded, item.sync->path, item.sync->plan, {}}};
            units.emplace_back(std::move(jobs), m_services.files);
            itemsOfUnits.push_back(&item);
        } else {
            progress.oneDone();
        }
    const std::size_t done =
        BatchWriter(m_services, [&](const WriteUnit &) { progress.oneDone(); }).run(units);
    for (std::size_t unit = 0; unit < done; ++unit)
        itemsOfUnits[unit]->outcome = units[unit].outcome(0);
}

void XmpSyncStep::run(const SaveRequest &request, const PreProcessResult &, SaveRunResult &result) {
    std::vector<SyncedItem> items = itemsToSync(result);
    plan(items);
    write(items);
    result.wasCancelled = result.wasCancelled || m_services.cancellation.isRequested();
    report(items, result);
    mainThread::callAndWait([&] {
        for (SyncedItem &item : items)
            applyToModel(item);
        for (const ItemOutcome &item : result.items)
            if (request.type == SaveProcessType::Save)
                item.pic->save.isVerifiedDuringSave = false;
    });
}

} // namespace chronomender
