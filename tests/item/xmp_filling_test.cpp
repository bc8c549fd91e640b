// SPDX-License-Identifier: GPL-3.0-or-later
#include "FakeSession.h"
#include "ItemFilling.h"
#include "LittlePng.h"
#include "LittleXmp.h"
#include "MySingleFolderDataReader.h"
#include "XmpFilling.h"

#include <gtest/gtest.h>

namespace chronomender {
namespace {

using namespace little;

LocatedBytes text(std::string_view value) {
    return {500, static_cast<std::uint32_t>(value.size()), Bytes(value)};
}

/// Items of a folder whose files really exist.
class XmpFilling : public testing::Test {
protected:
    MySinglePicPtr item(SpType type, const std::string &name = "a.jpg") {
        auto pic = MySinglePic::create(name, session.folders[0], type, utc(2024, 5, 6));
        pic->fileFormatType = fileFormatTypeForExtension(pic->extension());
        return pic;
    }
    /// Read from its file as a refresh does it.
    MySinglePicPtr read(SpType type, const std::string &bytes, const std::string &name = "a.jpg") {
        session.write(name, bytes);
        auto pic = item(type, name);
        EXPECT_TRUE(refreshInternalData(*pic, session.folder(), session.zones));
        return pic;
    }
    static std::string xmpJpeg(const std::string &packet, const PhotoFields &fields = {}) {
        return Jpeg().exif(photoEntries(fields).build().bytes).xmp(packet).frame().bytes();
    }

    FakeSession session;
    Xmp packet = Xmp()
                     .attribute("exif:DateTimeOriginal", "2001-01-01T01:01:01Z")
                     .attribute("photoshop:DateCreated", "2024-05-06T07:08:09.25") // Berlin
                     .attribute("xmp:CreateDate", "2024-05-06T07:08:10-0330")
                     .attribute("xmp:ModifyDate", "2024-05-06T07:08")
                     .attribute("exif:GPSTimeStamp", "2024-05-06T05:08:09Z")
                     .end();
};

TEST_F(XmpFilling, SlotsTakeTheFirstChoiceAndTellWhereTheyComeFrom) {
    const auto pic = read(SpTypeExifOriginal, xmpJpeg(packet.bytes()));
    EXPECT_EQ(pic->slots.exifDateTimeOriginalOLD, utc(2024, 5, 6, 5, 8, 9));
    EXPECT_EQ(pic->slots.exifDateTimeDigitizedOLD, utc(2024, 5, 6, 10, 38, 10));
    EXPECT_EQ(pic->slots.tiffDateTimeOLD, utc(2024, 5, 6, 5, 8));
    EXPECT_EQ(pic->location.spGpsUTCDate, utc(2024, 5, 6, 5, 8, 9));
    EXPECT_TRUE(pic->xmp.isCreaXmp && pic->xmp.isDigiXmp && pic->xmp.isModiXmp);
    EXPECT_TRUE(pic->location.isGpsXmp);
    EXPECT_FALSE(pic->xmp.hasModiXmp);
    EXPECT_EQ(pic->sourceXmpDateType(), XmpStampType::Local);
    EXPECT_TRUE(pic->isDataSourceLocal());
    pic->spType = SpTypeExifDigitized;
    EXPECT_EQ(pic->sourceXmpDateType(), XmpStampType::Invalid) << "the first flag decides";
}

TEST_F(XmpFilling, ATiffStampOverwritesTheSlotAndKeepsTheXmpBesideIt) {
    const auto pic =
        read(SpTypeExifDigitized, xmpJpeg(packet.bytes(), {.modified = "2024:06:01 12:00:00"}));
    EXPECT_EQ(pic->slots.tiffDateTimeOLD, utc(2024, 6, 1, 10));
    EXPECT_TRUE(pic->xmp.hasModiXmp);
    EXPECT_FALSE(pic->xmp.isModiXmp);
    EXPECT_EQ(pic->singlePicAttributes.xmpDateInfos.stamps.size(), 5u);
}

TEST_F(XmpFilling, TagsOfTheFileKeepXmpFromBeingRead) {
    const DatesData none;
    DatesData withHeader, withEmptyOriginal, digitized;
    withHeader.tiffHeaderStartOffset = withEmptyOriginal.tiffHeaderStartOffset =
        digitized.tiffHeaderStartOffset = 12;
    withHeader.tiffDateTime = text("2024:06:01 12:00:00");
    withEmptyOriginal.exifDateTimeOriginal = text("0000:00:00 00:00:00");
    digitized.exifDateTimeDigitized = text("2024:06:01 12:00:00");
    DatesData withPacket;
    withPacket.jpgXmpOffset = 700;
    EXPECT_FALSE(isXmpRead(none, FileFormatJpeg));
    EXPECT_TRUE(isXmpRead(none, FileFormatPng));
    EXPECT_TRUE(isXmpRead(none, FileFormatAvif));
    EXPECT_TRUE(isXmpRead(withHeader, FileFormatHeif));
    EXPECT_TRUE(isXmpRead(withPacket, FileFormatJpeg));
    EXPECT_FALSE(isXmpRead(withEmptyOriginal, FileFormatPng));
    EXPECT_FALSE(isXmpRead(digitized, FileFormatJpeg));
}

TEST_F(XmpFilling, ReadingAgainForgetsAPacketThatIsGone) {
    const auto pic = read(SpTypeExifOriginal, xmpJpeg(packet.bytes()));
    session.write("a.jpg", jpegPhoto({.original = "2024:05:06 07:08:09"}).bytes);
    EXPECT_TRUE(refreshInternalData(*pic, session.folder(), session.zones));
    EXPECT_TRUE(pic->singlePicAttributes.xmpDateInfos.isEmpty());
    EXPECT_FALSE(pic->xmp.isCreaXmp || pic->xmp.isModiXmp || pic->location.isGpsXmp);
    EXPECT_EQ(pic->location.spGpsUTCDate, std::nullopt);
    EXPECT_FALSE(pic->isDataSourceXmp());
}

TEST_F(XmpFilling, BothGpsStampsOfTheFileReplaceTheInstantFromXmp) {
    PhotoFields fields{.location = PhotoLocation{}};
    fields.location->time = {{{9, 1}, {8, 1}, {7, 1}}};
    EXPECT_EQ(read(SpTypeExifOriginal, xmpJpeg(packet.bytes(), fields))->location.spGpsUTCDate,
              utc(2024, 5, 6, 9, 8, 7));
    fields.location->time = {{{99, 1}, {8, 1}, {7, 1}}}; // no time of day
    const auto pic = read(SpTypeExifOriginal, xmpJpeg(packet.bytes(), fields));
    EXPECT_EQ(pic->location.spGpsUTCDate, utc(2024, 5, 6, 5, 8, 9));
    EXPECT_TRUE(pic->location.isGpsXmp);
}

TEST_F(XmpFilling, ALocationIsTakenWhereTheItemHasNone) {
    const struct {
        const char *latitude, *longitude;
        bool isTaken;
    } rows[] = {
        {"48,30.6N", "11,15.0W", true}, {"0,0N", "0,0E", false},  {"90,0.1N", "11,0E", false},
        {"48,0N", "180,0.1E", false},   {"48,0N", "11,0", false},
    };
    for (const auto &row : rows) {
        const auto pic = item(SpTypeNoTagsFileDate);
        XmpLocation location;
        location.gpsLat = text(row.latitude);
        location.gpsLon = text(row.longitude);
        addRelevantXmpInfos(*pic, location);
        EXPECT_EQ(pic->hasLocation(), row.isTaken) << row.latitude << ' ' << row.longitude;
        if (row.isTaken) {
            EXPECT_NEAR(*pic->location.gpsLat, 48.51, 1e-9);
            EXPECT_NEAR(*pic->location.gpsLong, -11.25, 1e-9);
        }
    }
}

TEST_F(XmpFilling, ALateSearchLooksIntoThePacketOfAPngOnly) {
    const std::string place = Xmp()
                                  .attribute("exif:GPSLatitude", "48,30.6N")
                                  .attribute("exif:GPSLongitude", "11,15.0E")
                                  .end()
                                  .bytes();
    session.write("a.png", Png().xmp(place).bytes());
    session.write("a.jpg", xmpJpeg(place));
    const auto png = item(SpTypeNoTagsFileDate, "a.png"), jpeg = item(SpTypeNoTagsFileDate);
    lateSearchXmpLocation(*png);
    lateSearchXmpLocation(*jpeg);
    EXPECT_TRUE(png->hasLocation());
    EXPECT_FALSE(jpeg->hasLocation());
    EXPECT_TRUE(refreshInternalData(*png, session.folder(), session.zones));
    EXPECT_TRUE(png->hasLocation() && png->singlePicAttributes.xmpLocation.gpsLat);
}

TEST_F(XmpFilling, ASidecarIsReadFromItsPath) {
    EXPECT_FALSE(metadataFromXMPSidecarAtPath(session.path("none.xmp")));
    session.write("empty.xmp", "");
    EXPECT_TRUE(metadataFromXMPSidecarAtPath(session.path("empty.xmp"))->dates.isEmpty());
    session.write("a.xmp", packet.bytes());
    auto sidecar = metadataFromXMPSidecarAtPath(session.path("a.xmp"));
    EXPECT_EQ(sidecar->dates.stamps.size(), 5u);
    const auto pic = item(SpTypeNoTagsFileDate);
    addRelevantSidecarInfos(*pic, *sidecar);
    EXPECT_TRUE(pic->singlePicAttributes.xmpDateInfos.isEmpty()) << "its places are elsewhere";
}

} // namespace
} // namespace chronomender
