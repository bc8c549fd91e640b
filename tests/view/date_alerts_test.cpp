// SPDX-License-Identifier: GPL-3.0-or-later
#include "AlternativeReading.h"
#include "DateAlertTexts.h"
#include "LittleItem.h"
#include "Texts.h"
#include "ZoneLookup.h"

#include <gtest/gtest.h>

namespace chronomender {
namespace {

using namespace little;

/// A photo of a machine in Berlin, told of in plain words.
class DateAlerts : public testing::Test {
protected:
    DateAlerts() {
        loadTexts("en");
        zones.setSystemZone(zone("Europe/Berlin"));
    }
    void read(const std::string &stamp, const std::string &offset = "") {
        pic->singlePicAttributes.exifDateTimeOriginal = located(stamp);
        if (!offset.empty())
            pic->singlePicAttributes.exifOffsetTimeOriginal = located(offset);
        readAgain(*pic);
    }
    void readAgain(MySinglePic &item) {
        item.slots.exifDateTimeOriginalOLD = utc(2024, 1, 1);
        updateAllDatesAfterUpdatingTimezone(item, *place, zones, 3);
    }
    void source(const char *name) {
        place->sourceTimeZones.folderDefault = ZoneChoice::named(zone(name));
    }
    std::string told() const {
        std::string joined;
        for (const DateAlert &alert : dateAlerts(*pic, *place, zones))
            joined += (joined.empty() ? "" : "; ") +
                      std::string(alert.isOfDependent ? "its " : "") + alertText(alert);
        return joined;
    }
    Zones zones;
    UndoManager undo;
    MySingleFolderPtr place = makeFolder();
    MySinglePicPtr pic = addItem(place, SpTypeExifOriginal, utc(2024, 1, 1));
};

TEST_F(DateAlerts, NameTheHourThatHappensTwiceOrNever) {
    const struct {
        const char *zone, *stamp, *words;
    } rows[] = {
        {"Europe/Berlin", "2024:10:27 02:30:00",
         "happens twice on 27 Oct 2024 in Europe/Berlin; read as the later one"},
        {"Europe/Berlin", "2024:03:31 02:30:00",
         "does not exist on 31 Mar 2024 in Europe/Berlin; read as 03:30"},
        {"Asia/Beirut", "2022:03:27 00:10:00",
         "does not exist on 27 Mar 2022 in Asia/Beirut; read as 01:10"},
        {"Pacific/Apia", "2011:12:30 10:00:00",
         "does not exist on 30 Dec 2011 in Pacific/Apia; read as 31 Dec 2011, 10:00"},
        {"America/Sao_Paulo", "2017:10:15 00:30:00",
         "does not exist on 15 Oct 2017 in America/Sao_Paulo; read as 01:30"},
        {"Australia/Lord_Howe", "2024:10:06 02:15:00",
         "does not exist on 6 Oct 2024 in Australia/Lord_Howe; read as 02:45"},
        {"Europe/Berlin", "2024:06:01 02:30:00", ""},
    };
    for (const auto &row : rows) {
        source(row.zone);
        read(row.stamp);
        EXPECT_EQ(told(), row.words);
    }
    // A date that was held in another zone than it was read in.
    pic->slots.exifDateTimeOriginalOLD = pic->spDateTimeOriginal = utc(2024, 6, 1, 10);
    pic->zones.dstDivergenceState = 1;
    EXPECT_EQ(told(), "the file says 1 Jun 2024, 02:30, but it is shown as 12:00");
}

TEST_F(DateAlerts, TellTheChosenReadingAndWhatASaveWouldMakeOfIt) {
    read("2024:10:27 02:30:00");
    changeAmbiguityCorrectionStateTo(*pic, true, zones, undo);
    const std::string words =
        "happens twice on 27 Oct 2024 in Europe/Berlin; read as the earlier one";
    EXPECT_EQ(told(), words);
    place->sfDateModificationsTimeInterval = absl::Minutes(10);
    EXPECT_EQ(told(), words + "; would be written as 02:40, which happens twice on 27 Oct 2024 in "
                              "Europe/Berlin, and be read as the later one");
    loadTexts("de");
    EXPECT_EQ(told().substr(0, 60), "kommt am 27. Okt. 2024 in Europe/Berlin zweimal vor; gelesen");
    loadTexts("en");
    // Neither what is left alone nor what has no date is spoken of.
    pic->importState.isLeftAlone = true;
    EXPECT_EQ(told(), "");
    pic->importState.isLeftAlone = false;
    pic->spType = SpTypeUnsupported;
    EXPECT_EQ(told(), "");
}

TEST_F(DateAlerts, HoldAZoneInTheFileOnlyAgainstOneThatWasSaid) {
    read("2024:06:01 12:00:00", "+09:00");
    EXPECT_EQ(told(), "");
    source("Europe/Berlin");
    readAgain(*pic);
    EXPECT_EQ(told(), "the file says +09:00, but Europe/Berlin was +02:00 then (7 h apart)");
    source("America/St_Johns");
    readAgain(*pic);
    EXPECT_EQ(told(), "the file says +09:00, but America/St_Johns was -02:30 then (11 h 30 min "
                      "apart)");
}

TEST_F(DateAlerts, CompareGpsAndTheOtherFileAndSayNothingTwice) {
    read("2024:10:27 02:30:00");
    const auto jpeg = addItem(place, SpTypeExifOriginal, pic->spDateTimeOriginal, "IMG_1.jpeg");
    jpeg->singlePicAttributes = pic->singlePicAttributes;
    jpeg->slots = pic->slots;
    pic->location.spGpsUTCDate = utc(2024, 10, 27, 0, 30, 2);
    makeDependent(jpeg, pic);
    readAgain(*pic);
    const std::string twice = "happens twice on 27 Oct 2024 in Europe/Berlin; read as the ";
    const std::string gps = "; 59 min 58 s later than its GPS time";
    EXPECT_EQ(told(), twice + "later one" + gps);
    changeAmbiguityCorrectionStateTo(*jpeg, true, zones, undo);
    EXPECT_EQ(told(), twice + "later one; the other file of the pair is 1 h earlier" + gps +
                          "; its " + twice + "earlier one");
    place->harmonizingRawJpgsType = 1; // the JPEG shows the raw file's date
    EXPECT_EQ(told(), twice + "later one" + gps);
}

} // namespace
} // namespace chronomender
