// SPDX-License-Identifier: GPL-3.0-or-later
#include "CompiledPredicate.h"
#include "LittleItem.h"
#include "PredicateRewriting.h"

#include <gmock/gmock.h>

namespace chronomender {
namespace {

using namespace little;

Predicate parsed(std::string_view text) {
    auto result = parsePredicate(text);
    const auto *error = std::get_if<PredicateError>(&result);
    EXPECT_FALSE(error) << text << ": " << (error ? error->textKey + ' ' + error->found : "");
    return error ? Predicate() : std::get<Predicate>(std::move(result));
}

/// What is printed in the form in which it is printed again.
TEST(PredicateTexts, AreReadAndPrinted) {
    const struct {
        const char *text, *printed;
    } rows[] = {
        {R"(spName CONTAINS[cd] "IMG")", nullptr},
        {R"((spName CONTAINS[cd] ""))", nullptr},
        {"filter_rating == 1", nullptr},
        {"filter_rating != -1", nullptr},
        {"filter_mediaType_2 ==[cd] 1", nullptr},
        {"filter_miscState_6 ==[cd] 1", nullptr},
        {"filter_rating < 0.1", nullptr},
        {R"((filter_rating != -1) AND (spName CONTAINS[c] "IMG"))", nullptr},
        {R"((filter_dateTimeModified >= CAST(736000000.000000, "NSDate")) AND )"
         R"((filter_dateTimeModified < CAST(-0.00000000025, "NSDate")))",
         nullptr},
        {"TRUEPREDICATE", nullptr},
        {"NOT ((FALSEPREDICATE) OR (NOT (filter_rating >= 1)))", nullptr},
        {"((filter_rating == 1))", nullptr},
        {R"(  spName   beginswith[d]'a"\'b' and filter_rating<=1 )",
         R"((spName BEGINSWITH[d] "a\"'b") AND (filter_rating <= 1))"},
        {R"(spName == "\\\n\tü AND (x" or not filter_rating==1e0 And filter_rating>-1)",
         R"((spName == "\\\n\tü AND (x") OR ((NOT (filter_rating == 1)) AND (filter_rating > -1)))"},
        {"(filter_rating == 0 OR filter_rating == 1) AND filter_miscState != 3",
         "((filter_rating == 0) OR (filter_rating == 1)) AND (filter_miscState != 3)"},
        {R"(filter_dateTimeModified < "2024-05-06 07:08")", nullptr},
    };
    for (const auto &[text, again] : rows) {
        const Predicate predicate = parsed(text);
        const std::string printed = predicateFormat(predicate);
        EXPECT_EQ(printed, again ? again : text);
        EXPECT_EQ(parsed(printed), predicate) << printed;
    }
    // As many levels as are allowed, in the form that takes the most parentheses.
    std::string deep = "filter_rating == 1";
    for (int level = 0; level < kDeepestPredicate; ++level)
        deep = level % 2 ? "(" + deep + ") AND filter_rating == 0" : "NOT (" + deep + ')';
    EXPECT_EQ(parsed(predicateFormat(parsed(deep))), parsed(deep));
}

TEST(PredicateTexts, TellWhatIsWrongAndWhere) {
    const struct {
        std::string text;
        std::size_t position;
        const char *key, *found;
    } rows[] = {
        {"", 0, "predicate_error_expectedKey", ""},
        {"spname == \"a\"", 0, "predicate_error_unknownKey", "spname"},
        {"NOT \"a\" == spName", 4, "predicate_error_expectedKey", "\"a"},
        {"spName LIKE \"a\"", 7, "predicate_error_expectedOperator", "LIKE"},
        {"spName ==[cx] \"a\"", 9, "predicate_error_unknownFlags", "[cx]"},
        {"spName == 5", 10, "predicate_error_valueNotForKey", "5"},
        {"filter_rating == \"1\"", 17, "predicate_error_valueNotForKey", "\"1"},
        {"filter_rating CONTAINS 1", 14, "predicate_error_operatorNotForKey", "CONTAINS"},
        {"filter_miscState > 1", 17, "predicate_error_operatorNotForKey", ">"},
        {"filter_miscState == 8", 20, "predicate_error_valueNotForKey", "8"},
        {"filter_miscState == 1.5", 20, "predicate_error_valueNotForKey", "1.5"},
        {"filter_rating == 1x", 17, "predicate_error_expectedValue", "1x"},
        {"filter_rating == 1e999", 17, "predicate_error_expectedValue", "1e999"},
        {"filter_rating == -inf", 17, "predicate_error_expectedValue", "-inf"},
        {"filter_rating == %@", 19, "predicate_error_expectedValue", ""},
        {"filter_rating == 1 spName", 19, "predicate_error_expectedJoin", "spName"},
        {"(filter_rating == 1", 19, "predicate_error_missingParenthesis", ""},
        {"(filter_rating == 1 spName)", 20, "predicate_error_expectedJoin", "spName"},
        {"spName == \"a", 10, "predicate_error_openText", "\"a"},
        {"spName == \"a\\", 10, "predicate_error_openText", "\"a\\"},
        {R"(spName == "\q")", 11, "predicate_error_unknownEscape", "\\q"},
        {"filter_dateTimeModified < \"2024-02-30\"", 26, "predicate_error_badDate", "\"2024-02-30"},
        {"filter_dateTimeModified < CAST(1e5, \"NSDate\")", 31, "predicate_error_badDate", "1e5"},
        {"filter_dateTimeModified < CAST(99999999999999999999, \"NSDate\")", 31,
         "predicate_error_badDate", "99999999999999999999"},
        {"spName == \"\xFF\"", 0, "predicate_error_notUtf8", ""},
        {std::string(kLongestPredicate + 1, ' '), kLongestPredicate, "predicate_error_tooLong", ""},
    };
    for (const auto &row : rows) {
        const auto result = parsePredicate(row.text);
        const auto *error = std::get_if<PredicateError>(&result);
        ASSERT_TRUE(error) << row.text;
        EXPECT_EQ(error->textKey, row.key) << row.text;
        EXPECT_EQ(error->position, row.position) << row.text;
        EXPECT_EQ(error->found, row.found) << row.text;
    }
    for (const char *level : {"NOT ", "("}) {
        std::string deep;
        for (int i = 0; i < 20'000 / 4; ++i)
            deep += level;
        const auto result = parsePredicate(deep + "filter_rating == 1");
        ASSERT_TRUE(std::holds_alternative<PredicateError>(result));
        EXPECT_EQ(std::get<PredicateError>(result).textKey, "predicate_error_tooDeep");
    }
}

/// One item of a folder in Berlin, and what is true of it.
class PredicateOfItem : public testing::Test {
protected:
    PredicateOfItem() { zones.setSystemZone(zone("Europe/Berlin")); }
    bool holds(std::string_view text) const {
        return CompiledPredicate(parsed(text), {zones}).matches(*pic);
    }
    /// Each text holds, or does not where "!" stands in front.
    void expect(std::initializer_list<const char *> texts) const {
        for (const std::string_view text : texts) {
            const bool isFalse = text.starts_with('!');
            EXPECT_EQ(holds(text.substr(isFalse ? 1 : 0)), !isFalse) << pic->spName << ": " << text;
        }
    }
    Zones zones;
    MySingleFolderPtr folder = makeFolder();
    MySinglePicPtr pic = addItem(folder, SpTypeExifOriginal, utc(2024, 10, 27, 1, 30), "IMG_1.JPG");
};

TEST_F(PredicateOfItem, TextsAreComparedByTheirFlags) {
    expect({R"(spName == "IMG_1.JPG")", R"(!spName == "img_1.jpg")", R"(spName ==[c] "img_1.jpg")",
            R"(!spName == "IMG_1")", R"(spName CONTAINS "G_1")", R"(!spName CONTAINS "g_1")",
            R"(spName CONTAINS[c] "g_1")", R"(spName BEGINSWITH[c] "img")",
            R"(!spName BEGINSWITH "MG")", R"(spName ENDSWITH[c] "jpg")", R"(!spName ENDSWITH "x")",
            R"(!spName ENDSWITH[c] "xIMG_1.JPG")", R"(!spName CONTAINS[cd] "ü")",
            R"(spName < "IMG_2")", R"(!spName < "IMG_1.JPG")", R"(spName <=[c] "img_1.jpg")",
            R"(spName >[c] "img_1")", R"(spName >= "")"});
    const std::string composed = "\u00C9t\u00E9 STRASSE.jpg";
    for (const std::string &name : {composed, std::string("E\u0301te\u0301 STRASSE.jpg")}) {
        pic->spName = name;
        expect({"spName BEGINSWITH \"\u00C9\"", "spName BEGINSWITH \"E\u0301\"",
                R"(!spName BEGINSWITH "E")", R"(!spName BEGINSWITH[c] "e")",
                "spName BEGINSWITH[c] \"\u00E9T\"", R"(spName BEGINSWITH[d] "E")",
                R"(!spName BEGINSWITH[d] "e")", R"(spName BEGINSWITH[cd] "ete")",
                "spName CONTAINS[c] \"stra\u00DFe\"", "!spName CONTAINS \"stra\u00DFe\"",
                "spName > \"Z\""});
        EXPECT_TRUE(holds("spName == \"" + composed + '"'));
    }
    pic->spName = "\u212Aelvin"; // the sign of the unit, which is a k
    expect({R"(spName BEGINSWITH[c] "kel")", "spName BEGINSWITH[c] \"\u212A\""});
}

TEST_F(PredicateOfItem, WithoutAValueOnlyNotEqualHolds) {
    pic->spType = SpTypeUnsupported;
    expect({R"(pivMakeModel != "Canon")", R"(!pivMakeModel == "Canon")", R"(!pivMakeModel != "")",
            R"(pivMakeModel == "")", R"(!pivMakeModel CONTAINS "")", R"(!pivMakeModel < "x")",
            R"(!pivMakeModel >= "")", R"(filter_dateTimeModified != "2024-01-01")",
            R"(!filter_dateTimeModified < "2124-01-01")",
            R"(!filter_dateTimeModified >= "1901-01-01")"});
    pic->camera.pivMakeModel = "-"; // a movie that names no camera
    expect({R"(!filter_pivMakeModel ==[cd] "-")", R"(filter_pivMakeModel ==[cd] "")",
            R"(filter_pivMakeModelLens == "-")"});
    pic->camera.pivMakeModel = "Canon EOS R5";
    pic->camera.lens = "RF50";
    pic->camera.serialNumber = "0123";
    expect({"filter_pivMakeModel == 'Canon EOS R5 (0123)'", "pivMakeModel == 'Canon EOS R5'",
            "filter_pivMakeModelLens ENDSWITH '(0123), RF50'",
            "pivMakeModel CONTAINS[cd] '(0123)'"});
}

TEST_F(PredicateOfItem, DatesMeanTheSystemsZoneUnlessTheySayTheirs) {
    // 02:30 in Berlin, for the second time.
    expect({R"(filter_dateTimeModified == "2024-10-27T02:30:00")",
            R"(filter_dateTimeModified == "2024-10-27 02:30")",
            R"(filter_dateTimeModified == "2024-10-27T02:30+01:00")",
            R"(!filter_dateTimeModified == "2024-10-27T02:30+02:00")",
            R"(filter_dateTimeModified == "2024-10-27T01:30:00Z")",
            R"(filter_dateTimeModified == CAST(751685400, "NSDate"))",
            R"(filter_dateTimeModified > "2024-10-27" AND filter_dateTimeModified < "2024-10-28")",
            R"(filter_dateTimeModified != "2024-10-27")"});
    folder->sfDateModificationsTimeInterval = absl::Milliseconds(250);
    expect({R"(filter_dateTimeModified == CAST(751685400.25, "NSDate"))"});
}

TEST_F(PredicateOfItem, NumbersTellKindsAndMarks) {
    expect({"filter_rating == 0", "filter_rating != -1", "filter_mediaType == 0",
            "!filter_mediaType ==[cd] 4", "filter_mediaType !=[cd] 4", "TRUEPREDICATE",
            "!FALSEPREDICATE", "NOT filter_rating > 0", "filter_rating == 1 OR filter_rating == 0",
            "!filter_rating == 0 AND filter_mediaType == 1"});
    pic->marks.isKeeper = true;
    expect({"filter_rating == 1"});
    pic->marks.isRejected = true;
    expect({"filter_rating == -1"});
    const auto other = addItem(folder, SpTypeExifOriginal, utc(2024, 1, 1), "b.jpg");
    pic->livePhoto.compoundLivePhotoNext = other;
    expect({"filter_mediaType ==[cd] 4", "filter_mediaType_2 == 1"});
    makeDependent(other, pic);
    expect({"filter_mediaType == 3"});
    other->spType = SpTypeMovieMdta;
    expect({"filter_mediaType == 2"});
    pic->spType = SpTypeMovieRiff;
    pic->group.bundleDependentImage = nullptr;
    expect({"filter_mediaType == 1"});

    constexpr int kSources[]{-1, 0, 0, 1, 7, 7, 7, 7, 7, 7, 7, 5, 7, 6, 7, 4, 2, 2, 7, 7, 7, 3, 6};
    for (int type = 1; type <= 22; ++type) {
        pic->spType = static_cast<SpType>(type);
        EXPECT_TRUE(holds("filter_dataSource == " + std::to_string(kSources[type]))) << type;
    }
    pic->spType = SpTypeTiffDateTime;
    pic->xmp.isModiXmp = true;
    expect({"filter_dataSource == 8"});
    pic->spType = SpTypeExifDigitized;
    expect({"filter_dataSource == 0"}); // another slot's
}

/// Each change puts an item into exactly these states.
TEST_F(PredicateOfItem, StatesTellWhatIsTheMatter) {
    const struct {
        const char *states;
        void (*change)(MySinglePic &item, MySinglePic &half);
    } rows[] = {
        {"", [](auto &, auto &) {}},
        {"0",
         [](auto &item, auto &) {
             item.spSingleRealFolder()->sfDateModificationsTimeInterval = absl::Hours(1);
         }},
        {"1", [](auto &, auto &half) { half.location.gpsLat = half.location.gpsLong = 1; }},
        {"2",
         [](auto &item, auto &) {
             item.spSingleRealFolder()->sourceTimeZones.folderDefault =
                 ZoneChoice::named(zone("Asia/Tokyo"));
         }},
        {"036", [](auto &, auto &half) { half.save.saveErrorType = 4; }},
        {"36", [](auto &item, auto &) { item.rename.hasRenameError = 2; }},
        {"46", [](auto &,
                  auto &half) { half.save.fileUnchangedState = FileUnchangedState::BytesDiffer; }},
        {"56",
         [](auto &item, auto &) { item.save.fileUnchangedState = FileUnchangedState::NotFound; }},
        {"67", [](auto &item,
                  auto &) { item.save.fileUnchangedState = FileUnchangedState::MustBeReadAgain; }},
        {"6", [](auto &item, auto &) { item.spType = SpTypeNoTagsFileDate; }},
        {"6",
         [](auto &, auto &half) {
             half.spType = SpTypeMovieFileDate;
             half.spDateTimeOriginal = utc(1969, 12, 31);
         }},
        {"", [](auto &, auto &half) { half.spType = SpTypeMovieFileDate; }},
        {"6", [](auto &item, auto &) { item.spType = SpTypeTiffYoungerThanFile; }},
        {"06", [](auto &item, auto &) { item.spType = SpTypeEmptyOriginalFileDate; }},
        {"",
         [](auto &item, auto &) {
             item.spType = SpTypeEmptyOriginalFileDate;
             item.importState.isLeftAlone = true;
         }},
        {"6", [](auto &, auto &half) { half.zones.hasMinorDateDifference = true; }},
        {"6", [](auto &item, auto &) { item.zones.majorDateDifferenceType = kOnlyOneSideIsLocal; }},
        {"", [](auto &item, auto &) { item.zones.majorDateDifferenceType = kZoneDisagrees; }},
        {"26",
         [](auto &item, auto &) {
             item.zones.majorDateDifferenceType = kZoneDisagrees;
             item.spSingleRealFolder()->sourceTimeZones.folderDefault =
                 ZoneChoice::named(zone("Asia/Tokyo"));
         }},
        {"6", [](auto &item, auto &) { item.zones.majorDateDifferenceType = kGroupDeviates; }},
        {"6", [](auto &, auto &half) { half.zones.dstDivergenceState = 1; }},
        {"6", [](auto &, auto &half) { half.zones.dstAmbiguityAtImportState = 4; }},
        {"06",
         [](auto &item, auto &) { // from 00:00 UTC to the earlier 02:30 in Berlin
             item.singlePicAttributes.exifDateTimeOriginal = located("2024:10:27 02:00:00");
             item.spDateTimeOriginal = utc(2024, 10, 27);
             item.spSingleRealFolder()->sfDateModificationsTimeInterval = absl::Minutes(30);
         }},
    };
    for (const auto &row : rows) {
        folder = makeFolder();
        pic = addItem(folder, SpTypeExifOriginal, utc(2024, 6, 1, 12));
        const auto half = addItem(folder, SpTypeMovieMdta, utc(2024, 6, 1, 12), "IMG_1.MOV");
        makeDependent(half, pic);
        row.change(*pic, *half);
        std::string states;
        for (char state = '0'; state <= '7'; ++state) {
            const bool isIn = holds(std::string("filter_miscState_") + state + " == 1");
            EXPECT_EQ(holds(std::string("filter_miscState ==[cd] ") + state), isIn);
            states += isIn ? std::string(1, state) : "";
        }
        EXPECT_EQ(states, row.states) << &row - rows;
    }
}

} // namespace
} // namespace chronomender
