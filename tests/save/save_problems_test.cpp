// SPDX-License-Identifier: GPL-3.0-or-later
#include "SaveTest.h"

namespace chronomender {
namespace {

using namespace little;
using testing::ElementsAre;
using testing::IsEmpty;
using enum PreSaveProblem;

constexpr const char *stamp = "2024:05:06 07:08:09";

/// Problems that a person must accept, and what happens without and with it.
class SaveProblems : public SaveTest {
protected:
    /// A save without acceptance is refused, one with it makes the file say `after` and the item
    /// stand at `date`.
    void expectAsked(const PhotoFields &fields, absl::Duration by, PreSaveProblem problem,
                     const std::string &detail, const std::map<std::string, std::string> &after,
                     Date date) {
        SCOPED_TRACE(detail);
        session.folder().sfEditMode = EditMode::Together;
        const BuiltPhoto built = importPhoto(fields);
        if (by != absl::ZeroDuration())
            shift(by);
        PreProcessResult dry = session.preProcess();
        ASSERT_THAT(kinds(dry), ElementsAre(problem));
        EXPECT_EQ(dry.problems[0].detail, detail);
        dry.problems.clear();
        dry.items.at(0).problems.clear();
        EXPECT_THAT(ids(goOn(dry)), ElementsAre(SaveErrorId::NotWrittenUnreadableBack));
        EXPECT_EQ(content(), built.bytes);
        EXPECT_THAT(results(session.save()), ElementsAre(ItemResult::Saved));
        EXPECT_EQ(content(), replaced(built, after));
        EXPECT_EQ(session.item("a.jpg").spDateTimeOriginal, date);
        EXPECT_FALSE(session.folder().isUnsavedFolder());
    }
};

TEST_F(SaveProblems, NothingIsWrittenBeforeTheyAreAccepted) {
    session.emptyTags.withEmptyExifFixDate = PerFolderImportOptions::EmptyTags::FileDate;
    // Clocks in Berlin go back at 01:00 UTC; 00:30 UTC reads 02:30 for the first time. The reading
    // that was accepted stays.
    expectAsked({.original = "2024:10:27 01:30:00"}, absl::Hours(1), error_01_ambiguousStamp,
                "exifDateTimeOriginal", {{"ExifDateTimeOriginal", "2024:10:27 02:30:00"}},
                utc(2024, 10, 27, 0, 30));
    expectAsked({.original = stamp,
                 .digitized = stamp,
                 .zoneOriginal = "+05:30",
                 .zoneDigitized = "+05:30"},
                absl::Hours(1), error_12_zoneStampRewritten, "+05:30 → +02:00",
                {{"ExifDateTimeOriginal", "2024:05:06 04:38:09"},
                 {"ExifOffsetTimeOriginal", "+02:00"},
                 {"ExifDateTimeDigitized", "2024:05:06 04:38:09"},
                 {"ExifOffsetTimeDigitized", "+02:00"}},
                utc(2024, 5, 6, 2, 38, 9));
    session.fileDate = utc(2024, 5, 6, 20);
    expectAsked({.original = "0000:00:00 00:00:00", .digitized = "2024:15:36 07:08:09"},
                absl::ZeroDuration(), error_13_unreadableStamp, "2024:15:36 07:08:09",
                {{"ExifDateTimeOriginal", "2024:05:06 22:00:00"},
                 {"ExifDateTimeDigitized", "2024:05:06 22:00:00"}},
                session.fileDate);
}

TEST_F(SaveProblems, FileDateBefore1970) {
    importPhoto({.original = "1970:01:01 12:00:00"});
    session.defaults.setForThisRun("dateChangeEXIFFinderModDate", "0");
    session.defaults.setForThisRun("dateChangeEXIFFinderModDateEXIFModDateOptions", "0");
    shift(absl::Hours(-24));
    EXPECT_THAT(kinds(session.preProcess()), ElementsAre(error_03_pre1970));
    saves();
    EXPECT_EQ(attributesOf(session.path("a.jpg")).modificationDate, utc(1969, 12, 31, 11));
}

TEST_F(SaveProblems, WhatIsNone) {
    const PhotoFields zoned{.original = stamp, .zoneOriginal = "+05:30"};
    const auto own = ZoneChoice::marker(ZoneChoice::Kind::Own);
    const auto named = [&](const char *name) {
        return ZoneChoice::named(*session.zones.zoneWithName(name));
    };
    const struct {
        const char *what;
        PhotoFields fields;
        std::optional<ZoneChoice> target;
        const char *systemZone = "Europe/Berlin";
    } table[] = {
        {"zone tells the hour", {.original = "2024:10:27 01:30:00", .zoneOriginal = "+02:00"}, own},
        {"own zone", zoned, own},
        {"a chosen target", zoned, named("Asia/Tokyo")},
        {"the offset stays", zoned, {}, "Asia/Kolkata"},
        {"other words beside a date", {.original = stamp, .digitized = "see notebook page 7"}, {}},
        {"unreadable stamp beside a date",
         {.original = stamp, .digitized = "2024:15:36 07:08:09"},
         {}},
    };
    BuiltPhoto built;
    for (const auto &row : table) {
        session.zones.setSystemZone(*session.zones.zoneWithName(row.systemZone));
        built = importPhoto(row.fields);
        session.folder().targetTimeZones.folderDefault = row.target;
        shift(absl::Hours(1));
        EXPECT_THAT(session.preProcess().problems, IsEmpty()) << row.what;
    }
    session.save();
    EXPECT_EQ(content(), replaced(built, {{"ExifDateTimeOriginal", "2024:05:06 08:08:09"}}));

    importPhoto(zoned);
    session.item("a.jpg").save.saveErrorType = 4; // an item that only carries an error
    const PreProcessResult dry = session.preProcess();
    EXPECT_EQ(dry.items.size(), 1U);
    EXPECT_THAT(dry.problems, IsEmpty());
}

} // namespace
} // namespace chronomender
