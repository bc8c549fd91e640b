// SPDX-License-Identifier: GPL-3.0-or-later
#include "SaveRun.h"

#include "Commands.h"
#include "EventLoopWait.h"
#include "Output.h"
#include "ProgressBar.h"
#include "SaveReport.h"
#include "Texts.h"

#include <algorithm>

namespace chronomender {
namespace {

/// The two stages of one save, and what is said about them.
class Save {
public:
    explicit Save(MendSession &session) : m_session(session) {
        m_request.savingAll = session.line().savesAll;
    }

    int run() {
        m_plan = preProcess();
        if (m_plan.wasCancelled || m_session.wasInterrupted())
            return finish(m_plan.items, Stage::Plan, exitInterrupted);
        if (!m_session.line().isJson)
            takeZones();
        if (m_plan.items.empty())
            return finish(m_plan.items, Stage::Plan, exitDone);
        const bool needsConsent = hasUnacceptedProblem();
        if (m_session.line().isDryRun || needsConsent) {
            foretellMissingTool();
            return finish(m_plan.items, Stage::Plan,
                          needsConsent ? exitProblems : exitCodeOf(m_plan.items),
                          actionErrorText(plannedErrors()));
        }
        const SaveRunResult result = continueProcess();
        return finish(result.items, Stage::Run,
                      result.wasCancelled ? exitInterrupted : exitCodeOf(result.items),
                      actionErrorText(result.errors, result.toolErrors));
    }

private:
    using Stage = SaveReport::Stage;

    PreProcessResult preProcess() {
        ProgressBar bar(text("workPanelPreSave"));
        return waitFor<PreProcessResult>([&](auto finished) {
            m_session.controller().startPreProcess(m_request, progressTo(bar), finished);
        });
    }

    void takeZones() {
        for (const ItemOutcome &item : m_plan.items)
            if (const MySingleFolderPtr folder = item.pic->spSingleRealFolder())
                m_zones.emplace(item.pic.get(),
                                slotZones(*item.pic, *folder, m_session.controller().zones()));
    }

    SaveRunResult continueProcess() {
        ProgressBar bar(text("workPanelSave"));
        m_session.controller().setSaveStepBegins(
            [&bar](std::string_view titleKey) { bar.begin(text(titleKey)); });
        auto result = waitFor<SaveRunResult>([&](auto finished) {
            m_session.controller().startContinueProcess(m_request, m_plan, progressTo(bar),
                                                        finished);
        });
        m_session.controller().setSaveStepBegins({});
        return result;
    }

    static AppController::Progress progressTo(ProgressBar &bar) {
        return [&bar](std::size_t done, std::size_t total) { bar.update(done, total); };
    }

    bool isAccepted(PreSaveProblem problem) const {
        const CommandLine &line = m_session.line();
        return line.acceptsAll || line.accepted.contains(problem);
    }

    bool hasUnacceptedProblem() const {
        return std::any_of(m_plan.items.begin(), m_plan.items.end(), [&](const auto &item) {
            return std::any_of(item.problems.begin(), item.problems.end(),
                               [&](const auto &finding) { return !isAccepted(finding.problem); });
        });
    }

    static int exitCodeOf(const std::vector<ItemOutcome> &items) {
        const bool isWhole = std::none_of(items.begin(), items.end(), [](const auto &item) {
            return item.result == ItemResult::Refused || item.result == ItemResult::Failed ||
                   !item.errors.empty();
        });
        return isWhole ? exitDone : exitItemFailed;
    }

    void foretellMissingTool() {
        if (m_session.controller().hasTool())
            return;
        const FolderPaths paths(m_session.folders());
        for (ItemOutcome &item : m_plan.items) {
            const MySingleFolderPtr folder = item.pic->spSingleRealFolder();
            if (!folder || std::ranges::find(item.slots, SlotResult::WrittenByTool,
                                             &SlotOutcome::result) == item.slots.end())
                continue;
            item.result = ItemResult::Failed;
            item.errors.push_back({SaveErrorId::ToolMissing, paths.path(*folder, *item.pic), ""});
        }
    }

    /// What a save would fail with, known without writing.
    std::vector<SaveError> plannedErrors() const {
        std::vector<SaveError> errors;
        for (const ItemOutcome &item : m_plan.items)
            errors.insert(errors.end(), item.errors.begin(), item.errors.end());
        return errors;
    }

    int finish(const std::vector<ItemOutcome> &items, Stage stage, int code,
               const std::string &errors = {}) {
        const int exitCode = settledCode(m_session, code);
        const SaveReport report(m_session.controller(), m_session.folders(), items, stage,
                                acceptedProblems(), m_zones);
        const bool isInterrupted = exitCode == exitInterrupted;
        const CommandLine &line = m_session.line();
        const WriteResult written =
            line.isJson ? writeOutput(report.jsonLines({line.isDryRun, isInterrupted, exitCode}))
                        : writeOutput(reportText(report, stage, exitCode));
        writeError(errors);
        return codeAfterWriting(written, exitCode);
    }

    /// Why nothing was written.
    const char *planEndingKey(int exitCode) const {
        if (exitCode == exitProblems)
            return "cli_save_problemsNothingWritten";
        return m_session.line().command == Command::Save ? "cli_save_dryRunNothingWritten"
                                                         : "cli_align_nothingWritten";
    }

    std::vector<std::string> reportText(const SaveReport &report, Stage stage, int exitCode) const {
        std::vector<std::string> pieces;
        // Where consent is missing, the problems are what counts, unless all was asked for.
        if (stage == Stage::Run || m_session.line().isDryRun)
            pieces = report.slotTable();
        pieces.push_back(report.problemText() + report.notReachedText() + report.summaryText() +
                         endingText(report, stage, exitCode));
        return pieces;
    }

    std::string endingText(const SaveReport &report, Stage stage, int exitCode) const {
        if (exitCode == exitInterrupted && stage == Stage::Plan)
            return text("cli_save_interruptedBefore") + '\n';
        if (report.count(ReportedResult::NotReached) > 0)
            return text("cli_save_interrupted") + '\n';
        if (report.isEmpty())
            return text("cli_save_nothingToSave") + '\n';
        return stage == Stage::Plan ? text(planEndingKey(exitCode)) + '\n' : std::string();
    }

    std::set<PreSaveProblem> acceptedProblems() const {
        std::set<PreSaveProblem> accepted;
        for (const ItemOutcome &item : m_plan.items)
            for (const PreSaveFinding &finding : item.problems)
                if (isAccepted(finding.problem))
                    accepted.insert(finding.problem);
        return accepted;
    }

    MendSession &m_session;
    SaveRequest m_request;
    PreProcessResult m_plan;
    SaveReport::ItemZones m_zones;
};

} // namespace

int runAndSave(const CommandLine &line, SessionChange change) {
    MendSession session(line);
    if (const auto code = session.open({BadPath::Stop, CompletionScope::None}))
        return *code;
    if (const auto complaint = session.wasInterrupted() ? std::nullopt : change(session)) {
        complain(complaint->message);
        return complaint->exitCode;
    }
    return Save(session).run();
}

} // namespace chronomender
