// SPDX-License-Identifier: GPL-3.0-or-later
#include "ReaderSteps.h"

#include <algorithm>

namespace chronomender::steps {
namespace {

using TagList = std::initializer_list<std::uint16_t>;

using std::string_literals::operator""s;
using little::Rational;

Tiff littleLocation() {
    Tiff tiff;
    addLocation(tiff, {.date = {}, .time = {}, .altitude = {}});
    return tiff;
}

std::vector<std::string> names(const DatesData &dates) {
    std::vector<std::string> list;
    for (const auto &[name, value] : valuesByName(dates))
        list.push_back(name);
    return list;
}

bool hasFinding(const DatesData &dates, const std::string &what, FindingReason reason) {
    return std::ranges::any_of(dates.findings, [&](const Finding &finding) {
        return finding.what == what && finding.reason == reason;
    });
}

TEST(GpsLocationTags, ReferencesStandInTheirEntries) {
    const BuiltTiff tiff = littleLocation().build();
    const DatesData dates = readTiff(tiff.bytes);
    EXPECT_EQ(dates.gpsLocation->latitudeRef,
              (LocatedBytes{tiff.entries.at({Directory::Gps, 1}) + 8, 2, "N\0"s}));
    EXPECT_EQ(dates.gpsLocation->longitude->room, 24u);
    EXPECT_EQ(dates.gpsLocation->longitude->data.substr(0, 8), "\2\0\0\0\1\0\0\0"s);
    EXPECT_THAT(dates.findings, IsEmpty());
}

TEST(GpsLocationTags, CoordinatesComeTogetherOrNotAtAll) {
    for (const std::uint16_t missing : TagList{1, 2, 3, 4}) {
        Tiff tiff;
        for (const std::uint16_t tag : TagList{1, 3}) {
            if (tag != missing)
                tiff.text(Directory::Gps, tag, "N");
        }
        for (const std::uint16_t tag : TagList{2, 4}) {
            if (tag != missing)
                tiff.rationals(Directory::Gps, tag, {{1, 1}, {2, 1}, {3, 1}});
        }
        const DatesData dates = readTiff(tiff.build().bytes);
        EXPECT_FALSE(dates.gpsLocation) << missing;
        EXPECT_TRUE(hasFinding(dates, "GPSLocation", FindingReason::CoordinateMissing)) << missing;
    }
}

TEST(GpsLocationTags, AnUnreadableCoordinateLeavesTheLocationEmpty) {
    const BuiltTiff tiff = littleLocation().build();
    const DatesData dates = readTiff(tiff.bytes.substr(0, tiff.bytes.size() - 1));
    ASSERT_TRUE(dates.gpsLocation);
    EXPECT_THAT(names(dates), IsEmpty());
    EXPECT_TRUE(hasFinding(dates, "longitude", FindingReason::OutsideFile));
}

TEST(GpsLocationTags, AltitudeNeedsBothItsTagsAndALocation) {
    Tiff both = littleLocation().value(Directory::Gps, 5, 1, 1, "\1"s);
    both.rationals(Directory::Gps, 6, {{35, 1}}).rationals(Directory::Gps, 31, {{5, 1}});
    EXPECT_EQ(names(readTiff(both.build().bytes)).size(), 7u);
    const Tiff one = littleLocation().rationals(Directory::Gps, 6, {{35, 1}});
    EXPECT_EQ(names(readTiff(one.build().bytes)).size(), 4u);
    const Tiff alone = Tiff().rationals(Directory::Gps, 31, {{5, 1}});
    EXPECT_FALSE(readTiff(alone.build().bytes).gpsLocation);
}

TEST(GpsLocationTags, KeepTheRoomOfTheirFields) {
    struct {
        std::uint16_t tag, type;
        std::uint32_t count;
        const char *name;
        std::uint32_t room;
    } const cases[]{
        {1, 2, 1, "latitudeRef", 1}, // no place for the zero byte
        {1, 2, 8, "latitudeRef", 0}, // the letters would stand elsewhere
        {2, 5, 2, "latitude", 16},   {2, 10, 3, "latitude", 24}, {2, 3, 3, "latitude", 6},
    };
    for (const auto &[tag, type, count, name, room] : cases) {
        const BuiltTiff built = littleLocation().build();
        std::string bytes = built.bytes;
        bytes.replace(built.entries.at({Directory::Gps, tag}) + 2, 6,
                      little::number(type, 2, Endian::Intel) +
                          little::number(count, 4, Endian::Intel));
        const DatesData dates = readTiff(bytes);
        EXPECT_EQ(valuesByName(dates).at(name).room, room) << type << " x " << count;
        EXPECT_EQ(hasFinding(dates, name, FindingReason::NoRoom),
                  room < 2 || room == 16 || room == 6);
    }
}

TEST(GpsStamps, AreTakenEachByItself) {
    const std::vector<Rational> time{{23, 1}, {59, 0}, {5999, 100}};
    const auto read = [](const Tiff &tiff) { return readTiff(tiff.build().bytes); };
    const DatesData timeOnly = read(Tiff(Endian::Motorola).rationals(Directory::Gps, 7, time));
    EXPECT_THAT(names(timeOnly), ElementsAre("GPSTimeStamp"));
    EXPECT_TRUE(timeOnly.gpsTimeStamp->needsConv);
    EXPECT_EQ(timeOnly.gpsTimeStamp->value.data.size(), 24u);

    EXPECT_EQ(read(Tiff().text(Directory::Gps, 29, "2024:05:06")).gpsDateStamp->data,
              "2024:05:06\0"s);
    const DatesData refused = read(Tiff().text(Directory::Gps, 29, "2024-05-06"));
    EXPECT_THAT(names(refused), IsEmpty());
    EXPECT_TRUE(hasFinding(refused, "GPSDateStamp", FindingReason::NotAGpsDate));
}

} // namespace
} // namespace chronomender::steps
