// SPDX-License-Identifier: GPL-3.0-or-later
//
// make_bench_files FOLDER COUNT BODY_BYTES [mixed]: COUNT JPEGs with full Exif (about seventy tags,
// maker note, thumbnail, position) and a picture of about BODY_BYTES, dates in no order. BODY_BYTES
// 0 makes the smallest picture there is. With "mixed", three files in ten are of other formats, in
// turn, around the same picture.
//
// make_bench_files FOLDER COUNT large|bare: COUNT names of JPEGs as a camera of 24 megapixels makes
// them, with a thumbnail or without. Each file has many names, as nobody's disk has room for them.
//
// make_bench_files FOLDER COUNT shots|bareshots: COUNT JPEGs with a thumbnail or without, each a
// file of its own, in the order of their dates. The first hundred have 24 megapixels, the others a
// small picture.

#include "CameraExif.h"
#include "Containers.h"
#include "Picture.h"

#include <absl/time/time.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <random>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace chronomender::tools {

namespace {

constexpr std::size_t MakerNoteSize = 4096;

/// A picture whose stream has about that many bytes: grain makes some 0.88 bytes a pixel.
std::string body(std::size_t size) {
    const int side = size == 0 ? 16 : static_cast<int>(std::sqrt(static_cast<double>(size) / 0.88));
    auto picture = landscape(side, side, 12 * 3600, 1);
    addGrain(picture, 60, 1);
    return jpegOf(picture, 95, false);
}

std::string makerNote() {
    std::minstd_rand random(7);
    std::string note = "MADE";
    while (note.size() < MakerNoteSize)
        note += static_cast<char>(random() >> 8U & 0xFFU);
    return note;
}

CameraRecord record(std::size_t index) {
    // A permutation of the seconds of a month in summer, so that no order of names is that of
    // dates.
    const auto second = static_cast<std::int64_t>(index * 7919 % 2'419'200);
    const absl::CivilSecond time = absl::CivilSecond(2025, 6, 2) + second;
    return {.order = ByteOrder::Intel,
            .make = "Maker",
            .model = "Maker M" + std::to_string(index % 5),
            .lens = "24-105mm F4",
            .wallClock = time,
            .edited = {},
            .zoneStamp = "+02:00",
            .fractionOfSecond = "12",
            .position = Position{48.1 + static_cast<double>(index % 100) / 100, 11.5, time - 7200},
            .width = 6000,
            .height = 4000,
            .isCompressed = true,
            .makerNote = makerNote(),
            .thumbnail = {}};
}

bool writeFile(int folder, const std::string &name, const std::string &bytes,
               absl::CivilSecond wallClock) {
    const int file = openat(folder, name.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (file < 0)
        return false;
    std::size_t done = 0;
    while (done < bytes.size()) {
        const auto count = ::write(file, bytes.data() + done, bytes.size() - done);
        if (count <= 0)
            break;
        done += static_cast<std::size_t>(count);
    }
    const auto time = absl::FromCivil(wallClock - 7200, absl::UTCTimeZone());
    const std::array times{timespec{0, UTIME_OMIT}, absl::ToTimespec(time)};
    const bool areTimesSet = futimens(file, times.data()) == 0;
    return close(file) == 0 && areTimesSet && done == bytes.size();
}

struct OtherFormat {
    const char *ending;
    std::string (*build)(const CameraRecord &record, const std::string &picture);
};
constexpr OtherFormat otherFormats[]{
    {"HEIC", [](const CameraRecord &record,
                const std::string &picture) { return heicOf(record, picture); }},
    {"MOV", [](const CameraRecord &record,
               const std::string &picture) { return movieOf(record, "qt  ", picture); }},
    {"CR3",
     [](const CameraRecord &record, const std::string &picture) { return cr3Of(record, picture); }},
    {"MP4",
     [](const CameraRecord &record, const std::string &picture) {
         CameraRecord withoutKeys = record;
         withoutKeys.zoneStamp.reset();
         return movieOf(withoutKeys, "isom", picture);
     }},
    {"PNG",
     [](const CameraRecord &record, const std::string &picture) { return pngOf(record, picture); }},
    {"WEBP", [](const CameraRecord &record,
                const std::string &picture) { return webpOf(record, picture); }},
    {"AVI",
     [](const CameraRecord &record, const std::string &picture) { return aviOf(record, picture); }},
};

std::string largeBody() {
    auto picture = landscape(6000, 4000, 12 * 3600, 1);
    addGrain(picture, 24, 1);
    return jpegOf(picture, 90, false);
}

struct NamedFile {
    std::string ending, bytes;
};

NamedFile fileOf(std::size_t index, bool isMixed, const CameraRecord &record,
                 const std::string &picture) {
    constexpr std::size_t inTen = 10, jpegsInTen = 7;
    if (isMixed && index % inTen >= jpegsInTen) {
        const std::size_t turn = index / inTen * (inTen - jpegsInTen) + index % inTen - jpegsInTen;
        const OtherFormat &format = otherFormats[turn % std::size(otherFormats)];
        return {format.ending, format.build(record, picture)};
    }
    TiffWriter tiff(record.order);
    addCameraTags(tiff, record);
    return {"JPG", withExif(picture, tiff.build())};
}

std::string numberedName(std::size_t index, const std::string &ending) {
    char name[32];
    std::snprintf(name, sizeof name, "IMG_%05zu.%s", index, ending.c_str());
    return name;
}

int makeFiles(const std::filesystem::path &root, std::size_t count, std::size_t bodySize,
              bool isMixed) {
    std::filesystem::create_directories(root);
    const int folder = open(root.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const auto picture = body(bodySize);
    const auto thumbnail = jpegOf(landscape(160, 120, 12 * 3600, 1), 85, false);
    for (std::size_t i = 0; i < count; ++i) {
        auto exif = record(i);
        exif.thumbnail = thumbnail;
        const NamedFile file = fileOf(i, isMixed, exif, picture);
        const std::string name = numberedName(i, file.ending);
        if (!writeFile(folder, name, file.bytes, exif.wallClock)) {
            std::fprintf(stderr, "make_bench_files: cannot write %s\n", name.c_str());
            return 1;
        }
    }
    close(folder);
    return 0;
}

int ended(const std::filesystem::path &root, int folder, bool isDone) {
    close(folder);
    if (!isDone)
        std::fprintf(stderr, "make_bench_files: cannot write in %s\n", root.c_str());
    return isDone ? 0 : 1;
}

int makeLargeFiles(const std::filesystem::path &root, std::size_t count, bool hasThumbnail) {
    constexpr std::size_t filesOnDisk = 40;
    std::filesystem::create_directories(root);
    const int folder = open(root.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const std::string picture = largeBody();
    bool isDone = folder >= 0;
    for (std::size_t i = 0; i < count && isDone; ++i) {
        const std::string name = numberedName(i, "JPG");
        if (i >= filesOnDisk) {
            isDone = linkat(folder, numberedName(i % filesOnDisk, "JPG").c_str(), folder,
                            name.c_str(), 0) == 0;
            continue;
        }
        auto exif = record(i);
        if (hasThumbnail)
            exif.thumbnail = jpegOf(landscape(160, 120, 12 * 3600, 1), 85, false);
        isDone = writeFile(folder, name, fileOf(i, false, exif, picture).bytes, exif.wallClock);
    }
    return ended(root, folder, isDone);
}

int makeShots(const std::filesystem::path &root, std::size_t count, bool hasThumbnail) {
    constexpr std::size_t largeCount = 100, smallBody = 20'000;
    std::filesystem::create_directories(root);
    const int folder = open(root.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const std::string large = largeBody(), small = body(smallBody);
    const std::string thumbnail = jpegOf(landscape(160, 120, 12 * 3600, 1), 85, false);
    bool isDone = folder >= 0;
    for (std::size_t i = 0; i < count && isDone; ++i) {
        auto exif = record(i);
        exif.wallClock = absl::CivilSecond(2025, 6, 2) + static_cast<std::int64_t>(60 * i);
        if (hasThumbnail)
            exif.thumbnail = thumbnail;
        isDone =
            writeFile(folder, numberedName(i, "JPG"),
                      fileOf(i, false, exif, i < largeCount ? large : small).bytes, exif.wallClock);
    }
    return ended(root, folder, isDone);
}

} // namespace

} // namespace chronomender::tools

int main(int argc, char **argv) {
    const std::string_view kind = argc == 4 ? argv[3] : "";
    if (kind == "large" || kind == "bare")
        return chronomender::tools::makeLargeFiles(argv[1], std::strtoul(argv[2], nullptr, 10),
                                                   kind == "large");
    if (kind == "shots" || kind == "bareshots")
        return chronomender::tools::makeShots(argv[1], std::strtoul(argv[2], nullptr, 10),
                                              kind == "shots");
    const bool isMixed = argc == 5 && std::string_view(argv[4]) == "mixed";
    if (argc != 4 && !isMixed) {
        std::fprintf(stderr, "usage: make_bench_files FOLDER COUNT BODY_BYTES [mixed]\n"
                             "       make_bench_files FOLDER COUNT large|bare|shots|bareshots\n");
        return 2;
    }
    return chronomender::tools::makeFiles(argv[1], std::strtoul(argv[2], nullptr, 10),
                                          std::strtoul(argv[3], nullptr, 10), isMixed);
}
