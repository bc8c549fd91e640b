// SPDX-License-Identifier: GPL-3.0-or-later
#include "SaveRun.h"

#include "Commands.h"
#include "ItemJson.h"
#include "Output.h"
#include "RenameReport.h"
#include "SaveStages.h"
#include "Texts.h"

#include <algorithm>

namespace chronomender {
namespace {

/// The two stages of one save, with the rename behind it, and what is said about them.
class Save {
public:
    explicit Save(MendSession &session) : m_session(session) {
        m_request.savingAll = session.line().savesAll;
        if (isRenaming())
            m_request.type = SaveProcessType::SaveThenRenameAll;
    }

    int run() {
        m_plan = preProcess(m_session, m_request);
        if (m_plan.wasCancelled || m_session.wasInterrupted())
            return finish(m_plan.items, Stage::Plan, exitInterrupted);
        rememberItems();
        if (m_plan.items.empty() && !isRenaming())
            return finish(m_plan.items, Stage::Plan, exitDone);
        const bool needsConsent = hasUnacceptedProblem();
        if (m_session.line().isDryRun || needsConsent)
            return finishPlan(needsConsent);
        SaveRunResult result = continueProcess(m_session, m_request, m_plan);
        m_renames = std::move(result.renames);
        return finish(result.items, Stage::Run,
                      result.wasCancelled ? exitInterrupted : exitCodeOf(result.items),
                      actionErrorText(result.errors, result.toolErrors));
    }

private:
    using Stage = SaveReport::Stage;

    bool isRenaming() const { return m_session.line().rename.isWanted; }

    int finishPlan(bool needsConsent) {
        foretellMissingTool();
        if (isRenaming() && m_session.line().isDryRun)
            foretellNames();
        return finish(m_plan.items, Stage::Plan,
                      needsConsent ? exitProblems : exitCodeOf(m_plan.items),
                      actionErrorText(plannedErrors()));
    }

    /// A text tells zones as they are read now, and all reports the names that are now.
    void rememberItems() {
        if (!m_session.line().isJson)
            for (const ItemOutcome &item : m_plan.items)
                if (const MySingleFolderPtr folder = item.pic->spSingleRealFolder())
                    m_before.zones.emplace(
                        item.pic.get(),
                        slotZones(*item.pic, *folder, m_session.controller().zones()));
        if (!isRenaming())
            return;
        const FolderPaths paths(m_session.folders());
        for (const MySinglePicPtr &pic : m_session.controller().source_full())
            for (const MySinglePicPtr &half : {pic, pic->group.bundleDependentImage})
                if (const MySingleFolderPtr folder = pic->spSingleRealFolder(); half && folder)
                    m_before.paths.emplace(half.get(), paths.path(*folder, *half));
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

    int exitCodeOf(const std::vector<ItemOutcome> &items) const {
        const bool isWhole = std::none_of(items.begin(), items.end(), [](const auto &item) {
            return item.result == ItemResult::Refused || item.result == ItemResult::Failed ||
                   !item.errors.empty();
        });
        // What a rename refuses is the same in either stage.
        return isWhole && !RenameReport(m_renames, Stage::Run).hasFailure() ? exitDone
                                                                            : exitItemFailed;
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

    /// What a save would leave undone is not renamed either.
    void foretellNames() {
        m_renames = renamePreview(m_session, m_request);
        PicSet failing;
        for (const ItemOutcome &item : m_plan.items)
            if (item.result == ItemResult::Failed || item.result == ItemResult::Refused)
                for (const MySinglePicPtr &master : {item.pic, item.pic->bundleMasterImage()})
                    failing.insert(master);
        for (ItemRename &rename : m_renames)
            if (failing.contains(rename.pic) && rename.result == RenameResult::Renamed)
                refuse(rename);
    }

    static void refuse(ItemRename &rename) {
        rename.result = RenameResult::Refused;
        rename.addedNumber = 0;
        for (RenamedFile &file : rename.files)
            file.newName = file.oldName;
    }

    /// What a save would fail with, known without writing.
    std::vector<SaveError> plannedErrors() const {
        std::vector<SaveError> errors;
        for (const ItemOutcome &item : m_plan.items)
            errors.insert(errors.end(), item.errors.begin(), item.errors.end());
        const auto ofRename = RenameReport(m_renames, Stage::Plan).errors();
        errors.insert(errors.end(), ofRename.begin(), ofRename.end());
        return errors;
    }

    int finish(const std::vector<ItemOutcome> &items, Stage stage, int code,
               const std::string &errors = {}) {
        const int exitCode = settledCode(m_session, code);
        const SaveReport report(m_session.controller(), m_session.folders(), items, stage,
                                acceptedProblems(), m_before);
        const RenameReport renames(m_renames, stage);
        const WriteResult written = m_session.line().isJson
                                        ? writeOutput(jsonLines(report, renames, exitCode))
                                        : writeOutput(reportText(report, renames, stage, exitCode));
        writeError(errors);
        return codeAfterWriting(written, exitCode);
    }

    std::string jsonLines(const SaveReport &report, const RenameReport &renames,
                          int exitCode) const {
        std::string buffer;
        report.appendLines(buffer);
        renames.appendLines(buffer);
        JsonLine line(buffer);
        line.beginObject("summary");
        report.appendSummary(line,
                             {m_session.line().isDryRun, exitCode == exitInterrupted, exitCode});
        if (isRenaming())
            renames.appendCounts(line);
        line.finish();
        return buffer;
    }

    /// Why nothing was written.
    const char *planEndingKey(int exitCode) const {
        if (exitCode == exitProblems)
            return "cli_save_problemsNothingWritten";
        return m_session.line().command == Command::Save ? "cli_save_dryRunNothingWritten"
                                                         : "cli_align_nothingWritten";
    }

    std::vector<std::string> reportText(const SaveReport &report, const RenameReport &renames,
                                        Stage stage, int exitCode) const {
        // Where consent is missing, the problems are what counts, unless all was asked for.
        const bool tellsAll = stage == Stage::Run || m_session.line().isDryRun;
        std::vector<std::string> pieces;
        if (tellsAll)
            pieces = report.slotTable();
        pieces.push_back(report.problemText() + report.notReachedText() + report.summaryText());
        if (isRenaming() && tellsAll) {
            for (std::string &piece : renames.nameTable())
                pieces.push_back(std::move(piece));
            pieces.push_back(renames.summaryText());
        }
        pieces.push_back(endingText(report, renames, stage, exitCode));
        return pieces;
    }

    std::string endingText(const SaveReport &report, const RenameReport &renames, Stage stage,
                           int exitCode) const {
        if (exitCode == exitInterrupted && stage == Stage::Plan)
            return text("cli_save_interruptedBefore") + '\n';
        if (report.count(ReportedResult::NotReached) > 0)
            return text("cli_save_interrupted") + '\n';
        if (renames.isInterrupted())
            return text("cli_rename_interrupted") + '\n';
        if (report.isEmpty() && !isRenaming())
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
    SaveReport::Before m_before;
    std::vector<ItemRename> m_renames;
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
