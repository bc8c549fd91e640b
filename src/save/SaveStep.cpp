// SPDX-License-Identifier: GPL-3.0-or-later
#include "SaveStep.h"

#include "FolderSave.h"

#include <algorithm>
#include <span>

namespace chronomender {

bool SaveStep::isPartOf(const SaveRequest &request) const {
    return request.type != SaveProcessType::Rename;
}

void SaveStep::run(const SaveRequest &request, const PreProcessResult &preProcess,
                   SaveRunResult &result) {
    const std::size_t total = preProcess.items.size();
    ProgressCounter progress(m_services.progress, total, SaveDriver::piValueForCount(total));
    result.items.reserve(total);
    std::span<const ItemOutcome> left(preProcess.items);
    while (!left.empty()) {
        const auto folder = left.front().pic->spSingleRealFolder();
        const auto next = std::find_if(left.begin(), left.end(), [&](const ItemOutcome &item) {
            return item.pic->spSingleRealFolder() != folder;
        });
        const auto count = static_cast<std::size_t>(next - left.begin());
        if (folder)
            FolderSave(folder, left.first(count), request, m_services).run(progress, result);
        left = left.subspan(count);
    }
}

} // namespace chronomender
