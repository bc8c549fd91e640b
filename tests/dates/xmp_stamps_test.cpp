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
    constexpr unsigned kBoth = kXmpZoneWithoutColon | kXmpWithoutSeconds;
    const struct {
        bool isLocal;
        unsigned subtype;
        const char *text;
    } rows[] = {
        {true, 0, "2024-05-06T07:08:09"},
        {true, kXmpWithoutSeconds, "2024-05-06T07:08"},
        {false, 0, "2024-05-06T07:08:09+05:45"},
        {false, kXmpZoneWithoutColon, "2024-05-06T07:08:09+0545"},
        {false, kXmpWithoutSeconds, "2024-05-06T07:08+05:45"},
        {false, kBoth, "2024-05-06T07:08+0545"},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(xmpTimeStampFromDate(date, kathmandu, row.isLocal, row.subtype), row.text);
        const Date expected = row.subtype & kXmpWithoutSeconds ? date - absl::Seconds(9) : date;
        EXPECT_EQ(dateFromXmpTimeStamp(row.text, kathmandu, row.isLocal, row.subtype), expected);
        EXPECT_EQ(dateFromXmpTimeStamp(row.text, kathmandu, !row.isLocal, row.subtype),
                  std::nullopt);
        const XmpStamp stamp = stampOf(XmpProperty::XmpCreateDate, row.text,
                                       row.isLocal ? Type::Local : Type::Zoned, row.subtype);
        EXPECT_EQ(xmpDateFromStampInfos(&stamp, kathmandu), expected) << row.text;
        EXPECT_EQ(secondsFromXmpStamp(&stamp).has_value(), !row.isLocal);
    }
    EXPECT_EQ(xmpTimeStampFromDate(InfinitePast(), kathmandu, true, 0), std::nullopt);
}

TEST(XmpStamps, FractionsAreLeftOutAndAZoneThatCannotBeIsNotAsked) {
    const absl::TimeZone berlin = zone("Europe/Berlin").rules;
    const auto dateOf = [&](const char *text, Type type) {
        const XmpStamp stamp = stampOf(XmpProperty::XmpCreateDate, text, type);
        return xmpDateFromStampInfos(&stamp, berlin);
    };
    EXPECT_EQ(dateOf("2024-05-06T07:08:09.999Z", Type::Utc), utc(2024, 5, 6, 7, 8, 9));
    EXPECT_EQ(dateOf("2024-05-06T07:08:09.999-03:30", Type::Zoned), utc(2024, 5, 6, 10, 38, 9));
    EXPECT_EQ(dateOf("2024-05-06T07:08:09+19:00", Type::Local), utc(2024, 5, 6, 5, 8, 9));
    EXPECT_EQ(dateOf("2024-05-06T07:08:09", Type::Invalid), std::nullopt);
    EXPECT_EQ(xmpDateFromStampInfos(nullptr, berlin), std::nullopt);
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
    const auto zoneOf = [&](StampSlot slot) {
        return sourceZoneForSlot(*pic, slot, *folder, zones).name;
    };
    EXPECT_EQ(zoneOf(StampSlot::Original), "Asia/Tokyo");
    EXPECT_EQ(zoneOf(StampSlot::Digitized), "+05:30");
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
