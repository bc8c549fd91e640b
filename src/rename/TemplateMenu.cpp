// SPDX-License-Identifier: GPL-3.0-or-later
#include "TemplateMenu.h"

#include "FreeName.h"
#include "NaturalCompare.h"
#include "RenameChoices.h"
#include "RenameSamples.h"
#include "TemplateStore.h"

#include <algorithm>
#include <set>
#include <utility>

namespace chronomender {
namespace {

constexpr std::string_view selectedKey = "templateSelectedIndex";
constexpr std::string_view sortedKey = "sortedTemplatesSelectedIndex";

/// In the order of the list.
std::vector<TemplateMenuEntry> entriesOf(const std::vector<RenameTemplate> &templates,
                                         const UserDefaults &defaults, const Zones &zones) {
    std::vector<TemplateMenuEntry> entries;
    entries.reserve(templates.size() + 1);
    const AddOnTexts addOns = renameChoices(defaults, {}).additionalTexts;
    std::set<std::string> taken;
    for (const RenameTemplate &each : templates) {
        TemplateMenuEntry entry{{}, sampleTextWithSettings(each, addOns, zones), entries.size()};
        const std::string plain = plainText(entry.aName);
        entry.name = freeName(plain, taken);
        if (entry.name != plain)
            entry.aName.push_back({.text = entry.name.substr(plain.size())});
        taken.insert(entry.name);
        entries.push_back(std::move(entry));
    }
    return entries;
}

} // namespace

TemplateSheetFlags sheetFlagsOf(const RenameTemplate &renameTemplate) {
    using enum RenameElement;
    TemplateSheetFlags flags;
    flags.isCounterAvailable = renameTemplate.has(Counter);
    flags.isFolderNameAvailable = renameTemplate.has(FolderName);
    flags.isFileNameAvailable = renameTemplate.has(SourceName);
    flags.isANameAvailable = flags.isFolderNameAvailable || flags.isFileNameAvailable;
    const int addOns = renameTemplate.useAddOnsCount();
    flags.isAdditionalTextAvailable = addOns == 1;
    flags.is2AdditionalTextAvailable = addOns == 2;
    flags.is3AdditionalTextAvailable = addOns == 3;
    return flags;
}

std::vector<TemplateMenuEntry> updateTemplatePopup(UserDefaults &defaults, const Zones &zones) {
    auto menu = entriesOf(renameTemplatesRaw(defaults), defaults, zones);
    const auto selectedIndex = static_cast<std::size_t>(defaults.integerForKey(selectedKey));
    const NaturalCompare order;
    std::ranges::stable_sort(
        menu, [&](const std::string &a, const std::string &b) { return order.less(a, b); },
        &TemplateMenuEntry::name);
    const auto selected = std::ranges::find(menu, selectedIndex, &TemplateMenuEntry::tempIndex);
    const bool isSelected = selected != menu.end();
    const auto place = isSelected ? selected - menu.begin() + 1 : 0;
    TemplateMenuEntry first{{}, isSelected ? selected->aName : StyledName(), 0};
    menu.insert(menu.begin(), std::move(first));
    defaults.set(sortedKey, std::to_string(place));
    return menu;
}

TemplateSheetFlags templateSelected(const std::vector<TemplateMenuEntry> &menu, std::size_t place,
                                    UserDefaults &defaults) {
    if (place > 0 && place < menu.size()) {
        defaults.set(selectedKey, std::to_string(menu[place].tempIndex));
        defaults.set(sortedKey, std::to_string(place));
    }
    return sheetFlagsOf(selectedTemplate(defaults).value_or(RenameTemplate{}));
}

} // namespace chronomender
