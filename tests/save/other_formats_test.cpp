// SPDX-License-Identifier: GPL-3.0-or-later
#include "LittleHeif.h"
#include "LittlePng.h"
#include "LittleWebp.h"
#include "LittleXmp.h"
#include "SaveTest.h"

namespace chronomender {
namespace {

using namespace little;
using testing::ElementsAre;

class OtherFormats : public SaveTest {
protected:
    /// Imports the files and saves them an hour later.
    SaveRunResult saveLater(const std::map<std::string, BuiltPhoto> &files) {
        for (const auto &[name, built] : files)
            session.write(name, built.bytes);
        session.import();
        keepOwnZones();
        shift(absl::Hours(1));
        return session.save();
    }
};

TEST_F(OtherFormats, ExifStampsAreWrittenInPlace) {
    const PhotoFields fields{.original = "2024:05:06 07:08:09", .zoneOriginal = "-03:30"};
    const std::map<std::string, BuiltPhoto> files{
        {"a.heic", heifPhoto(fields)}, {"b.cr3", cr3Photo(fields)}, {"c.webp", webpPhoto(fields)}};
    EXPECT_THAT(results(saveLater(files)),
                ElementsAre(ItemResult::Saved, ItemResult::Saved, ItemResult::Saved));
    EXPECT_EQ(session.files.bytesWritten, 3 * 19U) << "a stamp each";
    for (const auto &[name, built] : files)
        EXPECT_EQ(content(name),
                  replaced(built, {{"ExifDateTimeOriginal", "2024:05:06 08:08:09"}}));
    expectModelIsWhatAFreshImportShows();
}

TEST_F(OtherFormats, PngChunksGetTheirChecksums) {
    const auto png = [](const char *exif, const char *xmp) {
        return pngPhoto({.original = exif, .xmp = xmpWith("exif:GPSTimeStamp", xmp)});
    };
    const auto xmpOnly = [](const char *xmp) {
        return BuiltPhoto{Png().images(2, 9).xmp(xmpWith("xmp:CreateDate", xmp)).end().bytes(), {}};
    };
    saveLater({{"a.png", png("2024:05:06 07:08:09", "2024-05-06T05:08:09Z")},
               {"b.png", xmpOnly("2024-05-06T07:08:09-03:30")}});
    EXPECT_EQ(session.files.bytesWritten, 2 * (19U + 4)) << "a stamp and a checksum each";
    EXPECT_EQ(content("a.png"), png("2024:05:06 08:08:09", "2024-05-06T05:08:09Z").bytes);
    EXPECT_EQ(content("b.png"), xmpOnly("2024-05-06T08:08:09-03:30").bytes);
    expectModelIsWhatAFreshImportShows();
}

} // namespace
} // namespace chronomender
