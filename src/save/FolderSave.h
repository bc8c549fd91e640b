// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "InPlacePatcher.h"
#include "PreProcess.h"
#include "SaveDriver.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace chronomender {

/// One folder of stage two: patches the files of its items side by side, the two of a group
/// together, then brings the model up to date on the main thread. Appends to the run's result in
/// the order of the items.
class FolderSave {
public:
    /// `items` are the folder's items as stage one left them; they outlive the object.
    FolderSave(const MySingleFolderPtr &folder, std::span<const ItemOutcome> items,
               const SaveRequest &request, const SaveServices &services);

    void run(ProgressCounter &progress, SaveRunResult &result);

private:
    using Items = std::span<const ItemOutcome>;
    /// One item's plan and what became of it.
    struct Step {
        const PatchPlan *plan = nullptr; ///< stage one's; none for an unreachable file
        PatchOutcome outcome;
        ItemOutcome report;
    };
    using Steps = std::span<Step>;

    /// The items, cut into single ones and groups whose dependent stands before its master.
    std::vector<Items> units() const;
    void save(Items unit, Steps steps) const;
    std::optional<PatchOutcome> obstacleOf(const ItemOutcome &item) const;
    PatchJob jobOf(const ItemOutcome &item) const;
    void report(Items unit, Steps steps) const;
    void reportItem(const ItemOutcome &item, Step &step) const;
    void applyToModel(std::vector<Step> &steps) const;

    MySingleFolderPtr m_folder;
    std::span<const ItemOutcome> m_items;
    const SaveRequest &m_request;
    const SaveServices &m_services;
    std::optional<std::string> m_reachablePath;
    std::string m_path;
};

} // namespace chronomender
