// SPDX-License-Identifier: GPL-3.0-or-later
#include "FileFormatType.h"

#include "LittleHeif.h"

#include <gtest/gtest.h>

namespace chronomender {
namespace {

using std::string_literals::operator""s;

TEST(FormatByExtension, KnowsMediaInAnyLetterCase) {
    const struct {
        const char *extension;
        FileFormatType format;
    } cases[]{
        {"JPG", FileFormatJpeg},  {"jpe", FileFormatJpeg},       {"HIF", FileFormatHeif},
        {"Cr2", FileFormatRaw},   {"CR3", FileFormatRaw},        {"dng", FileFormatRaw},
        {"gpr", FileFormatRaw},   {"TIF", FileFormatTiff},       {"webp", FileFormatWebp},
        {"pct", FileFormatPict},  {"GIF", FileFormatGif},        {"png", FileFormatPng},
        {"avif", FileFormatAvif}, {"MOV", FileFormatQuickTime},  {"m4v", FileFormatMpeg4},
        {"3gp", FileFormatMpeg4}, {"MTS", FileFormatOtherMovie}, {"avi", FileFormatOtherMovie},
        {"THM", FileFormatNone},  {"xmp", FileFormatNone},       {"", FileFormatNone},
        {"jpgx", FileFormatNone},
    };
    for (const auto &[extension, format] : cases)
        EXPECT_EQ(fileFormatTypeForExtension(extension), format) << extension;
}

TEST(FormatByContent, WinsOverTheExtension) {
    const struct {
        std::string bytes;
        const char *extension;
        std::optional<FileFormatType> format;
    } cases[]{
        {"\xFF\xD8\xFF\xE1"s, "png", FileFormatJpeg},
        {"\x89PNG\r\n\x1A\n"s, "jpg", FileFormatPng},
        {"GIF89a"s, "", FileFormatGif},
        {"RIFF\0\0\0\0WEBPVP8 "s, "jpg", FileFormatWebp},
        {"RIFF\0\0\0\0AVI LIST"s, "mov", FileFormatOtherMovie},
        {"RIFF\0\0\0\0WAVEfmt "s, "avi", {}},
        {"XXXX\0\0\0\0WEBP"s, "", {}},
        {"II*\0\x08\0\0\0"s, "tif", FileFormatTiff},
        {"MM\0*\0\0\0\x08"s, "NEF", FileFormatRaw},
        {"II*\0"s, "", FileFormatTiff},
        {"IIU\0\x18\0\0\0"s, "rw2", {}},
        {"\0\0\0\x18"
         "ftypheic\0\0\0\0"s,
         "jpg", FileFormatHeif},
        {"\0\0\0\x18"
         "ftypmif1\0\0\0\0"s,
         "hif", FileFormatHeif},
        {"\0\0\0\x18"
         "ftypavis\0\0\0\0"s,
         "heic", FileFormatAvif},
        {"\0\0\0\x18"
         "ftyp"s,
         "heic",
         {}},
        {""s, "jpg", {}},
    };
    for (const auto &[bytes, extension, format] : cases)
        EXPECT_EQ(fileFormatTypeForContent(bytes, extension), format) << bytes << extension;
}

TEST(FormatByContent, FollowsTheBrandsOfTheFileType) {
    const struct {
        const char *major, *further, *extension;
        std::optional<FileFormatType> format;
    } cases[]{
        {"qt  ", "qt  ", "mp4", FileFormatQuickTime},
        {"isom", "isomiso2avc1mp41", "mov", FileFormatMpeg4},
        {"mp42", "isomavif", "mp4", FileFormatMpeg4},
        {"3gp5", "", "3gp", FileFormatMpeg4},
        {"isom", "heic", "heic", {}}, // the name is right
        {"mp42", "", "jpg", {}},
        {"crx ", "isom", "cr3", FileFormatRaw},
        {"MiHB", "MiHEmiafheic", "heic", FileFormatHeif},
        {"mif1", "mif1miafheic", "jpg", FileFormatHeif},
        {"mif1", "mif1avif", "heic", FileFormatAvif},
        {"abcd", "isommif1", "mp4", FileFormatHeif},
        {"abcd", "isom", "mp4", FileFormatMpeg4},
        {"abcd", "efgh", "mp4", {}},
    };
    for (const auto &[major, further, extension, format] : cases)
        EXPECT_EQ(fileFormatTypeForContent(little::fileType(major, further), extension), format)
            << major << ' ' << further;
    EXPECT_EQ(fileFormatTypeForContent(little::fileType("abcd", "efgh") + "avif", "mp4"),
              std::nullopt); // behind the box
}

TEST(FormatByContent, KnowsAnOldQuickTimeFileByItsFirstAtom) {
    for (const char *type : {"moov", "mdat", "wide", "free"}) {
        const std::string bytes = little::boxBytes(type, "");
        EXPECT_EQ(fileFormatTypeForContent(bytes, "mov"), FileFormatQuickTime) << type;
        EXPECT_EQ(fileFormatTypeForContent(bytes, "mp4"), FileFormatQuickTime) << type;
        EXPECT_EQ(fileFormatTypeForContent(bytes, "heic"), std::nullopt) << type;
    }
}

TEST(FormatByContent, TellsADngNamedTiffByItsVersion) {
    for (const auto endian : {little::Endian::Intel, little::Endian::Motorola}) {
        const std::string dng = little::Tiff(endian)
                                    .text(little::Directory::First, 306, "2024:05:06 07:08:09")
                                    .value(little::Directory::First, 50706, 1, 4, "\1\4\0\0"s)
                                    .build()
                                    .bytes;
        EXPECT_EQ(fileFormatTypeForContent(dng, "tif"), FileFormatRaw);
        EXPECT_EQ(fileFormatTypeForContent(dng.substr(0, 30), "tif"), FileFormatTiff);
    }
}

} // namespace
} // namespace chronomender
