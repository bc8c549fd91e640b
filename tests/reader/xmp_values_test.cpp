// SPDX-License-Identifier: GPL-3.0-or-later
#include "XmpValues.h"

#include <gtest/gtest.h>

namespace chronomender {
namespace {

using Type = XmpStampType;

TEST(XmpValues, TheFormOfADateTellsItsTypeAndSubtype) {
    constexpr unsigned kPlain = 0, kBoth = kXmpZoneWithoutColon | kXmpWithoutSeconds;
    const struct {
        const char *text;
        Type type;
        unsigned subtype = 0;
    } rows[] = {
        {"2024-05-06T07:08:09", Type::Local, kPlain},
        {"2024-05-06T07:08:09.123456789", Type::Local, kPlain},
        {"2024-05-06T07:08:09Z", Type::Utc, kPlain},
        {"2024-05-06T07:08:09.5Z", Type::Utc, kPlain},
        {"2024-05-06T07:08:09+01:00", Type::Zoned, kPlain},
        {"2024-05-06T07:08:09.12-11:30", Type::Zoned, kPlain},
        {"2024-05-06T07:08:09+0100", Type::Zoned, kXmpZoneWithoutColon},
        {"2024-05-06T07:08", Type::Local, kXmpWithoutSeconds},
        {"2024-05-06T07:08Z", Type::Utc, kXmpWithoutSeconds},
        {"2024-05-06T07:08-03:30", Type::Zoned, kXmpWithoutSeconds},
        {"2024-05-06T07:08-0330", Type::Zoned, kBoth},
        {"2024-05-06T07:08:09.123456789Z", Type::Invalid}, // 30 characters
        {"2024-05-06T07:0", Type::Invalid},
        {"2024-05-06 07:08:09", Type::Invalid},
        {"2024:05:06T07:08:09", Type::Invalid},
        {"2024-02-30T07:08:09", Type::Invalid},
        {"0000-00-00T00:00:00", Type::Invalid},
        {"2024-05-06T24:00:00", Type::Invalid},
        {"2024-05-06T07:08:0Z", Type::Invalid},
        {"2024-05-06T07:08:09+01:00Z", Type::Invalid},
        {"2024-05-06T07:08:09+1:00", Type::Invalid},
        {"2024-05-06T07:08:09-", Type::Invalid},
        {"2024-05-06T07:08:09 ", Type::Invalid},
    };
    for (const auto &row : rows) {
        unsigned subtype = 99;
        EXPECT_EQ(verifiedXmpDateDataType(row.text, subtype), row.type) << row.text;
        EXPECT_TRUE(row.type == Type::Invalid || subtype == row.subtype) << row.text;
    }
}

TEST(XmpValues, AZoneIsInRangeUpToEighteenHours) {
    EXPECT_TRUE(isXmpZoneInRange("2024-05-06T07:08:09+18:00", Type::Zoned, 0));
    EXPECT_FALSE(isXmpZoneInRange("2024-05-06T07:08:09+18:01", Type::Zoned, 0));
    EXPECT_FALSE(isXmpZoneInRange("2024-05-06T07:08:09-0160", Type::Zoned, kXmpZoneWithoutColon));
    EXPECT_TRUE(isXmpZoneInRange("2024-05-06T07:08:09", Type::Local, 0));
}

TEST(XmpValues, CoordinatesAreReadInEveryForm) {
    constexpr double kNone = 999;
    const struct {
        const char *text, *reference;
        XmpAxis axis;
        double degrees;
    } rows[] = {
        {"48,30.6N", "", XmpAxis::Latitude, 48.51},
        {"48,30,36S", "", XmpAxis::Latitude, -48.51},
        {"8,15.0W", "", XmpAxis::Longitude, -8.25},
        {"48,30.6", "N", XmpAxis::Latitude, 48.51},
        {"70.650466100000003", "W", XmpAxis::Longitude, -70.6504661},
        {"-33.25", "", XmpAxis::Latitude, -33.25},
        {"+33.25", "", XmpAxis::Longitude, 33.25},
        {"181.5E", "", XmpAxis::Longitude, 181.5}, // ranges are the item's matter
        {"48,30.6", "", XmpAxis::Latitude, kNone}, // which half of the world?
        {"48,30.6E", "", XmpAxis::Latitude, kNone},
        {"48,60.0N", "", XmpAxis::Latitude, kNone},
        {"48,1,2,3N", "", XmpAxis::Latitude, kNone},
        {"48,N", "", XmpAxis::Latitude, kNone},
        {"-48,30N", "", XmpAxis::Latitude, kNone},
        {"33.25", "X", XmpAxis::Latitude, kNone},
        {"56/1,0/1", "N", XmpAxis::Latitude, kNone},
        {"1e9", "N", XmpAxis::Latitude, kNone},
        {"", "N", XmpAxis::Latitude, kNone},
    };
    for (const auto &row : rows)
        EXPECT_NEAR(degreesFromXmpCoordinate(row.text, row.reference, row.axis).value_or(kNone),
                    row.degrees, 1e-9)
            << row.text << ' ' << row.reference;
}

} // namespace
} // namespace chronomender
