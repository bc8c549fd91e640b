// SPDX-License-Identifier: GPL-3.0-or-later
#include "Corpus.h"
#include "MendRun.h"

#include <filesystem>
#include <iostream>
#include <map>

namespace chronomender {
namespace {

constexpr double kShareOfPlaces = 0.97;
constexpr double kDegreesOff = 1e-4;

/// ExifTool's signed degrees; none where a file has none, and for 0/0, which is no place.
std::optional<std::pair<double, double>> witnessPlace(const little::CorpusFile &file) {
    const Json latitude = file.exiftool.value("Composite:GPSLatitude", Json());
    const Json longitude = file.exiftool.value("Composite:GPSLongitude", Json());
    if (!latitude.is_number() || !longitude.is_number() || (latitude == 0 && longitude == 0))
        return std::nullopt;
    return std::pair(latitude.get<double>(), longitude.get<double>());
}

bool isNear(const Json &line, const std::pair<double, double> &place) {
    const Json location = line.value("location", Json());
    return location.is_object() &&
           std::abs(location.at("lat").get<double>() - place.first) < kDegreesOff &&
           std::abs(location.at("lon").get<double>() - place.second) < kDegreesOff;
}

class CorpusPlaces : public MendTest {
protected:
    /// Lines of the list by "kind/name".
    std::map<std::string, Json> listed(const std::filesystem::path &corpus) const {
        Arguments arguments{"list", "--json", "--set", "createFileGroups=0"};
        for (const char *kind : {"jpeg", "tiff", "raw", "cr3", "heif", "avif", "png", "webp", "gif",
                                 "mov", "mp4", "avi"})
            arguments.push_back((corpus / kind).string());
        std::map<std::string, Json> lines;
        for (const Json &line : mend(arguments).lines())
            lines[std::filesystem::path(line.at("folder").get<std::string>()).filename() /
                  line.at("name").get<std::string>()] = line;
        return lines;
    }
};

TEST_F(CorpusPlaces, AreThoseThatExifToolFinds) {
    const auto corpus = little::corpusFolder(CHRONOMENDER_SOURCE_TREE);
    const auto files = little::corpusFiles(corpus);
    if (files.empty())
        GTEST_SKIP() << "there are no camera files at " << corpus;
    const auto lines = listed(corpus);
    std::map<std::string, std::pair<int, int>> counts; // compared and equal
    std::pair<int, int> all;
    for (const little::CorpusFile &file : files) {
        const auto line = lines.find(file.entry.at("path").get<std::string>());
        const auto place = witnessPlace(file);
        if (line == lines.end() || !place)
            continue;
        const bool isEqual = isNear(line->second, *place);
        for (auto *count : {&counts[file.kind], &all}) {
            ++count->first;
            count->second += isEqual ? 1 : 0;
        }
    }
    for (const auto &[kind, count] : counts)
        std::cout << kind << ": " << count.second << " of " << count.first << " places equal\n";
    EXPECT_GE(all.second, all.first * kShareOfPlaces);
}

} // namespace
} // namespace chronomender
