// SPDX-License-Identifier: GPL-3.0-or-later
#include "FakeSession.h"
#include "ItemFilling.h"
#include "MemoryFile.h"
#include "MySingleFolderDataReader.h"

#include <gtest/gtest.h>

namespace chronomender {
namespace {

using namespace little;

/// An item of a given type, filled from a photo that was read as import reads it.
class ItemFilling : public testing::Test {
protected:
    MySinglePicPtr filled(const PhotoFields &fields, SpType type, int threshold = 3) {
        const MemoryFile memory(jpegPhoto(fields).bytes);
        MySingleFolderDataReader reader;
        EXPECT_TRUE(reader.borrow(memory.descriptor()));
        auto pic = MySinglePic::create("a.jpg", session.folders[0], type, mainDate);
        setImageAttributesFromTheDatesData(*pic, reader.readDates(FileFormatJpeg, "jpg"),
                                           session.folder(), session.zones);
        setImageAttributesFromFileAttributes(
            *pic, {.size = 7, .modificationDate = fileDate, .birthDate = {}, .inode = 8},
            threshold);
        return pic;
    }

    FakeSession session;
    Date mainDate = utc(2024, 5, 6, 5, 8, 9);
    Date fileDate = utc(2024, 5, 6, 20);
};

TEST_F(ItemFilling, ReadsAStampAtItsOwnZoneElseInTheFoldersSourceZone) {
    session.folder().sourceTimeZones.folderDefault =
        ZoneChoice::named(*session.zones.zoneWithName("Asia/Tokyo"));
    const auto pic = filled({.original = "2024:05:06 07:08:09",
                             .modified = "2024:05:06 07:08:11",
                             .zoneOriginal = "-03:30"},
                            SpTypeExifOriginal);
    EXPECT_EQ(pic->slots.exifDateTimeOriginalOLD, utc(2024, 5, 6, 10, 38, 9));
    EXPECT_EQ(pic->slots.tiffDateTimeOLD, utc(2024, 5, 5, 22, 8, 11));
    EXPECT_EQ(pic->slots.exifDateTimeDigitizedOLD, std::nullopt);
    EXPECT_EQ(pic->slots.fileCreationDateOLD, fileDate) << "the modification date stands for it";
}

TEST_F(ItemFilling, EmptyStampStaysOutOfItemsWithADateAndMarksATagOfTheOthers) {
    const PhotoFields fields{.original = "0000:00:00 00:00:00", .digitized = "2024:05:06 07:08:10"};
    EXPECT_EQ(filled(fields, SpTypeExifDigitized)->slots.exifDateTimeOriginalOLD, std::nullopt);
    EXPECT_EQ(filled(fields, SpTypeEmptyOriginalFileDate)->slots.exifDateTimeOriginalOLD,
              InfinitePast());
    EXPECT_TRUE(filled(fields, SpTypeExifDigitized)->singlePicAttributes.exifDateTimeOriginal);
}

TEST_F(ItemFilling, UnreadableModificationStampOfAnEmptyItemTakesTheFilesDate) {
    const PhotoFields fields{.original = "    :  :     :  :  ", .modified = "0000:00:00 00:00:00"};
    for (const SpType type : {SpTypeEmptyOriginalFileDate, SpTypeEmptyDigitizedFileDate})
        EXPECT_EQ(filled(fields, type)->slots.tiffDateTimeOLD, fileDate);
    EXPECT_EQ(filled(fields, SpTypeEmptyTiffFileDate)->slots.tiffDateTimeOLD, InfinitePast());
    EXPECT_EQ(filled({.original = "    :  :     :  :  "}, SpTypeEmptyOriginalFileDate)
                  ->slots.tiffDateTimeOLD,
              std::nullopt);
}

TEST_F(ItemFilling, ModificationStampYoungerThanTheFileGivesWayBeyondTheThreshold) {
    const PhotoFields fields{.modified = "2024:05:06 22:00:04"}; // 20:00:04 UTC
    mainDate = utc(2024, 5, 6, 20, 0, 4);
    const auto younger = filled(fields, SpTypeTiffDateTime, 3);
    EXPECT_EQ(younger->spType, SpTypeTiffYoungerThanFile);
    EXPECT_EQ(younger->spDateTimeOriginal, fileDate);
    const auto asOld = filled(fields, SpTypeTiffDateTime, 4);
    EXPECT_EQ(asOld->spType, SpTypeTiffDateTime);
    EXPECT_EQ(asOld->spDateTimeOriginal, mainDate);
    EXPECT_EQ(filled(fields, SpTypeExifOriginal, 3)->spType, SpTypeExifOriginal);
}

TEST_F(ItemFilling, NotesStampsInTheWrongOrder) {
    const auto stamp = [](char second) {
        return second == '-' ? std::nullopt
                             : std::optional("2024:05:06 07:08:0" + std::string(1, second));
    };
    // Seconds of original, digitized, modified, and whether they are out of order.
    for (const std::string row : {"112 0", "213 1", "132 1", "2-1 1", "2-- 0"}) {
        const PhotoFields fields{
            .original = stamp(row[0]), .digitized = stamp(row[1]), .modified = stamp(row[2])};
        EXPECT_EQ(filled(fields, SpTypeExifOriginal)->save.normalizationType,
                  row.back() == '1' ? 1U : 0U)
            << row;
    }
}

TEST_F(ItemFilling, CompletesALoneGpsStampOnlyForItemsWithAnExifDate) {
    PhotoFields fields{.original = "2024:05:06 07:08:09", .location = PhotoLocation{}};
    EXPECT_EQ(filled(fields, SpTypeExifOriginal)->location.spGpsUTCDate, utc(2024, 5, 6, 5, 8, 9));
    fields.location->date.reset();
    EXPECT_EQ(filled(fields, SpTypeExifOriginal)->location.spGpsUTCDate, utc(2024, 5, 6, 5, 8, 9));
    const auto byModification = filled(fields, SpTypeTiffDateTime);
    EXPECT_EQ(byModification->location.spGpsUTCDate, std::nullopt);
    EXPECT_FALSE(byModification->singlePicAttributes.gpsTimeStamp);
}

TEST_F(ItemFilling, TurnsCoordinatesIntoDegrees) {
    using Rationals = std::vector<Rational>;
    using Degrees = std::pair<double, double>;
    const auto expectDegrees = [&](const char *refs, Rationals latitude, Rationals longitude,
                                   std::optional<Degrees> expected) {
        PhotoFields fields = fullPhotoFields(Endian::Motorola);
        fields.location->latitudeRef = refs[0];
        fields.location->longitudeRef = refs[1];
        fields.location->latitude = std::move(latitude);
        fields.location->longitude = std::move(longitude);
        const auto place = filled(fields, SpTypeExifOriginal)->location;
        ASSERT_EQ(place.gpsLat.has_value(), expected.has_value());
        EXPECT_NEAR(place.gpsLat.value_or(0), expected.value_or(Degrees()).first, 1e-9);
        EXPECT_NEAR(place.gpsLong.value_or(0), expected.value_or(Degrees()).second, 1e-9);
    };
    const Rationals zero{{0, 1}, {0, 1}, {0, 1}};
    expectDegrees("NE", {{48, 1}, {30, 1}, {36, 1}}, {{2, 1}, {15, 1}, {0, 1}}, {{48.51, 2.25}});
    expectDegrees("SW", {{33, 1}, {3051, 100}, {0, 1}}, {{70, 1}, {0, 1}, {0, 0}},
                  {{-33.5085, -70}});
    expectDegrees("NE", zero, {{9, 1}, {0, 1}, {0, 1}}, {{0, 9}});
    expectDegrees("NW", {{1, 1}, {0, 1}, {0, 1}}, {{180, 1}, {0, 1}, {0, 1}}, {{1, -180}});
    expectDegrees("NE", zero, zero, {});                        // nowhere
    expectDegrees("NE", {{90, 1}, {1, 1}, {0, 1}}, zero, {});   // beyond the pole
    expectDegrees("NE", {{48, 0}, {30, 1}, {36, 1}}, zero, {}); // divided by zero
}

TEST_F(ItemFilling, RefreshReadsTheFileAgain) {
    session.photo("a.jpg", fullPhotoFields());
    session.import();
    MySinglePic &pic = session.item("a.jpg");
    session.write("a.jpg", tiffPhoto({.original = "2030:01:01 00:00:00"}).bytes);
    pic.fileFormatType = FileFormatTiff;
    ASSERT_TRUE(session.readAgain(pic));
    EXPECT_EQ(pic.slots.exifDateTimeOriginalOLD, utc(2029, 12, 31, 23));
    EXPECT_FALSE(pic.slots.exifDateTimeDigitizedOLD || pic.slots.tiffDateTimeOLD);
    EXPECT_FALSE(pic.singlePicAttributes.gpsLocation);
    EXPECT_FALSE(pic.singlePicAttributes.exifOffsetTimeOriginal);
    EXPECT_EQ(pic.singlePicAttributes.fileSize, std::filesystem::file_size(pic.spPath()));
    std::filesystem::remove(pic.spPath());
    EXPECT_FALSE(session.readAgain(pic));
}

} // namespace
} // namespace chronomender
