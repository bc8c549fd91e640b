// SPDX-License-Identifier: GPL-3.0-or-later
#include "ImportSteps.h"
#include "LateCompletion.h"

namespace chronomender {
namespace {

PropertyDictionary camera(const char *make, const char *model) {
    PropertyDictionary properties;
    properties.make = make;
    properties.model = model;
    return properties;
}
PropertyDictionary sized(std::int32_t height, std::int32_t exifHeight = 0) {
    PropertyDictionary properties;
    properties.pixelWidth = properties.pixelHeight = height;
    properties.exifWidth = properties.exifHeight = exifHeight;
    return properties;
}

class LateCompletionTest : public testing::Test {
protected:
    LateCompletionTest() : pic(MySinglePic::create("a.nef", nullptr, SpTypeExifOriginal, {})) {
        pic->fileFormatType = FileFormatRaw;
    }
    MySinglePicPtr pic;
};

TEST_F(LateCompletionTest, CameraTakesTheBetterWords) {
    struct Case {
        const char *known, *make, *model, *expected;
    };
    const Case cases[]{
        {"", "Canon", "Canon EOS R5", "Canon EOS R5"},
        {"", "SONY", "ILCE-7M3", "SONY ILCE-7M3"},
        {"-", "X", "Y", "X Y"},
        {"Old Camera", "NIKON", "D5000", "NIKON D5000"},
        {"Old Camera", "N", "D5000", "Old Camera"},
        {"Old Camera", "NIKON", "D5", "Old Camera"},
        {"Old Camera", "", "D5000", "Old Camera"},
        {"", "NIKON", "", ""},
    };
    EXPECT_TRUE(lacksCamera(*pic));
    completeItem(*pic, PropertyDictionary());
    EXPECT_FALSE(lacksCamera(*pic)) << "asked for once";
    for (const Case &c : cases) {
        pic->camera = {};
        pic->camera.pivMakeModel = c.known;
        completeItem(*pic, camera(c.make, c.model));
        EXPECT_EQ(pic->camera.pivMakeModel, c.expected) << c.make << '/' << c.model;
    }
}

TEST_F(LateCompletionTest, ALocationOfTheFilesOwnTagsStays) {
    for (const double latitude : {10.0, -1.0}) {
        PropertyDictionary properties;
        properties.gps = PropertyDictionary::Gps{latitude, 20, {}};
        completeItem(*pic, properties);
    }
    EXPECT_EQ(pic->location.gpsLat, 10);
    EXPECT_EQ(pic->location.gpsLong, 20);
}

TEST_F(LateCompletionTest, SizesAreThoseOfThePixelsElseThoseOfExif) {
    const std::pair<PropertyDictionary, std::int32_t> table[]{
        {sized(4000, 10), 4000}, {{}, 4000}, {sized(0, 200), 200}};
    for (const auto &[properties, height] : table) {
        completeItem(*pic, properties);
        EXPECT_EQ(pic->camera.pivImageHeight, height);
    }
    pic->fileFormatType = FileFormatNone;
    completeItem(*pic, sized(1));
    EXPECT_EQ(pic->camera.pivImageWidth, -1);
}

TEST_F(LateCompletionTest, MoviesTakeWhatTheirHeaderDidNotTell) {
    pic->fileFormatType = FileFormatOtherMovie;
    pic->camera.pivMakeModel = "-";
    EXPECT_TRUE(lacksCamera(*pic));
    completeItem(*pic, sized(1));
    EXPECT_EQ(pic->camera.pivImageWidth, 0);
    completeItem(*pic, LateProperties{{}, MovieProperties{2.5, 640, 360, "SONY", "HDR-CX"}});
    EXPECT_EQ(pic->movie.movDuration, 2.5);
    EXPECT_EQ(pic->camera.pivImageHeight, 360);
    EXPECT_EQ(pic->camera.pivMakeModel, "SONY HDR-CX");
    completeItem(*pic, LateProperties{{}, MovieProperties{9, 0, 0, "", ""}});
    EXPECT_EQ(pic->movie.movDuration, 2.5);
    EXPECT_EQ(pic->camera.pivImageHeight, 360);
    EXPECT_FALSE(lacksCamera(*pic));
}

using SecondOpinionTest = ImportTest;

TEST_F(SecondOpinionTest, IsThatOfThePreviewWhereARawFileSaysNothing) {
    initialiseImaging();
    const std::string exif = little::photoEntries(little::fullPhotoFields()).build().bytes;
    const std::string preview = little::Jpeg().exif(exif).frame(0xC0, 1620, 1080).body(99).bytes();
    file("a.raf", "RAWHEADER" + preview + "sensor");
    const MySinglePicPtr pic = import().items.at(0);
    pic->camera = {};
    completeItem(*pic, readLateProperties(*pic));
    EXPECT_EQ(pic->camera.pivImageWidth, 1620);
    EXPECT_EQ(pic->camera.pivImageHeight, 1080);
    EXPECT_EQ(pic->camera.pivMakeModel, "Little One");
}

} // namespace
} // namespace chronomender
