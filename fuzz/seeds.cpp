// SPDX-License-Identifier: GPL-3.0-or-later
#include "LittleAvi.h"
#include "LittleHeif.h"
#include "LittleMovie.h"
#include "LittlePhoto.h"
#include "LittlePng.h"
#include "LittleWebp.h"
#include "LittleXmp.h"

#include <filesystem>
#include <fstream>

// Writes the seeds of each fuzz target into a folder of its name below the given one.
namespace {

using namespace chronomender::little;

void write(const std::filesystem::path &folder, const std::string &name, const std::string &bytes) {
    std::filesystem::create_directories(folder);
    std::ofstream(folder / name, std::ios::binary) << bytes;
}

std::string littleXmp() {
    return Xmp()
        .attribute("xmp:CreateDate", "2024-05-06T07:08:09+02:00")
        .attribute("photoshop:SidecarForExtension", "CR2")
        .element("exif:DateTimeOriginal", "2024-05-06T07:08")
        .element("exif:GPSLatitude", "48,30.6N")
        .end()
        .bytes();
}

BuiltTiff embeddedJpegRaw() {
    const Jpeg inner =
        Jpeg().exif(Tiff().text(Directory::First, 306, "2024:05:06 07:08:09").build().bytes);
    const auto length = static_cast<std::uint32_t>(inner.bytes().size());
    return Tiff().value(Directory::First, 46, 7, length, inner.bytes()).build();
}

void writePhotos(const std::filesystem::path &root) {
    for (const Endian endian : {Endian::Intel, Endian::Motorola}) {
        const std::string name = endian == Endian::Intel ? "intel" : "motorola";
        PhotoFields fields = fullPhotoFields(endian);
        fields.xmp = littleXmp();
        fields.bodyLength = 8;
        write(root / "jpeg_walk", name, jpegPhoto(fields).bytes);
        write(root / "tiff_walk", name, tiffPhoto(fields).bytes);
        write(root / "tiff_walk", name + "_behind", "FUJIFILM" + jpegPhoto(fields).bytes);
    }
    // Without stamps the packet speaks.
    write(root / "tiff_walk", "packet",
          Tiff().field(Directory::First, 700, 1, 600, 26).build().bytes + littleXmp());
    write(root / "jpeg_walk", "segments",
          Jpeg().segment(0xE0, "JFIF").segment(0xFE, "comment").frame(0xC2).body(4).bytes());
    write(root / "tiff_walk", "embedded", embeddedJpegRaw().bytes);
}

void writeContainers(const std::filesystem::path &root) {
    PhotoFields fields = fullPhotoFields(Endian::Motorola);
    fields.make = "Apple";
    fields.contentIdentifier = "0C0F5A3E-2B5C-4C8A-9D7C-5F1E2D3C4B5A";
    fields.xmp = littleXmp();
    fields.bodyLength = 9;
    write(root / "heif_walk", "plain", heifPhoto(fields).bytes);
    write(
        root / "heif_walk", "wide",
        heifPhoto(
            fields,
            {.locationVersion = 1, .lengthWidth = 8, .baseWidth = 8, .indexWidth = 4, .extents = 2})
            .bytes);
    write(root / "heif_walk", "inside",
          heifPhoto(fields, {.locationVersion = 2, .method = 1, .itemVersion = 3}).bytes);
    write(root / "cr3_walk", "plain",
          cr3Photo(fields).bytes.substr(fileType("crx ", "isom").size()));
    write(root / "png_walk", "plain", pngPhoto(fields).bytes);
    write(root / "png_walk", "behind",
          Png().images(9, 3).images(1, 2).xmp(fields.xmp).exif("MM").end().bytes());
    write(root / "webp_walk", "plain", webpPhoto(fields).bytes);
    const std::string small = Jpeg().frame(0xC0, 160, 120).body(4).bytes();
    write(root / "internal_previews", "two",
          small + Jpeg().segment(0xE1, small).frame(0xC2, 700, 700).body(4).bytes());
}

void writeMovies(const std::filesystem::path &root) {
    MovieFields fields{
        .date = "2020-04-17T10:03:47-0600",
        .location = "+48.1234+011.5678/",
        .accuracy = "4.7",
        .make = "Maker",
        .userLocation = "+48.1-011.5/",
        .itemLocation = "-48-011/",
        .tracks = {videoTrack(320, 240),
                   metadataTrack("com.apple.quicktime.still-image-time", {{801, -1}, {1, 0}})}};
    write(root / "quicktime_walk", "version0", movie(fields).bytes);
    fields.version = 1;
    fields.isFullMeta = true;
    write(root / "quicktime_walk", "version1", movie(fields, MoovPlace::First).bytes);
    write(root / "riff_walk", "avi", avi().bytes);
}

} // namespace

int main(int count, char **arguments) {
    if (count != 2)
        return 2;
    const std::filesystem::path root = arguments[1];
    writePhotos(root);
    writeContainers(root);
    writeMovies(root);
    write(root / "xmp_scan", "plain", littleXmp());
    int number = 0;
    for (const char *text : {"2024-05-06T07:08:09.5+02:00", "2024-05-06T07:08-0330", "2024-05-06",
                             "2024-05-06T07:08:09Z", "48,30.6N", "8,15,30W", "-33.25"})
        write(root / "xmp_values", std::to_string(number++), text);
    for (const char *text : {"2024:05:06 07:08:09", "2024: 5: 6  7: 8: 9", "0000:00:00 00:00:00",
                             "    :  :     :  :  ", "+02:00", "-11:30", "2024:05:06"})
        write(root / "stamp_texts", std::to_string(number++), std::string(text) + '\0');
    for (const char *text :
         {R"((filter_rating != -1) AND (spName CONTAINS[cd] "IM\"G"))",
          R"(filter_dateTimeModified >= CAST(736000000.5, "NSDate") OR filter_miscState_6 == 1)",
          R"(NOT filter_dateTimeModified < '2024-05-06 07:08' AND TRUEPREDICATE)",
          R"((filter_miscState ==[cd] 6 and pivMakeModel BEGINSWITH[c] "x"))"})
        write(root / "predicate_texts", std::to_string(number++), text);
    for (const char *text :
         {"P{month1}{day}{{}}{}.{counter:4}", "{year2}{folder}{name}{addon1}{addon2}\u00E9",
          R"([{"options":{"7.tif":"3"},"stringParts":[{"kind":"graphic","textId":"10.tif"},)"
          R"({"kind":"text","textId":"x"}]}])",
          R"([{"id":"ReplaceWith","defaults":{"isEnabled":true,"value":"e","value3":2}},)"
          R"({"id":"CharCount","defaults":{"isEnabled":1}}])"})
        write(root / "template_texts", std::to_string(number++), text);
    for (const char *text :
         {"2020-04-17T10:03:47-0600", "2020-04-17T10:03:47Z", "2020-04-17T10:03+05:30",
          "2020-04-17T10:03:47.125", "Thu Jan 20 08:16:08 2022\n", "MON SEP  3 20:52:00 2012\n"})
        write(root / "movie_stamps", std::to_string(number++), std::string(text) + '\0');
    return 0;
}
