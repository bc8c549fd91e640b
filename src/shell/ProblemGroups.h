// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "SaveErrors.h"

#include <string>
#include <vector>

namespace chronomender {

/// Problems of one kind, as an alert shows them.
struct ProblemGroup {
    PreSaveProblem problem{};
    std::string summary, details;
    struct Row {
        std::string name, detail; ///< of the file; the detail may be empty
        std::string folder;
    };
    std::vector<Row> rows;
};

/// In the order of the problems' keys, each with its files in the order found.
std::vector<ProblemGroup> groupedProblems(const std::vector<PreSaveFinding> &problems);
/// "Before saving, 3 problems were found."
std::string problemHeader(const std::vector<ProblemGroup> &groups);
/// The items whose zone stamps would be rewritten though nobody chose a zone: keeping each stamp's
/// own offset is their way out.
std::vector<MySinglePicPtr> itemsWithRewrittenZones(const std::vector<PreSaveFinding> &problems);

} // namespace chronomender
