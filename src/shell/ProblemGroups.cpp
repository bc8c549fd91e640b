// SPDX-License-Identifier: GPL-3.0-or-later
#include "ProblemGroups.h"

#include "MySingleFolder.h"
#include "RowTexts.h"
#include "Texts.h"

#include <map>

namespace chronomender {

std::vector<ProblemGroup> groupedProblems(const std::vector<PreSaveFinding> &problems) {
    std::map<PreSaveProblem, ProblemGroup> groups;
    for (const PreSaveFinding &finding : problems) {
        ProblemGroup &group = groups[finding.problem];
        const MySingleFolderPtr folder = finding.pic->spSingleRealFolder();
        group.rows.push_back(
            {finding.pic->spName, finding.detail, folder ? folder->sfFolder : std::string()});
    }
    std::vector<ProblemGroup> result;
    result.reserve(groups.size());
    for (auto &[problem, group] : groups) {
        const std::string textKey = "preSaveSummary_" + std::string(key(problem));
        group.problem = problem;
        group.summary = text(textKey);
        group.details = text(textKey + "_details");
        result.push_back(std::move(group));
    }
    return result;
}

std::string problemHeader(const std::vector<ProblemGroup> &groups) {
    std::size_t rows = 0;
    for (const ProblemGroup &group : groups)
        rows += group.rows.size();
    return rows == 1 ? text("preSaveSummary_header_single")
                     : text("preSaveSummary_header_multi", {numberText(rows)});
}

std::vector<MySinglePicPtr> itemsWithRewrittenZones(const std::vector<PreSaveFinding> &problems) {
    std::vector<MySinglePicPtr> pics;
    for (const PreSaveFinding &finding : problems)
        if (finding.problem == PreSaveProblem::error_12_zoneStampRewritten)
            pics.push_back(finding.pic);
    return pics;
}

} // namespace chronomender
