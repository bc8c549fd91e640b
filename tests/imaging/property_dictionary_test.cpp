// SPDX-License-Identifier: GPL-3.0-or-later
#include "CameraText.h"
#include "LittleHeif.h"
#include "LittlePng.h"
#include "LittleWebp.h"
#include "PropertyDictionary.h"
#include "TemporaryFolder.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <thread>
#include <vector>

namespace chronomender {
namespace {

using namespace little;

class PropertyDictionaryTest : public testing::Test {
protected:
    PropertyDictionaryTest() { initialiseImaging(); }

    std::optional<PropertyDictionary> read(const PhotoFields &fields) {
        return readPropertyDictionary(m_folder.write("photo.jpg", jpegPhoto(fields).bytes));
    }
    std::optional<PropertyDictionary> readLocated(const PhotoLocation &location) {
        return read({.location = location});
    }

    TemporaryFolder m_folder;
};

TEST_F(PropertyDictionaryTest, TellsWhatWasPutIntoTheFile) {
    const Tiff tiff = photoEntries(fullPhotoFields())
                          .field(Directory::First, 274, 3, 1, 6)
                          .text(Directory::Exif, 0xA431, "SN-0042")
                          .text(Directory::Exif, 0xA434, "Little 50mm F1.8");
    const std::string path =
        m_folder.write("a.jpg", Jpeg().exif(tiff.build().bytes).frame().body(100).bytes());

    const auto found = readPropertyDictionary(path);

    ASSERT_TRUE(found);
    EXPECT_EQ(found->make, "Little");
    EXPECT_EQ(found->model, "Little One");
    EXPECT_EQ(found->lens, "Little 50mm F1.8");
    EXPECT_EQ(found->serialNumber, "SN-0042");
    EXPECT_EQ(found->orientation, 6);
    EXPECT_EQ(found->pixelWidth, 1);
    EXPECT_EQ(found->pixelHeight, 1);
    EXPECT_EQ(found->mimeType, "image/jpeg");
    ASSERT_TRUE(found->gps);
    EXPECT_NEAR(found->gps->latitude, 48 + 51 / 60.0 + 24.3 / 3600, 1e-9);
    EXPECT_NEAR(found->gps->longitude, 2 + 17 / 60.0 + 40.2 / 3600, 1e-9);
}

TEST_F(PropertyDictionaryTest, OfEveryContainerThatTheLibraryReads) {
    const PhotoFields fields = fullPhotoFields();
    const std::tuple<const char *, std::string, const char *> files[]{
        {"a.heic", heifPhoto(fields).bytes, "image/heic"},
        {"a.avif", heifPhoto(fields, {.brand = "avif"}).bytes, "image/avif"},
        {"a.cr3", cr3Photo(fields).bytes, "image/x-canon-cr3"},
        {"a.png", pngPhoto(fields).bytes, "image/png"},
        {"a.webp", webpPhoto(fields).bytes, "image/webp"},
        {"a.tif", tiffPhoto(fields).bytes, "image/tiff"},
    };
    for (const auto &[name, bytes, mimeType] : files) {
        const auto found = readPropertyDictionary(m_folder.write(name, bytes));
        ASSERT_TRUE(found) << name;
        EXPECT_EQ(found->model, "Little One") << name;
        EXPECT_EQ(found->mimeType, mimeType);
        ASSERT_TRUE(found->gps) << name;
        EXPECT_NEAR(found->gps->longitude, 2 + 17 / 60.0 + 40.2 / 3600, 1e-9) << name;
    }
}

TEST_F(PropertyDictionaryTest, SizesOfExifStandUpright) {
    const std::pair<std::uint32_t, std::pair<int, int>> cases[]{{4, {6000, 4000}},
                                                                {5, {4000, 6000}}};
    for (const auto &[orientation, size] : cases) {
        const Tiff tiff = Tiff()
                              .field(Directory::First, 274, 3, 1, orientation)
                              .field(Directory::Exif, 0xA002, 4, 1, 6000)
                              .field(Directory::Exif, 0xA003, 4, 1, 4000);
        const std::string bytes = Jpeg().exif(tiff.build().bytes).frame().body(9).bytes();
        const auto found = readPropertyDictionaryOf(bytes);
        ASSERT_TRUE(found);
        EXPECT_EQ(std::pair(found->exifWidth, found->exifHeight), size) << orientation;
        EXPECT_EQ(found->pixelWidth, 1);
    }
}

TEST_F(PropertyDictionaryTest, SidecarsTellCameraAndPosition) {
    const std::string packet =
        "<?xpacket begin='' id='W5M0MpCehiHzreSzNTczkc9d'?><x:xmpmeta xmlns:x='adobe:ns:meta/'>"
        "<rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'><rdf:Description "
        "xmlns:tiff='http://ns.adobe.com/tiff/1.0/' xmlns:exif='http://ns.adobe.com/exif/1.0/' "
        "tiff:Make='Little' tiff:Model='Little One' exif:GPSLatitude='33,30.0S' "
        "exif:GPSLongitude='70,0.6W'/></rdf:RDF></x:xmpmeta><?xpacket end='w'?>";
    const auto found = readSidecarDictionary(m_folder.write("a.xmp", packet));
    ASSERT_TRUE(found && found->gps);
    EXPECT_EQ(found->make + '/' + found->model, "Little/Little One");
    EXPECT_NEAR(found->gps->latitude, -33.5, 1e-6);
    EXPECT_NEAR(found->gps->longitude, -70.01, 1e-6);
    EXPECT_FALSE(readSidecarDictionary(m_folder.write("b.xmp", "<x:xmpmeta")));
    EXPECT_FALSE(
        readSidecarDictionary(m_folder.write("c.xmp", jpegPhoto(fullPhotoFields()).bytes)));
}

TEST_F(PropertyDictionaryTest, LocationsOnTheGlobeOnly) {
    struct Case {
        const char *what;
        PhotoLocation location;
        std::optional<std::pair<double, double>> expected;
    };
    const std::vector<Rational> zero{{0, 1}, {0, 1}, {0, 1}};
    const Case cases[]{
        {"south and west",
         {.latitudeRef = "S",
          .longitudeRef = "W",
          .latitude = {{33, 1}, {30, 1}, {0, 1}},
          .longitude = {{70, 1}, {0, 1}, {36, 1}}},
         {{-33.5, -70.01}}},
        {"device without a fix", {.latitude = zero, .longitude = zero}, {}},
        {"on the equator", {.latitude = zero, .longitude = {{9, 1}, {0, 1}, {0, 1}}}, {{0, 9}}},
        {"the pole",
         {.latitude = {{90, 1}, {0, 1}, {0, 1}}, .longitude = {{180, 1}, {0, 1}, {0, 1}}},
         {{90, 180}}},
        {"beyond the pole", {.latitude = {{90, 1}, {0, 1}, {1, 1}}}, {}},
        {"beyond the date line", {.longitude = {{181, 1}, {0, 1}, {0, 1}}}, {}},
        {"unused seconds",
         {.latitude = {{10, 1}, {30, 1}, {0, 0}}, .longitude = {{20, 1}, {0, 1}, {0, 0}}},
         {{10.5, 20}}},
        {"division by zero", {.latitude = {{10, 0}, {0, 1}, {0, 1}}}, {}},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        const auto found = readLocated(c.location);
        ASSERT_TRUE(found);
        ASSERT_EQ(found->gps.has_value(), c.expected.has_value());
        if (c.expected) {
            EXPECT_NEAR(found->gps->latitude, c.expected->first, 1e-9);
            EXPECT_NEAR(found->gps->longitude, c.expected->second, 1e-9);
        }
    }
}

TEST_F(PropertyDictionaryTest, AccuracyOfAPosition) {
    Tiff tiff = photoEntries({.location = PhotoLocation{}});
    tiff.rationals(Directory::Gps, 31, {{13, 2}});
    const auto found = readPropertyDictionary(
        m_folder.write("a.jpg", Jpeg().exif(tiff.build().bytes).frame().body(10).bytes()));
    ASSERT_TRUE(found && found->gps);
    EXPECT_EQ(found->gps->hPositioningError, 6.5);
}

TEST_F(PropertyDictionaryTest, NothingOfFilesThatAreNoPictures) {
    const std::string huge = m_folder.write("huge.tif", "II*\0");
    std::filesystem::resize_file(huge, std::uintmax_t{3} << 30);
    const std::string pipe = m_folder.path("pipe.jpg");
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);

    for (const std::string &path :
         {huge, pipe, m_folder.path(), m_folder.path("absent.jpg"), m_folder.write("empty.jpg", ""),
          m_folder.write("text.jpg", "no picture at all"),
          m_folder.write("cut.jpg", jpegPhoto(fullPhotoFields()).bytes.substr(0, 3))})
        EXPECT_FALSE(readPropertyDictionary(path)) << path;
}

TEST_F(PropertyDictionaryTest, DamagedFilesNeitherCrashNorThrow) {
    const PhotoFields fields = fullPhotoFields();
    for (const std::string &good :
         {jpegPhoto(fields).bytes, heifPhoto(fields).bytes, cr3Photo(fields).bytes,
          pngPhoto(fields).bytes, webpPhoto(fields).bytes}) {
        for (std::size_t i = 0; i < good.size(); i += 7) {
            std::string bad = good;
            bad[i] = static_cast<char>(bad[i] ^ 0xFF);
            const auto found = readPropertyDictionary(m_folder.write("bad.jpg", bad));
            EXPECT_TRUE(!found || found->orientation == 1) << i;
        }
    }
}

TEST_F(PropertyDictionaryTest, ReadsOnSeveralThreads) {
    PhotoFields fields = fullPhotoFields();
    fields.xmp = "<?xpacket begin='' id='W5M0MpCehiHzreSzNTczkc9d'?><x:xmpmeta "
                 "xmlns:x='adobe:ns:meta/'/><?xpacket end='w'?>";
    const std::string path = m_folder.write("a.jpg", jpegPhoto(fields).bytes);
    std::vector<int> right(4, 0);
    std::vector<std::thread> threads;
    for (int &count : right)
        threads.emplace_back([&path, &count] {
            for (int i = 0; i < 50; ++i) {
                const auto found = readPropertyDictionary(path);
                count += found && found->model == "Little One" ? 1 : 0;
            }
        });
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_EQ(right, std::vector<int>(4, 50));
}

TEST(CameraTextTest, IsTextForPeople) {
    using namespace std::string_literals;
    EXPECT_EQ(cameraText("Canon \0\0rest"s), "Canon");
    EXPECT_EQ(cameraText("\x1B[31mEvil\n"), "[31mEvil");
    EXPECT_EQ(cameraText("Caf\xE9"), "Café");
    EXPECT_EQ(cameraText("Lumière"), "Lumière");
    EXPECT_EQ(cameraText("   "), "");
}

} // namespace
} // namespace chronomender
