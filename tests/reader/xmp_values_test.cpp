// SPDX-License-Identifier: GPL-3.0-or-later
#include "XmpValues.h"

#include <gtest/gtest.h>

namespace chronomender {
namespace {

TEST(XmpValues, TheFormOfADateTellsItsTypeAndSubtype) {
    struct Row {
        const char *text;
        XmpStampType type;
        unsigned subtype = 0;
    };
    using enum XmpStampType;
    for (const Row &row : {
             Row{"2024-05-06T07:08:09", Local},
             Row{"2024-05-06T07:08:09.123456789", Local},
             Row{"2024-05-06T07:08", Local, 2},
             Row{"2024-05-06T07:08:09.5Z", Utc},
             Row{"2024-05-06T07:08Z", Utc, 2},
             Row{"2024-05-06T07:08:09+01:00", Zoned},
             Row{"2024-05-06T07:08:09.12-1130", Zoned, 1},
             Row{"2024-05-06T07:08-03:30", Zoned, 2},
             Row{"2024-05-06T07:08-0330", Zoned, 3},
             Row{"2024-05-06T07:08:09.123456789Z", Invalid},
             Row{"2024-05-06T07:0", Invalid},
             Row{"2024-05-06 07:08:09", Invalid},
             Row{"2024:05:06T07:08:09", Invalid},
             Row{"2024-02-30T07:08:09", Invalid},
             Row{"0000-00-00T00:00:00", Invalid},
             Row{"2024-05-06T07:08:09+01:00Z", Invalid},
             Row{"2024-05-06T07:08:09+1:00", Invalid},
             Row{"2024-05-06T07:08:09 ", Invalid},
         }) {
        unsigned subtype = 99;
        EXPECT_EQ(verifiedXmpDateDataType(row.text, subtype), row.type) << row.text;
        EXPECT_TRUE(row.type == Invalid || subtype == row.subtype) << row.text;
    }
    EXPECT_TRUE(isXmpZoneInRange("2024-05-06T07:08:09+18:00", Zoned, 0));
    EXPECT_FALSE(isXmpZoneInRange("2024-05-06T07:08:09-0160", Zoned, kXmpZoneWithoutColon));
}

TEST(XmpValues, CoordinatesAreReadInEveryForm) {
    struct Row {
        const char *text, *reference;
        XmpAxis axis;
        double degrees = 999; ///< none
    };
    using enum XmpAxis;
    for (const Row &row : {
             Row{"48,30.6N", "", Latitude, 48.51},
             Row{"48,30,36S", "", Latitude, -48.51},
             Row{"8,15.0W", "", Longitude, -8.25},
             Row{"70.5", "W", Longitude, -70.5},
             Row{"-33.25", "", Latitude, -33.25},
             Row{"48,30.6", "N", Latitude, 48.51},
             Row{"48,30.6", "", Latitude},
             Row{"48,30.6E", "", Latitude},
             Row{"48,60.0N", "", Latitude},
             Row{"48,1,2,3N", "", Latitude},
             Row{"48,N", "", Latitude},
             Row{"-48,30N", "", Latitude},
             Row{"56/1,0/1", "N", Latitude},
             Row{"1e9", "N", Latitude},
             Row{"", "N", Latitude},
         })
        EXPECT_NEAR(degreesFromXmpCoordinate(row.text, row.reference, row.axis).value_or(999),
                    row.degrees, 1e-9)
            << row.text << ' ' << row.reference;
}

} // namespace
} // namespace chronomender
