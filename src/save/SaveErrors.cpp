// SPDX-License-Identifier: GPL-3.0-or-later
#include "SaveErrors.h"

#include "Texts.h"

#include <algorithm>
#include <array>
#include <map>

namespace chronomender {
namespace {

/// In the order of `PreSaveProblem`.
constexpr std::array<std::string_view, 13> problemKeys{
    "error_01_ambiguousStamp",   "error_02_pre1904",
    "error_03_pre1970",          "error_04_livePhotoDriftingApart",
    "error_05_notFound",         "error_06_modifiedAfterImport",
    "error_07_notFound",         "error_08_modifiedAfterImport",
    "error_10_disconnected",     "error_11_oldVersion_file",
    "error_11_oldVersion_group", "error_12_zoneStampRewritten",
    "error_13_unreadableStamp",
};

std::string pathLine(const SaveError &error) {
    return error.systemText.empty() ? error.path : error.path + " (" + error.systemText + ')';
}

} // namespace

std::string_view key(PreSaveProblem problem) {
    return problemKeys[static_cast<std::size_t>(problem)];
}

std::optional<PreSaveProblem> problemWithKey(std::string_view key) {
    const auto found = std::find(problemKeys.begin(), problemKeys.end(), key);
    if (found == problemKeys.end())
        return std::nullopt;
    return static_cast<PreSaveProblem>(found - problemKeys.begin());
}

std::string actionErrorText(const std::vector<SaveError> &errors, const std::string &toolErrors) {
    if (errors.empty() && toolErrors.empty())
        return {};
    std::map<int, std::string> pathsOfIds;
    for (const SaveError &error : errors)
        pathsOfIds[static_cast<int>(error.id)] += pathLine(error) + '\n';
    std::string result = text("errorPanelMessageText") + '\n';
    for (const auto &[id, paths] : pathsOfIds)
        result += '\n' + text("errorPanelDescriptionText_ID" + std::to_string(id)) + '\n' + paths;
    if (!toolErrors.empty())
        result += '\n' + toolErrors + (toolErrors.ends_with('\n') ? "" : "\n");
    return result;
}

} // namespace chronomender
