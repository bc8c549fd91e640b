// SPDX-License-Identifier: GPL-3.0-or-later
#include "SystemZoneWatch.h"
#include "TemporaryFolder.h"
#include "ZoneDatabase.h"
#include "Zones.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <gmock/gmock.h>

#include <chrono>
#include <filesystem>
#include <optional>
#include <utility>

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
    /// In one step, as the system's own tools do.
    void relink(const std::string &target) const {
        std::filesystem::create_symlink(target, folder.path("next"));
        std::filesystem::rename(folder.path("next"), places.link);
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

TEST_F(SystemZoneTest, ARefreshFollowsTheSystemUnlessAGivenZoneStandsIn) {
    link("/usr/share/zoneinfo/Asia/Kathmandu");
    Zones zones(places);
    EXPECT_EQ(zones.systemZone().name, "Asia/Kathmandu");
    EXPECT_FALSE(zones.refreshSystemZone());
    relink("/usr/share/zoneinfo/Asia/Tokyo");
    EXPECT_TRUE(zones.refreshSystemZone());
    EXPECT_EQ(zones.systemZone().rules.At(absl::UnixEpoch()).offset, 9 * 3600);
    zones.setSystemZone(Zones::utc());
    EXPECT_FALSE(zones.refreshSystemZone());
    EXPECT_EQ(zones.systemZone().name, "UTC");
}

/// Counts what a watch over the test's places tells.
class SystemZoneWatchTest : public SystemZoneTest {
protected:
    void watch() {
        m_watch.emplace(
            places, [this] { ++m_told; }, std::chrono::milliseconds(20));
    }
    /// Serves events until something was told; false after a long time.
    bool isTold() {
        QElapsedTimer sinceBegin;
        sinceBegin.start();
        while (m_told == 0 && sinceBegin.elapsed() < 10'000)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        return std::exchange(m_told, 0) == 1;
    }

private:
    int m_argumentCount = 0;
    QCoreApplication m_application{m_argumentCount, nullptr};
    int m_told = 0;
    std::optional<SystemZoneWatch> m_watch;
};

TEST_F(SystemZoneWatchTest, TellsOfALinkSetAnewAndOfTheTextFile) {
    link("/usr/share/zoneinfo/Asia/Tokyo");
    watch();
    folder.write("resolv.conf", "of another program");
    relink("/usr/share/zoneinfo/Asia/Seoul");
    relink("/usr/share/zoneinfo/Europe/Berlin");
    EXPECT_TRUE(isTold());
    std::filesystem::remove(places.link);
    EXPECT_TRUE(isTold());
    folder.write("timezone", "America/Lima\n");
    EXPECT_TRUE(isTold());
    folder.write("timezone", "America/La_Paz\n");
    EXPECT_TRUE(isTold());
}

TEST_F(SystemZoneWatchTest, TellsOfAReplacedZoneFileAgainAndAgain) {
    std::filesystem::create_directories(folder.path("zoneinfo/Asia"));
    link(folder.write("zoneinfo/Asia/Tokyo", "TZif"));
    watch();
    for (const char *rules : {"TZif2", "TZif22", "TZif222"}) {
        std::filesystem::rename(folder.write("new", rules), folder.path("zoneinfo/Asia/Tokyo"));
        EXPECT_TRUE(isTold()) << rules;
    }
    folder.write("zoneinfo/Asia/Tokyo", "written in place");
    EXPECT_TRUE(isTold());
}

TEST_F(SystemZoneWatchTest, AZoneInTheEnvironmentWinsOverTheLink) {
    link("/usr/share/zoneinfo/Asia/Tokyo");
    watch();
    zoneDatabase::SystemPlaces withEnvironment = places;
    withEnvironment.environment = "UTC";
    bool isEnvironmentTold = false;
    const SystemZoneWatch other(
        withEnvironment, [&] { isEnvironmentTold = true; }, std::chrono::milliseconds(0));
    relink("/usr/share/zoneinfo/Asia/Seoul");
    EXPECT_TRUE(isTold());
    EXPECT_FALSE(isEnvironmentTold);
}

} // namespace
} // namespace chronomender
