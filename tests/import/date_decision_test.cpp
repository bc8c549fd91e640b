// SPDX-License-Identifier: GPL-3.0-or-later
#include "ImportSteps.h"
#include "LittleXmp.h"

namespace chronomender {
namespace {

using testing::ElementsAre;
using EmptyTags = PerFolderImportOptions::EmptyTags;

constexpr const char *zeros = "0000:00:00 00:00:00";
constexpr const char *blanks = "    :  :     :  :  ";
constexpr const char *noSuchDay = "2023:02:29 10:00:00";
constexpr const char *fileDateText = "2024-06-01 12:00:00";
constexpr const char *fixedDateText = "2001-02-03 04:05:06";

struct DecisionCase {
    const char *what;
    little::PhotoFields fields;
    SpType type;
    const char *date; ///< in UTC; the system's zone is Berlin
    EmptyTags answer = EmptyTags::FileDate;
};

void PrintTo(const DecisionCase &c, std::ostream *stream) {
    *stream << c.what;
}

const DecisionCase decisionCases[]{
    {"the original wins",
     {.original = "2024:05:06 07:08:09",
      .digitized = "2023:01:01 00:00:00",
      .modified = "2022:01:01 00:00:00"},
     SpTypeExifOriginal,
     "2024-05-06 05:08:09"},
    {"its own zone stamp counts",
     {.original = "2024:05:06 07:08:09", .zoneOriginal = "+09:00", .zoneDigitized = "-03:00"},
     SpTypeExifOriginal,
     "2024-05-05 22:08:09"},
    {"a zone beyond the globe is as good as none",
     {.original = "2024:05:06 07:08:09", .zoneOriginal = "+19:00"},
     SpTypeExifOriginal,
     "2024-05-06 05:08:09"},
    {"a colon between date and time",
     {.original = "2024:05:06:07:08:09"},
     SpTypeExifOriginal,
     "2024-05-06 05:08:09"},
    {"digitized alone",
     {.digitized = "2024:01:06 07:08:09", .modified = "2022:01:01 00:00:00"},
     SpTypeExifDigitized,
     "2024-01-06 06:08:09"},
    {"digitized with its zone",
     {.digitized = "2024:01:06 07:08:09", .zoneOriginal = "+09:00", .zoneDigitized = "-03:00"},
     SpTypeExifDigitized,
     "2024-01-06 10:08:09"},
    {"an empty original gives way",
     {.original = zeros, .digitized = "2024:01:06 07:08:09"},
     SpTypeExifDigitized,
     "2024-01-06 06:08:09"},
    {"two empty stamps give way",
     {.original = zeros,
      .digitized = blanks,
      .modified = "2024:01:06 07:08:09",
      .zoneModified = "+00:00"},
     SpTypeTiffDateTime,
     "2024-01-06 07:08:09"},
    {"modification alone",
     {.modified = "2024:01:06 07:08:09"},
     SpTypeTiffDateTime,
     "2024-01-06 06:08:09"},
    {"modification three seconds behind the file",
     {.modified = "2024:06:01 14:00:03"},
     SpTypeTiffDateTime,
     "2024-06-01 12:00:03"},
    {"modification four seconds behind the file",
     {.modified = "2024:06:01 14:00:04"},
     SpTypeTiffYoungerThanFile,
     fileDateText},
    {"an original may be younger than the file",
     {.original = "2025:06:01 14:00:00"},
     SpTypeExifOriginal,
     "2025-06-01 12:00:00"},
    {"no tags", {}, SpTypeNoTagsFileDate, fileDateText},
    {"a stamp with a letter is none",
     {.original = "2O24:05:06 07:08:09"},
     SpTypeNoTagsFileDate,
     fileDateText},
    {"empty original", {.original = zeros}, SpTypeEmptyOriginalFileDate, fileDateText},
    {"empty digitized",
     {.digitized = zeros, .modified = zeros},
     SpTypeEmptyDigitizedFileDate,
     fileDateText},
    {"empty modification", {.modified = blanks}, SpTypeEmptyTiffFileDate, fileDateText},
    {"a day that never was", {.original = noSuchDay}, SpTypeEmptyOriginalFileDate, fileDateText},
    {"empty original, fixed",
     {.original = zeros, .modified = zeros},
     SpTypeEmptyOriginalFixedDate,
     fixedDateText,
     EmptyTags::FixedDate},
    {"empty digitized, fixed",
     {.digitized = blanks, .modified = zeros},
     SpTypeEmptyDigitizedFixedDate,
     fixedDateText,
     EmptyTags::FixedDate},
    {"empty modification, fixed",
     {.modified = noSuchDay},
     SpTypeEmptyTiffFixedDate,
     fixedDateText,
     EmptyTags::FixedDate},
    {"no tags, and a fixed date for empty ones",
     {},
     SpTypeNoTagsFileDate,
     fileDateText,
     EmptyTags::FixedDate},
    {"empty original, left alone",
     {.original = zeros},
     SpTypeEmptyOriginalFileDate,
     fileDateText,
     EmptyTags::LeaveAlone},
    {"empty modification, left alone",
     {.modified = zeros},
     SpTypeEmptyTiffFileDate,
     fileDateText,
     EmptyTags::LeaveAlone},
};

class DateDecisionTest : public ImportTest, public testing::WithParamInterface<DecisionCase> {};
INSTANTIATE_TEST_SUITE_P(Photos, DateDecisionTest, testing::ValuesIn(decisionCases));

TEST_P(DateDecisionTest, TypeAndDate) {
    const DecisionCase &c = GetParam();
    questions.answer = {.withEmptyExifFixDate = c.answer, .prefFixDateDate = utc(fixedDateText)};
    photo("a.jpg", c.fields);

    const ImportOutcome outcome = import();

    ASSERT_EQ(outcome.items.size(), 1U);
    const MySinglePic &pic = *outcome.items[0];
    EXPECT_EQ(pic.spType, c.type);
    EXPECT_EQ(pic.spDateTimeOriginal, utc(c.date));
    EXPECT_EQ(questions.asked, isNullerFile(c.type) ? 1 : 0);
    EXPECT_EQ(outcome.fixedDates, questions.asked);
    EXPECT_EQ(pic.importState.isLeftAlone, c.answer == EmptyTags::LeaveAlone);
    EXPECT_EQ(pic.slots.fileModificationDateOLD, fileDate);
}

class EmptyTagsTest : public ImportTest {
protected:
    void emptyPhotos(const std::vector<std::string> &names) {
        for (const std::string &name : names)
            photo(name, {.original = zeros});
    }
    static std::vector<std::int64_t> minutesFromStart(const std::vector<MySinglePicPtr> &items) {
        std::vector<std::int64_t> minutes;
        for (const MySinglePicPtr &item : items)
            minutes.push_back((item->spDateTimeOriginal - utc(fixedDateText)) / absl::Minutes(1));
        return minutes;
    }
};

TEST_F(EmptyTagsTest, FixedDatesFollowTheNamesAndGoOnInTheNextBatch) {
    questions.answer = {EmptyTags::FixedDate, utc(fixedDateText), absl::Minutes(5)};
    emptyPhotos({"IMG_10.jpg", "IMG_9.jpg", "IMG_1.jpg"});
    dated("IMG_5.jpg");

    const ImportOutcome first = importAndPublish();
    EXPECT_THAT(namesOf(first.items),
                ElementsAre("IMG_1.jpg", "IMG_5.jpg", "IMG_9.jpg", "IMG_10.jpg"));
    EXPECT_EQ(first.items[2]->spDateTimeOriginal, utc("2001-02-03 04:10:06"));
    EXPECT_EQ(first.fixedDates, 3);

    emptyPhotos({"IMG_2.jpg", "IMG_3.jpg"});
    EXPECT_THAT(minutesFromStart(importAndPublish().items), ElementsAre(15, 20));
    EXPECT_EQ(questions.asked, 1);
}

TEST_F(EmptyTagsTest, AnAnswerWithoutADateLeavesSuchFilesOut) {
    questions.answer.withEmptyExifFixDate = EmptyTags::FixedDate;
    emptyPhotos({"a.jpg"});
    dated("b.jpg");
    const ImportOutcome outcome = import();
    EXPECT_THAT(namesOf(outcome.items), ElementsAre("b.jpg"));
    EXPECT_THAT(skippedOf(outcome), ElementsAre("a.jpg noDate"));
    EXPECT_EQ(outcome.fixedDates, 0);
}

TEST_F(EmptyTagsTest, ThePreferenceAnswersInsteadOfAPerson) {
    defaults.setForThisRun("skipEmptyTagImportOptions", "1");
    questions.answer.withEmptyExifFixDate = EmptyTags::LeaveAlone;
    emptyPhotos({"a.jpg"});
    const ImportOutcome outcome = import();
    EXPECT_EQ(questions.asked, 0);
    EXPECT_EQ(outcome.items.at(0)->spType, SpTypeEmptyOriginalFileDate);
    EXPECT_FALSE(outcome.items.at(0)->importState.isLeftAlone);
}

class FolderChoicesTest : public ImportTest {};

TEST_F(FolderChoicesTest, TheFoldersZoneSaysWhatItsClocksMeant) {
    photo("local.jpg", {.original = "2024:05:06 07:08:09"});
    photo("zoned.jpg", {.original = "2024:05:06 07:08:09", .zoneOriginal = "+02:00"});
    openFolder();
    folder->sourceTimeZones.folderDefault = ZoneChoice::named(*zones.zoneWithName("Asia/Tokyo"));
    const auto items = import().items;
    ASSERT_EQ(items.size(), 2U);
    EXPECT_EQ(items[0]->spDateTimeOriginal, utc("2024-05-05 22:08:09"));
    EXPECT_EQ(items[0]->slots.exifDateTimeOriginalOLD, utc("2024-05-05 22:08:09"));
    EXPECT_EQ(items[1]->spDateTimeOriginal, utc("2024-05-06 05:08:09"));
}

TEST_F(FolderChoicesTest, AFolderZoneCanMakeAModificationStampYoungerThanItsFile) {
    photo("a.jpg", {.modified = "2024:06:01 13:30:00"}); // 11:30 UTC in Berlin
    openFolder();
    folder->sourceTimeZones.folderDefault =
        ZoneChoice::named(*zones.zoneWithName("America/New_York"));
    EXPECT_EQ(import().items.at(0)->spType, SpTypeTiffYoungerThanFile);
}

TEST_F(FolderChoicesTest, AStampInTheHourThatCameTwiceIsMarked) {
    photo("a_local.jpg", {.original = "2024:10:27 02:30:00"});
    photo("b_gps.jpg", {.original = "2024:10:27 02:30:00", .location = little::PhotoLocation{}});
    photo("c_zoned.jpg", {.original = "2024:10:27 02:30:00", .zoneOriginal = "+02:00"});
    const auto items = import().items;
    ASSERT_EQ(items.size(), 3U);
    EXPECT_EQ(items[0]->zones.dstAmbiguityAtImportState, bit(StampSlot::Original));
    EXPECT_EQ(items[0]->spDateTimeOriginal, utc("2024-10-27 01:30:00"));
    EXPECT_EQ(items[1]->zones.dstAmbiguityAtImportState, 0U);
    EXPECT_EQ(items[2]->zones.dstAmbiguityAtImportState, 0U);
}

TEST_F(FolderChoicesTest, AnXmpStampInThatHourIsMarkedUnlessItsZoneOrGpsTellsTheInstant) {
    const auto xmp = [](const char *created, const char *gps) {
        little::Xmp packet;
        packet.attribute("photoshop:DateCreated", created);
        if (gps)
            packet.attribute("exif:GPSTimeStamp", gps);
        return packet.end().bytes();
    };
    struct Case {
        const char *created, *gps;
        bool isMarked;
    };
    constexpr Case cases[]{{"2024-10-27T02:30:00", nullptr, true},
                           {"2024-10-27T02:30:00+02:00", nullptr, false},
                           {"2024-10-27T00:30:00Z", nullptr, false},
                           {"2024-10-27T02:30:00", "2024-10-27T02:30:00", true},
                           {"2024-10-27T02:30:00", "2024-10-27T00:30:00Z", false}};
    for (const Case &c : cases)
        photo(std::to_string(&c - cases) + ".jpg", {.xmp = xmp(c.created, c.gps)});
    const auto items = import().items;
    ASSERT_EQ(items.size(), std::size(cases));
    for (std::size_t i = 0; i < items.size(); ++i) {
        EXPECT_EQ(items[i]->spType, SpTypeExifOriginal) << i;
        EXPECT_EQ(items[i]->zones.dstAmbiguityAtImportState == bit(StampSlot::Original),
                  cases[i].isMarked)
            << i;
    }
}

TEST_F(FolderChoicesTest, IgnoredEmbeddedDataAreNotRead) {
    photo("a.jpg", little::fullPhotoFields());
    photo("empty.jpg", {.original = zeros});
    openFolder();
    folder->isEXIFIgnored = true;
    for (const MySinglePicPtr &pic : import().items) {
        EXPECT_EQ(pic->spType, SpTypeUnsupported);
        EXPECT_EQ(pic->spDateTimeOriginal, InfinitePast());
        EXPECT_FALSE(pic->singlePicAttributes.exifDateTimeOriginal);
        EXPECT_FALSE(pic->hasLocation());
    }
    EXPECT_EQ(questions.asked, 0);
}

} // namespace
} // namespace chronomender
