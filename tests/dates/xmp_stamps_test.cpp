// SPDX-License-Identifier: GPL-3.0-or-later
#include "DaylightSavingChecks.h"
#include "XmpStampConversions.h"
#include "ZoneSteps.h"

namespace chronomender {
namespace {

using namespace little;
using Type = XmpStampType;

XmpStamp stampOf(XmpProperty property, const std::string &text, Type type, unsigned subtype = 0) {
    return {property, {100, static_cast<std::uint32_t>(text.size()), text}, type, subtype};
}

TEST(XmpStamps, EveryFormIsReadAndWrittenBack) {
    const absl::TimeZone kathmandu = zone("Asia/Kathmandu").rules; // +05:45
    const Date date = utc(2024, 5, 6, 1, 23, 9);
    const std::tuple<bool, unsigned, const char *> rows[] = {
        {true, 0, "2024-05-06T07:08:09"},        {true, 2, "2024-05-06T07:08"},
        {false, 0, "2024-05-06T07:08:09+05:45"}, {false, 1, "2024-05-06T07:08:09+0545"},
        {false, 2, "2024-05-06T07:08+05:45"},    {false, 3, "2024-05-06T07:08+0545"},
    };
    for (const auto &[isLocal, subtype, text] : rows) {
        EXPECT_EQ(xmpTimeStampFromDate(date, kathmandu, isLocal, subtype), text);
        const Date expected = subtype & kXmpWithoutSeconds ? date - absl::Seconds(9) : date;
        EXPECT_EQ(dateFromXmpTimeStamp(text, kathmandu, isLocal, subtype), expected);
        EXPECT_EQ(dateFromXmpTimeStamp(text, kathmandu, !isLocal, subtype), std::nullopt);
        const XmpStamp stamp =
            stampOf(XmpProperty::XmpCreateDate, text, isLocal ? Type::Local : Type::Zoned, subtype);
        EXPECT_EQ(xmpDateFromStampInfos(&stamp, kathmandu), expected) << text;
    }
    // Fractions are left out, and so is a zone that cannot be.
    for (const char *text : {"2024-05-06T07:08:09.999", "2024-05-06T07:08:09+19:00"}) {
        const XmpStamp stamp = stampOf(XmpProperty::XmpCreateDate, text, Type::Local);
        EXPECT_EQ(xmpDateFromStampInfos(&stamp, kathmandu), date) << text;
    }
}

/// A photo on a machine in Berlin whose dates come from XMP: a wall clock and a stamp with a zone.
class XmpItem : public ZonesTest {
protected:
    void SetUp() override {
        take("2024-06-01T12:00:00");
        pic->xmp = {.isCreaXmp = true, .isDigiXmp = true};
        pic->slots.exifDateTimeOriginalOLD = pic->spDateTimeOriginal = utc(2024, 6, 1, 10);
        pic->slots.exifDateTimeDigitizedOLD = utc(2024, 6, 1, 6, 30);
    }
    void take(const std::string &creation) {
        pic->singlePicAttributes.xmpDateInfos.stamps = {
            stampOf(XmpProperty::PhotoshopDateCreated, creation, Type::Local),
            stampOf(XmpProperty::XmpCreateDate, "2024-06-01T12:00:00+0530", Type::Zoned,
                    kXmpZoneWithoutColon)};
    }
    bool update() { return updateAllDatesAfterUpdatingTimezone(*pic, *folder, zones, 3); }
};

TEST_F(XmpItem, AWallClockMovesWithTheSourceZoneAndAStampWithAZoneStays) {
    EXPECT_FALSE(update());
    assign("Asia/Tokyo", "");
    EXPECT_TRUE(update());
    EXPECT_EQ(pic->slots.exifDateTimeOriginalOLD, utc(2024, 6, 1, 3));
    EXPECT_EQ(pic->spDateTimeOriginal, utc(2024, 6, 1, 3));
    EXPECT_EQ(pic->slots.exifDateTimeDigitizedOLD, utc(2024, 6, 1, 6, 30));
    EXPECT_EQ(sourceZoneForSlot(*pic, StampSlot::Digitized, *folder, zones).name, "+05:30");
}

TEST_F(XmpItem, AWallClockInTheRepeatedOrSkippedHourIsSeen) {
    const auto stateOf = [&](const char *creation) {
        take(creation);
        update();
        return std::pair(pic->zones.dstAmbiguityAtImportState, pic->zones.dstDivergenceState);
    };
    const unsigned original = bit(StampSlot::Original);
    EXPECT_EQ(stateOf("2024-10-27T02:30:00"), std::pair(original, 0U));
    EXPECT_EQ(stateOf("2024-03-31T02:30:00"), std::pair(0U, original));
    EXPECT_EQ(stateOf("2024-06-01T12:00:00"), std::pair(0U, 0U));
}

} // namespace
} // namespace chronomender
