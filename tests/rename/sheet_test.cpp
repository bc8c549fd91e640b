// SPDX-License-Identifier: GPL-3.0-or-later
#include "CompoundMenuTag.h"
#include "LittleItem.h"
#include "RenameSamples.h"
#include "RenameSheetController.h"
#include "RenameSummary.h"
#include "SaveBeforeRename.h"
#include "TemplateStore.h"
#include "Texts.h"

#include <gtest/gtest.h>

namespace chronomender {
namespace {

using Folders = std::vector<MySingleFolderPtr>;
using Pics = std::vector<MySinglePicPtr>;
using enum RenameSheetRequest;
using enum RenameElement;

std::string namesOf(const Pics &pics) {
    std::string names;
    for (const MySinglePicPtr &pic : pics)
        names += pic->spName.substr(0, 1);
    return names;
}

/// Items a to f by turns in three folders; what lies in the second folder, b and e, is not saved.
class SheetTest : public ::testing::Test {
protected:
    Folders folders{little::makeFolder(), little::makeFolder(), little::makeFolder()};
    Pics pics;
    UserDefaults defaults;
    Zones zones;

    SheetTest() {
        loadTexts("en");
        for (std::size_t i = 0; i < 6; ++i)
            pics.push_back(little::addItem(folders[i % 3], SpTypeExifOriginal,
                                           little::utc(2024, 5, 1),
                                           std::string(1, static_cast<char>('a' + i)) + ".jpg"));
        folders[1]->sfDateModificationsTimeInterval = absl::Hours(1);
    }
    /// Folders and selections by their letters; the first item of a selection is its main one.
    RenameSheetController sheet(RenameSheetRequest request, const std::string &selectedFolders,
                                const std::string &selection = {},
                                const std::string &second = {}) const {
        RenameSheetViews views{folders, pics, {}, {}};
        for (const char letter : selectedFolders)
            views.selectedFolders.push_back(folders[static_cast<std::size_t>(letter - 'A')]);
        for (std::size_t strip = 0; strip < 2; ++strip)
            for (const char letter : strip == 0 ? selection : second) {
                views.timelines[strip].sortedAllSelectedThumbsArray.push_back(
                    pics[static_cast<std::size_t>(letter - 'a')]);
                views.timelines[strip].picSelection =
                    views.timelines[strip].sortedAllSelectedThumbsArray.front();
            }
        return {request, std::move(views), defaults, zones};
    }
    void useTemplate(std::vector<TemplatePart> parts) {
        storeRenameTemplates({{{1, 1, 1}, std::move(parts)}}, defaults);
    }
    static std::string shown(RenameSheetController &sheet, const Pics &items) {
        std::string names;
        for (const MySinglePicPtr &pic : items)
            names += plainText(sheet.sampleTextForImage(*pic)) + ' ';
        return names;
    }
};

TEST_F(SheetTest, ListsWhatItsRunRenames) {
    using enum SaveProcessType;
    const struct {
        RenameSheetRequest request;
        const char *selected;
        RenameAtSave renameAtSave;
        const char *listed;
        SaveProcessType type;
        std::size_t onlyFolders;
    } cases[] = {
        {RenameCurrent, "A", RenameAtSave::All, "ad", Rename, 1},
        {RenameCurrent, "B", RenameAtSave::All, "be", SaveThenRename, 1},
        {RenameAll, "A", RenameAtSave::Nothing, "abcdef", SaveThenRenameAll, 0},
        {SaveCurrent, "A", RenameAtSave::Nothing, "ad", Save, 1},
        {SaveCurrent, "A", RenameAtSave::Current, "ad", SaveThenRename, 1},
        {SaveCurrent, "A", RenameAtSave::CurrentCompound, "ad", SaveThenRename, 1},
        {SaveCurrent, "A", RenameAtSave::All, "abcdef", SaveThenRenameAll, 0},
        {SaveCurrent, "AB", RenameAtSave::Current, "be", SaveThenRename, 1},
        {SaveCurrent, "AB", RenameAtSave::CurrentCompound, "abde", SaveThenRename, 2},
        {SaveCurrentWithoutChanges, "AB", RenameAtSave::Current, "abde", SaveThenRename, 2},
        {SaveAll, "A", RenameAtSave::Current, "be", SaveThenRename, 1},
        {SaveAllWithoutChanges, "A", RenameAtSave::Current, "abcdef", SaveThenRenameAll, 0},
        {SaveAll, "A", RenameAtSave::All, "abcdef", SaveThenRenameAll, 0},
        {SaveAll, "A", RenameAtSave::Nothing, "abcdef", Save, 0},
    };
    for (const auto &each : cases) {
        chooseMenuTag(renameAtSaveMenu, {static_cast<int>(each.renameAtSave)}, true, defaults);
        auto opened = sheet(each.request, each.selected);
        const auto request = opened.items().saveRequest();
        ASSERT_TRUE(request);
        EXPECT_EQ(namesOf(opened.items().currentPicsToSample()), each.listed);
        EXPECT_EQ(request->type, each.type) << each.listed;
        EXPECT_EQ(request->onlyFolders.size(), each.onlyFolders) << each.listed;
    }
}

TEST_F(SheetTest, NeverTakesNoFolderForAllFolders) {
    EXPECT_FALSE(sheet(RenameCurrent, "").items().saveRequest());
    folders[1]->sfDateModificationsTimeInterval = absl::ZeroDuration();
    defaults.set("renameAtSave", "1");
    EXPECT_FALSE(sheet(SaveCurrent, "AB").items().saveRequest()) << "none with changes";
    EXPECT_FALSE(sheet(SaveAll, "A").items().saveRequest());
}

TEST_F(SheetTest, RestrictsToTheSelectionOfAStrip) {
    const struct {
        RenameSheetRequest request;
        const char *folders, *selection;
        int renameAtSave;
        bool isOffered;
    } cases[] = {
        {RenameCurrent, "A", "a", 0, true},   {RenameCurrent, "A", "ad", 0, false}, // all
        {RenameCurrent, "A", "be", 0, false}, // another folder's
        {RenameCurrent, "AB", "ad", 0, true}, {RenameAll, "A", "a", 2, false},
        {SaveCurrent, "A", "a", 1, true},     {SaveCurrent, "A", "a", 2, false},
        {SaveCurrent, "AB", "a", 1, false},   {SaveCurrent, "AB", "a", 3, true},
        {SaveAll, "A", "a", 1, false},
    };
    for (const auto &each : cases) {
        chooseMenuTag(renameAtSaveMenu, {each.renameAtSave}, true, defaults);
        auto opened = sheet(each.request, each.folders, each.selection);
        EXPECT_EQ(opened.items().shouldShowRestrictionOptions(), each.isOffered) << each.selection;
        opened.items().setRestrictRenameType(1);
        EXPECT_EQ(opened.items().restrictRenameType(), each.isOffered ? 1 : 0) << each.selection;
    }
    auto foreign = sheet(RenameCurrent, "AB", "", "ce");
    EXPECT_FALSE(foreign.items().setRestrictRenameType(2)) << "its main item is of no such folder";
    auto opened = sheet(RenameCurrent, "AB", "", "ec");
    EXPECT_FALSE(opened.items().setRestrictRenameType(1));
    EXPECT_TRUE(opened.items().setRestrictRenameType(2));
    EXPECT_EQ(namesOf(*opened.items().saveRequest()->onlyPics), "e") << "c is of another folder";
    defaults.set("rename_dontHideFilteredMedia", "1");
    EXPECT_EQ(namesOf(opened.items().currentPicsToSample()), "abde");
}

TEST_F(SheetTest, SavesBeforeItRenames) {
    const RenameSheetViews saved{folders, pics, {folders[0]}, {}};
    EXPECT_FALSE(confirmSaveBeforeRename(RenameCurrent, saved));
    EXPECT_TRUE(confirmSaveBeforeRename(RenameAll, saved));
    const RenameSheetViews compound{folders, pics, {folders[0], folders[1]}, {}};
    EXPECT_TRUE(confirmSaveBeforeRename(RenameCurrent, compound));
    EXPECT_EQ(saveInPlaceOfRename(RenameCurrent, compound, defaults), SaveCurrent);
    auto all = sheet(SaveCurrent, "AB");
    EXPECT_EQ(namesOf(all.items().currentPicsToSample()), "abde") << "not those with changes alone";
    EXPECT_EQ(saveInPlaceOfRename(RenameCurrent, saved, defaults), SaveCurrent);
    EXPECT_EQ(menuTag(renameAtSaveMenu, defaults).tag, 1);
    EXPECT_EQ(saveInPlaceOfRename(RenameAll, saved, defaults), SaveAll);
    EXPECT_EQ(menuTag(renameAtSaveMenu, defaults).tag, 2);
}

TEST_F(SheetTest, ShowsTheNamesOfTheRun) {
    useTemplate({TemplatePart::ofText("x"), TemplatePart::ofElement(Counter),
                 TemplatePart::ofElement(AddOn)});
    defaults.set("additionalText", "new");
    defaults.set("rename_keepAddOn1", "1");
    folders[1]->lastRenameAddOns[1] = "old";
    pics[3]->rename.lastRenameAddOns[1] = "own";
    auto opened = sheet(RenameCurrent, "AB", "d");
    EXPECT_EQ(shown(opened, {pics[0], pics[1], pics[3]}), "x01new.jpg x02old.jpg x04own.jpg ");
    chooseMenuTag(counterTypeMenu, {3}, true, defaults);
    opened.settingsChanged();
    EXPECT_EQ(shown(opened, {pics[3], pics[4]}), "x03own.jpg x04old.jpg ");
    defaults.set("rename_restrictCounter", "1");
    opened.settingsChanged();
    EXPECT_EQ(shown(opened, {pics[4]}), "x04old.jpg ");
    opened.items().setRestrictRenameType(1);
    EXPECT_EQ(shown(opened, {pics[3], pics[4]}), "x01own.jpg  ") << "e is not counted";
    folders[0]->sfDateModificationsTimeInterval = absl::Hours(1);
    defaults.set("renameAtSave", "1");
    auto changed = sheet(SaveAll, "AB");
    EXPECT_EQ(shown(changed, {pics[3], pics[4]}), "x02own.jpg x02old.jpg ") << "no compound";
    defaults.set("templateSelectedIndex", "9");
    opened.settingsChanged();
    EXPECT_EQ(shown(opened, {pics[3]}), " ");
}

TEST_F(SheetTest, OffersToKeepWhatIsThere) {
    useTemplate({TemplatePart::ofElement(AddOn), TemplatePart::ofElement(AddOn)});
    pics[3]->rename.lastRenameAddOns = {{1, ""}, {3, "three"}};
    folders[0]->lastRenameAddOns = {{2, "two"}};
    folders[1]->lastRenameAddOns = {{1, "elsewhere"}};
    const auto buttons = sheet(RenameCurrent, "A").validateOldAddOnButtons();
    EXPECT_TRUE(buttons[0].isVisible && !buttons[0].isEnabled);
    EXPECT_TRUE(buttons[1].isVisible && buttons[1].isEnabled);
    EXPECT_FALSE(buttons[2].isVisible || buttons[2].isEnabled) << "the template places two";
}

TEST_F(SheetTest, NumbersASampleByItself) {
    const RenameTemplate edited{{}, {TemplatePart::ofElement(Counter)}};
    auto opened = sheet(RenameCurrent, "B");
    EXPECT_EQ(plainText(opened.sampleTextForImages(8, edited)), "00001.jpg\r00002.jpg");
    EXPECT_EQ(plainText(opened.sampleTextForImages(1, edited)), "00001.jpg");
    EXPECT_EQ(plainText(sheet(RenameCurrent, "").sampleTextForImages(2, edited)),
              "00001.JPG\r00002.MOV")
        << "samples for want of items";
    pics[0]->isExtensionHidden = true;
    EXPECT_EQ(opened.liveSuffixVisibilityForImage(*pics[0]), SuffixVisibility::Hide);
    EXPECT_EQ(opened.liveSuffixVisibilityForImage(*pics[1]), SuffixVisibility::Show);
}

TEST_F(SheetTest, SumsUpFilesAndGroups) {
    pics[0]->spSidecarExtensions = {"xmp", "AAE"};
    pics[3]->spSidecarExtensions = {"xmp"};
    const std::pair<Pics, const char *> cases[] = {
        {{}, "0 files are renamed."},
        {{pics[1]}, "1 file is renamed."},
        {{pics[0]}, "1 group with 3 files is renamed."},
        {{pics[0], pics[1], pics[3]}, "1 single file and 2 groups are renamed, 6 files together."},
        {{pics[0], pics[1], pics[2]}, "2 single files and 1 group are renamed, 5 files together."},
    };
    for (const auto &[items, expected] : cases)
        EXPECT_EQ(renameSummaryString(items), expected);
}

} // namespace
} // namespace chronomender
