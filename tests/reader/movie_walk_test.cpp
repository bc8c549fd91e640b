// SPDX-License-Identifier: GPL-3.0-or-later
#include "MovieStampSyntax.h"
#include "MovieSteps.h"

namespace chronomender::steps {
namespace {

using little::MoovPlace;
using little::movie;

const std::string kDate = "2020-04-17T10:03:47-0600";

TEST(MovieWalk, findsTheHeaderTimesWhereverTheMovieBoxStands) {
    MovieFields fields{.tracks = {little::videoTrack(1440, 1080)}};
    for (const MoovPlace place : {MoovPlace::First, MoovPlace::Last})
        for (fields.version = 0; fields.version < 2; ++fields.version) {
            const Part built = movie(fields, place);
            const auto found = header(built.bytes);
            ASSERT_TRUE(found);
            EXPECT_TRUE(standsAt(found->creaDate, built, "creation"));
            EXPECT_TRUE(standsAt(found->modDate, built, "modification"));
        }
}

TEST(MovieWalk, sizesOfBoxesAreReadInAllTheirForms) {
    const Part media = little::zeros(40), first = little::ftyp(), moov = little::moov({});
    EXPECT_TRUE(header((first + little::box("mdat", media, 1) + moov).bytes));
    EXPECT_TRUE(header((first + little::box("moov", moov.bytes.substr(8), 0)).bytes));
    // Media up to the file's end, or beyond it, hide what follows them.
    for (const std::size_t size : {2, 7, 0, 0x7FFFFFFF})
        EXPECT_FALSE(header((first + little::box("mdat", media, size) + moov).bytes)) << size;
    const std::string old = (little::box("wide", "") + moov).bytes;
    EXPECT_TRUE(header(old, FileFormatQuickTime));
    EXPECT_FALSE(header(old, FileFormatMpeg4));
}

TEST(MovieWalk, theTypeTellsWhichDatesAreOfUse) {
    using enum MovieType;
    const struct {
        std::uint64_t creation, modification;
        bool hasDate;
        std::optional<MovieType> type;
        bool hasCreation, hasModification;
    } table[] = {
        {1, 2, false, Creation, true, true},
        {1, 0, false, Creation, true, false},
        {0, 2, false, ModificationOnly, false, true},
        {0, 0, false, Empty, true, true},
        {1, 2, true, Creation, true, true},
        {0, 2, true, Creation, false, true},
        {0, 0, true, Creation, false, false},
        // A time beyond 32 bits makes the header useless, the metadata stay.
        {1ULL << 32, 2, true, Creation, false, false},
        {1ULL << 32, 2, false, std::nullopt, false, false},
    };
    for (const auto &row : table) {
        MovieFields fields{
            .creation = row.creation, .modification = row.modification, .version = 1};
        if (row.hasDate)
            fields.date = kDate;
        const auto found = header(movie(fields).bytes);
        SCOPED_TRACE(testing::Message() << row.creation << '/' << row.modification << row.hasDate);
        ASSERT_EQ(found.has_value(), row.type.has_value());
        if (!found)
            continue;
        EXPECT_EQ(found->movieType, row.type);
        EXPECT_EQ(found->creaDate.has_value(), row.hasCreation);
        EXPECT_EQ(found->modDate.has_value(), row.hasModification);
        EXPECT_EQ(found->qtCreationDate.has_value(), row.hasDate);
    }
}

TEST(MovieWalk, aHeaderThatIsNoneIsToldAndNotTaken) {
    for (const MovieFields &fields :
         {MovieFields{.timeScale = 0, .date = kDate}, MovieFields{.version = 2, .date = kDate}}) {
        const auto found = header(movie(fields).bytes);
        ASSERT_TRUE(found);
        EXPECT_FALSE(found->creaDate);
        EXPECT_EQ(found->findings.size(), 1U);
    }
}

TEST(MovieWalk, datesAndPlacesOfTheMetadataAndTheUserData) {
    MovieFields fields{.date = kDate, .location = "+48.1234+011.5678/", .accuracy = "4.7"};
    fields.userLocation = "+48.1-011.5/";
    fields.itemLocation = "-48-011";
    for (const bool isFull : {false, true}) {
        fields.isFullMeta = isFull;
        const Part built = movie(fields);
        const auto found = header(built.bytes);
        EXPECT_TRUE(standsAt(found->qtCreationDate, built, "date"));
        ASSERT_EQ(found->qtLocations.size(), 3U);
        EXPECT_TRUE(standsAt(found->qtLocations[0].hAccuracy, built, "accuracy"));
        const char *const names[]{"location", "userLocation", "itemLocation"};
        for (std::size_t i = 0; i < 3; ++i) {
            EXPECT_EQ(static_cast<std::size_t>(found->qtLocations[i].place), i + 1);
            EXPECT_TRUE(standsAt(found->qtLocations[i].value, built, names[i]));
        }
    }
}

TEST(MovieWalk, aUserTextHasTheRoomThatItDeclares) {
    const std::string text = "+48.1-011.5/" + little::zeros(2);
    for (const std::size_t declared : {12, 14, 200}) {
        const Part xyz = little::userText("\xA9xyz", "text", text, declared);
        const auto found =
            header(little::box("moov", little::mvhd({}) + little::box("udta", xyz)).bytes);
        const LocatedBytes &value = found->qtLocations.at(0).value;
        EXPECT_EQ(value.data, "+48.1-011.5/"); // zero bytes belong to the room, not to the text
        EXPECT_EQ(value.room, declared < 200 ? declared : 0U);
    }
}

TEST(MovieSyntax, formsOfDateAndLocation) {
    for (const char *good : {"2020-04-17T10:03:47Z", "2020-04-17T10:03:47-06:00"})
        EXPECT_TRUE(isValidQtCreationDateData(good)) << good;
    for (const char *bad :
         {"", "2020-04-17T10:03:47", "2020-04-17T10:03:47+", "2020:04:17T10:03:47Z",
          "2020-04-17 10:03:47Z", "2020-04-17T10:03:47.123Z", "2020-04-17T10:03:47-0600x"})
        EXPECT_FALSE(isValidQtCreationDateData(bad)) << bad;
    EXPECT_TRUE(isValidQtLocationData("+48.1234+011.5678+012.3"));
    for (const char *bad : {"", "+1", "48.1+011.5/", "-4+"})
        EXPECT_FALSE(isValidQtLocationData(bad)) << bad;
}

} // namespace
} // namespace chronomender::steps
