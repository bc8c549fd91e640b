// SPDX-License-Identifier: GPL-3.0-or-later
#include "MovieFilling.h"

#include "MovieStampConversions.h"
#include "MovieStampSyntax.h"
#include "ZoneLookup.h"

#include <charconv>
#include <cmath>
#include <utility>

namespace chronomender {
namespace {

constexpr std::size_t kUtcStampLength = 20;
constexpr int kNotMarkedAsLivePhoto = 1, kMarkedAsLivePhoto = 2;
constexpr double kMostLatitude = 90, kMostLongitude = 180;
/// Shown for a movie that does not name its camera.
constexpr const char *kNoCamera = "-";

void takeHeader(MySinglePic &pic, MovieHeader &header) {
    SinglePicAttributes &attributes = pic.singlePicAttributes;
    attributes.qtMvhdCreaDate = std::move(header.creaDate);
    attributes.qtMvhdModDate = std::move(header.modDate);
    attributes.qtMetaDate = std::move(header.qtCreationDate);
    attributes.riffCreaDate = std::move(header.riffCreaDate);
    attributes.qtLocations = std::move(header.qtLocations);
    pic.findings = std::move(header.findings);
}

OptionalDate headerTime(const std::optional<LocatedBytes> &value, MvhdCorrection correction,
                        const absl::TimeZone &zone) {
    return value ? finalDateFromMVHDData(value->data, correction, zone) : std::nullopt;
}

/// The times of a header whose both are empty give no slot: they hold no date.
void setSlots(MySinglePic &pic, MvhdCorrection correction, const absl::TimeZone &zone) {
    const SinglePicAttributes &read = pic.singlePicAttributes;
    if (pic.spType == SpTypeMovieRiff) {
        pic.slots.exifDateTimeOriginalOLD =
            read.riffCreaDate ? dateFromRIFFTimeStamp(read.riffCreaDate->data, zone) : std::nullopt;
    } else if (pic.spType == SpTypeMovieMdta) {
        pic.slots.exifDateTimeOriginalOLD = dateFromMDTATimeStamp(qTMetaDateString(pic), zone);
        // Who writes a metadata date with its zone writes the header in UTC.
        pic.slots.tiffDateTimeOLD = headerTime(read.qtMvhdModDate, MvhdCorrection::Off, zone);
    } else if (isInRange(pic.spType, SpTypeMovieMvhdCreation, SpTypeMovieMvhdYoungerThanFile)) {
        pic.slots.exifDateTimeOriginalOLD = headerTime(read.qtMvhdCreaDate, correction, zone);
        pic.slots.tiffDateTimeOLD = headerTime(read.qtMvhdModDate, correction, zone);
    }
}

void takeCamera(MySinglePic &pic, const MovieDetails &details, const std::string &infoString) {
    pic.camera.make = details.make;
    pic.camera.model = details.model;
    std::string name = completeMakerModelString(details.make, details.model);
    if (name.empty())
        name = infoString;
    pic.camera.pivMakeModel = name.empty() ? kNoCamera : name;
    pic.camera.pivImageWidth = details.width;
    pic.camera.pivImageHeight = details.height;
}

void takeLivePhoto(MySinglePic &pic, const MovieDetails &details) {
    pic.movie.movDuration = details.movDuration;
    pic.movie.livePhotoStillImageTime = details.stillImageTime;
    if (pic.spType != SpTypeMovieRiff)
        pic.movie.seemsRealLivePhotoType =
            details.hasLivePhotoInfo ? kMarkedAsLivePhoto : kNotMarkedAsLivePhoto;
    pic.livePhoto.UUID = details.contentIdentifier;
}

/// A signed decimal number that is all of the text.
std::optional<double> decimal(std::string_view text) {
    if (text.starts_with('+'))
        text.remove_prefix(1);
    double number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() ? std::optional(number)
                                                                    : std::nullopt;
}

} // namespace

void setMovieAttributes(MySinglePic &pic, MovieHeader header, const MovieDetails &details,
                        const MySingleFolder &folder, const Zones &zones) {
    const Zone &zone = sourceTimeZoneForPic(pic, folder, zones);
    takeHeader(pic, header);
    setSlots(pic, MvhdCorrection{folder.isQuicktimeMVHDTimezoneCorrectionEnabled}, zone.rules);
    takeCamera(pic, details, header.infoString);
    takeLivePhoto(pic, details);
    for (const QtLocation &location : pic.singlePicAttributes.qtLocations)
        setQTLocationFromLocDic(pic, location);
}

void setQTLocationFromLocDic(MySinglePic &pic, const QtLocation &location) {
    const std::string_view text = location.value.data;
    const auto measure = pic.hasLocation() ? std::nullopt : measureData(text);
    if (!measure)
        return;
    const std::size_t start = measure->longitudeStart;
    const auto latitude = decimal(text.substr(0, start));
    const auto longitude = decimal(text.substr(start, measure->longitudeEnd - start));
    if (!latitude || !longitude || (*latitude == 0 && *longitude == 0) ||
        std::fabs(*latitude) > kMostLatitude || std::fabs(*longitude) > kMostLongitude)
        return;
    pic.location.gpsLat = latitude;
    pic.location.gpsLong = longitude;
}

void transformToLivePhotoMovie(MySinglePic &movie) {
    const OptionalDate date = dateFromMDTATimeStamp(qTMetaDateString(movie), absl::UTCTimeZone());
    if (date && movie.spType != SpTypeMovieMdta) {
        movie.spDateTimeOriginal = *date;
        if (movie.singlePicAttributes.qtMvhdModDate)
            movie.slots.tiffDateTimeOLD =
                dateFromMVHDData(movie.singlePicAttributes.qtMvhdModDate->data);
        movie.spType = SpTypeMovieMdta;
    }
    movie.slots.exifDateTimeOriginalOLD = movie.spDateTimeOriginal;
    movie.slots.exifDateTimeDigitizedOLD.reset();
}

std::string qTMetaDateString(const MySinglePic &pic) {
    const auto &date = pic.singlePicAttributes.qtMetaDate;
    return date ? date->data.substr(0, date->data.find('\0')) : std::string();
}

bool isMdtaUtc(const MySinglePic &pic) {
    const auto &date = pic.singlePicAttributes.qtMetaDate;
    return date && date->data.size() == kUtcStampLength;
}

} // namespace chronomender
