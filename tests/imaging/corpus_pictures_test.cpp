// SPDX-License-Identifier: GPL-3.0-or-later
#include "Corpus.h"
#include "Parallel.h"
#include "PictureSource.h"
#include "PropertyDictionary.h"

#include <gmock/gmock.h>
#include <map>
#include <set>

namespace chronomender {
namespace {

using namespace little;
using testing::UnorderedElementsAreArray;

/// Files of cameras and programs that hold no picture, or none that anybody can decode.
const std::map<std::string, const char *> kWithoutPicture{
    {"avi/exiftool__Pentax.avi", "cut off before its frames"},
    {"avif/libheif__simple_osm_tile_alpha.avif", "no primary picture"},
    {"avif/mp4parse-rust__unknown_mdat_in_oversized_meta.avif", "broken structure"},
    {"cr3/exiftool__CanonRaw.cr3", "pictures taken out"},
    {"heif/exiftool__QuickTime.heic", "pictures taken out"},
    {"heif/photoview__exif_subsec_timezone.heic", "metadata of another picture"},
    {"heif/tika__testHEIC_livePhoto.heic", "pictures taken out"},
    {"jpeg/libexif__olympus_makernote_variant_4.jpg", "pictures taken out"},
    {"jpeg/libexif__pentax_makernote_variant_3.jpg", "pictures taken out"},
    {"jpeg/metadata-extractor-images__acce3629083f0e348e94fb58f952d3de.jpg", "cut off"},
    {"mov/hachoir__pentax_320x240.mov", "cut off before its frames"},
    {"mov/nom-exif__compatible-brands.mov", "a file type box alone"},
    {"mov/tika__testMP4_StillImageTimeZero.mov", "metadata alone"},
    {"mp4/exifast__QuickTime_sony_fx3_rtmd.mp4", "cut off before its frames"},
    {"mp4/go-mp4__sample_qt.mp4", "cut off before its frames"},
    {"mp4/mp4parse-rust__amr_nb_1f.3gp", "sound"},
    {"mp4/mp4parser__ac3-sample.mp4", "sound"},
    {"mp4/mp4parser__redbull_100kbit_dash.mp4", "header of a stream"},
    {"mp4/tika__testMP4AudioOnly.mp4", "sound"},
    {"png/nom-exif__exif-both.png", "no picture chunks"},
    {"png/nom-exif__exif-legacy.png", "no picture chunks"},
    {"raw/exiftool__CanonRaw.crw", "pictures taken out"},
    {"raw/exiftool__Nikon.nef", "pictures taken out"},
    {"raw/exiftool__Sigma.x3f", "pictures taken out"},
};

/// Turned by Exif, by a HEIF property, by a raw file's directory, by a movie's matrix.
const std::map<std::string, QSize> kUpright{
    {"jpeg/bep-imagemeta__mushroom.jpg", {94, 126}},
    {"heif/digicam_corpus__IMG_3589.HEIC", {126, 94}},
    {"heif/test-assets__samsung-one-ui-6.heic", {94, 126}},
    {"heif/metadata-extractor-images__exif-at-eof.heic", {94, 126}},
    {"raw/pigallery2__test.dng", {94, 126}},
    {"raw/exifast__Canon_EOS-5D_real.CR2", {126, 84}}, // of an embedded one between bars
    {"mov/metadata-extractor-images__with-gps.mov", {70, 126}},
};

TEST(CorpusPicturesTest, EveryFormatShows) {
    const auto folder = corpusFolder(CHRONOMENDER_SOURCE_TREE);
    const std::vector<CorpusFile> files = corpusFiles(folder);
    if (files.empty())
        GTEST_SKIP() << "no corpus at " << folder;
    initialiseImaging();
    std::vector<UprightPicture> pictures(files.size());
    parallelFor(files.size(), [&](std::size_t i) {
        pictures[i] = newImageFromSource(files[i].path, 126, PictureChoice::EmbeddedIfLargeEnough);
    });
    const std::set<std::string> kinds{"avi", "avif", "cr3", "gif", "heif", "jpeg",
                                      "mov", "mp4",  "png", "raw", "tiff", "webp"};
    std::set<std::string> without;
    for (std::size_t i = 0; i < files.size(); ++i) {
        const std::string name = std::filesystem::relative(files[i].path, folder).string();
        EXPECT_NE(pictures[i].image.isNull(), !pictures[i].failure) << name;
        if (kinds.contains(name.substr(0, name.find('/'))) && pictures[i].failure)
            without.insert(name);
        if (const auto size = kUpright.find(name); size != kUpright.end()) {
            EXPECT_EQ(pictures[i].image.size(), size->second) << name;
        }
    }
    std::set<std::string> expected;
    for (const auto &[name, why] : kWithoutPicture)
        expected.insert(name);
    EXPECT_THAT(without, UnorderedElementsAreArray(expected));
}

} // namespace
} // namespace chronomender
