// SPDX-License-Identifier: GPL-3.0-or-later
#include "LittleAvi.h"
#include "LittleMovie.h"
#include "MovieStampConversions.h"
#include "SaveTest.h"

#include <cstdio>

namespace chronomender {
namespace {

using namespace little;
using testing::ElementsAre;
using testing::IsEmpty;

const std::string kMetaDate = "2020-04-17T10:03:47-0600";
const Date kCreation = utc(2020, 4, 17, 16, 3, 47);

std::string headerTime(Date date) {
    return mvhdDataFromDate(date, MvhdCorrection::Off, absl::UTCTimeZone()).value_or("none");
}

/// A folder with one movie.
class MovieSave : public SaveTest {
protected:
    MySinglePic &addMovie(const Part &built, const MovieOptions &options = {}) {
        name = built.bytes.starts_with("RIFF") ? "a.avi" : "a.mov";
        for (const char *old : {"a.mov", "a.avi"})
            std::filesystem::remove(session.path(old));
        session.write(name, built.bytes);
        return imported(options);
    }
    MySinglePic &imported(const MovieOptions &options = {}) {
        MySingleFolder &folder = session.folder();
        folder.sfEditMode = EditMode::Together; // a failed item keeps its shift as its own
        folder.sourceTimeZones = folder.targetTimeZones = {};
        folder.areMovieOptionsSettled = false;
        session.movieAnswer = options;
        session.import();
        return session.item(name);
    }
    /// The movie's bytes with some values replaced.
    static std::string with(const Part &built, const std::map<std::string, std::string> &values) {
        std::string bytes = built.bytes;
        for (const auto &[value, after] : values)
            bytes.replace(built.at(value), after.size(), after);
        return bytes;
    }

    std::string name;
};

TEST_F(MovieSave, everyTypeWritesItsValuesAndNotOneOtherByte) {
    const absl::Duration by = absl::Hours(25);
    const std::string moved = headerTime(kCreation + by);
    const std::string later = headerTime(kCreation + absl::Seconds(2) + by);
    const std::map<std::string, std::string> header{{"creation", moved}, {"modification", later}};
    const MovieOptions local{.isMVHDTimezoneCorrectionEnabled = true};
    const auto alsoDate = [&](const std::string &text) {
        auto values = header;
        values["date"] = text;
        return values;
    };
    const struct {
        SpType type;
        Part built;
        MovieOptions options;
        std::map<std::string, std::string> after;
    } table[] = {
        {SpTypeMovieMvhdCreation, movie(), {}, header},
        {SpTypeMovieMvhdCreation, movie({.version = 1}, MoovPlace::First), local, header},
        {SpTypeMovieMvhdModification, movie({.creation = 0}), {}, {{"modification", later}}},
        {SpTypeMovieMvhdCreation,
         movie({.date = kMetaDate}),
         {.isMDTADateEnabled = false},
         alsoDate("2020-04-18T11:03:47-0600")},
        {SpTypeMovieMdta, movie({.date = kMetaDate}), local, alsoDate("2020-04-18T11:03:47-0600")},
        {SpTypeMovieMdta,
         movie({.date = "2020-04-17T16:03:47Z"}),
         {},
         alsoDate("2020-04-18T17:03:47Z")},
        {SpTypeMovieRiff,
         avi({.date = "FRI APR 17 18:03:47 2020\n" + zeros(1)}),
         {},
         {{"date", "SAT APR 18 19:03:47 2020\n" + zeros(1)}}},
    };
    shiftAllSlotsAlike();
    for (const auto &row : table) {
        const MySinglePic &pic = addMovie(row.built, row.options);
        const Date main = pic.spDateTimeOriginal;
        SCOPED_TRACE(testing::Message() << int(row.type) << ' ' << main);
        ASSERT_EQ(pic.spType, row.type);
        keepOwnZones();
        shift(by);
        saves();
        EXPECT_EQ(content(name), with(row.built, row.after));
        EXPECT_EQ(pic.spDateTimeOriginal, main + by);
        shift(-by);
        saves();
        EXPECT_EQ(content(name), row.built.bytes);
    }
}

TEST_F(MovieSave, aTargetZoneMovesTheWallClocksOfTheFile) {
    const Part built = movie({.date = kMetaDate});
    addMovie(built, {.isMDTADateEnabled = false, .isMVHDTimezoneCorrectionEnabled = true});
    targetZone("Asia/Tokyo");
    shift(absl::Minutes(1));
    saves();
    EXPECT_EQ(content(name).substr(built.at("creation"), 4),
              headerTime(kCreation + absl::Hours(7) + absl::Minutes(1)));
    EXPECT_EQ(content(name).substr(built.at("date"), 24), "2020-04-17T23:04:47+0900");
}

TEST_F(MovieSave, aMetadataDateOfAnotherZoneIsNotRewrittenUnasked) {
    addMovie(movie({.date = kMetaDate}));
    shift(absl::Hours(1));
    EXPECT_EQ(session.preProcess().problems.at(0).detail, "-06:00 → +02:00");
    keepOwnZones();
    EXPECT_THAT(session.preProcess().problems, IsEmpty());
}

TEST_F(MovieSave, emptyHeaderTimesAreFilled) {
    using enum PerFolderImportOptions::EmptyTags;
    const Part built = movie({.creation = 0, .modification = 0});
    for (const auto answer : {FileDate, FixedDate}) {
        session.emptyTags = {.withEmptyExifFixDate = answer, .prefFixDateDate = kCreation};
        session.folder().perFolderImportOptions.reset();
        MySinglePic &pic = addMovie(built);
        const Date date = pic.spDateTimeOriginal;
        saves();
        EXPECT_EQ(pic.spType, SpTypeMovieMvhdCreation);
        EXPECT_EQ(content(name).substr(built.at("creation"), 4), headerTime(date));
    }
}

TEST_F(MovieSave, whatTheHeaderCannotSayIsAnErrorOfTheItemAlsoWhenAccepted) {
    const MovieOptions local{.isMVHDTimezoneCorrectionEnabled = true};
    const Date epoch = utc(1904, 1, 1);
    const struct {
        Date wanted; // of the creation time; the modification time lies two seconds behind it
        MovieOptions options;
        std::string tooEarly;
        bool isWritten = false;
    } table[] = {
        {epoch - absl::Seconds(2), {}, "exifDateTimeOriginal, tiffDateTime"},
        {epoch, {}, "exifDateTimeOriginal"},
        {epoch + absl::Seconds(1), {}, "", true},
        {epoch, local, "", true}, // an hour later on the clocks of Berlin
        {epoch - absl::Hours(1), local, "exifDateTimeOriginal"},
        {utc(2040, 2, 6, 6, 28, 14), {}, ""},
        {utc(2040, 2, 6, 6, 28, 13), {}, "", true},
    };
    shiftAllSlotsAlike();
    for (const auto &row : table) {
        SCOPED_TRACE(row.wanted);
        MySinglePic &pic = addMovie(movie(), row.options);
        shift(row.wanted - pic.spDateTimeOriginal);
        std::string tooEarly;
        for (const PreSaveFinding &finding : session.preProcess().problems)
            if (finding.problem == PreSaveProblem::error_02_pre1904)
                tooEarly = finding.detail;
        EXPECT_EQ(tooEarly, row.tooEarly);
        if (row.isWritten) {
            saves();
            continue;
        }
        refuses(SaveErrorId::NotWrittenUnreadableBack, "saveObstacle_outOfRange");
        EXPECT_EQ(content(name), movie().bytes);
    }
}

TEST_F(MovieSave, aChangedValueIsNeverOverwritten) {
    const Part built = movie({.date = kMetaDate, .userLocation = "+48.1-011.5/"});
    for (const char *value : {"creation", "modification", "date", "userLocation"}) {
        addMovie(built);
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

TEST_F(MovieSave, exifToolSeesTheNewDatesBehindFiveGigabytes) {
    const std::uint64_t length = 5ULL << 30;
    name = "a.mov";
    const std::string path =
        session.write(name, ftyp().bytes + big(1) + "mdat" + big(length - 20, 8));
    std::filesystem::resize_file(path, length);
    std::ofstream(path, std::ios::binary | std::ios::app) << moov({.date = kMetaDate}).bytes;
    setFileDate(path, session.fileDate);
    imported();
    shiftAllSlotsAlike();
    keepOwnZones();
    shift(absl::Hours(-25));
    saves();
    const std::string command = "exiftool -api largefilesupport=1 -s3 -CreationDate -CreateDate "
                                "-ModifyDate '" +
                                path + "' 2>/dev/null";
    FILE *const pipe = ::popen(command.c_str(), "r");
    std::string seen;
    for (int c = std::fgetc(pipe); c != EOF; c = std::fgetc(pipe))
        seen.push_back(static_cast<char>(c));
    ::pclose(pipe);
    if (seen.empty())
        GTEST_SKIP() << "no exiftool";
    EXPECT_EQ(seen, "2020:04:16 09:03:47-06:00\n2020:04:16 15:03:47\n2020:04:16 15:03:49\n");
}

} // namespace
} // namespace chronomender
