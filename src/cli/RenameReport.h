// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "JsonLine.h"
#include "SaveReport.h"

#include <array>
#include <string>
#include <vector>

namespace chronomender {

/// Everything that a rename has to say, as a text for people or as JSON Lines.
class RenameReport {
public:
    using Stage = SaveReport::Stage;
    /// `renames` are those of the preview, or of the run; they outlive the report.
    RenameReport(const std::vector<ItemRename> &renames, Stage stage);

    /// An item could not be given its name. A number behind it, or a dot before it, is no failure.
    bool hasFailure() const;
    /// Items were left since the run was interrupted.
    bool isInterrupted() const;
    /// A piece for each folder: the old name of each file → its new name, with what became of it,
    /// or would. Companions stand behind their item.
    std::vector<std::string> nameTable() const;
    std::string summaryText() const;
    /// A line for each file.
    void appendLines(std::string &buffer) const;
    /// The object "rename" of a summary: how many items had each result.
    void appendCounts(JsonLine &line) const;
    /// Errors for the text of all errors; a number that is only foretold is none.
    std::vector<SaveError> errors() const;

private:
    struct Count {
        std::string_view name;
        std::size_t items = 0;
        bool isAlwaysSaid = false;
    };
    std::vector<Count> counts() const;
    std::string_view nameOf(RenameResult result) const;
    std::string noteOf(const ItemRename &rename) const;

    const std::vector<ItemRename> &m_renames;
    Stage m_stage;
};

} // namespace chronomender
