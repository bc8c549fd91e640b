// SPDX-License-Identifier: GPL-3.0-or-later
#include "MovieProperties.h"

#include "LittleAvi.h"
#include "PropertyDictionary.h"
#include "TemporaryFolder.h"

#include <bit>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace chronomender {
namespace {

using namespace little;

/// An element of a Matroska file (RFC 8794) with a length of eight bytes.
std::string element(std::string_view id, std::string_view body) {
    return std::string(id) + '\1' + big(body.size(), 7) + std::string(body);
}

std::string matroska(double milliseconds, std::size_t width, std::size_t height) {
    const std::string info =
        element("\x2A\xD7\xB1", big(1000000, 4)) +
        element("\x44\x89", big(std::bit_cast<std::uint64_t>(milliseconds), 8));
    const std::string video = element("\xB0", big(width, 2)) + element("\xBA", big(height, 2));
    const std::string track = element("\xD7", "\1") + element("\x73\xC5", "\1") +
                              element("\x83", "\1") + element("\x86", "V_MJPEG") +
                              element("\xE0", video);
    const std::string cluster =
        element("\xE7", zeros(1)) + element("\xA3", "\x81" + zeros(2) + "\x80p");
    return element("\x1A\x45\xDF\xA3", element("\x42\x82", "matroska")) +
           element("\x18\x53\x80\x67", element("\x15\x49\xA9\x66", info) +
                                           element("\x16\x54\xAE\x6B", element("\xAE", track)) +
                                           element("\x1F\x43\xB6\x75", cluster));
}

class MoviePropertiesTest : public testing::Test {
protected:
    MoviePropertiesTest() { initialiseImaging(); }
    TemporaryFolder m_folder;
};

TEST_F(MoviePropertiesTest, TellLengthAndSize) {
    const auto film = readMovieProperties(m_folder.write("a.mkv", matroska(2500, 640, 360)));
    ASSERT_TRUE(film);
    EXPECT_NEAR(film->duration, 2.5, 1e-6);
    EXPECT_EQ(film->width, 640);
    EXPECT_EQ(film->height, 360);
    const auto clip = readMovieProperties(m_folder.write("a:b.avi", avi().bytes));
    ASSERT_TRUE(clip);
    EXPECT_EQ(clip->make, "");
}

TEST_F(MoviePropertiesTest, OfNothingButTheMovieItself) {
    const std::string film = m_folder.write("film.mkv", matroska(2500, 640, 360));
    const std::string pipe = m_folder.path("pipe.mkv");
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    const std::string list =
        "#EXTM3U\n#EXT-X-TARGETDURATION:9\n#EXTINF:9,\n" + film + "\n#EXT-X-ENDLIST\n";
    for (const std::string &path :
         {m_folder.write("playlist.avi", list),
          m_folder.write("concat.mkv", "ffconcat version 1.0\nfile '" + film + "'\n"),
          m_folder.write("empty.mpg", ""), m_folder.path("absent.mts"), m_folder.path(), pipe})
        EXPECT_FALSE(readMovieProperties(path)) << path;
}

TEST_F(MoviePropertiesTest, OfDamagedMoviesAreAbsentOrSound) {
    const std::string good = matroska(2500, 640, 360);
    for (std::size_t i = 0; i < good.size(); i += 2) {
        std::string bad = good;
        bad[i] = static_cast<char>(bad[i] ^ 0xFF);
        const auto found = readMovieProperties(m_folder.write("bad.mkv", bad));
        EXPECT_TRUE(!found || (found->width >= 0 && found->duration >= -1)) << i;
    }
}

} // namespace
} // namespace chronomender
