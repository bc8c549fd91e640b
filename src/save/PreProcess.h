// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "NewDates.h"
#include "PatchPlan.h"
#include "SaveDriver.h"

#include <optional>
#include <string>
#include <vector>

namespace chronomender {

/// Counts finished items over all threads and tells the listener every so often.
class ProgressCounter {
public:
    using Listener = std::function<void(std::size_t done, std::size_t total)>;
    ProgressCounter(const Listener &listener, std::size_t total, std::size_t step)
        : m_listener(listener), m_total(total), m_step(step) {}

    void oneDone() {
        const std::size_t done = ++m_done;
        if (m_listener && (done % m_step == 0 || done == m_total))
            m_listener(done, m_total);
    }

private:
    const Listener &m_listener;
    const std::size_t m_total, m_step;
    std::atomic<std::size_t> m_done{0};
};

/// One folder of stage one: the items that a save would take, their proofs, dates and problems.
/// Appends to `result`, the dependent of a group right before its master, and stores what was found
/// in the items.
class FolderPreProcess {
public:
    FolderPreProcess(const MySingleFolderPtr &folder, std::vector<MySinglePicPtr> items,
                     const SaveRequest &request, const SaveServices &services,
                     const DateChangeOptions &options);

    /// False when cancelled.
    bool run(ProgressCounter &progress, PreProcessResult &result);

private:
    /// What a worker found out about one file.
    struct Side {
        MySinglePicPtr pic;
        FileUnchangedState state{};
        OptionalDate lastCheckedAt;
        DateSlots slots;
        Date modified;
        bool isAffectedBySave = false;
        bool isPartOfSave = false;
        ItemOutcome outcome;
    };
    /// An item with the other half of its group.
    struct Finding {
        Side item;
        std::optional<Side> dependent;
    };

    void examine(const MySinglePicPtr &pic, Finding &finding) const;
    Side found(const MySinglePicPtr &pic, const MySinglePic &copy, bool isPartOfSave) const;
    void judge(const MySinglePic &copy, Side &side) const;
    static void store(const Side &side);
    static void append(Side &side, PreProcessResult &result);
    void refuseUnreachable(PreProcessResult &result) const;

    MySingleFolderPtr m_folder;
    std::vector<MySinglePicPtr> m_items;
    const SaveRequest &m_request;
    const SaveServices &m_services;
    NewDateContext m_dates;
    PlanContext m_plans;
    std::string m_path;
};

/// The items of a folder's main list that a save would take, for their own sake or for that of
/// their dependent, in the folder's order. Main thread.
std::vector<MySinglePicPtr> itemsToSave(const MySingleFolder &folder, bool savingAll);

} // namespace chronomender
