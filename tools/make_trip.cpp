// SPDX-License-Identifier: GPL-3.0-or-later
//
// make_trip FOLDER: a sample trip of three cameras whose clocks disagree.
//
//   canon/  a camera on local time, but one hour fast; half of its files carry zone stamps
//   nikon/  a camera that was never switched from home time; some files carry zone stamps
//   phone/  right, with zone stamps and positions
//   walk.gpx   the phone's track
//   plan.json  for every file, the stamps that it should hold after mending

#include "CameraExif.h"
#include "Picture.h"

#include <absl/time/time.h>
#include <nlohmann/json.hpp>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>

#include <fcntl.h>
#include <sys/stat.h>

namespace chronomender::tools {

namespace {

namespace fs = std::filesystem;
using Json = nlohmann::ordered_json;

constexpr const char *HomeZone = "Europe/Berlin", *TripZone = "Asia/Tokyo";
constexpr std::string_view HomeStamp = "+02:00", TripStamp = "+09:00"; // in April
constexpr int Width = 480, Height = 320;

enum class Kind : std::uint8_t { Jpeg, Tiff };

struct Camera {
    const char *folder, *make, *model, *lens, *namePattern;
    ByteOrder order;
    bool isOnHomeTime;
    int secondsFast;
    int firstNumber;
};
constexpr std::array cameras{
    Camera{"canon", "Canon", "Canon EOS R6", "RF24-105mm F4 L IS USM", "IMG_%04d", ByteOrder::Intel,
           false, 3600, 4101},
    Camera{"nikon", "NIKON CORPORATION", "NIKON D7500", "AF-S DX 16-80mm", "DSC_%04d",
           ByteOrder::Motorola, true, 0, 231},
    Camera{"phone", "Google", "Pixel 7", "Pixel 7 back camera", "PXL_%04d", ByteOrder::Intel, false,
           0, 1},
};
enum : std::size_t { Canon, Nikon, Phone };

struct Shot {
    std::size_t camera;
    int day, hour, minute, second; ///< when it was really taken: April 2026, trip time
    Kind kind = Kind::Jpeg;
    bool hasZoneStamp = false;
    int editedAfterDays = 0; ///< the file was edited so many days later; 0 for not at all
};
constexpr std::array shots{
    Shot{Phone, 11, 8, 57, 12, Kind::Jpeg, true},
    Shot{Canon, 11, 9, 2, 40},
    Shot{Nikon, 11, 9, 4, 5},
    Shot{Canon, 11, 9, 12, 31, Kind::Tiff},
    Shot{Phone, 11, 9, 20, 48, Kind::Jpeg, true},
    Shot{Nikon, 11, 9, 33, 59},
    Shot{Canon, 11, 10, 1, 7, Kind::Jpeg, true},
    Shot{Nikon, 11, 10, 1, 9, Kind::Jpeg, true},
    Shot{Phone, 11, 10, 1, 30, Kind::Jpeg, true},
    Shot{Canon, 11, 13, 45, 0, Kind::Jpeg, true, 9},
    Shot{Nikon, 11, 18, 22, 16},
    Shot{Phone, 11, 18, 25, 2, Kind::Jpeg, true},
    Shot{Canon, 12, 0, 20, 55},
    Shot{Nikon, 12, 5, 48, 3, Kind::Tiff},
    Shot{Canon, 12, 5, 49, 44, Kind::Jpeg, true},
    Shot{Phone, 12, 5, 52, 10, Kind::Jpeg, true},
    Shot{Nikon, 12, 11, 30, 30},
    Shot{Canon, 12, 11, 31, 2},
    Shot{Nikon, 12, 11, 31, 40, Kind::Jpeg, true},
    Shot{Phone, 12, 11, 40, 0, Kind::Jpeg, true},
    Shot{Canon, 12, 20, 15, 33, Kind::Tiff, true},
    Shot{Phone, 12, 20, 16, 21, Kind::Jpeg, true},
    Shot{Nikon, 13, 7, 0, 14},
    Shot{Canon, 13, 7, 3, 51},
    Shot{Phone, 13, 7, 10, 9, Kind::Jpeg, true},
    Shot{Nikon, 13, 7, 12, 27},
};

absl::TimeZone zone(const char *name) {
    absl::TimeZone result;
    if (!absl::LoadTimeZone(name, &result)) {
        std::fprintf(stderr, "make_trip: no zone %s in the zone database\n", name);
        std::exit(1);
    }
    return result;
}

/// A walk of three days through one city: slow, and different on each day.
Position positionAt(absl::Time time) {
    const double hours =
        absl::ToDoubleHours(time - absl::FromCivil(absl::CivilDay(2026, 4, 11), zone(TripZone)));
    return {35.0100 + 0.0007 * hours, 135.7600 + 0.0004 * hours,
            absl::ToCivilSecond(time, absl::UTCTimeZone())};
}

struct PlannedShot {
    const Shot &shot;
    const Camera &camera;
    absl::CivilSecond trueTime; ///< in the trip's zone
    absl::Time instant;
    std::string name;
    CameraRecord record;
};

PlannedShot planned(const Shot &shot, int number) {
    const auto &camera = cameras[shot.camera];
    const absl::CivilSecond trueTime(2026, 4, shot.day, shot.hour, shot.minute, shot.second);
    const auto instant = absl::FromCivil(trueTime, zone(TripZone));
    const auto cameraZone = zone(camera.isOnHomeTime ? HomeZone : TripZone);
    char name[32];
    std::snprintf(name, sizeof name, camera.namePattern, number);

    CameraRecord record{.order = camera.order,
                        .make = camera.make,
                        .model = camera.model,
                        .lens = camera.lens,
                        .wallClock = absl::ToCivilSecond(instant, cameraZone) + camera.secondsFast,
                        .edited = {},
                        .zoneStamp = {},
                        .fractionOfSecond = {},
                        .position = {},
                        .width = Width,
                        .height = Height,
                        .isCompressed = shot.kind == Kind::Jpeg,
                        .makerNote = {},
                        .thumbnail = {}};
    if (shot.editedAfterDays)
        record.edited = record.wallClock + 86400 * shot.editedAfterDays;
    if (shot.hasZoneStamp)
        record.zoneStamp = camera.isOnHomeTime ? HomeStamp : TripStamp;
    if (shot.camera == Phone) {
        record.position = positionAt(instant);
        record.fractionOfSecond = "250";
    }
    return {shot,
            camera,
            trueTime,
            instant,
            std::string(name) + (shot.kind == Kind::Tiff ? ".TIF" : ".JPG"),
            record};
}

std::string uncompressedTiff(const Picture &picture, const CameraRecord &record) {
    TiffWriter tiff(record.order);
    addCameraTags(tiff, record);
    const std::string strip(picture.rgb.begin(), picture.rgb.end());
    using enum TiffWriter::Directory;
    tiff.longs(Image, 0x0100, {record.width});
    tiff.longs(Image, 0x0101, {record.height});
    tiff.shorts(Image, 0x0102, {8, 8, 8});
    tiff.shorts(Image, 0x0103, {1});
    tiff.shorts(Image, 0x0106, {2});
    tiff.offsetOf(Image, 0x0111, strip);
    tiff.shorts(Image, 0x0115, {3});
    tiff.longs(Image, 0x0116, {record.height});
    tiff.longs(Image, 0x0117, {static_cast<std::uint32_t>(strip.size())});
    return tiff.build();
}

std::string fileBytes(const PlannedShot &plan, unsigned seed) {
    const auto secondOfDay =
        static_cast<int>(plan.trueTime - absl::CivilSecond(absl::CivilDay(plan.trueTime)));
    auto picture = landscape(Width, Height, secondOfDay, seed);
    if (plan.shot.kind == Kind::Tiff)
        return uncompressedTiff(picture, plan.record);
    addGrain(picture, 4, seed);
    CameraRecord record = plan.record;
    record.thumbnail = jpegOf(landscape(160, 120, secondOfDay, seed), 80, false);
    TiffWriter tiff(record.order);
    addCameraTags(tiff, record);
    return withExif(jpegOf(picture, 88, false), tiff.build());
}

/// Cards keep file times as the camera's wall clock; a computer at home takes them for its own.
absl::Time fileTime(const PlannedShot &plan) {
    if (plan.shot.camera == Phone)
        return plan.instant;
    return absl::FromCivil(plan.record.edited.value_or(plan.record.wallClock), zone(HomeZone));
}

Json expectation(const PlannedShot &plan) {
    const auto stamp = exifStamp(plan.trueTime);
    const auto edited = plan.record.edited ? exifStamp(*plan.record.edited) : stamp;
    Json wanted{{"DateTimeOriginal", stamp}, {"CreateDate", stamp}, {"ModifyDate", edited}};
    if (plan.shot.hasZoneStamp)
        for (const char *tag : {"OffsetTime", "OffsetTimeOriginal", "OffsetTimeDigitized"})
            wanted[tag] = TripStamp;
    return {{"path", std::string(plan.camera.folder) + "/" + plan.name},
            {"taken", absl::FormatTime(absl::RFC3339_sec, plan.instant, zone(TripZone))},
            {"clock", exifStamp(plan.record.wallClock)},
            {"isEdited", plan.record.edited.has_value()},
            {"expected", wanted}};
}

bool write(const fs::path &path, const std::string &bytes) {
    std::ofstream out(path, std::ios::binary);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return out.good();
}

bool writeShot(const fs::path &root, const PlannedShot &plan, unsigned seed) {
    const auto path = root / plan.camera.folder / plan.name;
    if (!write(path, fileBytes(plan, seed)))
        return false;
    const std::array times{timespec{0, UTIME_OMIT}, absl::ToTimespec(fileTime(plan))};
    return utimensat(AT_FDCWD, path.c_str(), times.data(), 0) == 0;
}

std::string track() {
    std::string out = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                      "<gpx version=\"1.1\" creator=\"make_trip\" "
                      "xmlns=\"http://www.topografix.com/GPX/1/1\">\n<trk><name>Walk</name>";
    for (const int day : {11, 12, 13}) {
        out += "<trkseg>\n";
        for (int minute = 5 * 60; minute < 21 * 60; ++minute) {
            const auto time =
                absl::FromCivil(absl::CivilSecond(2026, 4, day) + 60 * minute, zone(TripZone));
            const auto at = positionAt(time);
            char point[160];
            std::snprintf(
                point, sizeof point,
                "<trkpt lat=\"%.6f\" lon=\"%.6f\"><ele>51</ele><time>%s</time></trkpt>\n",
                at.latitude, at.longitude,
                absl::FormatTime("%Y-%m-%dT%H:%M:%SZ", time, absl::UTCTimeZone()).c_str());
            out += point;
        }
        out += "</trkseg>";
    }
    return out + "</trk>\n</gpx>\n";
}

int makeTrip(const fs::path &root) {
    std::array<int, cameras.size()> numbers{};
    for (std::size_t i = 0; i < cameras.size(); ++i) {
        numbers[i] = cameras[i].firstNumber;
        fs::create_directories(root / cameras[i].folder);
    }
    Json plan{{"homeZone", HomeZone}, {"tripZone", TripZone}, {"files", Json::array()}};
    unsigned seed = 1;
    for (const auto &shot : shots) {
        const auto one = planned(shot, numbers[shot.camera]++);
        if (!writeShot(root, one, seed++)) {
            std::fprintf(stderr, "make_trip: cannot write %s\n", one.name.c_str());
            return 1;
        }
        plan["files"].push_back(expectation(one));
    }
    return write(root / "walk.gpx", track()) && write(root / "plan.json", plan.dump(1) + "\n") ? 0
                                                                                               : 1;
}

} // namespace

} // namespace chronomender::tools

int main(int argc, char **argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: make_trip FOLDER\n");
        return 2;
    }
    return chronomender::tools::makeTrip(argv[1]);
}
