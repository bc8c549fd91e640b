// SPDX-License-Identifier: GPL-3.0-or-later
#include "SaveReport.h"

#include "JsonLine.h"
#include "Output.h"
#include "Texts.h"
#include "Utf8Text.h"

#include <algorithm>
#include <array>
#include <utility>

namespace chronomender {
namespace {

struct ResultName {
    ReportedResult result;
    std::string_view name;
};
constexpr std::array<ResultName, 6> resultNames{{
    {ReportedResult::Planned, "planned"},
    {ReportedResult::Saved, "saved"},
    {ReportedResult::Unchanged, "unchanged"},
    {ReportedResult::Refused, "refused"},
    {ReportedResult::Failed, "failed"},
    {ReportedResult::NotReached, "notReached"},
}};

std::string problemTitle(PreSaveProblem problem) {
    return text("preSaveSummary_" + std::string(key(problem)));
}

std::string acceptingOption(PreSaveProblem problem) {
    return "--accept " + std::string(key(problem));
}

void appendProblems(JsonLine &line, const std::vector<PreSaveFinding> &problems) {
    line.beginArray("problems");
    for (const PreSaveFinding &finding : problems)
        line.beginElement()
            .field("key", key(finding.problem))
            .field("text", problemTitle(finding.problem))
            .fieldIfAny("detail", finding.detail)
            .field("option", acceptingOption(finding.problem))
            .end();
    line.end();
}

/// Why nothing was written to the file, or would be.
std::string reasonOf(const ItemOutcome &outcome) {
    if (!outcome.errors.empty())
        return descriptionOf(outcome.errors.front());
    return outcome.problems.empty() ? std::string()
                                    : problemTitle(outcome.problems.front().problem);
}

bool isNothingWritten(ReportedResult result) {
    return result == ReportedResult::Refused || result == ReportedResult::Failed ||
           result == ReportedResult::NotReached;
}

} // namespace

std::string descriptionOf(const SaveError &error) {
    const std::string id = std::to_string(static_cast<int>(error.id));
    return error.systemText.empty() ? text("errorPanelDescriptionText_ID" + id) : error.systemText;
}

std::string_view resultName(ReportedResult result) {
    for (const ResultName &named : resultNames)
        if (named.result == result)
            return named.name;
    return {};
}

SaveReport::SaveReport(AppController &controller, const std::vector<MySingleFolderPtr> &folders,
                       const std::vector<ItemOutcome> &items, Stage stage,
                       std::set<PreSaveProblem> accepted, const Before &before)
    : m_controller(controller),
      m_paths(folders),
      m_items(items),
      m_stage(stage),
      m_accepted(std::move(accepted)),
      m_before(before) {
    for (const ItemOutcome &outcome : items)
        m_outcomes.emplace(outcome.pic.get(), &outcome);
}

bool SaveReport::isAccepted(const ItemOutcome &outcome) const {
    return std::all_of(
        outcome.problems.begin(), outcome.problems.end(),
        [this](const PreSaveFinding &finding) { return m_accepted.contains(finding.problem); });
}

ReportedResult SaveReport::resultOf(const ItemOutcome &outcome) const {
    const bool isPlan = m_stage == Stage::Plan;
    if (isPlan && !isAccepted(outcome))
        return ReportedResult::Refused;
    switch (outcome.result) {
    case ItemResult::Saved:
        return isPlan ? ReportedResult::Planned : ReportedResult::Saved;
    case ItemResult::Refused:
        return ReportedResult::Refused;
    case ItemResult::Failed:
        return ReportedResult::Failed;
    case ItemResult::NotReached:
        return ReportedResult::NotReached;
    case ItemResult::Unchanged:
        break;
    }
    return ReportedResult::Unchanged;
}

const ItemOutcome *SaveReport::outcomeOf(const MySinglePic &pic) const {
    const auto found = m_outcomes.find(&pic);
    return found == m_outcomes.end() ? nullptr : found->second;
}

std::string SaveReport::path(const MySinglePic &pic) const {
    const MySingleFolderPtr folder = pic.spSingleRealFolder();
    return folder ? path(pic, *folder) : pic.spName;
}

std::string SaveReport::path(const MySinglePic &pic, const MySingleFolder &folder) const {
    const auto before = m_before.paths.find(&pic);
    return before == m_before.paths.end() ? m_paths.path(folder, pic) : before->second;
}

std::set<PreSaveProblem> SaveReport::problems() const {
    std::set<PreSaveProblem> found;
    for (const ItemOutcome &outcome : m_items)
        for (const PreSaveFinding &finding : outcome.problems)
            found.insert(finding.problem);
    return found;
}

/// Items that the save never looked at count as unchanged.
std::size_t SaveReport::count(ReportedResult result) const {
    std::size_t sum = 0;
    for (const ItemOutcome &outcome : m_items)
        sum += resultOf(outcome) == result ? 1 : 0;
    std::size_t all = 0;
    for (const MySinglePicPtr &pic : m_controller.source_full())
        all += pic->group.bundleDependentImage ? 2 : 1;
    return result == ReportedResult::Unchanged && all > m_items.size() ? sum + all - m_items.size()
                                                                       : sum;
}

void SaveReport::appendItem(std::string &buffer, const MySinglePic &pic,
                            const MySingleFolder &folder) const {
    const ItemOutcome *outcome = outcomeOf(pic);
    JsonLine line(buffer);
    line.field("path", path(pic, folder));
    line.field("result", resultName(outcome ? resultOf(*outcome) : ReportedResult::Unchanged));
    line.beginArray("errorIds");
    if (outcome)
        for (const SaveError &error : outcome->errors)
            line.element(static_cast<std::int64_t>(error.id));
    line.end();
    appendProblems(line, outcome ? outcome->problems : std::vector<PreSaveFinding>());
    std::vector<SlotView> slots = outcome ? slotsOf(*outcome) : std::vector<SlotView>();
    for (SlotView &slot : slots)
        if (slot.result == SlotResult::Refused && slot.reason.empty())
            slot.reason = reasonOf(*outcome);
    appendSlots(line, slots);
    line.finish();
}

void SaveReport::appendLines(std::string &buffer) const {
    for (const MySinglePicPtr &pic : m_controller.source_full())
        if (const MySingleFolderPtr folder = pic->spSingleRealFolder()) {
            appendItem(buffer, *pic, *folder);
            if (const MySinglePicPtr &dependent = pic->group.bundleDependentImage)
                appendItem(buffer, *dependent, *folder);
        }
}

void SaveReport::appendSummary(JsonLine &line, const Summary &summary) const {
    for (const ResultName &named : resultNames)
        line.field(named.name, static_cast<std::int64_t>(count(named.result)));
    line.flag("dryRun", summary.isDryRun)
        .flag("interrupted", summary.wasInterrupted)
        .field("exitCode", static_cast<std::int64_t>(summary.exitCode));
}

/// Of a file that was not written, no slot is.
std::vector<SlotView> SaveReport::slotsOf(const ItemOutcome &outcome) const {
    const auto zones = m_before.zones.find(outcome.pic.get());
    std::vector<SlotView> slots =
        slotViews(outcome, zones == m_before.zones.end() ? SlotZones() : zones->second);
    if (isNothingWritten(resultOf(outcome)))
        for (SlotView &slot : slots)
            if (slot.result == SlotResult::WrittenInPlace ||
                slot.result == SlotResult::WrittenByTool)
                slot.result = SlotResult::Refused;
    return slots;
}

void SaveReport::appendTable(std::string &buffer, const ItemOutcome &outcome) const {
    const MySingleFolderPtr folder = outcome.pic->spSingleRealFolder();
    const ReportedResult result = resultOf(outcome);
    if (!folder || result == ReportedResult::Unchanged || result == ReportedResult::NotReached)
        return;
    buffer += printable(path(*outcome.pic, *folder)) + '\n';
    Table table("    ");
    addSlotRows(table, slotsOf(outcome),
                m_stage == Stage::Run ? SlotTense::Done : SlotTense::Planned);
    buffer += table.text();
    if (m_stage == Stage::Plan && outcome.pic->importState.isExtraHardLink)
        buffer += "    " + text("cli_save_hardLinks") + '\n';
    for (const SaveError &error : outcome.errors)
        buffer += "    " + descriptionOf(error) + '\n';
    for (const PreSaveFinding &finding : outcome.problems)
        buffer += "    " + std::string(key(finding.problem)) + ": " +
                  problemTitle(finding.problem) +
                  (finding.detail.empty() ? "" : " (" + finding.detail + ')') + '\n';
}

std::vector<std::string> SaveReport::slotTable() const {
    return buildPieces(m_items.size(), [this](std::size_t i, std::string &buffer) {
        appendTable(buffer, m_items[i]);
    });
}

std::string SaveReport::problemText() const {
    std::string buffer;
    for (const PreSaveProblem problem : problems()) {
        const std::string name(key(problem));
        buffer += name + ": " + problemTitle(problem) + '\n';
        buffer += "  " + text("preSaveSummary_" + name + "_details") + '\n';
        if (m_accepted.contains(problem)) {
            buffer += "  " + text("cli_save_accepted") + '\n';
        } else {
            buffer += "  " + text("cli_save_acceptWith", {acceptingOption(problem)}) + '\n';
            if (problem == PreSaveProblem::error_12_zoneStampRewritten)
                buffer += "  " + text("cli_save_keepOwnZones") + '\n';
        }
        buffer += affectedText(problem);
    }
    return buffer;
}

/// The files that have the problem, as many as a person would read.
std::string SaveReport::affectedText(PreSaveProblem problem) const {
    constexpr std::size_t mostListed = 20;
    std::string buffer;
    std::size_t count = 0;
    for (const ItemOutcome &outcome : m_items)
        for (const PreSaveFinding &finding : outcome.problems)
            if (finding.problem == problem && ++count <= mostListed)
                buffer += "    " + printable(path(*outcome.pic)) +
                          (finding.detail.empty() ? "" : "  " + finding.detail) + '\n';
    if (count > mostListed)
        buffer += "    " + text("cli_save_andMore", {std::to_string(count - mostListed)}) + '\n';
    return buffer;
}

std::string SaveReport::notReachedText() const {
    std::string buffer;
    for (const ItemOutcome &outcome : m_items)
        if (resultOf(outcome) == ReportedResult::NotReached)
            buffer += "  " + printable(path(*outcome.pic)) + '\n';
    return buffer.empty() ? buffer : text("cli_save_notReached") + '\n' + buffer;
}

std::string SaveReport::summaryText() const {
    std::string buffer;
    for (const ResultName &named : resultNames) {
        const bool isAlwaysSaid = named.result == ReportedResult::Unchanged ||
                                  (named.result == ReportedResult::Saved && m_stage == Stage::Run);
        const std::size_t items = count(named.result);
        if (items > 0 || isAlwaysSaid)
            buffer += (buffer.empty() ? "" : ", ") +
                      text("cli_result_" + std::string(named.name), {std::to_string(items)});
    }
    return buffer + '\n';
}

} // namespace chronomender
