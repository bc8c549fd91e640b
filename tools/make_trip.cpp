// SPDX-License-Identifier: GPL-3.0-or-later
//
// make_trip FOLDER: a sample trip of five cameras whose clocks disagree, and one night at home.
//
//   canon/   a camera on local time, but one hour fast; half of its files carry zone stamps, some
//            shots lie in a raw file and a JPEG, one raw file has an XMP sidecar, and some pictures
//            were exported to HEIC, WebP, PNG and JPEG, the latter two with their dates in XMP only
//   nikon/   a camera that was never switched from home time; some files carry zone stamps; a PNG
//            with Exif, and a picture that lost all its tags
//   phone/   right, with zone stamps and positions; HEIC, a live photo, a screenshot, a received
//            picture without any date, an AAE sidecar
//   gopro/   movies (MP4 and MOV) whose header holds the camera's own clock, two hours slow
//   oldcam/  AVI movies on home time
//   party/   a compact camera without zone stamps, in the night in which Berlin's clocks go back
//   friend/  a phone in the same night, which writes zone stamps
//   walk.gpx   the phone's track
//   plan.json  for every file, the stamps that it should hold after mending, and which encoder is
//              still to make it: scripts/trip/encode.py does that

#include "CameraExif.h"
#include "Containers.h"
#include "Picture.h"

#include <absl/time/time.h>
#include <nlohmann/json.hpp>

#include <algorithm>
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

enum class Kind : std::uint8_t {
    Jpeg,
    Tiff,
    RawWithJpeg,    ///< a CR3 and a JPEG
    RawWithSidecar, ///< a CR3 and an XMP file
    Heic,           ///< with an AAE file
    LivePhoto,      ///< a HEIC and a movie
    Screenshot,     ///< a PNG whose date stands in XMP
    Received,       ///< a WebP without any date
    Movie,          ///< an MP4 whose header holds the camera's clock
    OldMovie,       ///< an AVI
    QuickTimeMovie, ///< as Movie, in a MOV
    ExifPng,
    ExifWebp,
    XmpJpeg,   ///< all dates stand in XMP
    TypedDate, ///< a JPEG whose only date was typed into XMP, without seconds
    Untagged,  ///< a JPEG without any tag
};

struct Camera {
    const char *folder, *make, *model, *lens, *namePattern;
    ByteOrder order;
    bool isOnHomeTime;
    int secondsFast;
    int firstNumber;
    bool isAtHome = false; ///< the pictures were taken at home
};
constexpr std::array cameras{
    Camera{"canon", "Canon", "Canon EOS R6", "RF24-105mm F4 L IS USM", "IMG_%04d", ByteOrder::Intel,
           false, 3600, 4101},
    Camera{"nikon", "NIKON CORPORATION", "NIKON D7500", "AF-S DX 16-80mm", "DSC_%04d",
           ByteOrder::Motorola, true, 0, 231},
    Camera{"phone", "Google", "Pixel 7", "Pixel 7 back camera", "PXL_%04d", ByteOrder::Intel, false,
           0, 1},
    Camera{"gopro", "GoPro", "HERO9 Black", "", "GOPR%04d", ByteOrder::Motorola, false, -7200, 12},
    Camera{"oldcam", "PENTAX", "Optio S", "", "IMGP%04d", ByteOrder::Intel, true, 0, 77},
    Camera{"party", "OLYMPUS", "STYLUS 850", "", "P%04d", ByteOrder::Intel, true, 0, 1, true},
    Camera{"friend", "Fairphone", "FP5", "", "FP_%04d", ByteOrder::Intel, true, 0, 1, true},
};
enum : std::size_t { Canon, Nikon, Phone, GoPro, OldCam, Party, Friend };

/// Berlin's clocks went back from 3 to 2 o'clock on 25 October 2026, at 1:00 UTC. The camera's own
/// clock shows its time twice in the hour before and the hour after.
struct NightShot {
    std::size_t camera;
    int hour, minute, second; ///< of the wall clock
    int hoursAheadOfUtc;
};
constexpr std::array nightShots{
    NightShot{Party, 1, 50, 11, 2}, NightShot{Party, 2, 30, 0, 2},  NightShot{Friend, 2, 45, 20, 2},
    NightShot{Friend, 2, 10, 5, 1}, NightShot{Party, 2, 40, 30, 1}, NightShot{Party, 3, 10, 45, 1},
};

struct Shot {
    std::size_t camera;
    int day, hour, minute, second; ///< when it was really taken: April 2026, trip time
    Kind kind = Kind::Jpeg;
    bool hasZoneStamp = false;
    int editedAfterDays = 0; ///< the file was edited so many days later; 0 for not at all
};
constexpr std::array shots{
    Shot{Phone, 11, 8, 57, 12, Kind::Jpeg, true},
    Shot{GoPro, 11, 8, 59, 30, Kind::Movie},
    Shot{Canon, 11, 9, 2, 40, Kind::RawWithJpeg},
    Shot{Nikon, 11, 9, 4, 5},
    Shot{Canon, 11, 9, 12, 31, Kind::Tiff},
    Shot{Phone, 11, 9, 20, 48, Kind::LivePhoto, true},
    Shot{OldCam, 11, 9, 21, 30, Kind::OldMovie},
    Shot{Phone, 11, 9, 25, 0, Kind::Screenshot, true},
    Shot{Nikon, 11, 9, 33, 59},
    Shot{Canon, 11, 10, 1, 7, Kind::Jpeg, true},
    Shot{Nikon, 11, 10, 1, 9, Kind::Jpeg, true},
    Shot{Phone, 11, 10, 1, 30, Kind::Heic, true},
    Shot{Phone, 11, 12, 10, 0, Kind::Received},
    Shot{Canon, 11, 12, 30, 18, Kind::ExifWebp},
    Shot{Canon, 11, 13, 45, 0, Kind::Jpeg, true, 9},
    Shot{Nikon, 11, 14, 2, 51, Kind::ExifPng, true},
    Shot{GoPro, 11, 15, 12, 9, Kind::QuickTimeMovie},
    Shot{Canon, 11, 16, 40, 33, Kind::XmpJpeg, true},
    Shot{Nikon, 11, 18, 22, 16},
    Shot{Phone, 11, 18, 25, 2, Kind::Jpeg, true},
    Shot{Canon, 12, 0, 20, 55, Kind::RawWithSidecar},
    Shot{GoPro, 12, 5, 30, 1, Kind::Movie},
    Shot{Nikon, 12, 5, 48, 3, Kind::Tiff},
    Shot{Canon, 12, 5, 49, 44, Kind::Jpeg, true},
    Shot{Canon, 12, 5, 50, 2, Kind::Screenshot, true},
    Shot{Phone, 12, 5, 52, 10, Kind::Jpeg, true},
    Shot{Nikon, 12, 11, 30, 30},
    Shot{Canon, 12, 11, 31, 2, Kind::RawWithJpeg, true},
    Shot{OldCam, 12, 11, 31, 20, Kind::OldMovie},
    Shot{Nikon, 12, 11, 31, 40, Kind::Jpeg, true},
    Shot{Phone, 12, 11, 40, 0, Kind::Jpeg, true},
    Shot{Canon, 12, 14, 5, 25, Kind::TypedDate, true},
    Shot{Nikon, 12, 15, 20, 40, Kind::Untagged, true},
    Shot{Canon, 12, 17, 8, 12, Kind::Heic, true},
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
    Shot shot;
    const Camera &camera;
    absl::CivilSecond trueTime; ///< where it was taken
    absl::Time instant;
    std::string zoneStamp; ///< of the place where it was taken
    std::string name;
    CameraRecord record;
};

CameraRecord cameraRecord(const Camera &camera, absl::CivilSecond wallClock, bool isCompressed) {
    return {.order = camera.order,
            .make = camera.make,
            .model = camera.model,
            .lens = camera.lens,
            .wallClock = wallClock,
            .edited = {},
            .zoneStamp = {},
            .fractionOfSecond = {},
            .position = {},
            .width = Width,
            .height = Height,
            .isCompressed = isCompressed,
            .makerNote = {},
            .thumbnail = {}};
}

std::string fileName(const Camera &camera, int number) {
    char name[32];
    std::snprintf(name, sizeof name, camera.namePattern, number);
    return name;
}

PlannedShot planned(const Shot &shot, int number) {
    const auto &camera = cameras[shot.camera];
    const absl::CivilSecond trueTime(2026, 4, shot.day, shot.hour, shot.minute, shot.second);
    const auto instant = absl::FromCivil(trueTime, zone(TripZone));
    const auto cameraZone = zone(camera.isOnHomeTime ? HomeZone : TripZone);
    CameraRecord record =
        cameraRecord(camera, absl::ToCivilSecond(instant, cameraZone) + camera.secondsFast,
                     shot.kind == Kind::Jpeg);
    if (shot.editedAfterDays)
        record.edited = record.wallClock + 86400 * shot.editedAfterDays;
    if (shot.hasZoneStamp)
        record.zoneStamp = camera.isOnHomeTime ? HomeStamp : TripStamp;
    if (shot.camera == Phone) {
        record.position = positionAt(instant);
        record.fractionOfSecond = "250";
    }
    return {shot,  camera, trueTime, instant, std::string(TripStamp), fileName(camera, number),
            record};
}

/// A picture of the night: its clock is right.
PlannedShot planned(const NightShot &night, int number) {
    const auto &camera = cameras[night.camera];
    const absl::CivilSecond wallClock(2026, 10, 25, night.hour, night.minute, night.second);
    const auto offset = absl::Hours(night.hoursAheadOfUtc);
    const std::string zoneStamp = "+0" + std::to_string(night.hoursAheadOfUtc) + ":00";
    Shot shot{night.camera, 25, night.hour, night.minute, night.second};
    shot.hasZoneStamp = night.camera == Friend;
    CameraRecord record = cameraRecord(camera, wallClock, true);
    if (shot.hasZoneStamp)
        record.zoneStamp = zoneStamp;
    return {shot,      camera,
            wallClock, absl::FromCivil(wallClock, absl::UTCTimeZone()) - offset,
            zoneStamp, fileName(camera, number),
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

Picture pictureOf(const PlannedShot &plan, unsigned seed) {
    const auto secondOfDay =
        static_cast<int>(plan.trueTime - absl::CivilSecond(absl::CivilDay(plan.trueTime)));
    return landscape(Width, Height, secondOfDay, seed);
}

std::string jpegFile(const PlannedShot &plan, unsigned seed) {
    auto picture = pictureOf(plan, seed);
    const auto secondOfDay =
        static_cast<int>(plan.trueTime - absl::CivilSecond(absl::CivilDay(plan.trueTime)));
    addGrain(picture, 4, seed);
    CameraRecord record = plan.record;
    record.thumbnail = jpegOf(landscape(160, 107, secondOfDay, seed), 80, false);
    TiffWriter tiff(record.order);
    addCameraTags(tiff, record);
    return withExif(jpegOf(picture, 88, false), tiff.build());
}

/// Cards keep file times as the camera's wall clock; a computer at home takes them for its own.
absl::Time fileTime(const PlannedShot &plan) {
    if (plan.shot.camera == Phone || plan.camera.isAtHome)
        return plan.instant;
    return absl::FromCivil(plan.record.edited.value_or(plan.record.wallClock), zone(HomeZone));
}

/// "2026-04-11T08:57:12+09:00", in the zone of the place.
std::string takenText(const PlannedShot &plan) {
    return absl::FormatTime(absl::RFC3339_sec, plan.instant,
                            zone(plan.camera.isAtHome ? HomeZone : TripZone));
}

std::string withDashes(std::string stamp) {
    stamp[4] = stamp[7] = '-';
    stamp[10] = 'T';
    return stamp;
}

Json exifExpectation(const PlannedShot &plan) {
    const auto stamp = exifStamp(plan.trueTime);
    const auto edited = plan.record.edited ? exifStamp(*plan.record.edited) : stamp;
    Json wanted{
        {"EXIF:DateTimeOriginal", stamp}, {"EXIF:CreateDate", stamp}, {"EXIF:ModifyDate", edited}};
    if (plan.shot.hasZoneStamp)
        for (const char *tag :
             {"EXIF:OffsetTime", "EXIF:OffsetTimeOriginal", "EXIF:OffsetTimeDigitized"})
            wanted[tag] = plan.zoneStamp;
    return wanted;
}

/// Header times of a movie, as the header has them.
Json headerExpectation(absl::CivilSecond time) {
    return {{"QuickTime:CreateDate", exifStamp(time)}, {"QuickTime:ModifyDate", exifStamp(time)}};
}

Json xmpExpectation(const PlannedShot &plan, std::initializer_list<const char *> tags) {
    Json wanted = Json::object();
    for (const char *tag : tags)
        wanted[tag] = exifStamp(plan.trueTime) + std::string(TripStamp);
    return wanted;
}

Json livePhotoExpectation(const PlannedShot &plan) {
    Json wanted = headerExpectation(absl::ToCivilSecond(plan.instant, absl::UTCTimeZone()));
    wanted["QuickTime:CreationDate"] = exifStamp(plan.trueTime) + std::string(TripStamp);
    return wanted;
}

constexpr std::string_view Sidecar =
    R"(<?xpacket begin="" id="W5M0MpCehiHzreSzNTczkc9d"?>
<x:xmpmeta xmlns:x="adobe:ns:meta/"><rdf:RDF xmlns:rdf="http://www.w3.org/1999/02/22-rdf-syntax-ns#">
<rdf:Description xmlns:xmp="http://ns.adobe.com/xap/1.0/"
 xmlns:photoshop="http://ns.adobe.com/photoshop/1.0/"
 xmp:Rating="4" photoshop:SidecarForExtension="CR3"/></rdf:RDF></x:xmpmeta>
<?xpacket end="w"?>
)";
constexpr std::string_view Adjustments =
    R"(<?xml version="1.0" encoding="UTF-8"?>
<plist version="1.0"><dict><key>adjustmentFormatIdentifier</key><string>sample</string></dict></plist>
)";

bool write(const fs::path &path, std::string_view bytes) {
    std::ofstream out(path, std::ios::binary);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return out.good();
}

/// Writes the files of the trip and tells them to the plan.
class TripMaker {
public:
    explicit TripMaker(fs::path root) : m_root(std::move(root)) {}

    bool add(const PlannedShot &plan, unsigned seed) {
        m_shot = &plan;
        switch (plan.shot.kind) {
        case Kind::Jpeg:
            return file(".JPG", jpegFile(plan, seed), exifExpectation(plan));
        case Kind::Tiff:
            return file(".TIF", uncompressedTiff(pictureOf(plan, seed), plan.record),
                        exifExpectation(plan));
        case Kind::RawWithJpeg:
            return raw(seed) && dependent(".JPG", jpegFile(plan, seed), exifExpectation(plan));
        case Kind::RawWithSidecar:
            return raw(seed) && write(path(".xmp"), Sidecar);
        case Kind::Heic:
            return encoded(".HEIC", "heic", seed, exifExpectation(plan)) &&
                   (plan.shot.camera != Phone || write(path(".AAE"), Adjustments));
        case Kind::LivePhoto:
            return encoded(".HEIC", "heic", seed, exifExpectation(plan)) &&
                   encoded(".MOV", "mov", seed, livePhotoExpectation(plan), true);
        case Kind::Screenshot:
            return encoded(".PNG", "png", seed, xmpExpectation(plan, {"XMP:DateCreated"}));
        case Kind::ExifPng:
            return encoded(".PNG", "exif-png", seed, exifExpectation(plan));
        case Kind::ExifWebp:
            return encoded(".WEBP", "exif-webp", seed, exifExpectation(plan));
        case Kind::XmpJpeg:
            return encoded(
                ".JPG", "xmp-jpeg", seed,
                xmpExpectation(plan, {"XMP:DateCreated", "XMP:CreateDate", "XMP:ModifyDate"}));
        case Kind::TypedDate:
            return encoded(".JPG", "typed-date", seed, xmpExpectation(plan, {"XMP:DateCreated"})) &&
                   markRewritten();
        case Kind::Untagged:
            return encoded(".JPG", "untagged", seed, exifExpectation(plan)) && markRewritten();
        case Kind::Received:
            return encoded(".WEBP", "webp", seed, Json::object());
        case Kind::Movie:
            return encoded(".MP4", "mp4", seed, headerExpectation(plan.trueTime));
        case Kind::QuickTimeMovie:
            return encoded(".MOV", "mp4", seed, headerExpectation(plan.trueTime));
        case Kind::OldMovie:
            return file(".AVI", aviOf(plan.record, jpegOf(pictureOf(plan, seed), 80, false)),
                        {{"RIFF:DateTimeOriginal", exifStamp(plan.trueTime)}});
        }
        return false;
    }

    const Json &files() const { return m_files; }

private:
    fs::path path(const std::string &ending) const {
        return m_root / m_shot->camera.folder / (m_shot->name + ending);
    }

    bool raw(unsigned seed) {
        return file(".CR3", cr3Of(m_shot->record, jpegOf(pictureOf(*m_shot, seed), 88, false)),
                    exifExpectation(*m_shot));
    }

    bool file(const std::string &ending, const std::string &bytes, Json expected) {
        tell(ending, std::move(expected));
        return writeDated(path(ending), bytes);
    }

    bool dependent(const std::string &ending, const std::string &bytes, Json expected) {
        const bool isWritten = file(ending, bytes, std::move(expected));
        m_files.back()["isDependent"] = true;
        return isWritten;
    }

    /// A file that an encoder is to make of a JPEG.
    bool encoded(const std::string &ending, const char *encoder, unsigned seed, Json expected,
                 bool isDependent = false) {
        tell(ending, std::move(expected));
        Json &told = m_files.back();
        told["isDependent"] = isDependent;
        told["encoder"] = encoder;
        told["make"] = m_shot->camera.make;
        told["model"] = m_shot->camera.model;
        told["headerTime"] =
            withDashes(exifStamp(m_shot->camera.isOnHomeTime || isDependent
                                     ? absl::ToCivilSecond(m_shot->instant, absl::UTCTimeZone())
                                     : m_shot->record.wallClock));
        told["stamp"] = withDashes(exifStamp(m_shot->record.wallClock)) + std::string(TripStamp);
        return writeDated(path(ending + ".base.jpg"), jpegFile(*m_shot, seed));
    }

    /// What is to be written has no place in the file, so the external tool writes it anew.
    bool markRewritten() {
        m_files.back()["isRewritten"] = true;
        return true;
    }

    void tell(const std::string &ending, Json expected) {
        m_files.push_back(
            {{"path", std::string(m_shot->camera.folder) + "/" + m_shot->name + ending},
             {"taken", takenText(*m_shot)},
             {"isAtHome", m_shot->camera.isAtHome},
             {"clock", exifStamp(m_shot->record.wallClock)},
             {"isEdited", m_shot->record.edited.has_value()},
             {"isDependent", false},
             {"isRewritten", false},
             {"expected", std::move(expected)}});
    }

    bool writeDated(const fs::path &path, const std::string &bytes) const {
        const std::array times{timespec{0, UTIME_OMIT}, absl::ToTimespec(fileTime(*m_shot))};
        return write(path, bytes) && utimensat(AT_FDCWD, path.c_str(), times.data(), 0) == 0;
    }

    fs::path m_root;
    const PlannedShot *m_shot = nullptr;
    Json m_files = Json::array();
};

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

/// Makes the pictures of a list in turn; each camera counts its own.
template<class Shots>
bool addAll(const Shots &list, std::array<int, cameras.size()> &numbers, TripMaker &maker) {
    unsigned seed = 1;
    return std::ranges::all_of(list, [&](const auto &shot) {
        const auto one = planned(shot, numbers[shot.camera]++);
        const bool isWritten = maker.add(one, seed++);
        if (!isWritten)
            std::fprintf(stderr, "make_trip: cannot write %s\n", one.name.c_str());
        return isWritten;
    });
}

int makeTrip(const fs::path &root) {
    std::array<int, cameras.size()> numbers{};
    for (std::size_t i = 0; i < cameras.size(); ++i) {
        numbers[i] = cameras[i].firstNumber;
        fs::create_directories(root / cameras[i].folder);
    }
    TripMaker maker(root);
    if (!addAll(shots, numbers, maker) || !addAll(nightShots, numbers, maker))
        return 1;
    const Json plan{{"homeZone", HomeZone}, {"tripZone", TripZone}, {"files", maker.files()}};
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
