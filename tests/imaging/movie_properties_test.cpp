// SPDX-License-Identifier: GPL-3.0-or-later
#include "MovieProperties.h"

#include "LittleAvi.h"
#include "LittleMatroska.h"
#include "PropertyDictionary.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace chronomender {
namespace {

using namespace little;

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

} // namespace
} // namespace chronomender
