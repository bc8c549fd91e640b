// SPDX-License-Identifier: GPL-3.0-or-later
#include "XmpFilling.h"

#include "ItemFilling.h"
#include "XmpStampConversions.h"
#include "XmpValues.h"

#include <utility>

namespace chronomender {
namespace {

/// The file's packet, where its format has one: by what is recorded already.
DatesData knownPlaces(const MySinglePic &pic) {
    DatesData known;
    known.tiffHeaderStartOffset = pic.singlePicAttributes.tiffHeaderStartOffset;
    known.isHeaderIntel = pic.isHeaderIntel;
    known.cr3XmpOffset = pic.singlePicAttributes.cr3XmpOffset;
    known.xmpHeaderStartOffset = pic.singlePicAttributes.xmpHeaderStartOffset;
    return known;
}

std::optional<double> degrees(const std::optional<LocatedBytes> &value,
                              const std::optional<LocatedBytes> &reference, XmpAxis axis) {
    if (!value)
        return std::nullopt;
    return degreesFromXmpCoordinate(
        value->data, reference ? std::string_view(reference->data) : std::string_view(), axis);
}

} // namespace

bool isXmpRead(const DatesData &dates, FileFormatType format) {
    if (dates.exifDateTimeOriginal || dates.exifDateTimeDigitized)
        return false;
    return dates.tiffHeaderStartOffset || dates.jpgXmpOffset || dates.cr3XmpOffset ||
           dates.xmpHeaderStartOffset || format == FileFormatPng || format == FileFormatAvif;
}

XmpDateInfos readXmpDates(MySingleFolderDataReader &reader, FileFormatType format,
                          DatesData &dates) {
    if (!isXmpRead(dates, format))
        return {};
    auto found = reader.readXmpDates(format, dates);
    const bool isOfUse = found && (found->xmpCreaDict() || found->xmpDigiDict() ||
                                   found->xmpModDict() || dates.tiffDateTime);
    return isOfUse ? *std::move(found) : XmpDateInfos();
}

bool isLocationSearchedInXmp(FileFormatType format, std::string_view extension) {
    return format == FileFormatPng || isBoxedRaw(format, extension);
}

std::optional<XmpSidecar> metadataFromXMPSidecarAtPath(const std::string &path) {
    MySingleFolderDataReader reader;
    if (!reader.open(path))
        return std::nullopt;
    std::vector<Finding> findings;
    return reader.readXmpSidecar(findings);
}

void setImageAttributesFromXmpDatesData(MySinglePic &pic, XmpDateInfos xmp, bool hasTiffStamp,
                                        const absl::TimeZone &zone) {
    pic.slots.exifDateTimeOriginalOLD = xmpDateFromStampInfos(xmp.xmpCreaDict(), zone);
    pic.slots.exifDateTimeDigitizedOLD = xmpDateFromStampInfos(xmp.xmpDigiDict(), zone);
    pic.slots.tiffDateTimeOLD = xmpDateFromStampInfos(xmp.xmpModDict(), zone);
    pic.xmp.isCreaXmp = pic.slots.exifDateTimeOriginalOLD.has_value();
    pic.xmp.isDigiXmp = pic.slots.exifDateTimeDigitizedOLD.has_value();
    const bool hasMod = pic.slots.tiffDateTimeOLD.has_value();
    pic.xmp.isModiXmp = hasMod && !hasTiffStamp;
    pic.xmp.hasModiXmp = hasMod && hasTiffStamp;
    if (const OptionalDate gps = xmpDateFromStampInfos(xmp.xmpGpsDict(), zone)) {
        pic.location.spGpsUTCDate = gps;
        pic.location.isGpsXmp = true;
    }
    pic.singlePicAttributes.xmpDateInfos = std::move(xmp);
}

void setLocationFromXmp(MySinglePic &pic, const XmpLocation &xmp) {
    const auto latitude = degrees(xmp.gpsLat, xmp.gpsLatRef, XmpAxis::Latitude);
    const auto longitude = degrees(xmp.gpsLon, xmp.gpsLonRef, XmpAxis::Longitude);
    if (latitude && longitude && isUsableLocation(*latitude, *longitude)) {
        pic.location.gpsLat = latitude;
        pic.location.gpsLong = longitude;
    }
}

void addRelevantXmpInfos(MySinglePic &pic, XmpLocation xmp) {
    if (!pic.hasLocation())
        setLocationFromXmp(pic, xmp);
    pic.singlePicAttributes.xmpLocation = std::move(xmp);
}

void addRelevantSidecarInfos(MySinglePic &pic, XmpSidecar sidecar) {
    if (!pic.hasLocation())
        setLocationFromXmp(pic, sidecar.location);
    pic.relevantSidecarInfos = std::move(sidecar);
}

void lateSearchXmpLocation(MySinglePic &pic) {
    if (pic.hasLocation() || !isLocationSearchedInXmp(pic.fileFormatType, pic.extension()))
        return;
    MySingleFolderDataReader reader;
    if (reader.open(pic.spPath()))
        addRelevantXmpInfos(pic, reader.readXmpLocation(pic.fileFormatType, knownPlaces(pic)));
}

} // namespace chronomender
