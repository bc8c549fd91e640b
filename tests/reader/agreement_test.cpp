// SPDX-License-Identifier: GPL-3.0-or-later
#include "Corpus.h"
#include "ReaderSteps.h"
#include "StampSyntax.h"
#include "TemporaryFolder.h"

#include <algorithm>
#include <iostream>
#include <set>

// Compares the reader with an independent witness: what ExifTool found in real camera files. What
// is unequal must stand in agreement_exceptions.txt under the rule that explains it.
namespace chronomender::steps {
namespace {

using little::CorpusFile;
using std::string_literals::operator""s;

constexpr double kShareOverall = 0.97, kShareOfEachKind = 0.90;
const std::set<std::string> kKinds{"jpeg", "tiff", "raw", "heif", "avif", "cr3", "png", "webp"};

/// Why a date that ExifTool shows is none of the reader's, with a little file that shows it.
struct Rule {
    const char *name;
    std::string file;
    FileFormatType format;
};
const std::vector<Rule> kRules{
    // The first Canon raw format keeps Unix seconds in a heap of records.
    {"ciff-native-date", "II\x1A\0\0\0HEAPCCDR\1\0\1\0\x0E\x18\0\0\0\x65\x0A\x40"s, FileFormatRaw},
    // Sigma's raw format keeps "TIME" in a list of UTF-16 properties.
    // An image sequence has a movie header beside its pictures; its times are not the pictures'.
    {"image-sequence-header-date",
     "\0\0\0\x10"
     "ftypmsf1\0\0\0\0\0\0\0\x1C"
     "moov\0\0\0\x14"
     "mvhd\0\0\0\0\xD4\xD3\xA0\x6F\xD4\xD3\xA0\x6F"s,
     FileFormatHeif},
    {"x3f-native-date", "FOVb\2\0\2\0SECpT\0I\0M\0E\0\0\0001\0000\0000\0\0\0"s, FileFormatRaw},
};

struct WitnessTag {
    const char *slot; ///< the reader's name
    const char *tag;  ///< ExifTool's name, without its group
    bool isZone;
    std::vector<std::string> groups; ///< whose values a slot may show, the winner first
    bool hasNativeDates;             ///< formats without Exif may keep it elsewhere
};
const std::vector<WitnessTag> kWitnessTags{
    {"ExifDateTimeOriginal", "DateTimeOriginal", false, {"ExifIFD", "IFD0"}, true},
    {"ExifDateTimeDigitized", "CreateDate", false, {"ExifIFD", "IFD0"}, true},
    {"TIFFDateTime", "ModifyDate", false, {"IFD0"}, false},
    {"ExifOffsetTimeOriginal", "OffsetTimeOriginal", true, {"ExifIFD", "IFD0"}, false},
    {"ExifOffsetTimeDigitized", "OffsetTimeDigitized", true, {"ExifIFD", "IFD0"}, false},
    {"TIFFOffsetTime", "OffsetTime", true, {"ExifIFD", "IFD0"}, false},
};

using Values = std::map<std::string, std::string>; ///< by ExifTool's group

Values witnessValues(const CorpusFile &file, const std::string &tag) {
    Values values;
    for (const auto &[name, value] : file.exiftool.items()) {
        const auto colon = name.find(':');
        const std::string group = name.substr(0, colon);
        const bool isComputedOrXmp = group == "Composite" || group.starts_with("XMP");
        if (name.substr(colon + 1) == tag && value.is_string() && !isComputedOrXmp)
            values[group] = value.get<std::string>();
    }
    return values;
}

/// What the reader should have found, if that is a stamp at all.
std::optional<std::string> expectedText(const WitnessTag &tag, const Values &values) {
    std::vector<std::string> texts;
    for (const std::string &group : tag.groups) {
        if (values.contains(group))
            texts.push_back(values.at(group));
    }
    if (texts.empty() && tag.hasNativeDates && !values.empty())
        texts.push_back(values.begin()->second);
    if (texts.empty())
        return std::nullopt;
    const bool isStamp = tag.isZone ? secondsFromExifOffset(texts.front()).has_value()
                                    : civilFromExifTimeStamp(texts.front()).has_value();
    return isStamp ? std::optional(texts.front()) : std::nullopt;
}

std::string readText(const WitnessTag &tag, const LocatedBytes &value) {
    return (tag.isZone ? exifOffsetFromData(value.data) : exifTimeStampFromData(value.data))
        .value_or("not a stamp");
}

/// Reads a file as an import does: content decides, else the extension.
DatesData readCorpusFile(const CorpusFile &file) {
    MySingleFolderDataReader reader;
    EXPECT_TRUE(reader.open(file.path)) << file.path;
    std::string extension = std::filesystem::path(file.path).extension().string();
    extension.erase(0, 1);
    const auto format = fileFormatTypeForContent(reader.firstBytes(), extension);
    return reader.readDates(format.value_or(fileFormatTypeForExtension(extension)), extension);
}

/// Lines "sha256 slot rule" as text "sha256 slot", each with its rule.
std::map<std::string, std::string> listedExceptions() {
    std::map<std::string, std::string> exceptions;
    std::ifstream list(CHRONOMENDER_SOURCE_TREE "/tests/reader/agreement_exceptions.txt");
    for (std::string sha, slot, rule; list >> sha >> slot >> rule;)
        exceptions[sha + ' ' + slot] = rule;
    return exceptions;
}

/// Some writers keep Exif as hexadecimal digits in a text chunk of a PNG. Such a value has no bytes
/// of its own in the file, so nothing could be said about its place.
bool isHexCoded(const CorpusFile &file) {
    for (const auto &note : file.entry.value("notes", nlohmann::json::array()))
        if (note.get<std::string>().find("hex-coded") != std::string::npos)
            return true;
    return false;
}

struct Comparison {
    int hexCoded = 0; ///< stamps that stand in no plain bytes, and so are not compared
    std::map<std::string, int> compared, equal; ///< by kind, and "overall"
    std::set<std::string> unequal;              ///< "sha256 slot"

    void count(const std::string &kind, bool isEqual) {
        for (const std::string &key : {kind, std::string("overall")}) {
            ++compared[key];
            equal[key] += isEqual ? 1 : 0;
        }
    }
};

void compare(const CorpusFile &file, Comparison &comparison) {
    const DatesData dates = readCorpusFile(file);
    EXPECT_TRUE(standsInFile(dates, little::fileContent(file.path))) << file.path;
    const auto found = valuesByName(dates);
    for (const WitnessTag &tag : kWitnessTags) {
        const Values witness = witnessValues(file, tag.tag);
        const auto expected = expectedText(tag, witness);
        const auto value = found.find(tag.slot);
        const std::string ours = value == found.end() ? "absent" : readText(tag, value->second);
        const auto isOurs = [&](const auto &byGroup) { return byGroup.second == ours; };
        if (value != found.end() && std::ranges::none_of(witness, isOurs))
            ADD_FAILURE() << file.path << " has no " << tag.slot << ' ' << ours;
        if (!expected)
            continue;
        if (value == found.end() && isHexCoded(file)) {
            ++comparison.hexCoded;
            continue;
        }
        comparison.count(file.kind, ours == *expected);
        if (ours != *expected)
            comparison.unequal.insert(file.sha256 + ' ' + tag.slot);
    }
}

TEST(Agreement, WithExifToolOnRealFiles) {
    const auto folder = little::corpusFolder(CHRONOMENDER_SOURCE_TREE);
    const auto files = little::corpusFiles(folder);
    if (files.empty())
        GTEST_SKIP() << "there are no camera files at " << folder;
    Comparison comparison;
    for (const CorpusFile &file : files) {
        if (kKinds.contains(file.kind))
            compare(file, comparison);
    }
    auto exceptions = listedExceptions();
    for (const std::string &difference : comparison.unequal)
        EXPECT_EQ(exceptions.erase(difference), 1u) << "not listed: " << difference;
    for (const auto &[entry, rule] : exceptions)
        ADD_FAILURE() << "listed, but equal or gone: " << entry;
    std::cout << comparison.hexCoded << " stamps are hex-coded text and not compared\n";
    for (const auto &[kind, compared] : comparison.compared) {
        const int equal = comparison.equal[kind];
        std::cout << kind << ": " << equal << " of " << compared << " stamps equal\n";
        EXPECT_GE(equal, compared * (kind == "overall" ? kShareOverall : kShareOfEachKind)) << kind;
    }
}

/// Places and lengths of a tag's values in the directories that are read, as ExifTool prints them.
std::map<std::uint64_t, std::uint64_t> witnessPlaces(const CorpusFile &file,
                                                     const std::string &tag) {
    const std::set<std::string> directories{"IFD0", "IFD0/ExifIFD", "IFD0/GPS"};
    std::map<std::uint64_t, std::uint64_t> places;
    for (const auto &entry : file.offsets) {
        if (entry.at("tag") == tag && directories.contains(entry.at("dir")))
            places.emplace(entry.at("offset"), entry.at("length"));
    }
    return places;
}

TEST(Agreement, OnThePlacesAndRoomsOfValues) {
    std::map<std::string, std::string> tags{{"GPSDateStamp", "GPSDateStamp"},
                                            {"GPSTimeStamp", "GPSTimeStamp"},
                                            {"latitudeRef", "GPSLatitudeRef"},
                                            {"latitude", "GPSLatitude"},
                                            {"longitudeRef", "GPSLongitudeRef"},
                                            {"longitude", "GPSLongitude"},
                                            {"altitudeRef", "GPSAltitudeRef"},
                                            {"altitude", "GPSAltitude"},
                                            {"hPositioningError", "GPSHPositioningError"}};
    for (const WitnessTag &tag : kWitnessTags)
        tags[tag.slot] = tag.tag;
    int compared = 0;
    for (const CorpusFile &file :
         little::corpusFiles(little::corpusFolder(CHRONOMENDER_SOURCE_TREE))) {
        if (!kKinds.contains(file.kind))
            continue;
        for (const auto &[name, value] : valuesByName(readCorpusFile(file))) {
            const auto places = witnessPlaces(file, tags.at(name));
            if (places.empty())
                continue;
            ++compared;
            ASSERT_TRUE(places.contains(value.offset)) << file.path << ' ' << name;
            EXPECT_EQ(value.room, places.at(value.offset)) << file.path << ' ' << name;
        }
    }
    if (compared == 0)
        GTEST_SKIP() << "there are no camera files";
    std::cout << compared << " places and rooms equal\n";
}

TEST(Agreement, ListsOnlyRulesThatAFileShows) {
    EXPECT_LE(kRules.size(), 12u);
    for (const auto &[entry, rule] : listedExceptions())
        EXPECT_TRUE(std::ranges::count(kRules, rule, &Rule::name)) << entry << ' ' << rule;
    for (const Rule &rule : kRules)
        EXPECT_THAT(valuesByName(readBytes(rule.file, rule.format)), IsEmpty()) << rule.name;
}

} // namespace
} // namespace chronomender::steps
