// SPDX-License-Identifier: GPL-3.0-or-later
#include "DelayedImports.h"

#include "DateModifications.h"
#include "LittleItem.h"

#include <gmock/gmock.h>

namespace chronomender {
namespace {

using little::utc;
using testing::ElementsAre;

/// Two folders of one drop. Times are told in minutes from the start of the sequence.
class DelayedImportsTest : public testing::Test {
protected:
    const Date start = utc(2024, 1, 1);
    const DateSequence everyTenMinutes{start, 10, DateSequence::StepperKind::Minutes};

    MySingleFolderPtr canon = folderAt("/trip/canon"), phone = folderAt("/trip/phone");
    DelayedImports imports{[](const MySingleFolderPtr &folder, const auto &items) {
        auto &list = folder->sfPicDetails_fullArray;
        list.insert(list.end(), items.begin(), items.end());
    }};

    static MySingleFolderPtr folderAt(const std::string &path) {
        return MySingleFolder::initWithFolder(path, nullptr, EditMode::Together);
    }
    MySinglePicPtr hold(const MySingleFolderPtr &folder, const std::string &name,
                        SpType type = SpTypeExifOriginal) {
        auto pic = MySinglePic::create(name, folder, type, utc(2020, 5, 5));
        imports.hold(*folder, {pic});
        return pic;
    }
    std::int64_t minutes(const MySinglePicPtr &pic) const {
        return (pic->spDateTimeModified() - start) / absl::Minutes(1);
    }
};

TEST_F(DelayedImportsTest, NamesOfAllFoldersMakeOneSequence) {
    imports.addDrop(everyTenMinutes, {phone, canon});
    const auto ten = hold(phone, "IMG_10.jpg"), nine = hold(phone, "IMG_9.jpg");
    imports.removeDelayer(*phone);
    EXPECT_TRUE(phone->sfPicDetails_fullArray.empty());
    const auto other = hold(canon, "IMG_9.jpg");
    imports.removeDelayer(*canon);

    EXPECT_EQ(minutes(other), 0); // of two equal names the one of the earlier path
    EXPECT_EQ(minutes(nine), 10);
    EXPECT_EQ(minutes(ten), 20);
    EXPECT_EQ(phone->count(), 2);
    EXPECT_EQ(phone->sfEditMode, EditMode::Single);
    EXPECT_EQ(phone->sfTill, start + absl::Minutes(20));
    EXPECT_EQ(nine->spDateTimeOriginal, utc(2020, 5, 5));
    EXPECT_FALSE(imports.isDelayed(*canon));
}

TEST_F(DelayedImportsTest, FixedDatesAreTakenDirectlyWhereTheFileHasNoOtherTag) {
    imports.addDrop({start, 1, DateSequence::StepperKind::Hours}, {canon});
    const auto tiff = hold(canon, "a", SpTypeEmptyTiffFixedDate);
    const auto movie = hold(canon, "b", SpTypeMovieEmptyFixedDate);
    const auto original = hold(canon, "c", SpTypeEmptyOriginalFixedDate);
    const auto ignored = hold(canon, "d", SpTypeUnsupported);
    const auto last = hold(canon, "e");
    imports.removeDelayer(*canon);

    EXPECT_EQ(tiff->spDateTimeOriginal, start);
    EXPECT_EQ(movie->spDateTimeOriginal, start + absl::Hours(1));
    EXPECT_EQ(original->spDateTimeOriginal, utc(2020, 5, 5));
    EXPECT_EQ(minutes(original), 120);
    EXPECT_EQ(ignored->spDateTimeModified(), utc(2020, 5, 5));
    EXPECT_EQ(minutes(last), 180);
}

TEST_F(DelayedImportsTest, AFolderWithAChangeOfItsOwnKeepsIt) {
    little::addItem(canon, SpTypeExifOriginal, utc(2021, 1, 1));
    setSfDateModificationsFromTimeInterval(*canon, absl::Hours(2), false);
    canon->isEXIFIgnored = false;
    imports.addDrop(everyTenMinutes, {canon, phone});
    const auto kept = hold(canon, "a"), taking = hold(phone, "b");
    const auto fixed = hold(canon, "c", SpTypeEmptyTiffFixedDate);
    imports.removeDelayer(*canon);
    imports.removeDelayer(*phone);

    EXPECT_EQ(kept->spDateTimeModified(), utc(2020, 5, 5, 2));
    EXPECT_EQ(canon->sfEditMode, EditMode::Together);
    EXPECT_EQ(minutes(taking), 0);
    EXPECT_EQ(fixed->spDateTimeOriginal, start + absl::Minutes(10));
}

} // namespace
} // namespace chronomender
