// SPDX-License-Identifier: GPL-3.0-or-later
#include "Session.h"

#include "EventLoopWait.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <utility>

namespace chronomender::bench {

Session::Session() {
    auto services = systemServices();
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

std::vector<std::string> filesOf(const std::string &folder) {
    std::vector<std::string> paths;
    for (const auto &entry : std::filesystem::directory_iterator(folder))
        paths.push_back(entry.path());
    std::sort(paths.begin(), paths.end());
    return paths;
}

std::size_t bytesWritten() {
    std::ifstream io("/proc/self/io");
    for (std::string key, value; io >> key >> value;)
        if (key == "wchar:")
            return std::stoul(value);
    return 0;
}

} // namespace chronomender::bench
