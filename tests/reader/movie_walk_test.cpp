// SPDX-License-Identifier: GPL-3.0-or-later
#include "MovieStampSyntax.h"
#include "MovieSteps.h"

namespace chronomender {
namespace {

using namespace steps;
using little::MoovPlace;
using little::movie;
using ::testing::ElementsAre;
using Place = QtLocation::Place;

const std::string kDate = "2020-04-17T10:03:47-0600";

TEST(MovieWalk, findsTheHeaderTimesWhereverTheMovieBoxStands) {
    MovieFields fields;
    fields.tracks = {little::videoTrack(1440, 1080)};
    for (const MoovPlace place : {MoovPlace::First, MoovPlace::Last})
        for (const std::uint8_t version : {std::uint8_t{0}, std::uint8_t{1}}) {
            fields.version = version;
            const Part built = movie(fields, place);
            const auto found = header(built.bytes);
            ASSERT_TRUE(found);
            EXPECT_EQ(found->movieType, MovieType::Creation);
            EXPECT_TRUE(standsAt(found->creaDate, built, "creation"));
            EXPECT_TRUE(standsAt(found->modDate, built, "modification"));
        }
}

TEST(MovieWalk, sizesOfBoxesAreReadInAllTheirForms) {
    const Part media = little::zeros(40);
    const Part first = little::ftyp();
    const Part moov = little::moov({});
    const auto lastWithoutSize = [&](const Part &content) { // up to the end of the file
        return little::box("moov", content.bytes.substr(8), 0);
    };
    EXPECT_TRUE(header((first + little::box("mdat", media, 1) + moov).bytes));
    EXPECT_TRUE(header((first + lastWithoutSize(moov)).bytes));
    for (const std::size_t size : {2, 7, 0})
        EXPECT_FALSE(header((first + little::box("mdat", media, size) + moov).bytes)) << size;
    // Media that claim more than the file has hide what follows them.
    EXPECT_FALSE(header((first + little::box("mdat", media, 0x7FFFFFFF) + moov).bytes));
}

TEST(MovieWalk, onlyAQuickTimeMovieMayBeginWithAnyBox) {
    const std::string bytes = (little::box("wide", "") + little::moov({})).bytes;
    EXPECT_TRUE(header(bytes, FileFormatQuickTime));
    EXPECT_FALSE(header(bytes, FileFormatMpeg4));
}

struct Times {
    std::uint64_t creation, modification;
    bool hasDate;
    std::optional<MovieType> type;
    bool hasCreation, hasModification;
};

TEST(MovieWalk, theTypeTellsWhichDatesAreOfUse) {
    using enum MovieType;
    const Times table[] = {
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
    for (const Times &row : table) {
        MovieFields fields;
        fields.version = 1;
        fields.creation = row.creation;
        fields.modification = row.modification;
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
    MovieFields fields;
    fields.date = kDate;
    fields.timeScale = 0;
    const auto noScale = header(movie(fields).bytes);
    ASSERT_TRUE(noScale);
    EXPECT_FALSE(noScale->creaDate);
    EXPECT_EQ(noScale->findings.size(), 1U);
    fields.timeScale = 600;
    fields.version = 2;
    EXPECT_FALSE(header(movie(fields).bytes)->creaDate);
}

TEST(MovieWalk, theMetadataAreFoundBehindBothHeadsOfTheirBox) {
    for (const bool isFull : {false, true}) {
        MovieFields fields;
        fields.isFullMeta = isFull;
        fields.date = kDate;
        fields.location = "+48.1234+011.5678/";
        fields.accuracy = "4.7";
        const Part built = movie(fields);
        const auto found = header(built.bytes);
        EXPECT_TRUE(standsAt(found->qtCreationDate, built, "date"));
        ASSERT_EQ(found->qtLocations.size(), 1U);
        EXPECT_TRUE(standsAt(found->qtLocations[0].value, built, "location"));
        EXPECT_TRUE(standsAt(found->qtLocations[0].hAccuracy, built, "accuracy"));
    }
}

TEST(MovieWalk, locationsComeInTheOrderOfTheirPlaces) {
    MovieFields fields;
    fields.location = "+48.1234+011.5678/";
    fields.userLocation = "+48.1-011.5/";
    fields.itemLocation = "-48-011";
    const Part built = movie(fields);
    const auto found = header(built.bytes);
    ASSERT_EQ(found->qtLocations.size(), 3U);
    EXPECT_THAT(found->qtLocations,
                ElementsAre(testing::Field(&QtLocation::place, Place::MetadataKeys),
                            testing::Field(&QtLocation::place, Place::UserData),
                            testing::Field(&QtLocation::place, Place::UserDataItems)));
    EXPECT_TRUE(standsAt(found->qtLocations[1].value, built, "userLocation"));
    EXPECT_TRUE(standsAt(found->qtLocations[2].value, built, "itemLocation"));
}

TEST(MovieWalk, aUserTextHasTheRoomThatItDeclares) {
    const auto read = [](std::size_t declared) {
        const Part text =
            little::userText("\xA9xyz", "text", "+48.1-011.5/" + little::zeros(2), declared);
        const Part movie = little::box("moov", little::mvhd({}) + little::box("udta", text));
        return header(movie.bytes)->qtLocations.at(0).value;
    };
    EXPECT_EQ(read(12).room, 12U);
    EXPECT_EQ(read(14).room, 14U);
    EXPECT_EQ(read(14).data, "+48.1-011.5/"); // zero bytes belong to the room, not to the text
    EXPECT_EQ(read(200).room, 0U);
}

TEST(MovieSyntax, formsOfDateAndLocation) {
    for (const char *good :
         {"2020-04-17T10:03:47Z", "2020-04-17T10:03:47-0600", "2020-04-17T10:03:47-06:00"})
        EXPECT_TRUE(isValidQtCreationDateData(good)) << good;
    for (const char *bad :
         {"", "2020-04-17T10:03:47", "2020-04-17T10:03:47+", "2020-04-17", "2020:04:17T10:03:47Z",
          "2020-04-17 10:03:47Z", "2020-04-17T10:03:47.1Z", "2020-04-17T10:03:47.123Z",
          "2020-04-17T10:03:47-0600x"})
        EXPECT_FALSE(isValidQtCreationDateData(bad)) << bad;
    for (const char *good : {"+48.1234+011.5678/", "-4+", "+48.1234+011.5678+012.3"})
        EXPECT_EQ(isValidQtLocationData(good), std::string_view(good) != "-4+") << good;
    for (const char *bad : {"", "+1", "48.1+011.5/", "hello"})
        EXPECT_FALSE(isValidQtLocationData(bad)) << bad;
}

} // namespace
} // namespace chronomender
