// SPDX-License-Identifier: GPL-3.0-or-later
#include "MendSession.h"

#include "Commands.h"
#include "Corrections.h"
#include "EventLoopWait.h"
#include "FilterOption.h"
#include "FolderChoices.h"
#include "ProgressBar.h"
#include "RecoveryTexts.h"
#include "Texts.h"
#include "Utf8Text.h"

#include <algorithm>

namespace chronomender {
namespace {

const char *complaintKey(OpenFolderResult result) {
    switch (result) {
    case OpenFolderResult::NotAFolder:
        return "cli_error_notAFolder";
    case OpenFolderResult::NoAccess:
        return "cli_error_noAccess";
    case OpenFolderResult::NameNotUtf8:
        return "cli_error_nameNotUtf8";
    case OpenFolderResult::LibraryOfAnotherProgram:
        return "cli_error_libraryOfAnotherProgram";
    case OpenFolderResult::AlreadyOpen:
        return "cli_error_folderTwice";
    default:
        return "cli_error_notFound";
    }
}

} // namespace

std::optional<int> MendSession::open(const Opening &opening) {
    AppServices services = systemServices();
    services.runName = m_line.typed;
    auto complaint = applySettings(m_line, services);
    FolderPlans plans;
    if (!complaint) {
        auto planned = planFolders(m_line.blocks, *services.zones);
        if (const auto *refused = std::get_if<Complaint>(&planned))
            complaint = *refused;
        else
            plans = std::get<FolderPlans>(std::move(planned));
    }
    if (!complaint) {
        ImportQuestions &questions = *this;
        m_controller = std::make_unique<AppController>(std::move(services), questions);
        m_interruption.emplace(m_controller->cancellation());
        recoverInterruptedRuns();
        m_controller->setFolderAdded(
            [this](const MySingleFolderPtr &folder, const MySingleFolderPtr &parent) {
                m_importOptions[folder.get()] = m_importOptions.at(parent.get());
            });
        complaint = addFolders(plans);
    }
    if (!complaint && m_hasFailedPaths && opening.badPath == BadPath::Stop)
        complaint = Complaint{2, text("cli_error_nothingWritten")};
    if (!complaint)
        importAll(opening.completion);
    for (std::size_t i = 0; i < m_folders.size() && !complaint && !wasInterrupted(); ++i)
        complaint = correct(*m_controller, m_plans[i], *m_folders[i]);
    if (complaint) {
        complain(complaint->message);
        return complaint->exitCode;
    }
    m_controller->buildNewSource();
    filterBy(m_line.filter, m_controller->filters(), m_controller->defaults());
    tellLeftAlone();
    tellMissingTags();
    return std::nullopt;
}

/// A run that is to write nothing leaves even that to another.
void MendSession::recoverInterruptedRuns() {
    if (m_line.isDryRun) {
        if (m_controller->hasInterruptedRuns())
            complain(text("cli_interruptedRunWaits", {"mend resume"}));
        return;
    }
    for (const RecoveredFile &file : m_controller->recoverInterruptedRuns())
        if (file.result != RecoveredFile::Result::Nothing)
            complain(recoveryText(file));
}

void MendSession::failPath(const std::string &message) {
    m_hasFailedPaths = true;
    complain(message);
}

std::optional<Complaint> MendSession::addFolders(const FolderPlans &plans) {
    for (const std::string &path : plans.missing)
        failPath(text("cli_error_notFound", {printable(path)}));
    for (const FolderPlan &plan : plans.plans)
        if (auto complaint = addFolder(plan))
            return complaint;
    return std::nullopt;
}

std::optional<Complaint> MendSession::addFolder(const FolderPlan &plan) {
    MySingleFolderPtr folder;
    const OpenFolderResult result = m_controller->addFolder({plan.path, keyStates(plan)}, &folder);
    const std::string message = result == OpenFolderResult::Opened
                                    ? ""
                                    : text(complaintKey(result), {printable(plan.path)});
    if (result == OpenFolderResult::AlreadyOpen)
        return Complaint{2, message};
    if (result != OpenFolderResult::Opened) {
        failPath(message);
        return std::nullopt;
    }
    settleMovieOptions(plan.block, m_controller->defaults(), *folder);
    m_importOptions[folder.get()] = plan.importOptions;
    m_folders.push_back(std::move(folder));
    m_plans.push_back(plan);
    return std::nullopt;
}

/// A folder found inside another goes behind it, with the same options. Names that the user gave
/// are names of the outer folder only.
void MendSession::addInnerFolder(const MySingleFolderPtr &folder, const MySingleFolderPtr &parent) {
    const auto outer = std::ranges::find(m_folders, parent) - m_folders.begin();
    auto place = outer + 1;
    while (place < std::ssize(m_folders) &&
           m_innerFolders.contains(m_folders[static_cast<std::size_t>(place)].get()))
        ++place;
    FolderPlan plan = m_plans[static_cast<std::size_t>(outer)];
    plan.path = folder->sfFolderPath();
    plan.names.clear();
    plan.pics.clear();
    plan.block.alternatives.clear();
    m_importOptions[folder.get()] = plan.importOptions;
    m_innerFolders.insert(folder.get());
    m_folders.insert(m_folders.begin() + place, folder);
    m_plans.insert(m_plans.begin() + place, std::move(plan));
}

void MendSession::importAll(CompletionScope completion) {
    m_controller->setFolderAdded(
        [this](const auto &folder, const auto &parent) { addInnerFolder(folder, parent); });
    DelayedImports &delayed = m_controller->delayedImports();
    if (m_line.dateSequence)
        delayed.addDrop(dateSequence(*m_line.dateSequence, m_controller->zones()), m_folders);
    const std::vector<MySingleFolderPtr> named = m_folders;
    const std::vector<FolderPlan> plans = m_plans;
    for (std::size_t i = 0; i < named.size(); ++i)
        import(plans[i], named[i], completion);
    if (wasInterrupted())
        delayed.finishAll();
}

void MendSession::import(const FolderPlan &plan, const MySingleFolderPtr &folder,
                         CompletionScope completion) {
    if (wasInterrupted())
        return;
    ProgressBar bar(text("cli_progress_reading", {printable(folder->sfFolder)}));
    ImportRequest request;
    request.folder = folder;
    request.names = plan.names;
    request.keyStates = keyStates(plan);
    request.completion = completion;
    request.progress = [&bar](ImportProgress progress) {
        bar.update(progress.done, progress.total);
    };
    const auto outcome = waitFor<ImportOutcome>(
        [&](auto finished) { m_controller->startImport(std::move(request), finished); });
    tellSkipped(plan, outcome.skipped);
    for (const ImportError &error : outcome.importErrors)
        complain(text("cli_skipped", {printable(error.path), text(textKey(error.id))}));
}

void MendSession::tellSkipped(const FolderPlan &plan, const std::vector<SkippedEntry> &skipped) {
    std::size_t notReached = 0;
    for (const SkippedEntry &entry : skipped) {
        if (entry.reason == SkipReason::Cancelled) {
            ++notReached;
            continue;
        }
        m_hasFailedPaths = m_hasFailedPaths || !plan.names.empty();
        complain(text("cli_skipped", {printable(entry.path), text(textKey(entry.reason))}));
    }
    if (notReached > 0)
        complain(text("cli_importInterrupted", {printable(plan.path), std::to_string(notReached)}));
}

void MendSession::tellLeftAlone() const {
    const auto &items = m_controller->source_full();
    const auto count = std::count_if(items.begin(), items.end(),
                                     [](const auto &pic) { return pic->importState.isLeftAlone; });
    if (count > 0)
        complain(text("cli_emptyTagsLeftAlone", {std::to_string(count)}));
}

void MendSession::tellMissingTags() const {
    const auto isAsked = [](const FolderPlan &plan) { return plan.block.tagsMissing.has_value(); };
    if (std::ranges::none_of(m_plans, isAsked))
        return;
    std::size_t files = 0;
    for (const MySinglePicPtr &pic : m_controller->source_full())
        for (const MySinglePicPtr &half : {pic, pic->group.bundleDependentImage})
            files += half && half->save.shouldAddExifDateTimeTags ? 1 : 0;
    complain(text("cli_missingTags", {std::to_string(files)}));
}

/// Never asked for: every folder says so before its import.
MovieOptions MendSession::movieOptions(const MySingleFolder &folder) {
    return {folder.isQuicktimeMDTADateEnabled, folder.isQuicktimeMVHDTimezoneCorrectionEnabled};
}

PerFolderImportOptions MendSession::emptyTagOptions(const MySingleFolder &folder) {
    return m_importOptions.at(&folder);
}

std::optional<Complaint> applySettings(const CommandLine &line, AppServices &services) {
    if (line.systemZone) {
        auto zone = lookUpZone(*line.systemZone, *services.zones);
        if (const auto *complaint = std::get_if<Complaint>(&zone))
            return *complaint;
        services.zones->setSystemZone(std::get<Zone>(std::move(zone)));
    }
    forgetStoredFilters(*services.defaults);
    for (const auto &[key, value] : line.settings) {
        switch (services.defaults->setForThisRun(key, value)) {
        case UserDefaults::Outcome::UnknownKey:
            return Complaint{2, text("cli_error_unknownSetting", {printable(key)})};
        case UserDefaults::Outcome::ValueNotAllowed:
            return Complaint{2, text("cli_error_settingNotAllowed",
                                     {key, printable(value),
                                      UserDefaults::allowedText(*findDefaultEntry(key))})};
        case UserDefaults::Outcome::Done:
        case UserDefaults::Outcome::NotStored: // a value for this run is never stored
            break;
        }
    }
    return std::nullopt;
}

int settledCode(const MendSession &session, int code) {
    if (code != exitDone)
        return code;
    return session.wasInterrupted()   ? exitInterrupted
           : session.hasFailedPaths() ? exitItemFailed
                                      : exitDone;
}

} // namespace chronomender
