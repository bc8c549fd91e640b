// SPDX-License-Identifier: GPL-3.0-or-later
#include "JobRows.h"

#include "RowTexts.h"
#include "Texts.h"
#include "TimeTexts.h"

#include <algorithm>
#include <cmath>

namespace chronomender {
namespace {

std::string joined(std::initializer_list<std::string> parts) {
    std::string result;
    for (const std::string &part : parts)
        if (!part.empty())
            result += (result.empty() ? "" : " · ") + part;
    return result;
}

std::string countIfAny(std::string_view key, std::size_t number) {
    return number == 0 ? std::string() : countText(key, static_cast<std::int64_t>(number));
}

std::string doneText(const JobStatus &status) {
    const std::string done = numberText(static_cast<std::int64_t>(status.done));
    if (status.total == 0)
        return status.done == 0 ? std::string() : done;
    return text("jobs_doneOf", {done, numberText(static_cast<std::int64_t>(status.total))});
}

std::string rateText(const JobStatus &status) {
    if (!status.perSecond || *status.perSecond <= 0)
        return {};
    // Below ten a second the whole number says too little.
    const double rate = *status.perSecond;
    const double tenths = std::round(rate * 10);
    const std::string number = rate >= 10 ? numberText(std::llround(rate))
                                          : std::to_string(static_cast<int>(tenths) / 10) + '.' +
                                                std::to_string(static_cast<int>(tenths) % 10);
    return text("jobs_perSecond", {number});
}

/// What is not known of one is not known of both.
void add(JobStatus &sum, const JobStatus &status) {
    sum.total = sum.total == 0 || status.total == 0 ? 0 : sum.total + status.total;
    sum.done += status.done;
    sum.perSecond = sum.perSecond && status.perSecond
                        ? std::optional(*sum.perSecond + *status.perSecond)
                        : std::nullopt;
    sum.remaining = sum.remaining && status.remaining
                        ? std::optional(std::max(*sum.remaining, *status.remaining))
                        : std::nullopt;
    sum.canBeCancelled = sum.canBeCancelled || status.canBeCancelled;
    sum.isCancelling = sum.isCancelling && status.isCancelling;
}

} // namespace

std::string progressText(const JobStatus &status) {
    if (status.isCancelling)
        return text("jobs_cancelling");
    const std::string remaining =
        status.remaining ? text("jobs_remaining", {spanText(*status.remaining)}) : std::string();
    return joined({doneText(status), rateText(status), remaining});
}

std::vector<JobStatus> mergedByKind(const std::vector<JobStatus> &statuses) {
    std::vector<JobStatus> merged;
    for (const JobStatus &status : statuses) {
        const auto same = std::ranges::find(merged, status.kind, &JobStatus::kind);
        if (same == merged.end())
            merged.push_back(status);
        else
            add(*same, status);
    }
    return merged;
}

std::string sessionText(std::size_t items, std::size_t selected, std::size_t unsaved) {
    return joined({countText("jobs_items", static_cast<std::int64_t>(items)),
                   countIfAny("jobs_selected", selected), countIfAny("jobs_unsaved", unsaved)});
}

} // namespace chronomender
