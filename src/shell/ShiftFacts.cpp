// SPDX-License-Identifier: GPL-3.0-or-later
#include "ShiftFacts.h"

#include "DisplayZone.h"
#include "Texts.h"
#include "TimeTexts.h"

#include <algorithm>

namespace chronomender {
namespace {

constexpr std::array<std::string DateModificationFields::*, shiftFields.size()> ownFields{
    &DateModificationFields::dmDirection, &DateModificationFields::dmDays,
    &DateModificationFields::dmHours, &DateModificationFields::dmMinutes,
    &DateModificationFields::dmSeconds};

/// Fields of several shifts: what all of them show, part by part.
class SharedFields {
public:
    void add(const DateModificationFields &fields) {
        for (std::size_t i = 0; i < ownFields.size(); ++i)
            m_parts[i].add(fields.*ownFields[i]);
    }
    bool areAllMixed() const {
        return std::ranges::all_of(m_parts, [](const auto &part) { return part.isMixed(); });
    }
    CompoundFields fields() const {
        CompoundFields result;
        for (std::size_t i = 0; i < m_parts.size(); ++i)
            result.*shiftFields[i] = m_parts[i].value;
        return result;
    }

private:
    std::array<Combined<std::string>, ownFields.size()> m_parts;
};

bool isInSingleMode(const MySinglePic &pic) {
    const MySingleFolderPtr folder = pic.spSingleRealFolder();
    return folder && folder->sfEditMode == EditMode::Single;
}

bool canShiftAlone(const MySinglePic &pic) {
    return isMovable(pic) && isInSingleMode(pic);
}

DateModificationFields ownFieldsOf(const MySinglePic &pic) {
    return fieldsFromTimeInterval(pic.shift.singlePicModification, false);
}

DateModificationFields fieldsOf(const MySingleFolder &folder, const DateDrag *drag) {
    if (!drag || drag->folder().get() != &folder)
        return folder.sfDateModifications;
    return fieldsFromTimeInterval(
        folder.sfDateModificationsTimeInterval + drag->tempMoveDateByDuringLiveMod(), false);
}

void takeFolders(ShiftFacts &facts, const MyCompoundFolder &folders, const DateDrag *drag) {
    SharedFields shared;
    for (const MySingleFolderPtr &folder : folders.folders())
        shared.add(fieldsOf(*folder, drag));
    facts.fields = shared.fields();
}

/// Equal shifts that follow each other, as most do, are looked at once.
void takeItems(ShiftFacts &facts, const std::vector<MySinglePicPtr> &items) {
    SharedFields shared;
    std::optional<absl::Duration> last;
    for (const MySinglePicPtr &pic : items) {
        if (last == pic->shift.singlePicModification || !canShiftAlone(*pic))
            continue;
        last = pic->shift.singlePicModification;
        if (!shared.areAllMixed())
            shared.add(ownFieldsOf(*pic));
    }
    facts.fields = shared.fields();
}

/// What a shift does is seen best at one item: the first one that has a date.
std::string hintOf(const MySinglePic &pic, const Zones &zones, const DateDrag *drag) {
    const MySingleFolderPtr folder = pic.spSingleRealFolder();
    if (!folder || !isMovable(pic) || isMarker(pic.spDateTimeOriginal))
        return {};
    const absl::TimeZone zone = displayZone(pic, *folder, zones);
    const std::string before = dayAndTimeText(pic.spDateTimeOriginal, zone);
    const Date held = pic.spDateTimeModified();
    const OptionalDate dragged = drag ? draggedDate(pic, drag->liveDragOf(pic)) : std::nullopt;
    const std::string after = dayAndTimeText(dragged.value_or(held), zone);
    return before == after ? text("shift_hintUnchanged", {pic.spName, before})
                           : text("shift_hint", {pic.spName, before, after});
}

const MySinglePic *firstMovable(const std::vector<MySinglePicPtr> &pics) {
    const auto found =
        std::ranges::find_if(pics, [](const MySinglePicPtr &pic) { return isMovable(*pic); });
    return found == pics.end() ? nullptr : found->get();
}

const MySinglePic *firstOfFolders(const MyCompoundFolder &folders) {
    for (const MySingleFolderPtr &folder : folders.folders())
        if (const MySinglePic *pic =
                folder->isEXIFIgnored ? nullptr : firstMovable(folder->sfPicDetails_fullArray))
            return pic;
    return nullptr;
}

/// Text key of why nothing can be shifted; null where something can.
const char *obstacle(const ShiftFacts &facts, const MyCompoundFolder &folders,
                     const std::vector<MySinglePicPtr> &items) {
    if (folders.folders().empty())
        return "shift_noFolder";
    if (facts.mode.isMixed())
        return "shift_mixedModes";
    if (facts.mode.value == EditMode::Together)
        return firstOfFolders(folders) ? nullptr : "shift_nothingToShift";
    if (items.empty())
        return "shift_noItem";
    const bool canAny =
        std::ranges::any_of(items, [](const MySinglePicPtr &pic) { return canShiftAlone(*pic); });
    return canAny ? nullptr : "shift_nothingToShift";
}

} // namespace

ShiftFacts shiftFacts(const MyCompoundFolder &folders, const std::vector<MySinglePicPtr> &items,
                      bool isSaving, const Zones &zones, const DateDrag *drag) {
    ShiftFacts facts;
    facts.mode = folders.sfEditMode();
    if (const char *key = obstacle(facts, folders, items)) {
        facts.reason = text(key);
        return facts;
    }
    const bool isTogether = facts.mode.value == EditMode::Together;
    facts.target = isTogether ? ShiftFacts::Target::Folders : ShiftFacts::Target::Items;
    if (isTogether)
        takeFolders(facts, folders, drag);
    else
        takeItems(facts, items);
    facts.isShifted = isTogether ? folders.isTogetherDateUIModified() : folders.isDateModified();
    const MySinglePic *selected = firstMovable(items);
    const MySinglePic *shown = selected ? selected : firstOfFolders(folders);
    facts.hint = shown ? hintOf(*shown, zones, drag) : std::string();
    if (isSaving) {
        facts.target = ShiftFacts::Target::Nothing;
        facts.reason = text("shift_saving");
    }
    return facts;
}

DateChangeOutcome shiftItemsTo(const std::vector<MySinglePicPtr> &items,
                               const CompoundFields &fields, UndoManager &undo,
                               const MySinglePicPtr &mainPic) {
    std::vector<ShiftRecord> records;
    for (const MySinglePicPtr &pic : items) {
        if (!canShiftAlone(*pic))
            continue;
        DateModificationFields wanted = ownFieldsOf(*pic);
        for (std::size_t i = 0; i < shiftFields.size(); ++i)
            if (fields.*shiftFields[i])
                wanted.*ownFields[i] = *(fields.*shiftFields[i]);
        records.push_back({pic, timeIntervalFromFields(wanted) - pic->shift.singlePicModification});
    }
    return dragMovesValuesBy(std::move(records), undo, mainPic);
}

} // namespace chronomender
