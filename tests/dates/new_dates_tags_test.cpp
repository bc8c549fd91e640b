// SPDX-License-Identifier: GPL-3.0-or-later
#include "NewDateSteps.h"

namespace chronomender {
namespace {

using namespace little;

/// A photo whose missing tags are to be added, shifted by −1000 s: what they will hold.
struct TagLine {
    const char *what;
    SpType type;
    Moments old;
    unsigned tagAddType;
    Moments expected; ///< the three stamps; file dates are not compared
};

const TagLine tagLines[] = {
    {"no tags at all",
     SpTypeNoTagsFileDate,
     {none, none, none, 0.75, 100.5},
     7,
     {-1000, -1000, 100, {}, {}}},
    {"no tags, equal file dates",
     SpTypeNoTagsFileDate,
     {none, none, none, 0.75, 2},
     7,
     {-1000, -1000, -1000, {}, {}}},
    {"a TIFF date younger than the file",
     SpTypeTiffYoungerThanFile,
     {none, none, 900, 0.75, 0},
     3,
     {-1000, -1000, 900, {}, {}}},
    {"a TIFF date alone",
     SpTypeTiffDateTime,
     {none, none, 0, 5, 5},
     3,
     {-1000, -1000, -1000, {}, {}}},
    {"no digitised date", SpTypeExifOriginal, {0, none, 900, 5, 5}, 2, {-1000, -1000, 900, {}, {}}},
    {"no original", SpTypeExifDigitized, {none, 0, 900, 5, 5}, 1, {-1000, -1000, 900, {}, {}}},
    {"no TIFF date", SpTypeExifOriginal, {0, 60, none, 5, 300.5}, 4, {-1000, 60, 300, {}, {}}},
    {"nothing missing", SpTypeExifOriginal, {0, 0, 0, 5, 5}, 0, {-1000, -1000, -1000, {}, {}}},
};

TEST(MissingTags, AreCalculatedFromTheDatesThatTheFileHas) {
    for (const TagLine &line : tagLines) {
        SCOPED_TRACE(line.what);
        const auto folder = makeFolder();
        folder->sfDateModificationsTimeInterval = absl::Seconds(-1000);
        const auto pic = addItem(folder, line.type, line.old);
        pic->save.shouldAddExifDateTimeTags = true;
        // Twice, as a display and the save that follows: the marks of the first must not disturb.
        for (CalculationMode mode : {Live, Save}) {
            calculateNewDates(*pic, context(mode));
            EXPECT_EQ(pic->save.tagAddType, line.tagAddType);
            EXPECT_EQ(newMoment(*pic, Original), line.expected.original);
            EXPECT_EQ(newMoment(*pic, Digitized), line.expected.digitized);
            EXPECT_EQ(newMoment(*pic, Tiff), line.expected.tiff);
            EXPECT_EQ(oldMoment(*pic, Original), line.tagAddType & 1 ? past : line.old.original);
            EXPECT_EQ(oldMoment(*pic, Digitized), line.tagAddType & 2 ? past : line.old.digitized);
            EXPECT_EQ(oldMoment(*pic, Tiff), line.tagAddType & 4 ? past : line.old.tiff);
        }
    }
}

TEST(MissingTags, AreAddedEvenWithoutAnyOtherChange) {
    const auto folder = makeFolder();
    const auto pic = addItem(folder, SpTypeNoTagsFileDate, {none, none, none, 0.75, 0.75});
    EXPECT_FALSE(prepareExifDateTimeAddition(*pic));
    pic->save.shouldAddExifDateTimeTags = true;
    calculateNewDates(*pic, context(Save));
    EXPECT_TRUE(pic->save.isAffectedBySave);
    EXPECT_EQ(newMoment(*pic, Original), 0);
    EXPECT_EQ(moment(pic->spDateTimeOriginal), 0); // a stamp has no fraction
}

} // namespace
} // namespace chronomender
