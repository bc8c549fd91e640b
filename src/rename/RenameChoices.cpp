// SPDX-License-Identifier: GPL-3.0-or-later
#include "RenameChoices.h"
#include "TemplateStore.h"

#include <algorithm>

namespace chronomender {

std::optional<RenameChoices> renameChoices(const UserDefaults &defaults) {
    const auto selected = selectedTemplate(defaults);
    if (!selected)
        return std::nullopt;
    RenameChoices choices;
    NameSettings &names = choices.names;
    names.renameTemplate = *selected;
    names.frontDotHandlingMode =
        static_cast<FrontDotMode>(defaults.integerForKey("frontDotHandlingMode"));
    names.suffixVisibility =
        static_cast<SuffixVisibility>(defaults.integerForKey("suffixVisibility"));
    names.suffixChangeCase = static_cast<SuffixCase>(defaults.integerForKey("suffixChangeCase"));
    if (defaults.boolForKey("modAtRenameFolder"))
        names.folderModifications = modificationsForTag(ModificationTag::Folder, defaults);
    if (defaults.boolForKey("modAtRenameFile"))
        names.fileModifications = modificationsForTag(ModificationTag::File, defaults);
    choices.additionalTexts = {defaults.stringForKey("additionalText"),
                               defaults.stringForKey("additionalText2"),
                               defaults.stringForKey("additionalText3")};
    choices.keepsAddOn = {defaults.boolForKey("rename_keepAddOn1"),
                          defaults.boolForKey("rename_keepAddOn2"),
                          defaults.boolForKey("rename_keepAddOn3")};
    choices.counterType = static_cast<CounterType>(defaults.integerForKey("counterType"));
    choices.wantsCompoundAltCounter = defaults.boolForKey("counterType_prefersCompoundAltOption");
    const int startOption = defaults.integerForKey("renameCounterStartOption");
    if (startOption == 2 || startOption == 3)
        choices.firstCounter = defaults.integerForKey("renameCounterStartValue");
    choices.rename_restrictCounter = defaults.boolForKey("rename_restrictCounter");
    choices.useNameAtImportAsSourceName = defaults.boolForKey("useNameAtImportAsSourceName");
    return choices;
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
