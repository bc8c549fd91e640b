// SPDX-License-Identifier: GPL-3.0-or-later
#include "ItemFilling.h"

#include "ItemDates.h"
#include "MySingleFolderDataReader.h"
#include "StampConversions.h"
#include "XmpFilling.h"
#include "ZoneLookup.h"

#include <utility>

namespace chronomender {
namespace {

constexpr unsigned kStampsOutOfOrder = 1;
constexpr unsigned kFileDatesOutOfOrder = 4;

void setBit(unsigned &bits, unsigned bit, bool isOn) {
    bits = isOn ? bits | bit : bits & ~bit;
}

bool isEarlier(const OptionalDate &a, const OptionalDate &b) {
    return a && b && *a < *b;
}

/// The slots of items whose date is in the file never hold "no date": an empty stamp beside a good
/// one stays out of every calculation. For items whose stamps are all empty it marks the tags that
/// a save may fill.
bool emptiesUnreadableSlots(SpType type) {
    return isInRange(type, SpTypeExifOriginal, SpTypeTiffDateTime);
}

void setSlotFromStamp(MySinglePic &pic, StampSlot slot, const absl::TimeZone &zone) {
    const LocatedBytes *stamp = pic.stamp(slot);
    if (!stamp)
        return;
    const LocatedBytes *offset = pic.zoneStamp(slot);
    OptionalDate &old = pic.slots.*description(slot).oldDate;
    old = dateFromExifData(stamp->data, offset ? &offset->data : nullptr, zone);
    if (old == InfinitePast() && emptiesUnreadableSlots(pic.spType))
        old.reset();
}

/// A zone stamp is kept only beside the stamp that it belongs to.
void takeStamp(std::optional<LocatedBytes> &stamp, std::optional<LocatedBytes> &offset,
               std::optional<LocatedBytes> &&readStamp, std::optional<LocatedBytes> &&readOffset) {
    if (!readStamp)
        return;
    stamp = std::move(readStamp);
    offset = std::move(readOffset);
}

/// With both GPS stamps the file's own instant replaces one from XMP, unless they hold none.
void takeBothGpsStamps(MySinglePic &pic, DatesData &dates) {
    OptionalDate fromXmp;
    if (pic.location.isGpsXmp)
        fromXmp = pic.location.spGpsUTCDate;
    if (fromXmp || pic.location.isGpsXmp) {
        pic.location.spGpsUTCDate.reset();
        pic.location.isGpsXmp = false;
    }
    pic.singlePicAttributes.gpsTimeStamp = std::move(dates.gpsTimeStamp);
    pic.singlePicAttributes.gpsDateStamp = std::move(dates.gpsDateStamp);
    updateGpsDateWithCreationDate(pic, std::nullopt);
    if (!pic.location.spGpsUTCDate && fromXmp) {
        pic.location.spGpsUTCDate = fromXmp;
        pic.location.isGpsXmp = true;
    }
}

void setGPXAttributesFromTheDatesData(MySinglePic &pic, DatesData &dates) {
    if (dates.gpsTimeStamp && dates.gpsDateStamp) {
        takeBothGpsStamps(pic, dates);
    } else if (isInRange(pic.spType, SpTypeExifOriginal, SpTypeExifDigitized) &&
               !pic.location.isGpsXmp && (dates.gpsTimeStamp || dates.gpsDateStamp)) {
        // One half alone is completed by the picture's own date.
        pic.singlePicAttributes.gpsTimeStamp = std::move(dates.gpsTimeStamp);
        pic.singlePicAttributes.gpsDateStamp = std::move(dates.gpsDateStamp);
        updateGpsDateWithCreationDate(pic, pic.spDateTimeOriginal);
    }
    if (dates.gpsLocation)
        pic.singlePicAttributes.gpsLocation = std::move(dates.gpsLocation);
}

/// The tag for the modification date exists and holds no readable date: the slot takes the file's.
void lateSetEmptyMetaModDateFromFileModDate(MySinglePic &pic) {
    const bool isOfThoseTypes =
        isInRange(pic.spType, SpTypeEmptyOriginalFileDate, SpTypeEmptyDigitizedFileDate);
    const bool isEmptyMovie =
        pic.spType == SpTypeMovieEmptyFileDate && pic.singlePicAttributes.qtMvhdModDate;
    if (isEmptyMovie || (isOfThoseTypes && pic.singlePicAttributes.tiffDateTime))
        pic.slots.tiffDateTimeOLD = pic.slots.fileModificationDateOLD;
}

void cleanupBeforeRefreshInternalData(MySinglePic &pic) {
    pic.xmp = {};
    for (const StampSlot slot : stampSlots)
        pic.slots.*description(slot).oldDate = std::nullopt;
    SinglePicAttributes &attributes = pic.singlePicAttributes;
    for (auto *value : {&attributes.exifDateTimeOriginal, &attributes.exifDateTimeDigitized,
                        &attributes.tiffDateTime, &attributes.exifOffsetTimeOriginal,
                        &attributes.exifOffsetTimeDigitized, &attributes.tiffOffsetTime,
                        &attributes.gpsDateStamp})
        value->reset();
    attributes.gpsTimeStamp.reset();
    attributes.gpsLocation.reset();
    attributes.xmpDateInfos = {};
    pic.location.isGpsXmp = false;
    pic.location.spGpsUTCDate.reset();
    attributes.xmpHeaderStartOffset.reset();
    attributes.cr3XmpOffset.reset();
}

void takeLivePhotoMarks(LivePhotoState &livePhoto, std::optional<LivePhotoMarks> &&marks) {
    livePhoto.livePhotoExactTimeCached.reset();
    if (!marks)
        return;
    livePhoto.UUID = std::move(marks->contentIdentifier);
    livePhoto.subsecTimeOriginal = marks->subsecTimeOriginal;
    livePhoto.customRendered = marks->customRendered;
}

void takeDatesData(MySinglePic &pic, DatesData dates, const absl::TimeZone &zone,
                   XmpDateInfos xmp) {
    SinglePicAttributes &attributes = pic.singlePicAttributes;
    if (!xmp.isEmpty())
        setImageAttributesFromXmpDatesData(pic, std::move(xmp), dates.tiffDateTime.has_value(),
                                           zone);
    takeStamp(attributes.exifDateTimeOriginal, attributes.exifOffsetTimeOriginal,
              std::move(dates.exifDateTimeOriginal), std::move(dates.exifOffsetTimeOriginal));
    takeStamp(attributes.exifDateTimeDigitized, attributes.exifOffsetTimeDigitized,
              std::move(dates.exifDateTimeDigitized), std::move(dates.exifOffsetTimeDigitized));
    takeStamp(attributes.tiffDateTime, attributes.tiffOffsetTime, std::move(dates.tiffDateTime),
              std::move(dates.exifOffsetTiffTime));
    for (const StampSlot slot : stampSlots)
        setSlotFromStamp(pic, slot, zone);

    if (dates.xmpHeaderStartOffset)
        attributes.xmpHeaderStartOffset = dates.xmpHeaderStartOffset;
    else if (dates.cr3XmpOffset)
        attributes.cr3XmpOffset = dates.cr3XmpOffset;
    attributes.tiffHeaderStartOffset = dates.tiffHeaderStartOffset;
    pic.isHeaderIntel = dates.isHeaderIntel;
    pic.findings = std::move(dates.findings);
    takeLivePhotoMarks(pic.livePhoto, std::move(dates.livePhoto));
    validateMetaNormalization(pic);
    setGPXAttributesFromTheDatesData(pic, dates);
    setLocationFromData(pic);
}

} // namespace

void setImageAttributesFromTheDatesData(MySinglePic &pic, DatesData dates,
                                        const MySingleFolder &folder, const Zones &zones,
                                        XmpDateInfos xmp) {
    takeDatesData(pic, std::move(dates), sourceTimeZoneForPic(pic, folder, zones).rules,
                  std::move(xmp));
}

void validateMetaNormalization(MySinglePic &pic) {
    const DateSlots &slots = pic.slots;
    const OptionalDate &beforeTiff = slots.exifDateTimeDigitizedOLD ? slots.exifDateTimeDigitizedOLD
                                                                    : slots.exifDateTimeOriginalOLD;
    setBit(pic.save.normalizationType, kStampsOutOfOrder,
           isEarlier(slots.exifDateTimeDigitizedOLD, slots.exifDateTimeOriginalOLD) ||
               isEarlier(slots.tiffDateTimeOLD, beforeTiff));
}

void validateFilesystemNormalization(MySinglePic &pic) {
    setBit(pic.save.normalizationType, kFileDatesOutOfOrder,
           isEarlier(pic.slots.fileModificationDateOLD, pic.slots.fileCreationDateOLD));
}

void takeFileAttributes(MySinglePic &pic, const FileAttributes &now) {
    SinglePicAttributes &attributes = pic.singlePicAttributes;
    attributes.fileSize = now.size;
    attributes.fileDevice = now.device;
    attributes.fileInode = now.inode;
    attributes.fileBirthDate = now.birthDate;
    attributes.fileModificationDate = now.modificationDate;
    // A creation date cannot be set on this system, so the modification date stands for it: what a
    // save leaves is what a fresh import shows.
    attributes.fileCreationDate = now.modificationDate;
    pic.slots.fileModificationDateOLD = attributes.fileModificationDate;
    pic.slots.fileCreationDateOLD = attributes.fileCreationDate;
}

void setImageAttributesFromFileAttributes(MySinglePic &pic, const FileAttributes &attributes,
                                          int dateComparisonThresold) {
    takeFileAttributes(pic, attributes);
    pic.importState.isExtraHardLink = attributes.hardLinks > 1;
    validateFilesystemNormalization(pic);
    if (isSourceMetaModAndYoungerThanFileCrea(pic, pic.spDateTimeOriginal,
                                              dateComparisonThresold)) {
        pic.spType = pic.spType == SpTypeTiffDateTime || pic.spType == SpTypeTiffYoungerThanFile
                         ? SpTypeTiffYoungerThanFile
                         : SpTypeMovieMvhdYoungerThanFile;
        pic.spDateTimeOriginal = *pic.slots.fileCreationDateOLD;
    }
    lateSetEmptyMetaModDateFromFileModDate(pic);
}

bool refreshInternalData(MySinglePic &pic, const OpenFile &file, const FileAttributes &attributes,
                         const absl::TimeZone &zone) {
    MySingleFolderDataReader reader;
    if (!reader.borrow(file.descriptor()))
        return false;
    DatesData dates = reader.readDates(pic.fileFormatType, pic.extension());
    XmpDateInfos xmp = readXmpDates(reader, pic.fileFormatType, dates);
    XmpLocation xmpLocation = std::exchange(pic.singlePicAttributes.xmpLocation, {});
    if (!xmpLocation.isEmpty())
        xmpLocation = reader.readXmpLocation(pic.fileFormatType, dates);
    cleanupBeforeRefreshInternalData(pic);
    takeDatesData(pic, std::move(dates), zone, std::move(xmp));
    addRelevantXmpInfos(pic, std::move(xmpLocation));
    if (!pic.hasLocation())
        setLocationFromXmp(pic, pic.relevantSidecarInfos.location);
    takeFileAttributes(pic, attributes);
    pic.importState.isExtraHardLink = attributes.hardLinks > 1;
    updateMainDate(pic);
    // One half of a GPS instant is completed by the main date, which is known only now.
    if (pic.location.spGpsUTCDate)
        updateGpsDateWithCreationDate(pic, pic.spDateTimeOriginal);
    return true;
}

} // namespace chronomender
