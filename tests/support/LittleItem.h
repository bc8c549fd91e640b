// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MySingleFolder.h"

#include <gtest/gtest.h>

#include <string>

namespace chronomender::little {

// Items and folders in memory, without files.

inline Date utc(int year, int month, int day, int hour = 0, int minute = 0, int second = 0) {
    return absl::FromCivil(absl::CivilSecond(year, month, day, hour, minute, second),
                           absl::UTCTimeZone());
}

/// "2024-10-27 01:30:00.5" of an instant, in UTC.
inline std::string utcText(Date date) {
    return absl::FormatTime("%E4Y-%m-%d %H:%M:%E*S", date, absl::UTCTimeZone());
}

inline Zone zone(const std::string &name) {
    Zone result{name, absl::UTCTimeZone()};
    EXPECT_TRUE(absl::LoadTimeZone(name, &result.rules)) << name;
    return result;
}

inline MySingleFolderPtr makeFolder(EditMode mode = EditMode::Together) {
    return MySingleFolder::initWithFolder("/trip/canon", nullptr, mode);
}

inline MySinglePicPtr addItem(const MySingleFolderPtr &folder, SpType type, Date date,
                              const std::string &name = "IMG_1.JPG") {
    auto pic = MySinglePic::create(name, folder, type, date);
    folder->sfPicDetails_fullArray.push_back(pic);
    return pic;
}

/// Makes an item the dependent half of another's group, out of the folder's main list.
inline void makeDependent(const MySinglePicPtr &dependent, const MySinglePicPtr &master) {
    master->group.bundleDependentImage = dependent;
    dependent->group.bundleMasterImage = master;
    const MySingleFolderPtr folder = master->spSingleRealFolder();
    std::erase(folder->sfPicDetails_fullArray, dependent);
    (dependent->isMovie() ? folder->bundleDependentsLivePhotos : folder->bundleDependentsRawAndJPG)
        .push_back(dependent);
}

/// A stamp or zone stamp as the reader reports it, with its zero byte.
inline LocatedBytes located(const std::string &text) {
    Bytes data = text;
    data.push_back('\0');
    return {100, static_cast<std::uint32_t>(data.size()), data};
}

} // namespace chronomender::little
