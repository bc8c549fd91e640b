// SPDX-License-Identifier: GPL-3.0-or-later
#include "Corpus.h"
#include "ReaderSteps.h"
#include "TemporaryFolder.h"
#include "XmpValues.h"

#include <algorithm>
#include <iostream>
#include <set>

// Compares the scan of XMP packets with independent witnesses on real files: dates with a search
// for properties over the whole file, places with the degrees that ExifTool tells.
namespace chronomender::steps {
namespace {

using little::CorpusFile;

const std::set<std::string> kKinds{"jpeg", "tiff", "raw",  "heif", "avif",
                                   "cr3",  "png",  "webp", "xmp"};
const char *const kBlankNamespace = "a blank behind the namespace moves the packet by a byte";
const char *const kNoHemisphere = "degrees and minutes without a hemisphere";
const char *const kFractions = "a place written as the fractions of Exif";
/// Values that the reader leaves out on purpose, and why.
const std::map<std::string, std::string> kExceptions{
    {"jpeg/tika__testJPEG_GEO.jpg exif:DateTimeDigitized", kBlankNamespace},
    {"jpeg/tika__testJPEG_GEO.jpg xmp:MetadataDate", kBlankNamespace},
    {"jpeg/tika__testJPEG_commented.jpg exif:GPSLatitude", kNoHemisphere},
    {"jpeg/tika__testJPEG_commented.jpg exif:GPSLongitude", kNoHemisphere},
    {"png/bep-imagemeta__issue-590.png exif:GPSLatitude", kFractions},
    {"png/bep-imagemeta__issue-590.png exif:GPSLongitude", kFractions},
};

/// The packet of a file or a whole sidecar.
XmpSidecar readCorpusXmp(const CorpusFile &file) {
    MySingleFolderDataReader reader;
    EXPECT_TRUE(reader.open(file.path)) << file.path;
    const std::string extension = std::filesystem::path(file.path).extension().string().substr(1);
    std::vector<Finding> findings;
    if (file.kind == "xmp")
        return reader.readXmpSidecar(findings);
    const auto format = fileFormatTypeForContent(reader.firstBytes(), extension)
                            .value_or(fileFormatTypeForExtension(extension));
    DatesData known = reader.readDates(format, extension);
    return {reader.readXmpDates(format, known).value_or(XmpDateInfos()),
            reader.readXmpLocation(format, known),
            {}};
}

/// Every date property of the file with its values, in the order of the file.
std::map<std::string, std::vector<LocatedBytes>> witnessDates(const CorpusFile &file) {
    std::map<std::string, std::vector<LocatedBytes>> values;
    for (const auto &entry : file.entry.value("xmp_values", nlohmann::json::array())) {
        std::string name = entry.at("property");
        if (name.starts_with("xap:"))
            name.replace(0, 4, "xmp:");
        const std::string text = entry.at("text");
        values[name].push_back({entry.at("offset"), static_cast<std::uint32_t>(text.size()), text});
    }
    return values;
}

bool isDate(const std::string &text) {
    constexpr std::string_view kShape = "0000-00-00T00:00";
    constexpr std::size_t kLongest = 29;
    const auto fits = [](char wanted, char present) {
        return wanted == '0' ? present >= '0' && present <= '9' : wanted == present;
    };
    return text.size() <= kLongest &&
           std::ranges::equal(kShape, std::string_view(text).substr(0, kShape.size()), fits) &&
           text.find_first_not_of("0123456789:.+-Z", kShape.size()) == std::string::npos;
}

struct Comparison {
    std::map<std::string, int> compared, equal; ///< by kind, and "places"

    void count(const std::string &kind, const std::string &what, bool isEqual) {
        ++compared[kind];
        equal[kind] += isEqual ? 1 : 0;
        EXPECT_EQ(kExceptions.contains(what), !isEqual) << what;
    }
};

std::string nameOf(const CorpusFile &file) {
    return file.kind + '/' + std::filesystem::path(file.path).filename().string();
}

void compareDates(const CorpusFile &file, const XmpDateInfos &dates, Comparison &comparison) {
    const auto ours = little::valuesByName(dates);
    const auto witness = witnessDates(file);
    for (const auto &[property, value] : ours)
        EXPECT_TRUE(witness.contains(property) && std::ranges::count(witness.at(property), value))
            << file.path << " has no " << property << ' ' << value.data;
    for (const XmpDateName &each : kXmpDateNames) {
        const std::string property(each.name.name);
        if (witness.contains(property) && isDate(witness.at(property).front().data))
            comparison.count(file.kind, nameOf(file) + ' ' + property,
                             ours.contains(property) &&
                                 ours.at(property) == witness.at(property).front());
    }
}

std::optional<double> degrees(const std::optional<LocatedBytes> &value,
                              const std::optional<LocatedBytes> &reference, XmpAxis axis) {
    return value ? degreesFromXmpCoordinate(value->data, reference ? reference->data : "", axis)
                 : std::nullopt;
}

/// The degrees that ExifTool tells; a reference that is kept apart does not change its sign.
std::optional<double> witnessDegrees(const CorpusFile &file, const std::string &property) {
    const auto value = file.exiftool.find("XMP-" + property);
    if (value == file.exiftool.end() || !value->is_number())
        return std::nullopt;
    const std::string reference = file.exiftool.value("XMP-" + property + "Ref", "");
    const auto degrees = value->get<double>();
    return reference == "S" || reference == "W" ? -std::abs(degrees) : degrees;
}

void comparePlace(const CorpusFile &file, const XmpLocation &place, Comparison &comparison) {
    for (const auto &[property, ours] :
         {std::pair{"exif:GPSLatitude", degrees(place.gpsLat, place.gpsLatRef, XmpAxis::Latitude)},
          std::pair{"exif:GPSLongitude",
                    degrees(place.gpsLon, place.gpsLonRef, XmpAxis::Longitude)}})
        if (const auto witness = witnessDegrees(file, property))
            comparison.count("places", nameOf(file) + ' ' + property,
                             ours && std::abs(*ours - *witness) < 1e-7);
}

TEST(XmpAgreement, OnDatesAndPlacesOfRealFiles) {
    const auto folder = little::corpusFolder(CHRONOMENDER_SOURCE_TREE);
    Comparison comparison;
    for (const CorpusFile &file : little::corpusFiles(folder)) {
        if (!kKinds.contains(file.kind))
            continue;
        const XmpSidecar found = readCorpusXmp(file);
        compareDates(file, found.dates, comparison);
        comparePlace(file, found.location, comparison);
    }
    if (comparison.compared.empty())
        GTEST_SKIP() << "there are no camera files at " << folder;
    for (const auto &[kind, compared] : comparison.compared) {
        const int equal = comparison.equal[kind];
        std::cout << kind << ": " << equal << " of " << compared << " values equal\n";
        EXPECT_GE(equal, compared * 0.90) << kind;
    }
}

} // namespace
} // namespace chronomender::steps
