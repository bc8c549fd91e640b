// SPDX-License-Identifier: GPL-3.0-or-later
#include "SaveDriver.h"

#include "MainThread.h"
#include "PreProcess.h"
#include "RenameProof.h"
#include "RunStep.h"
#include "SaveStep.h"
#include "XmpSyncStep.h"

#include <absl/time/clock.h>

#include <algorithm>

namespace chronomender {
namespace {

constexpr std::size_t kPreProcessStep = 100;

bool isSavingType(SaveProcessType type) {
    return type != SaveProcessType::Rename;
}
bool isRenamingType(SaveProcessType type) {
    return type != SaveProcessType::Save;
}

/// What stage one looks at in one folder.
struct FolderItems {
    std::vector<MySinglePicPtr> saved, onlyRenamed;
};

FolderItems itemsOf(const MySingleFolder &folder, const SaveRequest &request) {
    FolderItems items;
    if (isSavingType(request.type))
        items.saved = itemsToSave(folder, request.savingAll);
    if (isRenamingType(request.type))
        items.onlyRenamed = itemsToRename(folder, request, items.saved);
    return items;
}

} // namespace

SaveDriver::SaveDriver(const std::vector<MySingleFolderPtr> &folders, SaveServices services)
    : m_folders(folders), m_services(std::move(services)) {
    m_steps.push_back(std::make_unique<SaveStep>(m_services));
    m_steps.push_back(std::make_unique<XmpSyncStep>(m_services));
}

SaveDriver::~SaveDriver() = default;

void SaveDriver::appendStep(std::unique_ptr<RunStep> step) {
    m_steps.push_back(std::move(step));
}

std::shared_ptr<const void> SaveDriver::beginPartOfSave() {
    const unsigned own = ++m_lastSave;
    *m_saveInProgress = own;
    const auto end = [current = m_saveInProgress, own](const void *) {
        unsigned expected = own;
        current->compare_exchange_strong(expected, 0);
    };
    return {m_saveInProgress.get(), end};
}

std::size_t SaveDriver::piValueForCount(std::size_t count) {
    constexpr std::size_t updates = 10, mostBetween = 25;
    return count < updates ? 1 : std::min(count / updates, mostBetween);
}

std::vector<MySingleFolderPtr> SaveDriver::foldersToSave(const SaveRequest &request) const {
    if (!request.onlyFolders.empty() && request.type != SaveProcessType::SaveThenRenameAll)
        return request.onlyFolders;
    std::vector<MySingleFolderPtr> folders;
    for (const MySingleFolderPtr &folder : m_folders) {
        const bool isAll = request.type == SaveProcessType::SaveThenRenameAll ||
                           request.type == SaveProcessType::Rename;
        const bool hasWork = request.savingAll || folder->isUnsavedFolder();
        if (folder->count() > 0 && (isAll || (hasWork && !folder->isEXIFIgnored)))
            folders.push_back(folder);
    }
    return folders;
}

PreProcessResult SaveDriver::preProcessThread(const SaveRequest &request) {
    PreProcessResult result;
    result.savingInProgress = beginPartOfSave();
    std::vector<FolderItems> items;
    std::size_t total = 0;
    mainThread::callAndWait([&] {
        result.folders = foldersToSave(request);
        items.reserve(result.folders.size());
        for (const MySingleFolderPtr &folder : result.folders) {
            // From here on every proof that was taken before is out of date.
            folder->lastLocalChange = absl::Now();
            items.push_back(itemsOf(*folder, request));
            total += items.back().saved.size() + items.back().onlyRenamed.size();
        }
    });
    const DateChangeOptions options =
        cachedSaveOptions(m_services.defaults, m_services.now(), request.savingAll);
    ProgressCounter progress(m_services.progress, total, kPreProcessStep);
    for (std::size_t i = 0; i < items.size() && !result.wasCancelled; ++i) {
        const MySingleFolderPtr &folder = result.folders[i];
        result.wasCancelled =
            (!items[i].saved.empty() &&
             !FolderPreProcess(folder, std::move(items[i].saved), request, m_services, options)
                  .run(progress, result)) ||
            (!items[i].onlyRenamed.empty() &&
             !proveForRename(*folder, items[i].onlyRenamed, m_services, progress, result));
    }
    return result;
}

SaveRunResult SaveDriver::continueProcessThread(const SaveRequest &request,
                                                const PreProcessResult &preProcess) {
    const auto inProgress = beginPartOfSave();
    SaveRunResult result;
    for (const auto &step : m_steps)
        if (step->isPartOf(request)) {
            if (m_services.stepBegins)
                m_services.stepBegins(step->titleKey());
            step->run(request, preProcess, result);
        }
    m_services.tool.cleanup();
    result.toolErrors = m_services.tool.errorsSummaryString();
    m_services.tool.clearErrors();
    return result;
}

} // namespace chronomender
