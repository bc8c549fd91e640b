// SPDX-License-Identifier: GPL-3.0-or-later
#include "LittleItem.h"
#include "Texts.h"
#include "WorldClock.h"
#include "ZoneLookup.h"
#include "ZoneRows.h"

#include <gtest/gtest.h>

namespace chronomender {
namespace {

using Kind = ZoneChoice::Kind;

std::string firstNames(const ZoneRows &rows, const std::string &typed, std::size_t most) {
    std::string names;
    for (const ZoneRow &row : rows.matching(typed))
        if (most-- > 0)
            names += (names.empty() ? "" : " ") + row.name;
        else
            break;
    return names;
}

TEST(ZoneRows, FindWhatAPersonTypes) {
    const Zones zones;
    const ZoneRows rows(zones, little::utc(2024, 7, 1));
    const struct {
        const char *typed, *first;
    } cases[] = {
        {"tokyo", "Asia/Tokyo"},
        {"JAPAN", "Asia/Tokyo Japan"},
        {"日本", "Asia/Tokyo"},
        {"berlin", "Europe/Berlin"},
        {"deutschland", "Europe/Berlin"},
        {"são pau", "America/Sao_Paulo"},
        {"buenos", "America/Argentina/Buenos_Aires"},
        {"asia kath", "Asia/Kathmandu"},
        {"utc", "UTC"},
        {"+5:45", "+05:45 Asia/Kathmandu Asia/Katmandu"},
        {"utc-3:30", "-03:30"},
        {"\u22129:30", "-09:30 Pacific/Marquesas"},
        {"+19", ""},
        {"no such place", ""},
    };
    for (const auto &each : cases)
        EXPECT_TRUE(firstNames(rows, each.typed, 3).starts_with(each.first))
            << each.typed << ": " << firstNames(rows, each.typed, 3);
    EXPECT_EQ(firstNames(rows, "+19", 1) + firstNames(rows, "no such place", 1), "");
    EXPECT_EQ(rows.matching(" ").size(), zones.zoneNames().size());
}

TEST(ZoneRows, TellOffsetAndSummerTimeAtTheDateOfTheItems) {
    loadTexts("en");
    const Zones zones;
    const struct {
        const char *zone;
        Date at;
        const char *told;
    } cases[] = {
        {"Europe/Berlin", little::utc(2024, 7, 1), "+02:00 summer time until 2024-10-27"},
        {"Europe/Berlin", little::utc(2024, 12, 1), "+01:00 summer time from 2025-03-30"},
        {"Europe/Berlin", little::utc(1975, 7, 1), "+01:00 "},
        {"Australia/Lord_Howe", little::utc(2024, 7, 1), "+10:30 summer time from 2024-10-06"},
        {"Asia/Tokyo", little::utc(2024, 7, 1), "+09:00 "},
        {"+05:30", little::utc(2024, 7, 1), "+05:30 "},
    };
    for (const auto &each : cases) {
        const ZoneRow row = zoneRow(*zones.zoneWithName(each.zone), each.at);
        EXPECT_EQ(offsetText(row) + ' ' + row.note, each.told) << each.zone;
    }
}

/// A raw file with a wall-clock stamp of 10:00 and its JPEG, and a photo whose stamp says +09:00.
class WorldClockTest : public ::testing::Test {
protected:
    Zones zones;
    MySingleFolderPtr folder = little::makeFolder();
    MySinglePicPtr local, dependent, stamped;

    WorldClockTest() {
        loadTexts("en");
        zones.setSystemZone(little::zone("Europe/Berlin"));
        local = add("a.CR3", little::utc(2024, 7, 1, 8), {});
        dependent = add("a.JPG", little::utc(2024, 7, 1, 8), {});
        little::makeDependent(dependent, local);
        stamped = add("b.JPG", little::utc(2024, 7, 1, 1), "+09:00");
    }
    MySinglePicPtr add(const std::string &name, Date date, const std::string &zoneStamp) {
        const MySinglePicPtr pic = little::addItem(folder, SpTypeExifOriginal, date, name);
        pic->slots.exifDateTimeOriginalOLD = date;
        pic->singlePicAttributes.exifDateTimeOriginal = little::located("2024:07:01 10:00:00");
        if (!zoneStamp.empty())
            pic->singlePicAttributes.exifOffsetTimeOriginal = little::located(zoneStamp);
        return pic;
    }
    ZoneChoice named(const char *name) const {
        return ZoneChoice::named(*zones.zoneWithName(name));
    }
    /// The four clocks of each item from left to right, "*" behind what the choice changes.
    std::string told(const ZoneSubject &subject, const ZoneWish &wish) const {
        std::string words;
        for (const ClockRow &row : worldClock(clockItems(subject), subject, wish, zones, 3)) {
            words += words.empty() ? "" : " | ";
            for (const ClockCell &cell : row.cells)
                words +=
                    cell.words.substr(11, 5) + cell.words.substr(20) + (cell.isOther ? "* " : " ");
        }
        return words;
    }
};

TEST_F(WorldClockTest, TellsAChoiceBeforeItIsMade) {
    const ZoneSubject whole{{folder}, {}, nullptr}, single{{folder}, {dependent}, nullptr};
    EXPECT_EQ(told(whole, {}), "10:00+09:00 10:00+02:00  | 03:00+02:00 10:00+02:00  | "
                               "03:00+02:00 10:00+02:00  | 01:00+00:00 08:00+00:00 ");
    // A stamp with its own zone keeps its moment; the other one is read anew, and the target
    // follows the source that is given alone.
    EXPECT_EQ(told(whole, {named("Asia/Tokyo"), {}}),
              "10:00+09:00 10:00+09:00*  | 10:00+09:00* 10:00+09:00*  | "
              "03:00+02:00 03:00+02:00*  | 01:00+00:00 01:00+00:00* ");
    EXPECT_EQ(told(single, {{}, named("UTC")}),
              "10:00+02:00  | 08:00+00:00*  | 10:00+02:00  | 08:00+00:00 ");
    EXPECT_NE(
        told(whole, {{}, ZoneChoice::marker(Kind::Own)}).find("| 10:00+09:00* 10:00+02:00  |"),
        std::string::npos);
    // Nothing of it happened.
    for (const MySinglePicPtr &pic : {local, dependent})
        EXPECT_EQ(pic->spDateTimeModified(), little::utc(2024, 7, 1, 8));
    EXPECT_TRUE(folder->sourceTimeZones.isEmpty() && folder->targetTimeZones.isEmpty());
}

TEST_F(WorldClockTest, KnowsWhatHoldsNow) {
    const MySingleFolderPtr other = little::makeFolder();
    const ZoneSubject both{{folder, other}, {}, nullptr}, one{{folder}, {}, nullptr},
        items{{folder}, {local, stamped}, nullptr};
    EXPECT_EQ(presentSource(both).value, ZoneChoice::system());
    assignZones(*folder, {named("Asia/Tokyo"), {}}, zones, 3);
    EXPECT_TRUE(presentSource(both).isMixed());
    EXPECT_EQ(presentTarget(both).value, sameAsCamera(both)) << "where nobody chose, too";
    EXPECT_EQ(presentSource(one).value, named("Asia/Tokyo"));
    EXPECT_EQ(presentTarget(one).value, sameAsCamera(one));
    EXPECT_EQ(presentTarget(items).value, sameAsCamera(items));
    assignZones({local}, {named("Asia/Seoul"), {}}, zones, 3);
    EXPECT_TRUE(presentSource(items).isMixed());
}

} // namespace
} // namespace chronomender
