// SPDX-License-Identifier: GPL-3.0-or-later
#include "DaylightSavingChecks.h"
#include "ZoneSteps.h"

namespace chronomender {
namespace {

using namespace little;

class TimezoneUpdate : public ZonesTest {
protected:
    void SetUp() override {
        // Read in Berlin, two hours ahead of UTC.
        SinglePicAttributes &attributes = pic->singlePicAttributes;
        attributes.exifDateTimeOriginal = attributes.exifDateTimeDigitized =
            attributes.tiffDateTime = located("2024:06:01 12:00:00");
        attributes.tiffOffsetTime = located("+05:30");
        pic->slots.exifDateTimeOriginalOLD = pic->slots.exifDateTimeDigitizedOLD =
            pic->spDateTimeOriginal = utc(2024, 6, 1, 10);
        pic->slots.tiffDateTimeOLD = utc(2024, 6, 1, 6, 30);
        pic->slots.fileCreationDateOLD = utc(2024, 6, 1, 10);
    }
    bool update(int threshold = 3) {
        return updateAllDatesAfterUpdatingTimezone(*pic, *folder, zones, threshold);
    }
};

TEST_F(TimezoneUpdate, StampsMoveWithTheSourceZoneAndThoseWithAZoneStampStay) {
    EXPECT_FALSE(update());
    assign("Asia/Tokyo", "");
    EXPECT_TRUE(update());
    EXPECT_EQ(pic->slots.exifDateTimeOriginalOLD, utc(2024, 6, 1, 3));
    EXPECT_EQ(pic->slots.exifDateTimeDigitizedOLD, utc(2024, 6, 1, 3));
    EXPECT_EQ(pic->slots.tiffDateTimeOLD, utc(2024, 6, 1, 6, 30));
    EXPECT_EQ(pic->spDateTimeOriginal, utc(2024, 6, 1, 3));
    EXPECT_TRUE(pic->zones.isUnsavedDueToTZC);
    EXPECT_FALSE(update()); // from the recorded bytes, never from dates already moved
}

TEST_F(TimezoneUpdate, TheMainDateFollowsTheSlotOfItsType) {
    pic->spType = SpTypeExifDigitized;
    pic->singlePicAttributes.exifDateTimeDigitized = located("2024:06:01 13:00:00");
    assign("Asia/Tokyo", "");
    EXPECT_TRUE(update());
    EXPECT_EQ(pic->spDateTimeOriginal, utc(2024, 6, 1, 4));
}

TEST_F(TimezoneUpdate, SlotsThatAreAbsentOrToBeAddedStaySo) {
    pic->slots.exifDateTimeOriginalOLD = std::nullopt;
    pic->slots.exifDateTimeDigitizedOLD = InfinitePast();
    pic->spType = SpTypeTiffDateTime;
    assign("Asia/Tokyo", "");
    update();
    EXPECT_EQ(pic->slots.exifDateTimeOriginalOLD, std::nullopt);
    EXPECT_EQ(pic->slots.exifDateTimeDigitizedOLD, InfinitePast());
}

TEST_F(TimezoneUpdate, OtherTypesDoNotMove) {
    for (SpType type : {SpTypeEmptyOriginalFileDate, SpTypeNoTagsFileDate, SpTypeUnsupported}) {
        pic->spType = type;
        assign("Asia/Tokyo", "");
        EXPECT_FALSE(update());
    }
}

TEST_F(TimezoneUpdate, AStampAndItsFileDateExchangeRoles) {
    pic->singlePicAttributes.tiffOffsetTime.reset();
    pic->slots.exifDateTimeOriginalOLD = pic->slots.exifDateTimeDigitizedOLD = std::nullopt;
    pic->spType = SpTypeTiffDateTime;
    pic->slots.fileCreationDateOLD = utc(2024, 6, 1, 15, 59, 57);
    assign("America/Lima", ""); // the stamp now means 17:00 UTC
    EXPECT_TRUE(update(3603));
    EXPECT_EQ(pic->spType, SpTypeTiffDateTime);
    EXPECT_EQ(pic->spDateTimeOriginal, utc(2024, 6, 1, 17));
    EXPECT_TRUE(update(3602));
    EXPECT_EQ(pic->spType, SpTypeTiffYoungerThanFile);
    EXPECT_EQ(pic->spDateTimeOriginal, pic->slots.fileCreationDateOLD);
    EXPECT_EQ(pic->slots.tiffDateTimeOLD, utc(2024, 6, 1, 17));
    assign("", "");
    EXPECT_TRUE(update(3602));
    EXPECT_EQ(pic->spType, SpTypeTiffDateTime);
    EXPECT_EQ(pic->spDateTimeOriginal, utc(2024, 6, 1, 10));
}

TEST_F(TimezoneUpdate, TheDependentIsReadInTheSameZone) {
    const auto jpeg = addItem(folder, SpTypeExifOriginal, utc(2024, 6, 1, 10));
    jpeg->singlePicAttributes = pic->singlePicAttributes;
    jpeg->slots = pic->slots;
    makeDependent(jpeg, pic);
    assign("", "", "Asia/Tokyo", "");
    EXPECT_TRUE(update());
    EXPECT_EQ(jpeg->spDateTimeOriginal, utc(2024, 6, 1, 3));
    const Zone lima = zone("America/Lima");
    EXPECT_TRUE(updateAllDatesAfterUpdatingTimezoneUsingTimeZone(*pic, lima, *folder, zones, 3));
    EXPECT_EQ(jpeg->spDateTimeOriginal, utc(2024, 6, 1, 17));
}

TEST_F(TimezoneUpdate, AnAlternativeReadingStaysOnlyWhereTheStampIsAmbiguous) {
    SinglePicAttributes &attributes = pic->singlePicAttributes;
    attributes.exifDateTimeOriginal = attributes.exifDateTimeDigitized =
        located("2024:10:27 02:30:00");
    pic->zones.usesAltTimeAtAmbiguityReason = 1;
    update();
    EXPECT_EQ(pic->spDateTimeOriginal, utc(2024, 10, 27, 0, 30)); // summer time, as chosen
    EXPECT_EQ(pic->slots.exifDateTimeDigitizedOLD, utc(2024, 10, 27, 0, 30));
    assign("Asia/Tokyo", "");
    update();
    EXPECT_EQ(pic->spDateTimeOriginal, utc(2024, 10, 26, 17, 30));
    EXPECT_EQ(pic->zones.dstAmbiguityAtImportState, 0U);
    EXPECT_EQ(pic->zones.usesAltTimeAtAmbiguityReason, 1);
    assign("", "");
    update();
    EXPECT_EQ(pic->spDateTimeOriginal, utc(2024, 10, 27, 0, 30));
    // The main date's own stamp decides, not one of the others.
    attributes.exifOffsetTimeOriginal = located("+02:00");
    update();
    EXPECT_EQ(pic->slots.exifDateTimeDigitizedOLD, utc(2024, 10, 27, 1, 30));
}

} // namespace
} // namespace chronomender
