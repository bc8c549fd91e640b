// SPDX-License-Identifier: GPL-3.0-or-later
#include "FakeSession.h"
#include "ItemFilling.h"
#include "LittlePng.h"
#include "LittleXmp.h"
#include "UnchangedProof.h"
#include "XmpFilling.h"

#include <gtest/gtest.h>

namespace chronomender {
namespace {

using namespace little;

class XmpFilling : public testing::Test {
protected:
    /// An item of a file that holds these bytes, read as a refresh does it.
    MySinglePicPtr read(SpType type, const std::string &bytes, const std::string &name = "a.jpg") {
        session.write(name, bytes);
        auto pic = MySinglePic::create(name, session.folders[0], type, utc(2024, 5, 6));
        pic->fileFormatType = fileFormatTypeForExtension(pic->extension());
        EXPECT_TRUE(session.readAgain(*pic));
        return pic;
    }
    static std::string jpeg(const Xmp &packet, const PhotoFields &fields = {}) {
        const std::string tiff = photoEntries(fields).build().bytes;
        return Jpeg().exif(tiff).xmp(packet.bytes()).frame().bytes();
    }

    FakeSession session; // in Berlin
    Xmp packet = Xmp()
                     .attribute("exif:DateTimeOriginal", "2001-01-01T01:01:01Z")
                     .attribute("photoshop:DateCreated", "2024-05-06T07:08:09.25")
                     .attribute("xmp:CreateDate", "2024-05-06T07:08:10-0330")
                     .attribute("xmp:ModifyDate", "2024-05-06T07:08")
                     .attribute("exif:GPSTimeStamp", "2024-05-06T05:08:09Z")
                     .end();
};

TEST_F(XmpFilling, SlotsTakeTheFirstChoiceAndTellWhereTheyComeFrom) {
    const auto pic = read(SpTypeExifOriginal, jpeg(packet));
    EXPECT_EQ(pic->slots.exifDateTimeOriginalOLD, utc(2024, 5, 6, 5, 8, 9));
    EXPECT_EQ(pic->slots.exifDateTimeDigitizedOLD, utc(2024, 5, 6, 10, 38, 10));
    EXPECT_EQ(pic->slots.tiffDateTimeOLD, utc(2024, 5, 6, 5, 8));
    EXPECT_EQ(pic->location.spGpsUTCDate, utc(2024, 5, 6, 5, 8, 9));
    EXPECT_TRUE(pic->xmp.isCreaXmp && pic->xmp.isDigiXmp && pic->xmp.isModiXmp);
    EXPECT_EQ(pic->sourceXmpDateType(), XmpStampType::Local);
    EXPECT_TRUE(pic->isDataSourceLocal());
    pic->singlePicAttributes.xmpDateInfos.stamps[2].value.data[0] = '1'; // as if it had been so
    EXPECT_EQ(updatedUnchangedFileState(*pic, session.folder(), session.files),
              FileUnchangedState::BytesDiffer);
}

TEST_F(XmpFilling, TheFilesOwnTagsGoFirst) {
    PhotoFields fields{.modified = "2024:06:01 12:00:00", .location = PhotoLocation{}};
    const auto pic = read(SpTypeExifDigitized, jpeg(packet, fields));
    EXPECT_EQ(pic->slots.tiffDateTimeOLD, utc(2024, 6, 1, 10));
    EXPECT_TRUE(pic->xmp.hasModiXmp && !pic->xmp.isModiXmp && !pic->location.isGpsXmp);
    fields.location->time = {{{99, 1}, {8, 1}, {7, 1}}}; // no time of day
    EXPECT_TRUE(read(SpTypeExifDigitized, jpeg(packet, fields))->location.isGpsXmp);
    fields.digitized = "0000:00:00 00:00:00"; // an empty tag is one
    EXPECT_TRUE(read(SpTypeEmptyDigitizedFileDate, jpeg(packet, fields))
                    ->singlePicAttributes.xmpDateInfos.isEmpty());
}

TEST_F(XmpFilling, ReadingAgainForgetsAPacketThatIsGone) {
    const auto pic = read(SpTypeExifOriginal, jpeg(packet));
    session.write("a.jpg", jpegPhoto({.original = "2024:05:06 07:08:09"}).bytes);
    EXPECT_TRUE(session.readAgain(*pic));
    EXPECT_TRUE(pic->singlePicAttributes.xmpDateInfos.isEmpty());
    EXPECT_FALSE(pic->xmp.isCreaXmp || pic->xmp.isModiXmp || pic->location.isGpsXmp);
    EXPECT_EQ(pic->location.spGpsUTCDate, std::nullopt);
}

TEST_F(XmpFilling, ALateSearchTakesAUsablePlaceFromThePacketOfAPng) {
    for (const auto &[longitude, degrees] : {std::pair{"11,15.0W", std::optional(-11.25)},
                                             std::pair{"180,0.1E", std::optional<double>()}}) {
        Xmp xmp;
        xmp.attribute("exif:GPSLatitude", "0,0N").attribute("exif:GPSLongitude", longitude).end();
        const auto pic = read(SpTypeNoTagsFileDate, Png().xmp(xmp.bytes()).bytes(), "a.png");
        lateSearchXmpLocation(*pic);
        EXPECT_TRUE(session.readAgain(*pic));
        EXPECT_EQ(pic->location.gpsLong, degrees) << longitude;
    }
}

} // namespace
} // namespace chronomender
