// SPDX-License-Identifier: GPL-3.0-or-later
#include "DateChapters.h"
#include "DragZones.h"
#include "LittleItem.h"

#include <gtest/gtest.h>

#include <ostream>

namespace chronomender {

void PrintTo(const IndexRange &range, std::ostream *out) {
    *out << range.begin << ".." << range.end;
}

namespace {

using namespace little;

const TimelineGeometry geometry; // thumbnails of 128 from 24 on, every 144

TEST(TimelineGeometry, RectanglesStandWhereTheFormulaPutsThem) {
    TimelineGeometry other{100, 10, 10, 30, 5, 3.5F, 4, 20};
    const StripRect nothing;
    const struct {
        const TimelineGeometry &strip;
        std::int64_t index;
        float offset;
        StripRect expected;
    } rows[] = {{geometry, 0, 0, {20, 20, 136, 136}},
                {geometry, 2, 40, {308, 60, 136, 136}},
                {other, 1, 0, {123.5F, 23.5F, 113, 113}},
                {geometry, -1, 0, nothing},
                {geometry, 3, 0, nothing}};
    for (const auto &row : rows) {
        const StripRect rect = row.strip.thumbRectCalculatedAtIndex(row.index, 3, row.offset);
        EXPECT_EQ(rect, row.expected) << rect.x << ' ' << rect.y << ' ' << rect.width;
    }
    EXPECT_EQ(geometry.horizLocationRectForThumbAtIndex(2, 3), (StripRect{308, 0, 136, 100}));
    EXPECT_EQ(geometry.horizLocationRectForThumbAtIndex(3, 3), nothing);
    EXPECT_EQ(geometry.totalWidth(3), 24 + 3 * 128 + 2 * 16 + 24);
    EXPECT_EQ(geometry.totalWidth(0), 48);
}

TEST(TimelineGeometry, ACellReachesHalfAGapToEachSide) {
    const struct {
        float x;
        std::int64_t pic, legal, snapped; // -1 for none
    } rows[] = {{-9000, 0, -1, 0}, {15.5F, 0, -1, 0}, {16, 0, 0, 0},    {159.5F, 0, 0, 0},
                {160, 1, 1, 1},    {447.5F, 2, 2, 2}, {448, -1, -1, 2}, {1e6F, -1, -1, 2}};
    for (const auto &row : rows) {
        EXPECT_EQ(geometry.picAtXLocation(row.x, 3).value_or(-1), row.pic) << row.x;
        EXPECT_EQ(geometry.picIndexAtHorizontalMouseLocation(row.x, false, 3), row.legal) << row.x;
        EXPECT_EQ(geometry.picIndexAtHorizontalMouseLocation(row.x, true, 3), row.snapped);
    }
    EXPECT_EQ(geometry.picAtXLocation(0, 0), std::nullopt);
    EXPECT_EQ(geometry.picIndexAtHorizontalMouseLocation(50, true, 0), -1);
    const std::int64_t candidates[] = {0, 4, 9};
    EXPECT_EQ(geometry.thumbNearestToPoint(24 + 64 + 2 * 144, candidates), 0);
    EXPECT_EQ(geometry.thumbNearestToPoint(24 + 65 + 2 * 144, candidates), 4);
    EXPECT_EQ(geometry.thumbNearestToPoint(0, {}), std::nullopt);
}

// 28.8 million pixels: single precision no longer holds odd ones.
TEST(TimelineGeometry, OnAVeryLongStripEveryPlaceOnAThumbnailStillFindsIt) {
    constexpr std::int64_t count = 200'000;
    for (const TimelineGeometry &strip :
         {geometry, TimelineGeometry{.thumbSize = 131.3F, .borderMarginHorizontal = 7}})
        for (std::int64_t index = 0; index < count; ++index) {
            const double middle = strip.centerOf(index), half = 0.5 * strip.thumbSize;
            for (const double x : {middle - half + 1, middle, middle + half - 1}) {
                const auto place = static_cast<float>(x);
                ASSERT_EQ(strip.picAtXLocation(place, count), index) << x;
                ASSERT_EQ(strip.picIndexAtHorizontalMouseLocation(place, false, count), index);
            }
            const StripRect rect = strip.thumbRectCalculatedAtIndex(index, count);
            ASSERT_NEAR(rect.x + 0.5 * rect.width, middle, 3);
        }
}

// The frame of a thumbnail shows 4 pixels before it does.
TEST(TimelineGeometry, TheVisibleRangeIsWhatTouchesTheView) {
    const struct {
        double extended, moved, scrollX, width;
        IndexRange expected, trueRange;
    } rows[] = {{0, 0, 0, 24, {0, 1}, {0, 0}},
                {0, 0, 0, 25, {0, 1}, {0, 1}},
                {0, 0, 152, 16, {0, 2}, {1, 1}},
                {0, 0, 151, 18, {0, 2}, {0, 2}},
                {144, 0, 144 * 5 + 24, 128, {4, 7}, {5, 6}},
                {0, 288, 144 * 5, 144, {6, 8}, {4, 6}},
                {0, 0, 144 * 98, 9999, {97, 100}, {97, 100}},
                {0, 0, 99999, 50, {100, 100}, {100, 100}},
                {0, -99999, 0, 50, {0, 0}, {0, 1}}};
    for (const auto &row : rows) {
        EXPECT_EQ(geometry.visibleThumbsRangeExtendedBy(row.extended, row.moved, row.scrollX,
                                                        row.width, 100),
                  row.expected)
            << row.scrollX;
        EXPECT_EQ(geometry.trueVisibleThumbsRange(row.scrollX, row.width, 100), row.trueRange)
            << row.scrollX;
    }
    EXPECT_EQ(geometry.trueVisibleThumbsRange(0, 500, 0), IndexRange{});
}

TEST(TimelineGeometry, ScrollsToAPlaceWithinTheStrip) {
    EXPECT_EQ(geometry.scrollPicToPosition(10, 400), 24 + 1440 + 64 - 400);
    EXPECT_EQ(geometry.scrollPicToFront(0), 0);
    EXPECT_EQ(geometry.scrollPicToFront(3), 432);
    EXPECT_EQ(geometry.clampedScrollX(-5, 500, 10), 0);
    EXPECT_EQ(geometry.clampedScrollX(5000, 500, 10), geometry.totalWidth(10) - 500);
    EXPECT_EQ(geometry.clampedScrollX(30, 5000, 10), 0) << "a strip shorter than the view";
}

TEST(DragZones, EachPartOfACellIsATargetOfItsOwn) {
    // The targets of three cells and of the places beside them, looked at every 5 percent.
    const auto targets = [](const TimelineGeometry &strip) {
        std::string types, last;
        for (float percent = -97.5F; percent < 400; percent += 5) {
            const float x =
                strip.borderMarginHorizontal - 0.5F * strip.gap + percent / 100 * strip.cellWidth();
            const DragTarget target = dragTargetAtHorizontalMouseLocation(strip, x, 3);
            const std::string name = std::to_string(static_cast<int>(target.dragType)) + '@' +
                                     std::to_string(target.index);
            types += name == last ? "." : (types.empty() ? "" : " ") + name;
            last = name;
        }
        return types;
    };
    EXPECT_EQ(targets(geometry), "1@0...................... 2@0.. 5@0....... 3@0.. 4@1..... "
                                 "2@1.. 5@1....... 3@1.. 4@2..... 2@2.. 5@2....... 3@2.. "
                                 "1@3......................");
    EXPECT_EQ(targets({.thumbSize = 48, .borderMarginHorizontal = 8}),
              "1@0....................... 2@0. 5@0....... 3@0. 4@1....... 2@1. 5@1....... 3@1. "
              "4@2....... 2@2. 5@2....... 3@2. 1@3.......................");
    EXPECT_EQ(dragTargetAtHorizontalMouseLocation(geometry, 50, 0), DragTarget{});
}

class DateChapters : public testing::Test {
protected:
    void add(Date date, SpType type = SpTypeExifOriginal) {
        strip.theSource.push_back(addItem(folder, type, date));
    }
    /// The items that a row of scrolls brings to the left edge, each after the last has ended.
    std::vector<std::int64_t> walk(decltype(scrollByDateChapterNext) &scroll, DateScale scale,
                                   int steps, bool isRunning = false) {
        std::vector<std::int64_t> items;
        for (int step = 0; step < steps; ++step) {
            const ChapterScroll to = scroll(strip, scale, berlin).value();
            items.push_back(to.index);
            if (isRunning)
                strip.chapterScrollXInProgress = to.chapterScrollXInProgress;
            else
                strip.scrollX = to.scrollX;
        }
        return items;
    }
    using Items = std::vector<std::int64_t>;

    const absl::TimeZone berlin = zone("Europe/Berlin").rules;
    const MySingleFolderPtr folder = makeFolder();
    TimelineStrip strip;
};

TEST_F(DateChapters, EachScaleCutsTheListElsewhereInTheZonesOwnCalendar) {
    add(InfinitePast(), SpTypeUnsupported);
    add(utc(2023, 12, 31, 22, 59, 58)); // the last seconds of the year in Berlin
    add(utc(2023, 12, 31, 22, 59, 59));
    add(utc(2023, 12, 31, 23));
    add(utc(2024, 1, 31, 22));
    add(utc(2024, 1, 31, 23));
    const std::pair<DateScale, Items> rows[] = {
        {DateScale::Year, {1, 3, 5, 5}},
        {DateScale::Month, {1, 3, 5, 5}},
        {DateScale::Day, {1, 3, 4, 5}},
        {DateScale::Second, {1, 2, 3, 4}},
    };
    for (const auto &[scale, expected] : rows) {
        strip.scrollX = 0;
        EXPECT_EQ(walk(scrollByDateChapterNext, scale, 4), expected);
    }
    strip.scrollX = strip.geometry.scrollPicToFront(5);
    EXPECT_EQ(walk(scrollByDateChapterPrevious, DateScale::Month, 4), (Items{3, 1, 0, 0}));
}

TEST_F(DateChapters, ARepeatedHourIsOneChapterAndItsMinutesAreTwo) {
    for (const int minute : {0, 30, 60, 90, 120}) // 02:00, 02:30, 02:00, 02:30, 03:00
        add(utc(2024, 10, 27) + absl::Minutes(minute));
    EXPECT_EQ(walk(scrollByDateChapterNext, DateScale::Hour, 1), Items{4});
    strip.scrollX = 0;
    EXPECT_EQ(walk(scrollByDateChapterNext, DateScale::Minute, 4), (Items{1, 2, 3, 4}));
}

TEST_F(DateChapters, AScrollUnderWayGoesOnFromItsEndAlsoWhereTheStripCannotFollow) {
    EXPECT_FALSE(scrollByDateChapterNext(strip, DateScale::Day, berlin));
    EXPECT_FALSE(scrollByDateChapterPrevious(strip, DateScale::Day, berlin));
    for (int day = 1; day <= 4; ++day)
        add(utc(2024, 5, day, 12));
    strip.width = strip.geometry.totalWidth(4) - 100;
    EXPECT_EQ(walk(scrollByDateChapterNext, DateScale::Day, 4, true), (Items{1, 2, 3, 3}));
    EXPECT_EQ(scrollByDateChapterNext(strip, DateScale::Day, berlin)->scrollX, 100);
    EXPECT_EQ(walk(scrollByDateChapterPrevious, DateScale::Day, 4, true), (Items{2, 1, 0, 0}));
}

} // namespace
} // namespace chronomender
