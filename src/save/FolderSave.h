// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "PreProcess.h"
#include "SaveDriver.h"
#include "WriteUnit.h"

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
    /// One item's plan and what became of it.
    struct Step {
        const ItemOutcome *item = nullptr; ///< as stage one left it
        std::size_t group = 0;             ///< the first step of the item's group
        bool isReached = false;
        PatchOutcome outcome;
        ItemOutcome report;
    };

    std::vector<Step> steps() const;
    static std::size_t sizeOfGroup(const std::vector<Step> &steps, std::size_t first);
    void refuseObstructed(std::vector<Step> &steps) const;
    void write(std::vector<Step> &steps, ProgressCounter &progress) const;
    PatchJob jobOf(const ItemOutcome &item) const;
    std::optional<PatchOutcome> obstacleOf(const ItemOutcome &item) const;
    void report(std::vector<Step> &steps) const;
    void reportItem(Step &step) const;
    bool isReadByLaterSteps() const;
    void applyToModel(const std::vector<Step> &steps) const;

    MySingleFolderPtr m_folder;
    std::span<const ItemOutcome> m_items;
    const SaveRequest &m_request;
    const SaveServices &m_services;
    std::optional<std::string> m_reachablePath;
    std::string m_path;
};

} // namespace chronomender
