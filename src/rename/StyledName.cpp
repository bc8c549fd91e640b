// SPDX-License-Identifier: GPL-3.0-or-later
#include "NameBuilder.h"

#include "NameValues.h"

namespace chronomender {
namespace {

using Kind = StyledRun::Kind;

/// Two neighbours of one colour can be told apart by the second one's weaker colour; a third one is
/// like the first again.
bool isReducedBehind(const StyledName &runs, int slot) {
    return !runs.empty() && runs.back().slot == slot && !runs.back().isReduced;
}

StyledName runsOfTemplate(const NameValues &values, const RenameTemplate &renameTemplate) {
    StyledName runs;
    runs.reserve(renameTemplate.stringParts.size() + 3);
    walkParts(renameTemplate, [&](const TemplatePart &part, std::optional<int> slot) {
        const std::string_view text = slot ? values[*slot] : std::string_view(part.text);
        if (text.empty())
            return;
        if (slot)
            runs.push_back({std::string(text), Kind::Value, *slot, isReducedBehind(runs, *slot)});
        else
            runs.push_back({std::string(text), Kind::Text});
    });
    if (runs.empty())
        runs.push_back({"_", Kind::Marker});
    return runs;
}

std::string plainText(const StyledName &runs) {
    std::string text;
    for (const StyledRun &run : runs)
        text += run.text;
    return text;
}

void removeFront(StyledName &runs, std::size_t count) {
    for (auto run = runs.begin(); run != runs.end() && count > 0; ++run) {
        const std::size_t length = std::min(count, run->text.size());
        run->text.erase(0, length);
        count -= length;
    }
    std::erase_if(runs, [](const StyledRun &run) { return run.text.empty(); });
}

void handleFrontDots(StyledName &runs, const NameSettings &settings) {
    const FrontDotMode mode = settings.frontDotHandlingMode;
    if (mode == FrontDotMode::Remove && settings.sheetMode != SheetMode::TemplateSample) {
        removeFront(runs, frontDotsToRemove(plainText(runs)));
    } else if (mode == FrontDotMode::Report && runs.front().text.starts_with('.')) {
        removeFront(runs, 1);
        runs.insert(runs.begin(), {".", Kind::FrontDot});
    }
}

/// What is told behind the name: the files that move along.
std::string companionsOf(const NameFacts &facts, const NameSettings &settings) {
    const std::string &complete = facts.spNameComplete;
    if (settings.sheetMode != SheetMode::Name || complete.size() <= facts.spName.size())
        return {};
    return caseChanged(complete.substr(facts.spName.size()), settings.suffixChangeCase);
}

} // namespace

StyledName styledNameString(const NameFacts &facts, std::int64_t counter, const AddOnTexts &addOns,
                            const NameSettings &settings) {
    const NameValues values(facts, counter, addOns, settings, NameValues::Purpose::Display);
    StyledName runs = runsOfTemplate(values, settings.renameTemplate);
    const bool isHidden = settings.suffixVisibility == SuffixVisibility::Hide;
    if (std::string extension = dottedExtension(facts, settings); !extension.empty())
        runs.push_back({std::move(extension), isHidden ? Kind::HiddenExtension : Kind::Extension});
    handleFrontDots(runs, settings);
    if (std::string companions = companionsOf(facts, settings); !companions.empty())
        runs.push_back({std::move(companions), Kind::Companions});
    return runs;
}

} // namespace chronomender
