// SPDX-License-Identifier: GPL-3.0-or-later
#include "PreferenceTable.h"

#include "FakeSession.h"
#include "Texts.h"
#include "ToolCheck.h"

#include <QEventLoop>

#include <gtest/gtest.h>

#include <set>

namespace chronomender {
namespace {

/// What has its place elsewhere, or none as nothing reads it yet.
const std::set<std::string_view> placedElsewhere{
    // the sheet of a rename
    "additionalText", "additionalText2", "additionalText3", "counterType",
    "counterType_prefersCompoundAltOption", "modAtRenameFile", "modAtRenameFolder",
    "modAtRenameSettings_1_7", "modAtRenameSettings_2_7", "renameAtSave",
    "renameAtSave_prefersCompoundAltOption", "renameCounterStartOption", "renameCounterStartValue",
    "renameTemplates_7", "rename_dontHideFilteredMedia", "rename_hideElementHighlighting",
    "rename_keepAddOn1", "rename_keepAddOn2", "rename_keepAddOn3", "rename_restrictCounter",
    "sortedTemplatesSelectedIndex", "templateSelectedIndex", "textModTemplates_7",
    // filters
    "areFiltersCombined", "filterTemplates", "isFilterActive", "isRatingFilterActive",
    "lastActiveFilterPredicate", "ratingFilterSelectedOption",
    // how the window looks
    "mainWindowGeometry", "mainWindowSplitters", "timelineThumbSize",
    // the questions of an import
    "folderMode", "folderType", "isAlwaysShowOptionsDisabled", "tioFilterValues",
    "withEmptyExifFixDate",
    // locations, which nothing in the window changes yet
    "addRawLocationsOnlyInSidecars", "dateChangeTypeAtLocationOnlyChanges",
    "setPositioningErrorsToZeroOnChange",
    // without an effect: recorded only, or a place that does nothing
    "createFileGroupsOnMovingFilesToo", "dateCorrectionEXIFFinderCreaDate3",
    "dateCorrectionEXIFFinderModDate", "dateCorrectionEXIFFinderModDateEXIFModDateOptions",
    "dateCorrectionEXIFFinderModDateEXIFModDateUnchangedOption",
    "dateCorrectionEXIFFinderModDateUnchangedOption", "fixFinderDateOnImport",
    "highlightUnsavedChangesInAltogetherMode"};

TEST(PreferenceTable, HoldsEveryPreferenceThatHasNoOtherPlace) {
    std::multiset<std::string_view> found(placedElsewhere.begin(), placedElsewhere.end());
    for (const Preference &preference : preferenceTable())
        found.insert(preference.key);
    for (const DefaultEntry &entry : defaultEntries())
        EXPECT_EQ(found.count(entry.key), 1U) << entry.key;
    EXPECT_EQ(found.size(), defaultEntries().size());
}

TEST(PreferenceTable, OffersWhatItsEntryAllowsAndNothingElse) {
    for (const Preference &preference : preferenceTable()) {
        const DefaultEntry *entry = findDefaultEntry(preference.key);
        ASSERT_NE(entry, nullptr) << preference.key;
        std::set<int> offered;
        for (const PreferenceChoice &choice : preference.choices)
            offered.insert(choice.value);
        if (preference.kind == PreferenceKind::Switch)
            offered = {0, 1};
        if (entry->kind == DefaultEntry::Kind::Choice) {
            EXPECT_EQ(offered, std::set<int>(entry->allowed)) << preference.key;
        }
        if (preference.onlyWhenKey) {
            EXPECT_NE(findDefaultEntry(preference.onlyWhenKey), nullptr) << preference.key;
        }
    }
}

TEST(PreferenceTable, HasWordsForEverything) {
    for (const char *language : {"en", "de"}) {
        loadTexts(language);
        const auto expectWords = [](const char *key) {
            if (key) {
                EXPECT_NE(text(key), key);
            }
        };
        for (const PreferencePageTitle &page : preferencePages())
            expectWords(page.titleKey);
        for (const Preference &preference : preferenceTable()) {
            expectWords(preference.textKey);
            expectWords(preference.groupKey);
            for (const PreferenceChoice &choice : preference.choices)
                expectWords(choice.textKey);
        }
    }
}

TEST(PreferenceTable, KnowsWhatCountsAndWhatIsChanged) {
    UserDefaults defaults;
    const Preference &depth = preferenceWithKey("subFolderAutoImportMaxDepth");
    const Preference &follows =
        preferenceWithKey("dateChangeEXIFFinderModDateEXIFModDateUnchangedOption");
    EXPECT_FALSE(isInEffect(depth, defaults));
    defaults.set("isSubFolderAutoImportEnabled", "1");
    EXPECT_TRUE(isInEffect(depth, defaults));
    EXPECT_TRUE(isInEffect(follows, defaults));
    defaults.set("dateChangeEXIFChangeFinderWhenChangingEXIF", "0");
    EXPECT_FALSE(isInEffect(follows, defaults)) << "two steps above";

    EXPECT_FALSE(isChanged(depth, defaults));
    defaults.set(depth.key, "7");
    EXPECT_TRUE(isChanged(depth, defaults));
    EXPECT_EQ(resetToDefault(depth, defaults), UserDefaults::Outcome::Done);
    EXPECT_EQ(defaults.stringForKey(depth.key), "3");
    EXPECT_FALSE(isChanged(depth, defaults));
}

TEST(PreferenceTable, KeepsColorsAndNothingElse) {
    EXPECT_EQ(storedColors(colorValues(" #d9534f  red #12345 #ABCDEF #00000g ")),
              "#d9534f #ABCDEF");
}

TEST(ToolCheck, TellsWhetherAProgramIsTheTool) {
    const little::FakeSession session; // with an event loop
    const auto answerOf = [](const std::string &path) {
        ToolCheck check;
        QEventLoop loop;
        ToolCheckResult result;
        check.check("/nowhere/exiftool", [](const ToolCheckResult &) { FAIL() << "superseded"; });
        check.check(path, [&](const ToolCheckResult &answer) {
            result = answer;
            loop.quit();
        });
        loop.exec();
        return result;
    };
    EXPECT_TRUE(answerOf("").runs) << "exiftool is needed for the tests";
    EXPECT_EQ(answerOf("/bin/true").words, text("prefs_toolOther"));
    EXPECT_EQ(answerOf(session.disk.path("none")).words, text("prefs_toolMissing"));
}

} // namespace
} // namespace chronomender
