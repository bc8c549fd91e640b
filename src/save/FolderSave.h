// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "InPlacePatcher.h"
#include "PreProcess.h"
#include "SaveDriver.h"

#include <span>
#include <string>
#include <vector>

namespace chronomender {

/// One folder of stage two: patches the files of its items side by side, then brings the model up
/// to date on the main thread. Appends to the run's result in the order of the items.
class FolderSave {
public:
    /// `items` are the folder's items as stage one left them; they outlive the object.
    FolderSave(const MySingleFolderPtr &folder, std::span<const ItemOutcome> items,
               const SaveRequest &request, const SaveServices &services);

    void run(ProgressCounter &progress, SaveRunResult &result);

private:
    /// One item's plan and what became of it.
    struct Step {
        const PatchPlan *plan = nullptr; ///< stage one's; none for an unreachable file
        PatchOutcome outcome;
        ItemOutcome report;
    };

    Step save(const ItemOutcome &item) const;
    static Step unreachable();
    void report(const ItemOutcome &item, Step &step) const;
    void applyToModel(std::vector<Step> &steps) const;

    MySingleFolderPtr m_folder;
    std::span<const ItemOutcome> m_items;
    const SaveRequest &m_request;
    const SaveServices &m_services;
    std::string m_path;
};

} // namespace chronomender
