// SPDX-License-Identifier: GPL-3.0-or-later
#include "ItemFilling.h"
#include "LittleAvi.h"
#include "LittleMovie.h"
#include "MovieFilling.h"
#include "MovieStampConversions.h"
#include "MySingleFolderDataReader.h"
#include "SaveTest.h"

#include <cstdio>

namespace chronomender {
namespace {

using namespace little;
using testing::ElementsAre;
using testing::IsEmpty;

const std::string kMetaDate = "2020-04-17T10:03:47-0600";

std::string headerTime(Date date) {
    return mvhdDataFromDate(date, MvhdCorrection::Off, absl::UTCTimeZone()).value_or("none");
}

/// The folder's one movie, read from a file in its place as an item of a given type.
class MovieSave : public SaveTest {
protected:
    MySinglePic &addMovie(const Part &built, SpType type, Date date) {
        original = built.bytes;
        session.write(name, built.bytes);
        return addWritten(type, date);
    }
    MySinglePic &addWritten(SpType type, Date date) {
        MySingleFolder &folder = session.folder();
        const auto format = type == SpTypeMovieRiff ? FileFormatOtherMovie : FileFormatQuickTime;
        MySingleFolderDataReader reader;
        EXPECT_TRUE(reader.open(session.path(name)));
        auto header = reader.readMovieHeader(format);
        const auto pic = MySinglePic::create(name, session.folders[0], type, date);
        setMovieAttributes(*pic, *std::move(header), reader.readMovieDetails(format), folder,
                           session.zones);
        setImageAttributesFromFileAttributes(*pic, attributesOf(session.path(name)), 3);
        if (isNullerFile(type))
            pic->slots.exifDateTimeOriginalOLD = InfinitePast();
        pic->positions.indexInSource_full = 0;
        folder.sfPicDetails_fullArray = {pic};
        folder.sfEditMode = EditMode::Together; // a failed item keeps its shift as its own
        return *pic;
    }
    /// The movie's bytes with some values replaced.
    std::string with(const Part &built, const std::map<std::string, std::string> &values) const {
        std::string bytes = built.bytes;
        for (const auto &[value, after] : values)
            bytes.replace(built.at(value), after.size(), after);
        return bytes;
    }
    void saves() { EXPECT_THAT(results(session.save()), ElementsAre(ItemResult::Saved)); }
    void refuses() {
        const SaveRunResult run = session.save();
        EXPECT_THAT(ids(run), ElementsAre(SaveErrorId::NotWrittenUnreadableBack));
        EXPECT_EQ(content(name), original);
    }

    std::string name = "a.mov", original;
    Date creation = utc(2020, 4, 17, 16, 3, 47), modification = utc(2020, 4, 17, 16, 3, 49);
};

struct SavedMovie {
    const char *what;
    SpType type;
    Part built;
    bool isCorrected;
    std::map<std::string, std::string> after;
};

TEST_F(MovieSave, everyTypeWritesItsValuesAndNotOneOtherByte) {
    const absl::Duration by = absl::Hours(25);
    const Date date = creation;
    const std::string moved = headerTime(date + by), later = headerTime(modification + by);
    const Part both = movie({.date = kMetaDate});
    const SavedMovie table[] = {
        {"header",
         SpTypeMovieMvhdCreation,
         movie(),
         false,
         {{"creation", moved}, {"modification", later}}},
        {"64-bit header",
         SpTypeMovieMvhdCreation,
         movie({.version = 1}, MoovPlace::First),
         true,
         {{"creation", moved}, {"modification", later}}},
        {"modification alone",
         SpTypeMovieMvhdModification,
         movie({.creation = 0}),
         false,
         {{"modification", later}}},
        {"header with metadata",
         SpTypeMovieMvhdCreation,
         both,
         false,
         {{"creation", moved}, {"modification", later}, {"date", "2020-04-18T11:03:47-0600"}}},
        {"metadata",
         SpTypeMovieMdta,
         both,
         true,
         {{"creation", moved}, {"modification", later}, {"date", "2020-04-18T11:03:47-0600"}}},
        {"metadata in UTC",
         SpTypeMovieMdta,
         movie({.date = "2020-04-17T16:03:47Z"}),
         false,
         {{"creation", moved}, {"modification", later}, {"date", "2020-04-18T17:03:47Z"}}},
        {"RIFF",
         SpTypeMovieRiff,
         avi({.date = "FRI APR 17 18:03:47 2020\n" + zeros(1)}),
         false,
         {{"date", "SAT APR 18 19:03:47 2020\n" + zeros(1)}}},
    };
    shiftAllSlotsAlike();
    for (const SavedMovie &row : table) {
        SCOPED_TRACE(row.what);
        session.folder().isQuicktimeMVHDTimezoneCorrectionEnabled = row.isCorrected;
        session.folder().targetTimeZones = {};
        keepOwnZones();
        const bool isLocal = row.isCorrected && row.type != SpTypeMovieMdta;
        const Date main = row.type == SpTypeMovieMvhdModification ? modification
                          : isLocal                               ? date - absl::Hours(2)
                                                                  : date;
        MySinglePic &pic = addMovie(row.built, row.type, main);
        shift(by);
        saves();
        EXPECT_EQ(content(name), with(row.built, row.after));
        EXPECT_EQ(pic.spDateTimeOriginal, main + by);
        EXPECT_FALSE(session.folder().isUnsavedFolder());
        shift(-by);
        saves();
        EXPECT_EQ(content(name), row.built.bytes);
    }
}

TEST_F(MovieSave, aTargetZoneMovesTheWallClocksOfTheFile) {
    const Part built = movie({.date = kMetaDate});
    session.folder().isQuicktimeMVHDTimezoneCorrectionEnabled = true;
    const Date main = creation - absl::Hours(2); // read in Berlin
    addMovie(built, SpTypeMovieMvhdCreation, main);
    targetZone("Asia/Tokyo");
    shift(absl::Minutes(1));
    saves();
    EXPECT_EQ(content(name).substr(built.at("creation"), 4),
              headerTime(creation + absl::Hours(7) + absl::Minutes(1)));
    EXPECT_EQ(content(name).substr(built.at("date"), 24), "2020-04-17T23:04:47+0900");
}

TEST_F(MovieSave, aMetadataDateOfAnotherZoneIsNotRewrittenUnasked) {
    addMovie(movie({.date = kMetaDate}), SpTypeMovieMdta, creation);
    shift(absl::Hours(1));
    const PreProcessResult dry = session.preProcess();
    ASSERT_THAT(kinds(dry.problems), ElementsAre(PreSaveProblem::error_12_zoneStampRewritten));
    EXPECT_EQ(dry.problems[0].detail, "-06:00 → +02:00");
    keepOwnZones();
    EXPECT_THAT(session.preProcess().problems, IsEmpty());
}

TEST_F(MovieSave, emptyHeaderTimesAreFilled) {
    const Part built = movie({.creation = 0, .modification = 0});
    for (const SpType type : {SpTypeMovieEmptyFileDate, SpTypeMovieEmptyFixedDate}) {
        MySinglePic &pic = addMovie(built, type, creation);
        saves();
        EXPECT_EQ(pic.spType, SpTypeMovieMvhdCreation);
        EXPECT_EQ(pic.spDateTimeOriginal, creation);
        EXPECT_EQ(content(name).substr(built.at("creation"), 4), headerTime(creation));
    }
}

TEST_F(MovieSave, whatTheHeaderCannotSayIsAnErrorOfTheItem) {
    for (const Date wanted : {utc(1904, 1, 1), utc(1903, 6, 1), utc(2040, 2, 6, 6, 28, 16)}) {
        addMovie(movie(), SpTypeMovieMvhdCreation, creation);
        shift(wanted - creation);
        refuses();
    }
}

TEST_F(MovieSave, aChangedValueIsNeverOverwritten) {
    const Part built = movie({.date = kMetaDate, .userLocation = "+48.1-011.5/"});
    for (const char *value : {"creation", "modification", "date", "userLocation"}) {
        addMovie(built, SpTypeMovieMdta, creation);
        const std::string changed = with(built, {{value, "+12."}});
        std::fstream(session.path(name), std::ios::in | std::ios::out)
            .write(changed.data(), static_cast<std::streamsize>(changed.size()));
        setFileDate(session.path(name), session.fileDate);
        keepOwnZones();
        shift(absl::Hours(1));
        EXPECT_THAT(ids(session.save()), ElementsAre(SaveErrorId::ChangedSinceImport)) << value;
        EXPECT_EQ(content(name), changed);
    }
}

std::string outputOf(const std::string &command) {
    std::string output;
    FILE *const pipe = ::popen(command.c_str(), "r");
    for (int c = std::fgetc(pipe); c != EOF; c = std::fgetc(pipe))
        output.push_back(static_cast<char>(c));
    ::pclose(pipe);
    return output;
}

TEST_F(MovieSave, exifToolSeesTheNewDatesBehindFiveGigabytes) {
    const std::uint64_t length = 5ULL << 30;
    const std::string head = ftyp().bytes + big(1) + "mdat" + big(length - 20, 8);
    const std::string path = session.write(name, head);
    std::filesystem::resize_file(path, length);
    std::ofstream(path, std::ios::binary | std::ios::app) << moov({.date = kMetaDate}).bytes;
    setFileDate(path, session.fileDate);
    addWritten(SpTypeMovieMdta, creation);
    shiftAllSlotsAlike();
    keepOwnZones();
    shift(absl::Hours(-25));
    saves();
    const std::string seen = outputOf("exiftool -api largefilesupport=1 -s3 -CreationDate "
                                      "-CreateDate -ModifyDate '" +
                                      path + "' 2>/dev/null");
    if (seen.empty())
        GTEST_SKIP() << "no exiftool";
    EXPECT_EQ(seen, "2020:04:16 09:03:47-06:00\n2020:04:16 15:03:47\n2020:04:16 15:03:49\n");
}

} // namespace
} // namespace chronomender
