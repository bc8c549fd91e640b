// SPDX-License-Identifier: GPL-3.0-or-later
#include "RenameChoices.h"
#include "CompoundMenuTag.h"
#include "TemplateStore.h"

#include <algorithm>
#include <utility>

namespace chronomender {

RenameChoices renameChoices(const UserDefaults &defaults, RenameTemplate renameTemplate) {
    RenameChoices choices;
    NameSettings &names = choices.names;
    names.renameTemplate = std::move(renameTemplate);
    names.frontDotHandlingMode =
        static_cast<FrontDotMode>(defaults.integerForKey("frontDotHandlingMode"));
    names.suffixVisibility =
        static_cast<SuffixVisibility>(defaults.integerForKey("suffixVisibility"));
    names.suffixChangeCase = static_cast<SuffixCase>(defaults.integerForKey("suffixChangeCase"));
    if (names.renameTemplate.has(RenameElement::FolderName) &&
        defaults.boolForKey("modAtRenameFolder"))
        names.folderModifications = modificationsForTag(ModificationTag::Folder, defaults);
    if (names.renameTemplate.has(RenameElement::SourceName) &&
        defaults.boolForKey("modAtRenameFile"))
        names.fileModifications = modificationsForTag(ModificationTag::File, defaults);
    choices.additionalTexts = {defaults.stringForKey("additionalText"),
                               defaults.stringForKey("additionalText2"),
                               defaults.stringForKey("additionalText3")};
    constexpr std::array keepKeys{"rename_keepAddOn1", "rename_keepAddOn2", "rename_keepAddOn3"};
    const auto addOns = static_cast<std::size_t>(names.renameTemplate.useAddOnsCount());
    for (std::size_t i = 0; i < addOns; ++i)
        choices.keepsAddOn[i] = defaults.boolForKey(keepKeys[i]);
    const CompoundMenuTag counterMenu = menuTag(counterTypeMenu, defaults);
    choices.counterType = static_cast<CounterType>(counterMenu.integer());
    choices.wantsCompoundAltCounter = counterMenu.isCompoundAlternative();
    const int startOption = defaults.integerForKey("renameCounterStartOption");
    if (startOption == 2 || startOption == 3)
        choices.firstCounter = defaults.integerForKey("renameCounterStartValue");
    choices.rename_restrictCounter = defaults.boolForKey("rename_restrictCounter");
    choices.useNameAtImportAsSourceName = defaults.boolForKey("useNameAtImportAsSourceName");
    return choices;
}

std::optional<RenameChoices> renameChoices(const UserDefaults &defaults) {
    auto selected = selectedTemplate(defaults);
    if (!selected)
        return std::nullopt;
    return renameChoices(defaults, std::move(*selected));
}

std::vector<MySingleFolderPtr> RenameScope::workList() const {
    if (!onlyFolders.empty() || !onlyPics)
        return onlyFolders.empty() ? folders : onlyFolders;
    std::vector<MySingleFolderPtr> found;
    for (const MySinglePicPtr &pic : *onlyPics)
        if (const MySingleFolderPtr folder = pic->spSingleRealFolder();
            folder && std::ranges::find(found, folder) == found.end())
            found.push_back(folder);
    return found;
}

RenameScope renameScope(const SaveRequest &request, const std::vector<MySingleFolderPtr> &folders,
                        const std::vector<MySinglePicPtr> &source_full) {
    RenameScope scope{folders, source_full, request.onlyFolders, request.onlyPics};
    if (request.type == SaveProcessType::SaveThenRenameAll)
        scope.onlyFolders.clear();
    return scope;
}

} // namespace chronomender
