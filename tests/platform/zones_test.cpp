// SPDX-License-Identifier: GPL-3.0-or-later
#include "TemporaryFolder.h"
#include "ZoneDatabase.h"
#include "Zones.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <filesystem>

namespace chronomender {
namespace {

using little::TemporaryFolder;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

TEST(ZonesTest, KnowsTheDatabaseByItsNamesAndNothingElse) {
    const Zones zones;
    const auto berlin = zones.zoneWithName("Europe/Berlin");
    ASSERT_TRUE(berlin);
    EXPECT_EQ(berlin->name, "Europe/Berlin");
    EXPECT_EQ(berlin->rules.At(absl::FromUnixSeconds(1'751'328'000)).offset, 7200); // July 2025
    EXPECT_TRUE(zones.zoneWithName("US/Pacific")) << "links of the database are names too";
    for (const char *unknown : {"",
                                "Europe/Atlantis",
                                "europe/berlin",
                                "posix/Europe/Berlin",
                                "right/UTC",
                                "Factory",
                                "localtime",
                                "../../etc/passwd",
                                "/usr/share/zoneinfo/Europe/Berlin",
                                "CET-1CEST",
                                "Fixed/UTC+01:00:00",
                                "+1:00",
                                "+01:0",
                                "+01:60",
                                "+18:01",
                                "-18:01",
                                "+19:00",
                                "01:00",
                                " 01:00",
                                "+0a:00"})
        EXPECT_FALSE(zones.zoneWithName(unknown)) << unknown;
}

TEST(ZonesTest, OffsetsOfWholeMinutesAreZonesUpToEighteenHours) {
    const std::tuple<const char *, const char *, int> offsets[] = {
        {"+00:00", "+00:00", 0},     {"-00:00", "+00:00", 0},     {"+05:30", "+05:30", 19800},
        {"-00:30", "-00:30", -1800}, {"+18:00", "+18:00", 64800}, {"-18:00", "-18:00", -64800}};
    for (const auto &[given, name, seconds] : offsets) {
        const auto zone = Zones().zoneWithName(given);
        ASSERT_TRUE(zone) << given;
        EXPECT_EQ(zone->name, name);
        EXPECT_EQ(zone->rules.At(absl::UnixEpoch()).offset, seconds);
    }
}

TEST(ZonesTest, ReadsNamesFromTheCompiledDatabaseAndFromItsSourceText) {
    const Zones zones;
    const auto compiled = zoneDatabase::namesInFolder(zoneDatabase::folder());
    ASSERT_GT(compiled.size(), 300U);
    for (const std::string &name : compiled)
        EXPECT_TRUE(zones.zoneWithName(name)) << name;
    const auto names = zoneDatabase::namesInSource("# version 2025a\nR u 1916 o - S 17 2s 0 -\n"
                                                   "Z Europe/Berlin 0:53:28 - LMT 1893\n1 u CE%sT\n"
                                                   "L Europe/Berlin Arctic/Longyearbyen\n"
                                                   "Z Factory 0 - -00\nL Europe/Berlin");
    EXPECT_THAT(names, ElementsAre("Arctic/Longyearbyen", "Europe/Berlin"));
}

TEST(ZonesTest, SuggestsNamesThatLookLikeTheOneGiven) {
    const Zones zones;
    const std::pair<const char *, const char *> best[] = {
        {"europe/berlin", "Europe/Berlin"},      {"Berlin", "Europe/Berlin"},
        {"Europe/Berln", "Europe/Berlin"},       {"new york", "America/New_York"},
        {"Asia/Vancouver", "America/Vancouver"}, {"Tokio", "Asia/Tokyo"}};
    for (const auto &[given, expected] : best) {
        EXPECT_THAT(zones.namesNear(given, 1), ElementsAre(expected)) << given;
    }
    EXPECT_THAT(zones.namesNear("Indiana/", 3), IsEmpty());
    EXPECT_THAT(zones.namesNear("Xyzzyplugh", 3), IsEmpty());
    EXPECT_EQ(zones.namesNear("san", 2).size(), 2U);
}

/// The places where a system keeps its zone, in a folder of the test's own.
class SystemZoneTest : public testing::Test {
protected:
    SystemZoneTest() {
        places.link = folder.path("localtime");
        places.textFile = folder.path("timezone");
    }
    void link(const std::string &target) const {
        std::filesystem::create_symlink(target, places.link);
    }
    std::string name() const { return zoneDatabase::systemZoneName(places); }

    TemporaryFolder folder;
    zoneDatabase::SystemPlaces places;
};

TEST_F(SystemZoneTest, TheEnvironmentComesFirstInAllItsForms) {
    link("/usr/share/zoneinfo/Asia/Tokyo");
    const std::pair<const char *, const char *> forms[] = {
        {"Europe/Berlin", "Europe/Berlin"},
        {":Europe/Berlin", "Europe/Berlin"},
        {"/usr/share/zoneinfo/Europe/Berlin", "Europe/Berlin"},
        {":/usr/share/zoneinfo/right/Europe/Berlin", "Europe/Berlin"},
        {"EST5EDT", "EST5EDT"},
        {"", "UTC"},
        {"UTC0", "UTC"},
        {"JST-9", "+09:00"},
        {"<-0330>3:30", "-03:30"}};
    for (const auto &[value, expected] : forms) {
        places.environment = value;
        EXPECT_EQ(name(), expected) << "TZ=" << value;
    }
    // Rules of one's own, and nonsense, have no name: what the system says next counts.
    for (const char *value : {"CET-1CEST", "CET-1CEST,M3.5.0,M10.5.0/3", "Europe/Atlantis", "ab-1",
                              "<x", "ABC", "ABC-99"}) {
        places.environment = value;
        EXPECT_EQ(name(), "Asia/Tokyo") << "TZ=" << value;
    }
}

TEST_F(SystemZoneTest, TheFirstLinkThatSaysAKnownNameCounts) {
    std::filesystem::create_symlink("../usr/share/zoneinfo/US/Pacific", folder.path("chosen"));
    link("chosen");
    EXPECT_EQ(name(), "US/Pacific");
    // One that says nothing leaves it to the text file and then to UTC.
    std::filesystem::remove(places.link);
    link("localtime"); // to itself
    EXPECT_EQ(name(), "UTC");
    folder.write("timezone", "America/Lima\n");
    EXPECT_EQ(name(), "America/Lima");
    folder.write("timezone", "Nowhere\n");
    EXPECT_EQ(name(), "UTC");
}

TEST(ZonesTest, ARefreshSeesAChangedEnvironmentAndEndsAStandIn) {
    const char *before = std::getenv("TZ");
    const std::string saved = before != nullptr ? before : "";
    setenv("TZ", "Asia/Kathmandu", 1);
    Zones zones;
    EXPECT_EQ(zones.systemZone().name, "Asia/Kathmandu");
    EXPECT_FALSE(zones.refreshSystemZone());
    zones.setSystemZone(Zones::utc());
    EXPECT_TRUE(zones.refreshSystemZone());
    setenv("TZ", "JST-9", 1);
    EXPECT_TRUE(zones.refreshSystemZone());
    EXPECT_EQ(zones.systemZone().rules.At(absl::UnixEpoch()).offset, 9 * 3600);
    before != nullptr ? setenv("TZ", saved.c_str(), 1) : unsetenv("TZ");
}

} // namespace
} // namespace chronomender
