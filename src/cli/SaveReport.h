// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "AppController.h"
#include "ItemJson.h"
#include "ItemTexts.h"
#include "SlotTexts.h"

#include <map>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

namespace chronomender {

/// What the report says of one item.
enum class ReportedResult : std::uint8_t {
    Planned, ///< would be saved; the run wrote nothing
    Saved,
    Unchanged,
    Refused,
    Failed,
    NotReached, ///< the run was interrupted before it
};
std::string_view resultName(ReportedResult result);

/// An error in words, for a line that names its file.
std::string descriptionOf(const SaveError &error);

/// Everything that a save has to say, as a text for people or as JSON Lines.
class SaveReport {
public:
    enum class Stage : bool { Plan, Run };
    /// Items as they were before the run.
    struct Before {
        std::unordered_map<const MySinglePic *, SlotZones> zones; ///< needed for a text alone
        /// Needed where the run renames; an item that is not here has the path that it had.
        std::unordered_map<const MySinglePic *, std::string> paths;
    };
    /// `items` are those of the plan, or of the run once there was one; they and `before` outlive
    /// the report.
    SaveReport(AppController &controller, const std::vector<MySingleFolderPtr> &folders,
               const std::vector<ItemOutcome> &items, Stage stage,
               std::set<PreSaveProblem> accepted, const Before &before);

    struct Summary {
        bool isDryRun = false, wasInterrupted = false;
        int exitCode = 0;
    };
    /// A line for each file of the session, in display order (a dependent behind its master).
    void appendLines(std::string &buffer) const;
    /// What a summary tells of a save.
    void appendSummary(JsonLine &line, const Summary &summary) const;
    /// Every slot of each file old → new, with what became of it, or would; files with nothing to
    /// do are left out, and so are those that were not reached.
    std::vector<std::string> slotTable() const;
    /// The problems by key, with the option that accepts each.
    std::string problemText() const;
    /// Items that an interruption left.
    std::string notReachedText() const;
    std::string summaryText() const;

    std::size_t count(ReportedResult result) const;
    bool isEmpty() const { return m_items.empty(); }

private:
    std::set<PreSaveProblem> problems() const;
    bool isAccepted(const ItemOutcome &outcome) const;
    ReportedResult resultOf(const ItemOutcome &outcome) const;
    const ItemOutcome *outcomeOf(const MySinglePic &pic) const;
    void appendItem(std::string &buffer, const MySinglePic &pic,
                    const MySingleFolder &folder) const;
    void appendTable(std::string &buffer, const ItemOutcome &outcome) const;
    std::vector<SlotView> slotsOf(const ItemOutcome &outcome) const;
    std::string affectedText(PreSaveProblem problem) const;
    std::string path(const MySinglePic &pic) const;
    std::string path(const MySinglePic &pic, const MySingleFolder &folder) const;

    AppController &m_controller;
    FolderPaths m_paths;
    const std::vector<ItemOutcome> &m_items;
    Stage m_stage;
    std::set<PreSaveProblem> m_accepted;
    const Before &m_before;
    std::unordered_map<const MySinglePic *, const ItemOutcome *> m_outcomes;
};

} // namespace chronomender
