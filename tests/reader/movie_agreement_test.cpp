// SPDX-License-Identifier: GPL-3.0-or-later
#include "Corpus.h"
#include "MovieSteps.h"
#include "ReadValues.h"
#include "TemporaryFolder.h"

#include <cmath>
#include <iostream>

// Compares the walks of movies with an independent witness: where ExifTool finds dates and places
// in real files, and which bytes stand there.
namespace chronomender::steps {
namespace {

using little::CorpusFile;

constexpr double kShareOverall = 0.97, kShareOfEachKind = 0.90;
/// With fewer values a single one decides about a share.
constexpr int kFewestForAShare = 10;

/// A value of ours and the tag under which the witness knows it.
struct WitnessPlace {
    const char *value, *tag, *directory;
    std::size_t skipped; ///< bytes in front of the text, which the witness counts as the value's
};
const std::vector<WitnessPlace> kWitnessPlaces{
    {"creaDate", "CreateDate", "Movie/BinaryData", 0},
    {"modDate", "ModifyDate", "Movie/BinaryData", 0},
    {"QtCreationdate", "CreationDate", "Movie/Meta/ItemList", 0},
    {"location0", "GPSCoordinates", "Movie/Meta/ItemList", 0},
    {"location0", "GPSCoordinates", "Movie/UserData", 4}, // length and language of the text
    {"riffCreaDate", "DateTimeOriginal", "Hdrl", 0},
};

/// Values that the reader leaves out on purpose, and why.
const std::map<std::string, std::string> kExceptions{
    {"avi/exiftool__Pentax.avi riffCreaDate", "a date text that has not 26 characters"},
};

std::string bytesOf(const nlohmann::json &entry) {
    if (entry.contains("text"))
        return entry.at("text");
    std::string bytes;
    const std::string digits = entry.at("hex");
    for (std::size_t i = 0; i + 1 < digits.size(); i += 2)
        bytes += static_cast<char>(std::stoi(digits.substr(i, 2), nullptr, 16));
    return bytes;
}

std::optional<LocatedBytes> witnessValue(const CorpusFile &file, const WitnessPlace &place) {
    for (const auto &entry : file.offsets) {
        if (entry.at("tag") != place.tag || entry.at("dir") != place.directory)
            continue;
        const std::string bytes = bytesOf(entry).substr(place.skipped);
        const std::uint64_t offset = entry.at("offset").get<std::uint64_t>() + place.skipped;
        return LocatedBytes{offset, static_cast<std::uint32_t>(bytes.size()), bytes};
    }
    return std::nullopt;
}

/// A header time of 0 is no date; both are reported only where both are 0.
bool isEmptyTimeBesideADate(const CorpusFile &file, const LocatedBytes &value) {
    const auto isZero = [](const LocatedBytes &each) { return each.data == std::string(4, '\0'); };
    const auto created = witnessValue(file, kWitnessPlaces[0]);
    const auto modified = witnessValue(file, kWitnessPlaces[1]);
    return isZero(value) && created && modified && !(isZero(*created) && isZero(*modified));
}

std::optional<MovieHeader> readCorpusMovie(const CorpusFile &file, MovieDetails *details) {
    MySingleFolderDataReader reader;
    EXPECT_TRUE(reader.open(file.path)) << file.path;
    std::string extension = std::filesystem::path(file.path).extension().string().substr(1);
    const auto format = fileFormatTypeForContent(reader.firstBytes(), extension)
                            .value_or(fileFormatTypeForExtension(extension));
    *details = reader.readMovieDetails();
    return reader.readMovieHeader(format);
}

struct Count {
    int compared = 0, equal = 0;
};

void compareDetails(const CorpusFile &file, const MovieDetails &details) {
    const auto witness = [&](const char *tag) { return file.exiftool.value(tag, std::string()); };
    EXPECT_EQ(details.contentIdentifier, witness("Keys:ContentIdentifier")) << file.path;
    if (file.exiftool.contains("Keys:Make")) {
        EXPECT_EQ(details.make + details.model, witness("Keys:Make") + witness("Keys:Model"));
    }
    const double duration = file.exiftool.value("QuickTime:Duration", -1.0);
    if (duration >= 0) {
        EXPECT_NEAR(details.movDuration, duration, 0.001) << file.path;
    }
}

void compare(const CorpusFile &file, Count &count) {
    MovieDetails details;
    const auto header = readCorpusMovie(file, &details);
    compareDetails(file, details);
    auto ours = header ? little::valuesByName(*header) : std::map<std::string, LocatedBytes>();
    const std::string name = file.kind + '/' + std::filesystem::path(file.path).filename().string();
    for (const WitnessPlace &place : kWitnessPlaces) {
        const auto expected = witnessValue(file, place);
        if (!expected || isEmptyTimeBesideADate(file, *expected))
            continue;
        ++count.compared;
        const auto found = ours.find(place.value);
        const bool isEqual = found != ours.end() && found->second == *expected;
        count.equal += isEqual ? 1 : 0;
        const std::string difference = name + ' ' + place.value;
        EXPECT_EQ(kExceptions.contains(difference), !isEqual) << difference;
        if (found != ours.end())
            ours.erase(found);
    }
    for (const auto &[value, bytes] : ours)
        EXPECT_TRUE(value.starts_with("accuracy")) << name << " has no " << value;
}

TEST(MovieAgreement, WithExifToolOnRealFiles) {
    const auto folder = little::corpusFolder(CHRONOMENDER_SOURCE_TREE);
    std::map<std::string, Count> counts;
    for (const CorpusFile &file : little::corpusFiles(folder)) {
        if (file.kind == "mov" || file.kind == "mp4" || file.kind == "avi")
            compare(file, counts[file.kind]);
    }
    if (counts.empty())
        GTEST_SKIP() << "there are no camera files at " << folder;
    Count all;
    for (const auto &[kind, count] : counts) {
        std::cout << kind << ": " << count.equal << " of " << count.compared << " values equal\n";
        if (count.compared >= kFewestForAShare) {
            EXPECT_GE(count.equal, count.compared * kShareOfEachKind) << kind;
        }
        all = {all.compared + count.compared, all.equal + count.equal};
    }
    EXPECT_GE(all.equal, all.compared * kShareOverall);
}

} // namespace
} // namespace chronomender::steps
