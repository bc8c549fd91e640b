// SPDX-License-Identifier: GPL-3.0-or-later
#include "XmpValues.h"

#include <gtest/gtest.h>

namespace chronomender {
namespace {

TEST(XmpValues, TheFormOfADateTellsItsTypeAndSubtype) {
    // Ten times the type, and the subtype.
    const std::pair<const char *, unsigned> rows[] = {
        {"2024-05-06T07:08:09", 30},      {"2024-05-06T07:08:09.123456789", 30},
        {"2024-05-06T07:08", 32},         {"2024-05-06T07:08:09.5Z", 10},
        {"2024-05-06T07:08Z", 12},        {"2024-05-06T07:08:09+01:00", 20},
        {"2024-05-06T07:08:09-1130", 21}, {"2024-05-06T07:08-03:30", 22},
        {"2024-05-06T07:08-0330", 23},    {"2024-05-06T07:08:09.123456789Z", 0},
        {"2024-05-06T07:0", 0},           {"2024-05-06 07:08:09", 0},
        {"2024-02-30T07:08:09", 0},       {"2024-05-06T07:08:09+01:00Z", 0},
        {"2024-05-06T07:08:09+1:00", 0},  {"2024-05-06T07:08:09 ", 0},
        {"0000-00-00T00:00:00", 0},       {"2024:05:06T07:08:09", 0},
    };
    for (const auto &[text, expected] : rows) {
        unsigned subtype = 0;
        const auto type = static_cast<unsigned>(verifiedXmpDateDataType(text, subtype));
        EXPECT_EQ(type == 0 ? 0 : 10 * type + subtype, expected) << text;
    }
}

TEST(XmpValues, CoordinatesAreReadInEveryForm) {
    const std::tuple<const char *, const char *, double> latitudes[] = {
        {"48,30.6N", "", 48.51}, {"48,30,36S", "", -48.51},
        {"-33.25", "", -33.25},  {"70.5", "S", -70.5},
        {"48,30.6", "N", 48.51}, {"48,30.6", "", 999},
        {"48,30.6E", "", 999},   {"48,60.0N", "", 999},
        {"48,1,2,3N", "", 999},  {"48,N", "", 999},
        {"-48,30N", "", 999},    {"56/1,0/1", "N", 999},
        {"1e9", "N", 999},       {"", "N", 999},
    };
    for (const auto &[text, reference, degrees] : latitudes)
        EXPECT_NEAR(degreesFromXmpCoordinate(text, reference, XmpAxis::Latitude).value_or(999),
                    degrees, 1e-9)
            << text << ' ' << reference;
}

} // namespace
} // namespace chronomender
