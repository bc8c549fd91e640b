// SPDX-License-Identifier: GPL-3.0-or-later
#include "NewDateSteps.h"

#include <functional>

namespace chronomender {
namespace {

using namespace little;
using O = DateChangeOptions;
using Change = std::function<void(MySinglePic &, NewDateContext &)>;

/// A digitised date that a calculation with this option moves even without a shift: it tells
/// whether one was made.
constexpr Moments telltale{0, 50, 60, 70, 80};
const Options moveDigitized{{&O::dateChangeEXIFEXIFDigiDate, 0}};

void shift(MySinglePic &pic, double seconds) {
    pic.spSingleRealFolder()->sfDateModificationsTimeInterval = absl::Seconds(seconds);
}
void saveAll(MySinglePic &, NewDateContext &context) {
    context.options.isSavingPhotosWithoutDateChangesEnabled = true;
}
Change butWith(void (*change)(MySinglePic &)) {
    return [change](auto &pic, auto &context) {
        saveAll(pic, context);
        change(pic);
    };
}
Change dragTo(Date date, double by = 7) {
    return [=](auto &, auto &context) { context.drag = LiveDrag{date, absl::Seconds(by)}; };
}
void force(MySinglePic &, NewDateContext &context) {
    context.force = true;
}
Change followWithin(int threshold) {
    return [threshold](auto &pic, auto &context) {
        shift(pic, -10);
        context.options = {};
        context.dateComparisonThresold = threshold;
    };
}
Change moveLocation(int setting, int digitizedChoice = 0) {
    return [setting, digitizedChoice](MySinglePic &pic, NewDateContext &context) {
        pic.location.hasLocationChange = true;
        context.dateChangeTypeAtLocationOnlyChanges = setting;
        context.options.dateChangeEXIFEXIFDigiDate = digitizedChoice;
        context.dateComparisonThresold = 60; // the two dates are equal, yet not to follow in 3
    };
}
void moveLocationInSidecar(MySinglePic &pic, NewDateContext &context) {
    moveLocation(3)(pic, context);
    pic.spSidecarExtensions = {"xmp"};
}

struct OccasionRow {
    const char *what;
    CalculationMode mode;
    Change change;
    Moment digitized; ///< 50: as it was
    bool isAffected;  ///< by the save; a display does not decide about it
};

const OccasionRow occasionRows[] = {
    {"unchanged, shown", Live, [](auto &, auto &) {}, 50, false},
    {"unchanged, saved", Save, [](auto &, auto &) {}, 50, false},
    {"all are to be saved, shown", Live, saveAll, 50, false},
    {"all are saved", Save, saveAll, 0, true},
    {"forced", Live, force, 0, false},
    {"forced, saved", Save, force, 50, false},
    {"dragged", Live, dragTo(at(-500.0)), -500, false},
    {"dragged, saved", Save, dragTo(at(-500.0)), 50, false},
    {"held where it was", Live, dragTo(at(-500.0), 0), 50, false},
    {"dragged to a marker", Live, dragTo(InfinitePast()), 50, false},
    {"location 0", Save, moveLocation(0), 0, true},
    {"location 1", Save, moveLocation(1), 50, false},
    {"location 2", Save, moveLocation(2), 0, true},
    {"location 3", Save, moveLocation(3), 50, true},
    {"location 3 keeps the date, not the slot", Save, moveLocation(3, 2), 50, true},
    {"location in a sidecar", Save, moveLocationInSidecar, 50, false},
    {"location in a sidecar, and a shift", Save,
     [](auto &pic, auto &context) {
         moveLocationInSidecar(pic, context);
         shift(pic, -10);
     },
     -10, true},
    {"left alone", Save, butWith([](auto &pic) { pic.importState.isLeftAlone = true; }), 50, false},
    {"unsupported", Save, butWith([](auto &pic) { pic.spType = SpTypeUnsupported; }), 50, false},
    {"follows outside the threshold", Save, followWithin(49), 50, true},
    {"follows at the threshold", Save, followWithin(50), -10, true},
};

void expectUntouched(const MySinglePic &pic) {
    for (const SlotDescription &slot : slotDescriptions)
        EXPECT_EQ(pic.slots.*slot.newDate, pic.slots.*slot.oldDate) << slot.name;
}

TEST(NewDateOccasions, SayWhetherAnItemIsCalculated) {
    for (const OccasionRow &row : occasionRows) {
        for (const bool wasAffected : {false, true}) {
            SCOPED_TRACE(row.what);
            const auto folder = makeFolder();
            const auto pic = addItem(folder, SpTypeExifOriginal, telltale);
            pic->save.isAffectedBySave = wasAffected;
            NewDateContext calculation = context(row.mode, moveDigitized);
            row.change(*pic, calculation);
            calculateNewDates(*pic, calculation);
            EXPECT_EQ(newMoment(*pic, Digitized), row.digitized);
            EXPECT_EQ(pic->save.isAffectedBySave, row.mode == Live ? wasAffected : row.isAffected);
            if (row.digitized == 50 && !row.isAffected)
                expectUntouched(*pic);
        }
    }
}

TEST(NewDateOccasions, ADragGivesHalvesOfAGroupTheirOwnDates) {
    const auto folder = makeFolder();
    const auto still = addItem(folder, SpTypeExifOriginal, telltale);
    const auto movie = addItem(folder, SpTypeMovieMdta, at(3.0));
    makeDependent(movie, still);
    NewDateContext calculation = context(Live);
    dragTo(at(-500.0), -20)(*still, calculation);
    const auto dragged = [&](MySinglePic &pic) {
        calculateNewDates(pic, calculation);
        return moment(pic.spDateTimeModified_tempFIX);
    };
    EXPECT_EQ(dragged(*still), -500);
    EXPECT_EQ(dragged(*movie), -17); // by as much
    folder->sortFolderLPsByMov = true;
    EXPECT_EQ(dragged(*still), -20); // held is the movie
}

TEST(NewDateOccasions, ARunningSaveKeepsDisplaysFromCalculating) {
    const auto folder = makeFolder();
    const auto pic = addItem(folder, SpTypeExifOriginal, telltale);
    NewDateContext calculation = context(Live);
    calculation.isSavingInProgress = calculation.force = true;
    calculateNewDates(*pic, calculation);
    EXPECT_EQ(newMoment(*pic, Original), held);
    calculation.mode = Save;
    calculateNewDates(*pic, calculation);
    EXPECT_EQ(newMoment(*pic, Original), 0);
}

TEST(NewDateOccasions, ASaveReachesForTheDependentAndADisplayDoesNot) {
    const auto folder = makeFolder();
    folder->sfDateModificationsTimeInterval = absl::Seconds(-10);
    // Of every path, also of items whose own date is the file's: a raw file of type 4 has a JPEG.
    for (const SpType type :
         {SpTypeExifOriginal, SpTypeTiffYoungerThanFile, SpTypeEmptyOriginalFileDate,
          SpTypeNoTagsFileDate, SpTypeNoTagsFixedDate, SpTypeMovieMvhdYoungerThanFile}) {
        const auto master = addItem(folder, type, telltale);
        const auto dependent = addItem(folder, SpTypeExifOriginal, telltale);
        makeDependent(dependent, master);
        calculateNewDates(*master, context(Live));
        EXPECT_EQ(newMoment(*dependent, Original), held);
        calculateNewDates(*master, context(Save));
        EXPECT_EQ(newMoment(*dependent, Original), -10) << static_cast<int>(type);
    }
}

TEST(NewDateOccasions, AnUnchangedMasterStillReachesForItsHarmonisedDependent) {
    const auto folder = makeFolder();
    folder->harmonizingRawJpgsType = 1;
    const auto raw = addItem(folder, SpTypeExifOriginal, telltale);
    const auto jpeg = addItem(folder, SpTypeExifOriginal, {3600, 3600, none, 3600, 3600});
    makeDependent(jpeg, raw);
    calculateNewDates(*raw, context(Save, moveDigitized));
    expectUntouched(*raw);
    EXPECT_FALSE(raw->save.isAffectedBySave);
    EXPECT_EQ(newMoment(*jpeg, Original), 0);
    EXPECT_TRUE(jpeg->save.isAffectedBySave);
}

/// A photo whose missing tags are to be added, shifted by −1000 s: what they will hold.
struct TagLine {
    const char *what;
    SpType type;
    Moments old;
    unsigned tagAddType;
    Moment original, digitized, tiff;
};

const TagLine tagLines[] = {
    {"none", SpTypeNoTagsFileDate, {none, none, none, 0.75, 100.5}, 7, -1000, -1000, 100},
    {"none, fixed", SpTypeNoTagsFixedDate, {none, none, none, 0.75, 2}, 7, -1000, -1000, -1000},
    {"equal files", SpTypeNoTagsFileDate, {none, none, none, 0.75, 2}, 7, -1000, -1000, -1000},
    {"younger", SpTypeTiffYoungerThanFile, {none, none, 900, 0.75, 0}, 3, -1000, -1000, 900},
    {"TIFF alone", SpTypeTiffDateTime, {none, none, 0, 5, 5}, 3, -1000, -1000, -1000},
    {"no digitised", SpTypeExifOriginal, {0, none, 900, 5, 5}, 2, -1000, -1000, 900},
    {"no original", SpTypeExifDigitized, {none, 0, 900, 5, 5}, 1, -1000, -1000, 900},
    {"no TIFF", SpTypeExifOriginal, {0, 60, none, 5, 300.5}, 4, -1000, 60, 300},
    {"nothing missing", SpTypeExifOriginal, {0, 0, 0, 5, 5}, 0, -1000, -1000, -1000},
};

TEST(MissingTags, AreCalculatedFromTheDatesThatTheFileHas) {
    for (const TagLine &line : tagLines) {
        SCOPED_TRACE(line.what);
        const auto folder = makeFolder();
        const auto pic = addItem(folder, line.type, line.old);
        shift(*pic, -1000);
        pic->save.shouldAddExifDateTimeTags = true;
        // Twice, as a display and the save that follows: the marks of the first must not disturb.
        for (CalculationMode mode : {Live, Save}) {
            calculateNewDates(*pic, context(mode));
            EXPECT_EQ(pic->save.tagAddType, line.tagAddType);
            EXPECT_EQ(newMoment(*pic, Original), line.original);
            EXPECT_EQ(newMoment(*pic, Digitized), line.digitized);
            EXPECT_EQ(newMoment(*pic, Tiff), line.tiff);
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
    pic->fileFormatType = FileFormatJpeg;
    EXPECT_TRUE(setShouldAddExifDateTimeTags(*pic, true));
    calculateNewDates(*pic, context(Save));
    EXPECT_TRUE(pic->save.isAffectedBySave);
    EXPECT_EQ(newMoment(*pic, Original), 0);
    EXPECT_EQ(moment(pic->spDateTimeOriginal), 0); // a stamp has no fraction
    EXPECT_TRUE(areExifDateTimeTagsAddable(*pic)) << "asked for is not added";
    // Taken back, nothing is left of it.
    EXPECT_TRUE(setShouldAddExifDateTimeTags(*pic, false));
    EXPECT_EQ(pic->save.tagAddType, 0U);
    EXPECT_EQ(oldMoment(*pic, Original), none);
    EXPECT_EQ(moment(pic->spDateTimeOriginal), 0.75);
    calculateNewDates(*pic, context(Save));
    expectUntouched(*pic);
}

TEST(MissingTags, CanBeAddedToPhotosThatTheToolWrites) {
    const Moments bare{none, none, none, 0, 0}, full{0, 0, 0, 0, 0}, dated{0, none, none, 0, 0};
    const struct {
        SpType type;
        Moments old;
        FileFormatType format;
        const char *name;
        bool isAddable;
        bool XmpFlags::*xmp = nullptr;
    } rows[] = {
        {SpTypeNoTagsFileDate, bare, FileFormatJpeg, "a.jpg", true},
        {SpTypeNoTagsFixedDate, bare, FileFormatJpeg, "a.jpg", false},
        {SpTypeNoTagsFileDate, bare, FileFormatGif, "a.gif", false},
        {SpTypeNoTagsFileDate, bare, FileFormatPict, "a.pct", false},
        {SpTypeMovieFileDate, bare, FileFormatQuickTime, "a.mov", false},
        {SpTypeEmptyOriginalFileDate, {past, none, none, 0, 0}, FileFormatJpeg, "a.jpg", false},
        {SpTypeExifOriginal, full, FileFormatJpeg, "a.jpg", false},
        {SpTypeExifOriginal, dated, FileFormatPng, "a.png", true},
        {SpTypeExifOriginal, dated, FileFormatJpeg, "a.jpg", false, &XmpFlags::isCreaXmp},
        {SpTypeExifOriginal, dated, FileFormatRaw, "a.NEF", true},
        {SpTypeExifOriginal, dated, FileFormatRaw, "a.crw", false},
        {SpTypeTiffYoungerThanFile, {none, none, 0, 0, 0}, FileFormatTiff, "a.tif", true},
    };
    for (const auto &row : rows) {
        const auto folder = makeFolder();
        const auto pic = addItem(folder, row.type, row.old);
        pic->spName = row.name;
        pic->fileFormatType = row.format;
        if (row.xmp)
            pic->xmp.*row.xmp = true;
        EXPECT_EQ(setShouldAddExifDateTimeTags(*pic, true), row.isAddable) << row.name;
        EXPECT_EQ(pic->isThisTimeUnsaved(), row.isAddable || hasImportOptionChanges(row.type))
            << row.name;
    }
}

} // namespace
} // namespace chronomender
