// SPDX-License-Identifier: GPL-3.0-or-later
#include "UserDefaults.h"

#include <algorithm>
#include <iterator>

namespace chronomender {
namespace {

using enum DefaultEntry::Kind;

// Sorted by key. Dates: 0 to 3 name what happens to a slot; the numbers differ from key to key and
// are told in docs/cli.md. folderColors_7 is "#rrggbb" values parted by blanks.
constexpr DefaultEntry entries[] = {
    {"addRawLocationsOnlyInSidecars", "1", Choice, {0, 1}},
    {"additionalText", "", Text},
    {"additionalText2", "", Text},
    {"additionalText3", "", Text},
    {"appearance", "0", Choice, {0, 1, 2}},
    {"areFiltersCombined", "0", Choice, {0, 1}},
    {"autoBGThumbGeneration", "1", Choice, {0, 1}},
    {"autoThumbMode", "0", Choice, {0, 1}},
    {"counterType", "1", Choice, {0, 1}},
    {"counterType_prefersCompoundAltOption", "0", Choice, {0, 1}},
    {"createFileGroups", "1", Choice, {0, 1}},
    {"createFileGroupsOnMovingFilesToo", "0", Choice, {0, 1}},
    {"dateChangeEXIFChangeFinderWhenChangingEXIF", "1", Choice, {0, 1}},
    {"dateChangeEXIFEXIFDigiDate", "1", Choice, {0, 1, 3}},
    {"dateChangeEXIFEXIFDigiDateUnchangedOption", "1", Choice, {0, 1}},
    {"dateChangeEXIFEXIFModDate", "1", Choice, {0, 1, 2, 3}},
    {"dateChangeEXIFEXIFModDateUnchangedOption", "1", Choice, {0, 1}},
    {"dateChangeEXIFFinderCreaDate2", "0", Choice, {0, 1, 2}},
    {"dateChangeEXIFFinderModDate", "0", Choice, {0, 1, 2}},
    {"dateChangeEXIFFinderModDateEXIFModDateOptions", "1", Choice, {0, 1, 2}},
    {"dateChangeEXIFFinderModDateEXIFModDateUnchangedOption", "1", Choice, {0, 1}},
    {"dateChangeEXIFFinderModDateUnchangedOption", "1", Choice, {0, 1}},
    {"dateChangeNoEXIFButTIFFFinderModDate", "2", Choice, {0, 1, 2}},
    {"dateChangeNoEXIFButTIFFFinderModDateUnchangedOption", "1", Choice, {0, 1}},
    {"dateChangeNoEXIFButTIFFMetaModDate", "2", Choice, {0, 1, 2, 3}},
    {"dateChangeNoEXIFFinderModDate", "2", Choice, {0, 1, 2, 3}},
    {"dateChangeNoEXIFFinderModDateUnchangedOption", "1", Choice, {0, 1}},
    {"dateChangeTypeAtLocationOnlyChanges", "1", Choice, {0, 1, 2, 3}},
    {"dateComparisonThresold", "3", Number, {0, 86400}},
    {"dateCorrectionEXIFFinderCreaDate3", "0", Choice, {0, 1, 2}},
    {"dateCorrectionEXIFFinderModDate", "0", Choice, {0, 1, 2}},
    {"dateCorrectionEXIFFinderModDateEXIFModDateOptions", "1", Choice, {0, 1, 2}},
    {"dateCorrectionEXIFFinderModDateEXIFModDateUnchangedOption", "1", Choice, {0, 1}},
    {"dateCorrectionEXIFFinderModDateUnchangedOption", "1", Choice, {0, 1}},
    {"displayTimelineLabels", "1", Choice, {0, 1}},
    {"dragGapOuterEdges", "60", Choice, {1, 10, 60, 600, 3600, 86400}},
    {"exifToolPath", "", Text},
    {"filterTemplates", "", Text},
    {"fixFinderDateOnImport", "0", Choice, {0, 1}},
    {"folderColors_7",
     "#d9534f #f0962e #e3c22b #5cb85c #2ba8a0 #3f86d6 #8a63d2 #d65aa5 #8d6e63 #78909c", Text},
    {"folderMode", "0", Choice, {0, 1}},
    {"folderType", "0", Choice, {0, 1, 2}},
    {"frontDotHandlingMode", "1", Choice, {0, 1, 2}},
    {"groupDisplayRawJpgPreviewDefault", "0", Choice, {0, 1}},
    {"harmonizingRawJpgsTypeDefault", "0", Choice, {0, 1, 2}},
    {"highlightEmptyMetaTags", "1", Choice, {0, 1}},
    {"highlightUnsavedChangesInAltogetherMode", "1", Choice, {0, 1}},
    {"isAlwaysShowOptionsDisabled", "0", Choice, {0, 1}},
    {"isFilterActive", "0", Choice, {0, 1}},
    {"isMDTADateEnabled", "1", Choice, {0, 1}},
    {"isMVHDTimezoneCorrectionEnabled", "0", Choice, {0, 1}},
    {"isRatingFilterActive", "0", Choice, {0, 1}},
    {"isSubFolderAutoImportEnabled", "0", Choice, {0, 1}},
    {"lastActiveFilterPredicate", "", Text},
    {"mainWindowGeometry", "", Text},
    {"mainWindowSplitters", "", Text},
    {"modAtRenameFile", "1", Choice, {0, 1}},
    {"modAtRenameFolder", "1", Choice, {0, 1}},
    {"modAtRenameSettings_1_7", "", Text},
    {"modAtRenameSettings_2_7", "", Text},
    {"ratingFilterSelectedOption", "0", Choice, {0, 1}},
    {"renameAtSave", "0", Choice, {0, 1, 2}},
    {"renameAtSave_prefersCompoundAltOption", "0", Choice, {0, 1}},
    {"renameCounterStartOption", "1", Choice, {0, 1, 2, 3}},
    {"renameCounterStartValue", "1", Number, {0, 999'999'999}},
    {"renameTemplates_7", "", Text},
    {"rename_dontHideFilteredMedia", "0", Choice, {0, 1}},
    {"rename_hideElementHighlighting", "0", Choice, {0, 1}},
    {"rename_keepAddOn1", "0", Choice, {0, 1}},
    {"rename_keepAddOn2", "0", Choice, {0, 1}},
    {"rename_keepAddOn3", "0", Choice, {0, 1}},
    {"rename_restrictCounter", "0", Choice, {0, 1}},
    {"setPositioningErrorsToZeroOnChange", "0", Choice, {0, 1}},
    {"shouldSupportXmpSave", "1", Choice, {0, 1}},
    {"shouldVisualizeOverlappingLivePhotos", "1", Choice, {0, 1}},
    {"skipEmptyTagImportOptions", "0", Choice, {0, 1}},
    {"sortLPsByMov", "0", Choice, {0, 1}},
    {"sortLPsByMovModifierDefault", "0", Choice, {0, 1, 2}},
    {"sortedTemplatesSelectedIndex", "0", Number, {0, 100'000}},
    {"subFolderAutoImportMaxDepth", "3", Number, {0, 100}},
    {"suffixChangeCase", "0", Choice, {0, 1, 2}},
    {"suffixVisibility", "0", Choice, {0, 1, 2}},
    {"syncGPSDataOnSave", "1", Choice, {0, 1}},
    {"syncGPSDataOnSaveType", "1", Choice, {0, 1}},
    {"syncXMPDataOnSave", "0", Choice, {0, 1}},
    {"templateSelectedIndex", "0", Number, {0, 100'000}},
    {"textModTemplates_7", "", Text},
    {"timelineThumbSize", "128", Number, {64, 192}},
    {"tioFilterValues", " .mov, .mp4, .avi", Text},
    {"useMovieOptionsQTValuesWithoutShowingSheet", "0", Choice, {0, 1}},
    {"useNameAtImportAsSourceName", "1", Choice, {0, 1}},
    {"vqsFspUsesHigherResScrollingAtTheCostOfMuchRam", "0", Choice, {0, 1}},
    {"withEmptyExifFixDate", "2", Choice, {2, 3}},
};

constexpr bool isStrictlySorted() {
    for (std::size_t i = 1; i < std::size(entries); ++i)
        if (entries[i - 1].key >= entries[i].key)
            return false;
    return true;
}
static_assert(isStrictlySorted(), "keys are sorted and stand once");

} // namespace

std::span<const DefaultEntry> defaultEntries() {
    return entries;
}

const DefaultEntry *findDefaultEntry(std::string_view key) {
    const auto found = std::ranges::lower_bound(entries, key, {}, &DefaultEntry::key);
    return found != std::end(entries) && found->key == key ? found : nullptr;
}

} // namespace chronomender
