// SPDX-License-Identifier: GPL-3.0-or-later
#include "Commands.h"

#include "MendSession.h"
#include "Output.h"
#include "PicLookup.h"
#include "RenameReport.h"
#include "RenameSetup.h"
#include "SaveStages.h"
#include "Texts.h"

#include <algorithm>

namespace chronomender {
namespace {

using Stage = RenameReport::Stage;

/// Items named on the command line are all that is renamed.
std::optional<Complaint> restrictTo(MendSession &session, SaveRequest &request) {
    const std::vector<std::string> &names = session.line().rename.pics;
    if (names.empty())
        return std::nullopt;
    auto chosen = PicLookup(session.folders()).select(names, session.controller().source_full());
    if (const auto *complaint = std::get_if<Complaint>(&chosen))
        return *complaint;
    request.onlyPics = std::get<std::vector<MySinglePicPtr>>(std::move(chosen));
    return std::nullopt;
}

/// Names are made of dates as the files hold them, so none may wait to be saved.
std::optional<Complaint> refuseUnsaved(const MendSession &session) {
    if (std::ranges::none_of(session.folders(), &MySingleFolder::isUnsavedFolder))
        return std::nullopt;
    return Complaint{2, text("cli_error_renameOverUnsaved", {"mend save --rename"})};
}

int report(const MendSession &session, const std::vector<ItemRename> &renames, Stage stage) {
    const RenameReport report(renames, stage);
    const bool isDryRun = stage == Stage::Plan;
    const int code = session.wasInterrupted()
                         ? exitInterrupted
                         : settledCode(session, report.hasFailure() ? exitItemFailed : exitDone);
    if (session.line().isJson) {
        std::string buffer;
        report.appendLines(buffer);
        JsonLine line(buffer);
        line.beginObject("summary");
        report.appendCounts(line);
        line.flag("dryRun", session.line().isDryRun)
            .flag("interrupted", code == exitInterrupted)
            .field("exitCode", static_cast<std::int64_t>(code))
            .finish();
        return codeAfterWriting(writeOutput(buffer), code);
    }
    std::vector<std::string> pieces = report.nameTable();
    pieces.push_back(report.summaryText());
    if (isDryRun ? code == exitInterrupted : report.isInterrupted())
        pieces.push_back(text("cli_rename_interrupted") + '\n');
    else if (isDryRun)
        pieces.push_back(text("cli_rename_nothingRenamed") + '\n');
    return codeAfterWriting(writeOutput(pieces), code);
}

int rename(MendSession &session, const SaveRequest &request) {
    if (session.wasInterrupted() || session.line().isDryRun) {
        std::vector<ItemRename> renames;
        if (!session.wasInterrupted())
            renames = renamePreview(session, request);
        const int code = report(session, renames, Stage::Plan);
        writeError(actionErrorText(RenameReport(renames, Stage::Plan).errors()));
        return code;
    }
    const SaveRunResult result = continueProcess(session, request, {});
    const int code = report(session, result.renames, Stage::Run);
    writeError(actionErrorText(result.errors));
    return code;
}

} // namespace

int runRename(const CommandLine &line) {
    if (line.rename.listsTemplates)
        return listTemplates(line);
    MendSession session(line);
    if (const auto code = session.open({BadPath::Stop, CompletionScope::None}))
        return *code;
    SaveRequest request;
    request.type = SaveProcessType::Rename;
    auto complaint = settleRename(session);
    if (!complaint)
        complaint = refuseUnsaved(session);
    if (!complaint)
        complaint = restrictTo(session, request);
    if (complaint) {
        complain(complaint->message);
        return complaint->exitCode;
    }
    return rename(session, request);
}

} // namespace chronomender
