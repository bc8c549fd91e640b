// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "PreProcess.h"
#include "RenamePlan.h"
#include "RunStep.h"

#include <functional>

namespace chronomender {

/// The last step of a run: gives files their names, folder by folder, over temporary names, and
/// never over a file that is there. What somebody else takes meanwhile gets a number.
class RenameRun : public RunStep {
public:
    /// What a run needs to know of the session; both are called on the main thread.
    struct Session {
        std::function<std::optional<RenameChoices>()> choices;
        std::function<RenameScope(const SaveRequest &)> scope;
    };
    RenameRun(Session session, RenameServices services)
        : m_session(std::move(session)), m_services(std::move(services)) {}

    bool isPartOf(const SaveRequest &request) const override {
        return request.type != SaveProcessType::Save;
    }
    std::string_view titleKey() const override { return "workPanelRename"; }
    void run(const SaveRequest &request, const PreProcessResult &preProcess,
             SaveRunResult &result) override;

    /// What a run would do now, without touching a file or the model. Worker thread.
    std::vector<ItemRename> renamePreview(const SaveRequest &request);

private:
    void moveFiles(RenamePlan &plan, const RenameChoices &choices, bool isOfSelection,
                   ProgressCounter &progress, SaveRunResult &result);

    Session m_session;
    RenameServices m_services;
};

} // namespace chronomender
