// SPDX-License-Identifier: GPL-3.0-or-later
#include "RenameSheetController.h"

#include "AddOnMemory.h"
#include "RenameSamples.h"
#include "RenameSummary.h"

#include <algorithm>
#include <unordered_set>

namespace chronomender {

RenameSheetController::RenameSheetController(RenameSheetRequest request, RenameSheetViews views,
                                             const UserDefaults &defaults, const Zones &zones)
    : m_items(request, std::move(views), defaults), m_defaults(defaults), m_zones(zones) {}

void RenameSheetController::settingsChanged() {
    m_choices.reset();
    m_counters.reset();
}

const std::optional<RenameChoices> &RenameSheetController::choices() {
    if (m_choices)
        return *m_choices;
    m_choices.emplace(renameChoices(m_defaults));
    auto &choices = *m_choices;
    // Away from folders selected together their common counter is one for each folder.
    if (choices && choices->wantsCompoundAltCounter && !m_items.isForCompound()) {
        choices->wantsCompoundAltCounter = false;
        choices->counterType = CounterType::PerFolder;
    }
    return choices;
}

int RenameSheetController::useAddOnsCount() {
    return choices() ? choices()->names.renameTemplate.useAddOnsCount() : 0;
}

std::array<bool, 3> RenameSheetController::whichOldAddOnsExistIs1and2and3() {
    std::array<bool, 3> exist{};
    const auto look = [&exist](const RenameAddOns &addOns) {
        for (const auto &[number, text] : addOns)
            if (number >= 1 && number <= 3 && !text.empty())
                exist[static_cast<std::size_t>(number - 1)] = true;
    };
    std::unordered_set<const MySingleFolder *> seen;
    for (const MySinglePicPtr &pic :
         m_items.currentPicsToSampleWithRestrictType(m_items.restrictRenameType())) {
        look(pic->rename.lastRenameAddOns);
        const MySingleFolderPtr folder = pic->spSingleRealFolder();
        if (folder && seen.insert(folder.get()).second)
            look(folder->lastRenameAddOns);
        if (std::ranges::find(exist, false) == exist.end())
            break;
    }
    return exist;
}

std::array<KeepAddOnButton, 3> RenameSheetController::validateOldAddOnButtons() {
    const auto count = static_cast<std::size_t>(useAddOnsCount());
    const std::array<bool, 3> exist =
        count > 0 ? whichOldAddOnsExistIs1and2and3() : std::array<bool, 3>{};
    std::array<KeepAddOnButton, 3> buttons;
    for (std::size_t i = 0; i < buttons.size(); ++i)
        buttons[i] = {i < count, i < count && exist[i]};
    return buttons;
}

SuffixVisibility RenameSheetController::liveSuffixVisibilityForImage(const MySinglePic &pic) {
    const auto wanted =
        choices() ? choices()->names.suffixVisibility
                  : static_cast<SuffixVisibility>(m_defaults.integerForKey("suffixVisibility"));
    if (wanted != SuffixVisibility::Leave)
        return wanted;
    return pic.isExtensionHidden ? SuffixVisibility::Hide : SuffixVisibility::Show;
}

/// What the run would count: by its own request, so that a row shows what the disk will get.
RenameScope RenameSheetController::scope() {
    const RenameSheetViews &views = m_items.views();
    return renameScope(m_items.saveRequest().value_or(SaveRequest{}), views.folders,
                       views.source_full);
}

StyledName RenameSheetController::sampleTextForImage(const MySinglePic &pic) {
    if (!choices())
        return {};
    const RenameChoices &chosen = *choices();
    const int restrictType = m_items.restrictRenameType();
    if (!m_counters || m_countedRestrictType != restrictType) {
        m_counters.emplace(scope(), chosen);
        m_countedRestrictType = restrictType;
    }
    const auto counter = m_counters->counterOfPic(pic);
    const auto facts = nameFactsOf(pic, chosen.useNameAtImportAsSourceName, m_zones);
    if (!counter || !facts)
        return {};
    NameSettings settings = chosen.names;
    settings.suffixVisibility = liveSuffixVisibilityForImage(pic);
    return styledNameString(*facts, *counter, addOnsOfPic(pic, chosen), settings);
}

std::vector<NameFacts> RenameSheetController::factsForSample(std::size_t most) {
    std::vector<NameFacts> items;
    const bool useNameAtImport = m_defaults.boolForKey("useNameAtImportAsSourceName");
    for (const MySinglePicPtr &pic : m_items.currentPicsToSample()) {
        if (items.size() == most)
            break;
        if (auto facts = nameFactsOf(*pic, useNameAtImport, m_zones))
            items.push_back(std::move(*facts));
    }
    if (items.empty())
        for (const MySampleNameSingleFolder &folder : sampleFolders())
            for (const MySampleNameSinglePic &pic : folder.pics)
                if (items.size() < most)
                    items.push_back(sampleFacts(pic, folder, m_zones));
    return items;
}

StyledName
RenameSheetController::sampleTextForImages(std::size_t most,
                                           const std::optional<RenameTemplate> &settings) {
    if (!settings && !choices())
        return {};
    const RenameChoices used = settings ? renameChoices(m_defaults, *settings) : *choices();
    return sampleBlock(factsForSample(most), used.additionalTexts, used.names);
}

std::string RenameSheetController::renameSummaryString() {
    return chronomender::renameSummaryString(
        m_items.currentPicsToSampleWithRestrictType(m_items.restrictRenameType()));
}

} // namespace chronomender
