// SPDX-License-Identifier: GPL-3.0-or-later
#include "LittlePicture.h"
#include "PictureSource.h"
#include "PropertyDictionary.h"
#include "TemporaryFolder.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace chronomender {
namespace {

using namespace little;
using enum PictureChoice;

class PictureSourceTest : public testing::Test {
protected:
    PictureSourceTest() { initialiseImaging(); }

    UprightPicture read(const std::string &bytes, int side = 126,
                        PictureChoice choice = EmbeddedIfLargeEnough) {
        return newImageFromSource(m_folder.write("picture.jpg", bytes), side, choice);
    }

    TemporaryFolder m_folder;
};

// What is seen of the stored quarters "rgbw", by CIPA DC-008, 4.6.4, tag 274.
constexpr std::pair<unsigned, const char *> kSeen[]{{1, "rgbw"}, {2, "grwb"}, {3, "wbgr"},
                                                    {4, "bwrg"}, {5, "rbgw"}, {6, "brwg"},
                                                    {7, "wgbr"}, {8, "gwrb"}, {9, "rgbw"}};

TEST_F(PictureSourceTest, StandsUprightInEveryOrientation) {
    for (const auto &[orientation, expected] : kSeen) {
        SCOPED_TRACE(orientation);
        const QSize size = orientation >= 5 && orientation <= 8 ? QSize(84, 126) : QSize(126, 84);
        const auto decoded = read(cameraJpeg(fourQuarters(300, 200), orientation));
        EXPECT_EQ(decoded.image.size(), size);
        EXPECT_EQ(quarters(decoded.image), expected);
        EXPECT_FALSE(decoded.isEmbedded);
        const QImage thumbnail = fourQuarters(160, 107);
        const auto embedded =
            read(cameraJpeg(QImage(300, 200, QImage::Format_RGB32), orientation, thumbnail));
        EXPECT_TRUE(embedded.isEmbedded);
        EXPECT_EQ(quarters(embedded.image), expected);
    }
}

TEST_F(PictureSourceTest, TakesTheEmbeddedOneWhereItIsWantedAndServes) {
    const QImage picture = fourQuarters(600, 400);
    QImage barred(160, 120, QImage::Format_RGB32);
    barred.fill(Qt::black);
    QPainter(&barred).drawImage(QRect(0, 6, 160, 107), fourQuarters(160, 107));
    struct Case {
        const char *what;
        QImage thumbnail;
        int side;
        PictureChoice choice;
        bool isEmbedded;
        QSize size;
    };
    const Case cases[]{
        {"without its bars", barred, 126, EmbeddedIfLargeEnough, true, {126, 84}},
        {"too small", fourQuarters(100, 67), 126, EmbeddedIfLargeEnough, false, {126, 84}},
        {"too small for more", barred, 252, EmbeddedIfLargeEnough, false, {252, 168}},
        {"too small, but nothing else is wanted", barred, 252, EmbeddedOnly, true, {160, 107}},
        {"of another shape", fourQuarters(60, 160), 50, EmbeddedIfLargeEnough, false, {50, 33}},
        {"not wanted", barred, 126, Decoded, false, {126, 84}},
        {"never enlarged", {}, 2000, EmbeddedIfLargeEnough, false, {600, 400}},
    };
    for (const Case &c : cases) {
        const auto found = read(cameraJpeg(picture, 1, c.thumbnail), c.side, c.choice);
        EXPECT_EQ(found.isEmbedded, c.isEmbedded) << c.what;
        EXPECT_EQ(found.image.size(), c.size) << c.what;
        EXPECT_EQ(quarters(found.image), "rgbw") << c.what;
    }
    EXPECT_EQ(read(cameraJpeg(picture), 126, EmbeddedOnly).failure, PictureFailure::NoPicture);
    // Half of the picture is gone: the thumbnail is better than nothing.
    const std::string broken = cameraJpeg(QImage(9, 9, QImage::Format_RGB32), 1, barred);
    const auto rest = read(broken.substr(0, broken.size() - 400), 252);
    EXPECT_TRUE(rest.isEmbedded);
}

TEST_F(PictureSourceTest, GoesByContent) {
    for (const char *format : {"png", "tiff", "webp", "bmp"}) {
        const auto found = read(pictureFile(fourQuarters(300, 200), format));
        EXPECT_EQ(quarters(found.image), std::string(format) == "bmp" ? "none" : "rgbw") << format;
    }
    EXPECT_TRUE(read(pictureFile(fourQuarters(300, 200, 128), "png")).image.hasAlphaChannel());
}

TEST_F(PictureSourceTest, StandsUprightWhateverProgramWroteIt) {
    const std::string still = m_folder.write("a.png", pictureFile(fourQuarters(300, 200), "png"));
    const std::string turned =
        m_folder.write("a.jpg", cameraJpeg(fourQuarters(300, 200), 6)); // for its Exif data
    struct Case {
        const char *name;
        std::string command;
        const char *expected;
    };
    const std::string ffmpeg = "ffmpeg -v error -loop 1 -i " + still + " -t 0.2 -c:v mpeg4 -q:v 2 ";
    const std::string turn =
        "ffmpeg -v error -i " + m_folder.path("a.mp4") + " -c copy -metadata:s:v rotate=90 ";
    const Case cases[]{{"a.mp4", ffmpeg, "rgbw"},
                       {"b.mov", turn, "gwrb"}, // counts against the clock,
                       {"c.mkv", ffmpeg, "rgbw"},
                       {"d.avi", ffmpeg, "rgbw"},
                       // Its Exif data say "turn", and have no say in this format.
                       {"e.heic", "heif-enc -q 90 " + turned + " -o ", "rgbw"},
                       {"f.avif", "heif-enc -A -q 90 " + still + " -o ", "rgbw"}};
    for (const auto &[name, command, expected] : cases) {
        const std::string path = m_folder.path(name);
        if (std::system((command + path + " >/dev/null 2>&1").c_str()) != 0)
            GTEST_SKIP() << "cannot make " << name << " here";
        const auto found = newImageFromSource(path, 126, EmbeddedIfLargeEnough);
        EXPECT_EQ(quarters(found.image), expected) << name;
        EXPECT_EQ(std::max(found.image.width(), found.image.height()), 126) << name;
    }
}

TEST_F(PictureSourceTest, TellsWhyThereIsNone) {
    const std::string pipe = m_folder.path("pipe.jpg");
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    for (const std::string &path : {pipe, m_folder.path(), m_folder.path("absent.jpg")})
        EXPECT_EQ(newImageFromSource(path, 126, Decoded).failure, PictureFailure::CannotBeOpened);
    EXPECT_EQ(read("no picture at all").failure, PictureFailure::DamagedOrUnknown);
    // A frame of 4 gigapixels in a few bytes.
    EXPECT_EQ(read(Jpeg().frame(0xC0, 65'500, 65'500).body(100).bytes()).failure,
              PictureFailure::TooLarge);
    Cancellation cancellation;
    cancellation.request();
    EXPECT_EQ(newImageFromSource(m_folder.write("a.jpg", cameraJpeg(fourQuarters(9, 9))), 126,
                                 Decoded, &cancellation)
                  .failure,
              PictureFailure::Cancelled);
}

TEST_F(PictureSourceTest, DamagedFilesNeitherCrashNorThrow) {
    const QImage picture = fourQuarters(64, 48);
    for (const std::string &good :
         {cameraJpeg(picture, 6, fourQuarters(40, 30)), pictureFile(picture, "png"),
          pictureFile(picture, "webp"), pictureFile(picture, "tiff")}) {
        for (std::size_t i = 0; i < good.size(); i += 1 + good.size() / 150) {
            std::string bad = good;
            bad[i] = static_cast<char>(bad[i] ^ 0xFF);
            const auto found = read(bad);
            EXPECT_NE(found.image.isNull(), !found.failure.has_value()) << i;
        }
    }
}

} // namespace
} // namespace chronomender
