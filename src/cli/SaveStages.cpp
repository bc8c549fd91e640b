// SPDX-License-Identifier: GPL-3.0-or-later
#include "SaveStages.h"

#include "EventLoopWait.h"
#include "ProgressBar.h"
#include "Texts.h"

namespace chronomender {
namespace {

AppController::Progress progressTo(ProgressBar &bar) {
    return [&bar](std::size_t done, std::size_t total) { bar.update(done, total); };
}

} // namespace

PreProcessResult preProcess(MendSession &session, const SaveRequest &request) {
    ProgressBar bar(text("workPanelPreSave"));
    return waitFor<PreProcessResult>([&](auto finished) {
        session.controller().startPreProcess(request, progressTo(bar), finished);
    });
}

SaveRunResult continueProcess(MendSession &session, const SaveRequest &request,
                              const PreProcessResult &preProcess) {
    const bool isSave = request.type != SaveProcessType::Rename;
    ProgressBar bar(text(isSave ? "workPanelSave" : "workPanelRename"));
    session.controller().setSaveStepBegins(
        [&bar](std::string_view titleKey) { bar.begin(text(titleKey)); });
    auto result = waitFor<SaveRunResult>([&](auto finished) {
        session.controller().startContinueProcess(request, preProcess, progressTo(bar), finished);
    });
    session.controller().setSaveStepBegins({});
    return result;
}

std::vector<ItemRename> renamePreview(MendSession &session, const SaveRequest &request) {
    ProgressBar bar(text("workPanelRename"));
    return waitFor<std::vector<ItemRename>>([&](auto finished) {
        session.controller().startRenamePreview(request, progressTo(bar), finished);
    });
}

} // namespace chronomender
