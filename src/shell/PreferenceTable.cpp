// SPDX-License-Identifier: GPL-3.0-or-later
#include "PreferenceTable.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <cctype>
#include <sstream>

namespace chronomender {
namespace {

using enum PreferencePage;
using enum PreferenceKind;

constexpr std::array<PreferencePageTitle, 5> pages{{{Dates, "prefs_pageDates"},
                                                    {Import, "prefs_pageImport"},
                                                    {Names, "prefs_pageNames"},
                                                    {Saving, "prefs_pageSaving"},
                                                    {Appearance, "prefs_pageAppearance"}}};

// What becomes of a date: the same words for every slot, under the slot's own numbers.
constexpr const char *newDate = "prefs_choiceNewDate", *keep = "prefs_choiceKeep",
                     *now = "prefs_choiceNow", *sameShift = "prefs_choiceSameShift",
                     *asDigitized = "prefs_choiceAsDigitized", *asTiff = "prefs_choiceAsTiff";

constexpr PreferenceChoice digitized[]{{0, newDate}, {1, keep}, {3, sameShift}};
constexpr PreferenceChoice exifTiff[]{{0, asDigitized}, {1, keep}, {2, now}, {3, sameShift}};
constexpr PreferenceChoice exifFile[]{{0, asTiff}, {1, keep}, {2, now}};
constexpr PreferenceChoice exifFileWithoutTiff[]{{0, asDigitized}, {1, keep}, {2, now}};
constexpr PreferenceChoice creation[]{{0, newDate}, {1, asDigitized}, {2, asTiff}};
constexpr PreferenceChoice tiffOnly[]{{0, newDate}, {1, now}, {2, keep}, {3, sameShift}};
constexpr PreferenceChoice tiffOnlyFile[]{{0, asTiff}, {1, now}, {2, keep}};

constexpr PreferenceChoice livePhotos[]{
    {0, "prefs_choiceAsProgram"}, {1, "prefs_choiceByStill"}, {2, "prefs_choiceByMovie"}};
constexpr PreferenceChoice harmonizing[]{
    {0, "prefs_choiceNever"}, {1, "prefs_choiceApart300"}, {2, "prefs_choiceApart1"}};
constexpr PreferenceChoice sourceNames[]{{1, "rename_nameAtImport"}, {0, "rename_namePresent"}};
constexpr PreferenceChoice frontDots[]{
    {0, "rename_dotsLeave"}, {1, "rename_dotsRemove"}, {2, "rename_dotsReport"}};
constexpr PreferenceChoice suffixCases[]{
    {0, "rename_caseLeave"}, {1, "rename_caseUpper"}, {2, "rename_caseLower"}};
constexpr PreferenceChoice suffixes[]{
    {0, "rename_suffixLeave"}, {1, "rename_suffixShow"}, {2, "rename_suffixHide"}};
constexpr PreferenceChoice gpsTypes[]{{1, "prefs_choiceGpsShift"}, {0, "prefs_choiceGpsDate"}};
constexpr PreferenceChoice appearances[]{
    {0, "prefs_appearanceSystem"}, {1, "prefs_appearanceLight"}, {2, "prefs_appearanceDark"}};
constexpr PreferenceChoice rawJpgPreviews[] = {{0, "prefs_previewRaw"}, {1, "prefs_previewJpeg"}};
constexpr PreferenceChoice gaps[]{{1, "prefs_gap1"},       {10, "prefs_gap10"},
                                  {60, "prefs_gap60"},     {600, "prefs_gap600"},
                                  {3600, "prefs_gap3600"}, {86400, "prefs_gap86400"}};

constexpr Preference table[] = {
    {"dateChangeEXIFEXIFDigiDate", "prefs_digitized", Dates, Choice, digitized, "prefs_groupExif"},
    {"dateChangeEXIFEXIFDigiDateUnchangedOption",
     "prefs_digitizedFollows",
     Dates,
     Switch,
     {},
     nullptr,
     "dateChangeEXIFEXIFDigiDate",
     1},
    {"dateChangeEXIFEXIFModDate", "prefs_tiff", Dates, Choice, exifTiff},
    {"dateChangeEXIFEXIFModDateUnchangedOption",
     "prefs_tiffFollows",
     Dates,
     Switch,
     {},
     nullptr,
     "dateChangeEXIFEXIFModDate",
     1},
    {"dateChangeEXIFChangeFinderWhenChangingEXIF", "prefs_fileDatesToo", Dates, Switch},
    {"dateChangeEXIFFinderModDate", "prefs_fileDate", Dates, Choice, exifFile, nullptr,
     "dateChangeEXIFChangeFinderWhenChangingEXIF", 1},
    {"dateChangeEXIFFinderModDateUnchangedOption",
     "prefs_fileDateFollows",
     Dates,
     Switch,
     {},
     nullptr,
     "dateChangeEXIFFinderModDate",
     1},
    {"dateChangeEXIFFinderModDateEXIFModDateOptions", "prefs_fileDateWithoutTiff", Dates, Choice,
     exifFileWithoutTiff, nullptr, "dateChangeEXIFFinderModDate", 0},
    {"dateChangeEXIFFinderModDateEXIFModDateUnchangedOption",
     "prefs_fileDateFollows",
     Dates,
     Switch,
     {},
     nullptr,
     "dateChangeEXIFFinderModDateEXIFModDateOptions",
     1},
    {"dateChangeEXIFFinderCreaDate2", "prefs_creationDate", Dates, Choice, creation, nullptr,
     "dateChangeEXIFChangeFinderWhenChangingEXIF", 1},
    {"dateChangeNoEXIFButTIFFMetaModDate", "prefs_tiff", Dates, Choice, tiffOnly,
     "prefs_groupTiff"},
    {"dateChangeNoEXIFButTIFFFinderModDate", "prefs_fileDate", Dates, Choice, tiffOnlyFile},
    {"dateChangeNoEXIFButTIFFFinderModDateUnchangedOption",
     "prefs_fileDateFollows",
     Dates,
     Switch,
     {},
     nullptr,
     "dateChangeNoEXIFButTIFFFinderModDate",
     2},
    {"dateChangeNoEXIFFinderModDate", "prefs_fileDate", Dates, Choice, tiffOnly,
     "prefs_groupNoExif"},
    {"dateChangeNoEXIFFinderModDateUnchangedOption",
     "prefs_fileDateFollows",
     Dates,
     Switch,
     {},
     nullptr,
     "dateChangeNoEXIFFinderModDate",
     2},
    {"dateComparisonThresold", "prefs_threshold", Dates, Number, {}, "prefs_groupAll"},

    {"createFileGroups", "prefs_fileGroups", Import, Switch, {}, "prefs_groupFiles"},
    {"isSubFolderAutoImportEnabled", "prefs_subfolders", Import, Switch},
    {"subFolderAutoImportMaxDepth",
     "prefs_subfolderDepth",
     Import,
     Number,
     {},
     nullptr,
     "isSubFolderAutoImportEnabled",
     1},
    {"skipEmptyTagImportOptions", "prefs_skipEmptyTags", Import, Switch},
    {"useMovieOptionsQTValuesWithoutShowingSheet",
     "prefs_skipMovies",
     Import,
     Switch,
     {},
     "prefs_groupMovies"},
    {"isMDTADateEnabled", "prefs_movieMetaDate", Import, Switch},
    {"isMVHDTimezoneCorrectionEnabled", "prefs_movieClock", Import, Switch},
    {"sortLPsByMov", "prefs_livePhotosByMovie", Import, Switch, {}, "prefs_groupPairs"},
    {"sortLPsByMovModifierDefault", "prefs_livePhotosOfFolder", Import, Choice, livePhotos},
    {"harmonizingRawJpgsTypeDefault", "prefs_harmonizing", Import, Choice, harmonizing},

    {"useNameAtImportAsSourceName", "rename_sourceName", Names, Choice, sourceNames},
    {"frontDotHandlingMode", "rename_frontDots", Names, Choice, frontDots},
    {"suffixChangeCase", "rename_suffixCase", Names, Choice, suffixCases},
    {"suffixVisibility", "rename_suffixVisibility", Names, Choice, suffixes},

    {"syncXMPDataOnSave", "prefs_syncXmp", Saving, Switch, {}, "prefs_groupInside"},
    {"shouldSupportXmpSave", "prefs_widenXmp", Saving, Switch},
    {"syncGPSDataOnSave", "prefs_syncGps", Saving, Switch},
    {"syncGPSDataOnSaveType", "prefs_syncGpsType", Saving, Choice, gpsTypes, nullptr,
     "syncGPSDataOnSave", 1},
    {"exifToolPath", "prefs_tool", Saving, Tool, {}, "prefs_groupTool"},

    {"appearance", "prefs_appearance", Appearance, Choice, appearances},
    {"folderColors_7", "prefs_folderColors", Appearance, Colors},
    {"displayTimelineLabels", "prefs_labels", Appearance, Switch, {}, "prefs_groupStrips"},
    {"highlightEmptyMetaTags", "prefs_highlightEmpty", Appearance, Switch},
    {"shouldVisualizeOverlappingLivePhotos", "prefs_overlapping", Appearance, Switch},
    {"dragGapOuterEdges", "prefs_gap", Appearance, Choice, gaps},
    {"vqsFspUsesHigherResScrollingAtTheCostOfMuchRam",
     "prefs_largeThumbs",
     Appearance,
     Switch,
     {},
     "prefs_groupThumbs"},
    {"autoBGThumbGeneration", "prefs_backgroundThumbs", Appearance, Switch},
    {"autoThumbMode", "prefs_embeddedThumbs", Appearance, Switch},
    {"groupDisplayRawJpgPreviewDefault", "prefs_rawJpgPreview", Appearance, Choice, rawJpgPreviews},
};

bool isColor(const std::string &value) {
    constexpr std::size_t length = 7;
    return value.size() == length && value[0] == '#' &&
           std::all_of(value.begin() + 1, value.end(),
                       [](unsigned char each) { return std::isxdigit(each) != 0; });
}

} // namespace

std::span<const PreferencePageTitle> preferencePages() {
    return pages;
}

std::span<const Preference> preferenceTable() {
    return table;
}

const Preference &preferenceWithKey(std::string_view key) {
    const auto *const found = std::ranges::find(table, key, &Preference::key);
    assert(found != std::end(table));
    return *found;
}

bool isInEffect(const Preference &preference, const UserDefaults &defaults) {
    if (preference.onlyWhenKey == nullptr)
        return true;
    const auto *const other =
        std::ranges::find(table, std::string_view(preference.onlyWhenKey), &Preference::key);
    return defaults.integerForKey(preference.onlyWhenKey) == preference.onlyWhenValue &&
           (other == std::end(table) || isInEffect(*other, defaults));
}

bool isChanged(const Preference &preference, const UserDefaults &defaults) {
    const DefaultEntry *entry = findDefaultEntry(preference.key);
    return entry != nullptr && defaults.stringForKey(preference.key) != entry->registeredValue;
}

UserDefaults::Outcome resetToDefault(const Preference &preference, UserDefaults &defaults) {
    const DefaultEntry *entry = findDefaultEntry(preference.key);
    return entry != nullptr ? defaults.set(preference.key, entry->registeredValue)
                            : UserDefaults::Outcome::UnknownKey;
}

std::vector<std::string> colorValues(const std::string &stored) {
    std::istringstream stream(stored);
    std::vector<std::string> values;
    for (std::string value; stream >> value;)
        if (isColor(value))
            values.push_back(value);
    return values;
}

std::string storedColors(const std::vector<std::string> &values) {
    std::string stored;
    for (const std::string &value : values)
        stored += (stored.empty() ? "" : " ") + value;
    return stored;
}

} // namespace chronomender
