// SPDX-License-Identifier: GPL-3.0-or-later
#include "ItemDates.h"
#include "NewDates.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <string>
#include <string_view>
#include <utility>

namespace chronomender {
namespace {

/// Formats in which ExifTool 12.57 creates an Exif directory. It writes XMP alone into GIF files.
constexpr std::array writtenFormats{FileFormatJpeg, FileFormatHeif, FileFormatTiff,
                                    FileFormatWebp, FileFormatPng,  FileFormatAvif};
/// Raw files that it writes Exif into, by extension. The others it only reads, or, as the older
/// Canon ones ("crw"), writes without Exif.
constexpr std::array<std::string_view, 21> writtenRawExtensions{
    "arw", "cr2", "cr3", "dng", "erf", "fff", "gpr", "iiq", "mef", "mos", "mrw",
    "nef", "nrw", "orf", "pef", "raf", "raw", "rw2", "rwl", "sr2", "srw"};

bool isWrittenByTool(const MySinglePic &pic) {
    if (!pic.isRaw())
        return std::ranges::find(writtenFormats, pic.fileFormatType) != writtenFormats.end();
    std::string extension = pic.extension();
    std::ranges::transform(extension, extension.begin(),
                           [](unsigned char letter) { return std::tolower(letter); });
    return std::ranges::find(writtenRawExtensions, extension) != writtenRawExtensions.end();
}

unsigned missingTags(const DateSlots &slots) {
    unsigned tags = 0;
    for (StampSlot slot : stampSlots)
        if (!(slots.*description(slot).oldDate))
            tags |= bit(slot);
    return tags;
}

/// Lends dates to the slots named in a set of tags; slots that the file has are never touched.
class Lender {
public:
    Lender(DateSlots &slots, unsigned tags) : m_slots(slots), m_tags(tags) {}

    bool isMissing(StampSlot slot) const { return m_tags & bit(slot); }
    void lend(StampSlot slot, const OptionalDate &date) const {
        if (isMissing(slot))
            m_slots.*description(slot).oldDate = date;
    }

private:
    DateSlots &m_slots;
    unsigned m_tags;
};

void lendByOtherStamps(const DateSlots &slots, const Lender &lender) {
    const bool isOriginalMissing = lender.isMissing(StampSlot::Original);
    const bool isDigitizedMissing = lender.isMissing(StampSlot::Digitized);
    if (isOriginalMissing && !isDigitizedMissing)
        lender.lend(StampSlot::Original, slots.exifDateTimeDigitizedOLD);
    else if (isDigitizedMissing && !isOriginalMissing)
        lender.lend(StampSlot::Digitized, slots.exifDateTimeOriginalOLD);
    lender.lend(StampSlot::Modification, cleanDate(slots.fileModificationDateOLD));
}

} // namespace

bool areExifDateTimeTagsAddable(const MySinglePic &pic) {
    const bool hasFittingType =
        isInRange(pic.spType, SpTypeExifOriginal, SpTypeTiffYoungerThanFile) ||
        pic.spType == SpTypeNoTagsFileDate;
    const bool isAnyXmp = pic.xmp.isCreaXmp || pic.xmp.isDigiXmp || pic.xmp.isModiXmp;
    const unsigned missing = pic.save.tagAddType ? pic.save.tagAddType : missingTags(pic.slots);
    return hasFittingType && missing != 0 && !isAnyXmp && isWrittenByTool(pic);
}

bool setShouldAddExifDateTimeTags(MySinglePic &pic, bool shouldAdd) {
    if (shouldAdd && !areExifDateTimeTagsAddable(pic))
        return false;
    if (shouldAdd == pic.save.shouldAddExifDateTimeTags)
        return true;
    pic.save.shouldAddExifDateTimeTags = shouldAdd;
    // Decided here and not by the first calculation, which may be made on a copy for a save: marks
    // that come back from it are then known to be marks.
    const unsigned tags = shouldAdd ? missingTags(pic.slots) : 0;
    const unsigned marked = std::exchange(pic.save.tagAddType, tags);
    for (StampSlot slot : stampSlots)
        if (!shouldAdd && (marked & bit(slot)))
            pic.slots.*description(slot).oldDate = std::nullopt;
    if (!shouldAdd)
        updateMainDate(pic);
    return true;
}

bool changeMissingDateTags(MySinglePic &pic, bool shouldAdd, UndoManager &undo) {
    const bool isSame = shouldAdd == pic.save.shouldAddExifDateTimeTags;
    if (!setShouldAddExifDateTimeTags(pic, shouldAdd))
        return false;
    if (isSame)
        return true;
    undo.registerUndo(pic.shared_from_this(), [shouldAdd, &undo](MySinglePic &itself) {
        changeMissingDateTags(itself, !shouldAdd, undo);
        undo.recordAffected(itself.shared_from_this());
    });
    undo.setActionName("addMissingTags_undoRedo");
    return true;
}

bool prepareExifDateTimeAddition(MySinglePic &pic) {
    if (!pic.save.shouldAddExifDateTimeTags)
        return false;
    DateSlots &slots = pic.slots;
    if (pic.save.tagAddType == 0)
        pic.save.tagAddType = missingTags(slots);
    if (pic.save.tagAddType == 0)
        return false;

    const Lender lender(slots, pic.save.tagAddType);
    switch (pic.spType) {
    case SpTypeNoTagsFileDate:
    case SpTypeNoTagsFixedDate:
        lender.lend(StampSlot::Original, cleanDate(slots.fileCreationDateOLD));
        lender.lend(StampSlot::Digitized, cleanDate(slots.fileCreationDateOLD));
        lender.lend(StampSlot::Modification, cleanDate(slots.fileModificationDateOLD));
        break;
    case SpTypeTiffYoungerThanFile:
        lender.lend(StampSlot::Original, cleanDate(slots.fileCreationDateOLD));
        lender.lend(StampSlot::Digitized, cleanDate(slots.fileCreationDateOLD));
        break;
    case SpTypeTiffDateTime:
        lender.lend(StampSlot::Original, slots.tiffDateTimeOLD);
        lender.lend(StampSlot::Digitized, slots.tiffDateTimeOLD);
        break;
    default:
        lendByOtherStamps(slots, lender);
        break;
    }
    return true;
}

void cleanupExifDateTimeAddition(MySinglePic &pic) {
    for (StampSlot slot : stampSlots)
        if (pic.save.tagAddType & bit(slot))
            pic.slots.*description(slot).oldDate = InfinitePast();
}

} // namespace chronomender
