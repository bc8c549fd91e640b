// SPDX-License-Identifier: GPL-3.0-or-later
//
// make_bench_files FOLDER COUNT BODY_BYTES: COUNT JPEGs with full Exif (about seventy tags, maker
// note, thumbnail, position) and a picture of about BODY_BYTES, dates in no order. BODY_BYTES 0
// makes the smallest picture there is.

#include "CameraExif.h"
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

int makeFiles(const std::filesystem::path &root, std::size_t count, std::size_t bodySize) {
    std::filesystem::create_directories(root);
    const int folder = open(root.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const auto picture = body(bodySize);
    const auto thumbnail = jpegOf(landscape(160, 120, 12 * 3600, 1), 85, false);
    for (std::size_t i = 0; i < count; ++i) {
        auto exif = record(i);
        exif.thumbnail = thumbnail;
        TiffWriter tiff(exif.order);
        addCameraTags(tiff, exif);
        char name[32];
        std::snprintf(name, sizeof name, "IMG_%05zu.JPG", i);
        if (!writeFile(folder, name, withExif(picture, tiff.build()), exif.wallClock)) {
            std::fprintf(stderr, "make_bench_files: cannot write %s\n", name);
            return 1;
        }
    }
    close(folder);
    return 0;
}

} // namespace

} // namespace chronomender::tools

int main(int argc, char **argv) {
    if (argc != 4) {
        std::fprintf(stderr, "usage: make_bench_files FOLDER COUNT BODY_BYTES\n");
        return 2;
    }
    return chronomender::tools::makeFiles(argv[1], std::strtoul(argv[2], nullptr, 10),
                                          std::strtoul(argv[3], nullptr, 10));
}
