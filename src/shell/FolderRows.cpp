// SPDX-License-Identifier: GPL-3.0-or-later
#include "FolderRows.h"

#include "ItemAlerts.h"
#include "StampConversions.h"
#include "Texts.h"
#include "TimeTexts.h"
#include "ZoneLookup.h"

#include <algorithm>

namespace chronomender {
namespace {

std::string rangeText(const MySingleFolder &folder, const Zones &zones) {
    if (!isCleanDate(folder.sfFrom) || !isCleanDate(folder.sfTill))
        return {};
    const absl::TimeZone zone = changedTimeZoneDefaults(folder, zones).target.rules;
    const std::string from = dayText(civilFromInstant(*folder.sfFrom, zone));
    const std::string till = dayText(civilFromInstant(*folder.sfTill, zone));
    return from == till ? from : from + " – " + till;
}

std::string shiftWords(const MySingleFolder &folder) {
    if (folder.sfEditMode == EditMode::Together)
        return shiftText(folder.sfDateModificationsTimeInterval);
    return folder.singlePicModeImages > 0
               ? countText("folders_itemsShifted", folder.singlePicModeImages)
               : std::string();
}

struct NumberedNote {
    const char *key; ///< for countText
    RowTone tone;
    std::int64_t (*number)(const MySingleFolder &, const FilterContext &);
};
constexpr NumberedNote numberedNotes[] = {
    {"folders_unsaved", RowTone::Unsaved,
     [](const MySingleFolder &folder, const FilterContext &) {
         return folder.unsavedImagesCount();
     }},
    {"folders_saveErrors", RowTone::Danger,
     [](const MySingleFolder &folder, const FilterContext &) {
         return static_cast<std::int64_t>(folder.saveErrors);
     }},
    {"folders_renameErrors", RowTone::Danger,
     [](const MySingleFolder &folder, const FilterContext &) {
         return static_cast<std::int64_t>(folder.renameErrors);
     }},
    {"folders_alerts", RowTone::Warning,
     [](const MySingleFolder &folder, const FilterContext &context) {
         return static_cast<std::int64_t>(
             std::ranges::count_if(folder.sfPicDetails_fullArray, [&](const MySinglePicPtr &pic) {
                 return hasAnyAlert(*pic, context);
             }));
     }},
};

struct PlainNote {
    const char *key;
    RowTone tone;
    bool (*applies)(const MySingleFolder &);
};
constexpr PlainNote plainNotes[] = {
    {"folders_missing", RowTone::Danger,
     [](const MySingleFolder &folder) { return folder.isDisconnected; }},
    {"folders_datesIgnored", RowTone::Plain,
     [](const MySingleFolder &folder) { return folder.isEXIFIgnored; }},
    {"folders_movieClockLocal", RowTone::Plain,
     [](const MySingleFolder &folder) {
         return folder.isQuicktimeMVHDTimezoneCorrectionEnabled &&
                (folder.mediaTypesState == MediaTypesState::Movies ||
                 folder.mediaTypesState == MediaTypesState::Both);
     }},
};

std::vector<RowNote> notesOf(const MySingleFolder &folder, const FilterContext &context) {
    std::vector<RowNote> notes;
    for (const PlainNote &note : plainNotes)
        if (note.applies(folder))
            notes.push_back({text(note.key), note.tone});
    for (const NumberedNote &note : numberedNotes)
        if (const std::int64_t number = note.number(folder, context); number > 0)
            notes.push_back({countText(note.key, number), note.tone});
    return notes;
}

} // namespace

std::string FolderRow::words() const {
    std::string joined = name;
    for (const std::string &part : {count, range, shift, zones, mode, joinedWords(notes)})
        if (!part.empty())
            joined += ", " + part;
    return joined;
}

std::string zoneWords(const MySingleFolder &folder, const Zones &zones) {
    const std::optional<ZoneChoice> &source = folder.sourceTimeZones.folderDefault;
    const std::optional<ZoneChoice> &target = folder.targetTimeZones.folderDefault;
    const auto exceptions = static_cast<std::int64_t>(
        std::max(folder.sourceTimeZones.ofItems.size(), folder.targetTimeZones.ofItems.size()));
    std::string words;
    if (source || target) {
        const TimeZoneDefaults both = changedTimeZoneDefaults(folder, zones);
        const bool isOwn = target && target->is(ZoneChoice::Kind::Own);
        words = both.source.name;
        if (isOwn || both.source.name != both.target.name)
            words += " → " + (isOwn ? text("folders_zonesOfFiles") : both.target.name);
    }
    if (exceptions > 0)
        words += (words.empty() ? "" : ", ") + countText("folders_zoneExceptions", exceptions);
    return words;
}

FolderRow folderRow(const MySingleFolder &folder, const FilterContext &context, bool isBeingRead) {
    FolderRow row;
    row.colorIndex = folder.colorIndex;
    row.name = folder.sfFolder;
    row.path = folder.sfFolderPath();
    row.isDimmed = isBeingRead || folder.isDisconnected;
    row.count =
        isBeingRead ? text("folders_beingRead") : countText("folders_items", folder.count());
    row.zones = zoneWords(folder, context.zones);
    if (isBeingRead)
        return row;
    row.range = rangeText(folder, context.zones);
    row.shift = shiftWords(folder);
    row.mode =
        text(folder.sfEditMode == EditMode::Together ? "folders_together" : "folders_single");
    row.notes = notesOf(folder, context);
    row.isUnsaved = std::ranges::any_of(
        row.notes, [](const RowNote &note) { return note.tone == RowTone::Unsaved; });
    return row;
}

} // namespace chronomender
