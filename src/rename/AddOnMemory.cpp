// SPDX-License-Identifier: GPL-3.0-or-later
#include "AddOnMemory.h"

namespace chronomender {
namespace {

/// The remembered text of an add-on; null for none and for an empty one.
const std::string *rememberedText(const RenameAddOns &addOns, int number) {
    const auto found = addOns.find(number);
    return found == addOns.end() || found->second.empty() ? nullptr : &found->second;
}

/// What an item has, or for want of that its folder.
const std::string *keptText(const MySinglePic &pic, const MySingleFolder *folder, int number) {
    const std::string *own = rememberedText(pic.rename.lastRenameAddOns, number);
    return own || !folder ? own : rememberedText(folder->lastRenameAddOns, number);
}

void remember(RenameAddOns &addOns, int number, const std::string &text) {
    if (text.empty())
        addOns.erase(number);
    else
        addOns[number] = text;
}

void rememberInPic(MySinglePic &pic, int number, const std::string &text, bool isKept) {
    // A text of the folder is one to be kept as well: a text of the item's own would hide it.
    if (!isKept || !keptText(pic, pic.spSingleRealFolder().get(), number))
        remember(pic.rename.lastRenameAddOns, number, text);
}

void rememberInFolder(MySingleFolder &folder, int number, const std::string &text, bool isKept) {
    if (isKept) {
        if (!rememberedText(folder.lastRenameAddOns, number))
            remember(folder.lastRenameAddOns, number, text);
        return;
    }
    remember(folder.lastRenameAddOns, number, text);
    for (const MySinglePicPtr &pic : folder.sfPicDetails_fullArray)
        pic->rename.lastRenameAddOns.erase(number);
}

} // namespace

void rememberAddOns(const RenameScope &scope, const RenameChoices &choices) {
    const int count = choices.names.renameTemplate.useAddOnsCount();
    const auto folders = scope.onlyPics ? std::vector<MySingleFolderPtr>() : scope.workList();
    for (int number = 1; number <= count; ++number) {
        const auto index = static_cast<std::size_t>(number - 1);
        const std::string &text = choices.additionalTexts[index];
        const bool isKept = choices.keepsAddOn[index];
        if (scope.onlyPics)
            for (const MySinglePicPtr &pic : *scope.onlyPics)
                rememberInPic(*pic, number, text, isKept);
        for (const MySingleFolderPtr &folder : folders)
            rememberInFolder(*folder, number, text, isKept);
    }
}

AddOnTexts addOnsOfPic(const MySinglePic &pic, const RenameChoices &choices) {
    AddOnTexts texts = choices.additionalTexts;
    const MySingleFolderPtr folder = pic.spSingleRealFolder();
    for (std::size_t i = 0; i < texts.size(); ++i)
        if (choices.keepsAddOn[i])
            if (const auto *kept = keptText(pic, folder.get(), static_cast<int>(i) + 1))
                texts[i] = *kept;
    return texts;
}

} // namespace chronomender
