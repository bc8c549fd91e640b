// SPDX-License-Identifier: GPL-3.0-or-later
#include "RenameTemplate.h"

#include <algorithm>

namespace chronomender {

bool RenameTemplate::has(RenameElement element) const {
    return std::ranges::find(stringParts, std::optional(element), &TemplatePart::element) !=
           stringParts.end();
}

int RenameTemplate::useAddOnsCount() const {
    const auto count = std::ranges::count(stringParts, std::optional(RenameElement::AddOn),
                                          &TemplatePart::element);
    return std::min(static_cast<int>(count), mostOccurrences(RenameElement::AddOn));
}

TemplateStatus statusOf(const RenameTemplate &renameTemplate) {
    if (renameTemplate.has(RenameElement::Counter) || renameTemplate.has(RenameElement::SourceName))
        return TemplateStatus::Good;
    for (int number = static_cast<int>(RenameElement::Year);
         number <= static_cast<int>(RenameElement::Second); ++number)
        if (renameTemplate.has(static_cast<RenameElement>(number)))
            return TemplateStatus::NamesMayBeEqual;
    return TemplateStatus::OnlyOneName;
}

} // namespace chronomender
