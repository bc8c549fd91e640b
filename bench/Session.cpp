// SPDX-License-Identifier: GPL-3.0-or-later
#include "Session.h"

#include "EventLoopWait.h"
#include "PatchPlan.h"

#include <algorithm>
#include <filesystem>
#include <utility>

namespace chronomender::bench {
namespace {

/// The files of the benchmarks have at most one chunk with dates each.
std::size_t bytesOf(const PatchPlan &plan, bool hasChecksum) {
    constexpr std::size_t checksumLength = 4;
    std::size_t bytes = hasChecksum && !plan.patches.empty() ? checksumLength : 0;
    for (const Patch &patch : plan.patches)
        bytes += patch.after().size();
    return bytes;
}

} // namespace

Session::Session(RunJournal::Durability durability) {
    auto services = systemServices();
    services.durability = durability;
    auto files = std::make_unique<little::FailingFileLayer>();
    m_files = files.get();
    services.files = std::move(files);
    if (const auto zone = services.zones->zoneWithName("Europe/Berlin"))
        services.zones->setSystemZone(*zone);
    m_controller = std::make_unique<AppController>(std::move(services), m_questions);
}

std::size_t Session::import(const std::string &path) {
    MySingleFolderPtr folder;
    if (m_controller->addFolder({.path = path, .keyStates = {}}, &folder) !=
        OpenFolderResult::Opened)
        return 0;
    const auto outcome = waitFor<ImportOutcome>([&](auto finished) {
        m_controller->startImport({.folder = folder, .names = {}, .keyStates = {}, .progress = {}},
                                  finished);
    });
    return static_cast<std::size_t>(
        std::count_if(outcome.items.begin(), outcome.items.end(), [](const MySinglePicPtr &pic) {
            return pic->slots.exifDateTimeOriginalOLD && pic->slots.fileModificationDateOLD;
        }));
}

void Session::shift(absl::Duration shift) {
    m_controller->shiftFolder(*m_controller->droppedFolders().droppedFolders().front(), shift);
}

std::size_t Session::preProcess() {
    m_preProcess = waitFor<PreProcessResult>(
        [&](auto finished) { m_controller->startPreProcess({}, {}, finished); });
    m_bytesPlanned = 0;
    for (const ItemOutcome &item : m_preProcess.items)
        m_bytesPlanned += bytesOf(*item.plan, item.pic->fileFormatType == FileFormatPng);
    return m_preProcess.problems.empty() ? m_preProcess.items.size() : 0;
}

std::size_t Session::save() {
    const auto result = waitFor<SaveRunResult>([&](auto finished) {
        m_controller->startContinueProcess({}, std::move(m_preProcess), {}, finished);
    });
    return static_cast<std::size_t>(
        std::count_if(result.items.begin(), result.items.end(),
                      [](const ItemOutcome &item) { return item.result == ItemResult::Saved; }));
}

std::size_t Session::rename(const RenameTemplate &renameTemplate) {
    RenameChoices choices;
    choices.names.renameTemplate = renameTemplate;
    m_controller->setRenameChoices(choices);
    const auto result = waitFor<SaveRunResult>([&](auto finished) {
        m_controller->startContinueProcess({.type = SaveProcessType::Rename}, {}, {}, finished);
    });
    return static_cast<std::size_t>(
        std::count_if(result.renames.begin(), result.renames.end(), [](const ItemRename &item) {
            return item.result == RenameResult::Renamed && item.errors.empty();
        }));
}

std::vector<std::string> filesOf(const std::string &folder) {
    std::vector<std::string> paths;
    for (const auto &entry : std::filesystem::directory_iterator(folder))
        paths.push_back(entry.path());
    std::sort(paths.begin(), paths.end());
    return paths;
}

} // namespace chronomender::bench
