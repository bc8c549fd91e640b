// SPDX-License-Identifier: GPL-3.0-or-later
#include "NewDateRules.h"

namespace chronomender {
namespace {

enum class Path { NoExif, TiffOnly, Exif };

Path pathFor(SpType type) {
    if (hasNoDateTags(type))
        return Path::NoExif;
    return isPreferringFileDate(type) ? Path::TiffOnly : Path::Exif;
}

/// Whether an item's dates are to be calculated.
enum class Occasion {
    None,         ///< the item is unchanged
    DateChange,   ///< a date, a zone or a tag changed, or all items are saved
    LocationOnly, ///< only the location changed, and the user wants dates to take part
};

bool takesPart(const MySinglePic &pic) {
    return !pic.importState.isLeftAlone && pic.hasCorrectableDate();
}

Occasion occasionFor(const MySinglePic &pic, const NewDateContext &context, bool isForced) {
    const bool savesAll = context.mode == CalculationMode::Save &&
                          context.options.isSavingPhotosWithoutDateChangesEnabled;
    if (isForced || savesAll || pic.isThisTimeUnsaved() || pic.isThisHarmonizationChanged())
        return Occasion::DateChange;
    const bool isLocationOnly = pic.hasLocationChange() &&
                                context.dateChangeTypeAtLocationOnlyChanges != 1 &&
                                !pic.hasXMPSidecar();
    return isLocationOnly ? Occasion::LocationOnly : Occasion::None;
}

void calculateDependent(MySinglePic &pic, const NewDateContext &context) {
    if (context.mode == CalculationMode::Save && pic.group.bundleDependentImage)
        calculateNewDates(*pic.group.bundleDependentImage, context);
}

/// The file date that the rules compare with. Where a file was "modified before it was created",
/// its creation date stands in.
OptionalDate referenceDate(const MySinglePic &pic) {
    constexpr unsigned fileDatesOutOfOrder = 4;
    return pic.save.normalizationType & fileDatesOutOfOrder ? pic.slots.fileCreationDateOLD
                                                            : pic.slots.fileModificationDateOLD;
}

void leaveUnchanged(MySinglePic &pic, const NewDateContext &context) {
    afterCalculationSetNewToOld(pic, context.mode);
    calculateDependent(pic, context);
}

/// Step by step what the three paths share: the working type, the corrected date, the reference.
void calculateChanged(MySinglePic &pic, const NewDateContext &context, SpType workingType,
                      Occasion occasion) {
    if (context.mode == CalculationMode::Save)
        pic.save.isAffectedBySave = true;
    calculateDependent(pic, context);
    const NewDateInputs inputs{context.options,
                               context.mode,
                               absl::Seconds(context.dateComparisonThresold),
                               pic.spDateTimeModified_tempFIX,
                               pic.spDateTimeOriginal,
                               referenceDate(pic)};
    const bool keepsDigitized =
        occasion == Occasion::LocationOnly && context.dateChangeTypeAtLocationOnlyChanges == 3;
    switch (pathFor(workingType)) {
    case Path::NoExif:
        return calculateNoExifPath(pic.slots, inputs);
    case Path::TiffOnly:
        return calculateTiffOnlyPath(pic.slots, inputs);
    case Path::Exif:
        return calculateExifPath(pic.slots, inputs, keepsDigitized);
    }
}

} // namespace

OptionalDate draggedDate(const MySinglePic &pic, const LiveDrag &drag) {
    if (drag.tempMoveDateByDuringLiveMod == absl::ZeroDuration())
        return std::nullopt;
    const bool isDependent = pic.bundleMasterImage() != nullptr;
    const bool standsAtMovie = &pic.sortPic() != &pic;
    if (isDependent || standsAtMovie)
        return shifted(pic.spDateTimeModified(), drag.tempMoveDateByDuringLiveMod);
    return drag.tempTimeDuringLiveMod;
}

void calculateNewDates(MySinglePic &pic, const NewDateContext &context) {
    const bool isLive = context.mode == CalculationMode::Live;
    if (isLive && context.isSavingInProgress)
        return;
    bool isForced = isLive && context.force;
    SpType workingType = pic.spType;
    if (takesPart(pic) && pic.save.shouldAddExifDateTimeTags) {
        isForced = true;
        if (prepareExifDateTimeAddition(pic)) {
            workingType = SpTypeExifOriginal;
            if (isCleanDate(pic.slots.exifDateTimeOriginalOLD))
                pic.spDateTimeOriginal = *pic.slots.exifDateTimeOriginalOLD;
        }
    }
    pic.spDateTimeModified_tempFIX = pic.spDateTimeModified();
    const OptionalDate dragged =
        isLive && context.drag ? draggedDate(pic, *context.drag) : std::nullopt;
    if (isCleanDate(dragged)) {
        pic.spDateTimeModified_tempFIX = *dragged;
        isForced = true;
    }
    const Occasion occasion = takesPart(pic) ? occasionFor(pic, context, isForced) : Occasion::None;
    if (occasion == Occasion::None || isMarker(pic.spDateTimeModified_tempFIX))
        leaveUnchanged(pic, context);
    else
        calculateChanged(pic, context, workingType, occasion);
    if (pic.save.shouldAddExifDateTimeTags)
        cleanupExifDateTimeAddition(pic);
}

void afterCalculationSetNewToOld(MySinglePic &pic, CalculationMode mode) {
    for (const SlotDescription &slot : slotDescriptions)
        pic.slots.*slot.newDate = pic.slots.*slot.oldDate;
    if (mode == CalculationMode::Save)
        pic.save.isAffectedBySave = false;
}

} // namespace chronomender
