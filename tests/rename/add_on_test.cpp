// SPDX-License-Identifier: GPL-3.0-or-later
#include "AddOnMemory.h"
#include "LittleItem.h"

#include <gtest/gtest.h>

namespace chronomender {
namespace {

RenameChoices typing(const std::string &text, bool isKept) {
    RenameChoices choices;
    choices.names.renameTemplate.stringParts = {TemplatePart::ofElement(RenameElement::AddOn)};
    choices.additionalTexts = {text, "second", ""};
    choices.keepsAddOn[0] = isKept;
    return choices;
}

// Every way in which an item and its folder can have a text, for a run over the folder and one over
// a selection: the name of a dry run, which remembers nothing, is the name of the run.
TEST(AddOnTest, KeepsTheNearestTextAndTellsTheSameBeforeAndAfter) {
    const struct {
        const char *own, *folders;
        bool isRestricted, isKept;
        const char *name, *ownAfter, *foldersAfter;
    } cases[] = {
        {"", "", false, false, "new", "", "new"},
        {"own", "old", false, false, "new", "", "new"},
        {"own", "old", false, true, "own", "own", "old"},
        {"", "old", false, true, "old", "", "old"},
        {"own", "", false, true, "own", "own", "new"},
        {"", "", true, false, "new", "new", ""},
        {"own", "old", true, false, "new", "new", "old"},
        {"own", "old", true, true, "own", "own", "old"},
        {"", "old", true, true, "old", "", "old"},
        {"", "", true, true, "new", "new", ""},
    };
    for (const auto &each : cases) {
        const auto folder = little::makeFolder();
        const auto pic = little::addItem(folder, SpTypeExifOriginal, little::utc(2024, 5, 1));
        if (*each.own)
            pic->rename.lastRenameAddOns[1] = each.own;
        if (*each.folders)
            folder->lastRenameAddOns[1] = each.folders;
        RenameScope scope{{folder}, {pic}, {}, {}};
        if (each.isRestricted)
            scope.onlyPics.emplace({pic});
        const RenameChoices choices = typing("new", each.isKept);
        EXPECT_EQ(addOnsOfPic(*pic, choices)[0], each.name);
        rememberAddOns(scope, choices);
        EXPECT_EQ(addOnsOfPic(*pic, choices)[0], each.name);
        const auto kept = [](RenameAddOns &addOns) { return addOns[1]; };
        EXPECT_EQ(kept(pic->rename.lastRenameAddOns), each.ownAfter);
        EXPECT_EQ(kept(folder->lastRenameAddOns), each.foldersAfter);
        EXPECT_FALSE(folder->lastRenameAddOns.contains(2)) << "the template places one";
    }
}

// What a sheet does not show for a template is not in use, whatever was chosen for another one.
TEST(RenameChoicesTest, UseOnlyWhatTheTemplatePlaces) {
    using enum RenameElement;
    UserDefaults defaults;
    for (const char *key : {"rename_keepAddOn1", "rename_keepAddOn2", "rename_keepAddOn3"})
        defaults.set(key, "1");
    const auto choices = [&](RenameElement element) {
        return renameChoices(defaults, {{}, {TemplatePart::ofElement(element)}});
    };
    EXPECT_EQ(choices(AddOn).keepsAddOn, (std::array{true, false, false}));
    EXPECT_TRUE(choices(AddOn).names.folderModifications.empty());
    EXPECT_FALSE(choices(FolderName).names.folderModifications.empty());
    EXPECT_TRUE(choices(FolderName).names.fileModifications.empty());
    defaults.set("modAtRenameFile", "0");
    EXPECT_TRUE(choices(SourceName).names.fileModifications.empty());
    defaults.set("renameCounterStartValue", "7");
    EXPECT_EQ(choices(Counter).firstCounter, 1);
    defaults.set("renameCounterStartOption", "3");
    EXPECT_EQ(choices(Counter).firstCounter, 7);
}

} // namespace
} // namespace chronomender
