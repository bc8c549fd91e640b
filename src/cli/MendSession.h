// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "AppController.h"
#include "FolderPlans.h"
#include "Interruption.h"
#include "Output.h"

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace chronomender {

/// What a command does when a path of the command line cannot be opened.
enum class BadPath { GoOn, Stop };

/// One run's session: the folders of the command line, opened, imported and shifted, and the
/// answers to what an import asks. Main thread.
class MendSession : private ImportQuestions {
public:
    explicit MendSession(const CommandLine &line) : m_line(line) {}

    struct Opening {
        BadPath badPath = BadPath::GoOn;
        CompletionScope completion = CompletionScope::None;
    };
    /// Does all that stands before a command's own work. Complaints go to standard error, and the
    /// exit code comes back; none means that the command can go on. After an interruption it goes
    /// on with what was read.
    std::optional<int> open(const Opening &opening);

    AppController &controller() { return *m_controller; }
    const CommandLine &line() const { return m_line; }
    const std::vector<MySingleFolderPtr> &folders() const { return m_folders; }
    bool wasInterrupted() const { return m_controller->cancellation().isRequested(); }
    /// A path that the user named could not be opened or did not become an item.
    bool hasFailedPaths() const { return m_hasFailedPaths; }

private:
    PerFolderImportOptions emptyTagOptions(const MySingleFolder &folder) override;
    MovieOptions movieOptions(const MySingleFolder &folder) override;

    std::optional<Complaint> addFolders(const FolderPlans &plans);
    std::optional<Complaint> addFolder(const FolderPlan &plan);
    void addInnerFolder(const MySingleFolderPtr &folder, const MySingleFolderPtr &parent);
    void importAll(CompletionScope completion);
    void import(const FolderPlan &plan, const MySingleFolderPtr &folder,
                CompletionScope completion);
    void tellSkipped(const FolderPlan &plan, const std::vector<SkippedEntry> &skipped);
    void recoverInterruptedRuns();
    void tellLeftAlone() const;
    void tellMissingTags() const;
    void failPath(const std::string &message);

    const CommandLine &m_line;
    std::unique_ptr<AppController> m_controller;
    std::optional<Interruption> m_interruption;
    std::vector<FolderPlan> m_plans; ///< of `m_folders`, one for one
    std::vector<MySingleFolderPtr> m_folders;
    std::set<const MySingleFolder *> m_innerFolders; ///< found inside those that the user named
    std::map<const MySingleFolder *, PerFolderImportOptions> m_importOptions;
    bool m_hasFailedPaths = false;
};

/// Gives the preferences of the command line, and its system zone, to a run.
std::optional<Complaint> applySettings(const CommandLine &line, AppServices &services);

/// The exit code of a command whose own work ended with `code`: an interruption, or a path that
/// failed, makes a good end a bad one.
int settledCode(const MendSession &session, int code);
} // namespace chronomender
