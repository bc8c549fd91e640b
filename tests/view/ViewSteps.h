// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MySingleFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace chronomender {

inline Date at(const std::string &text) {
    Date date;
    std::string error;
    EXPECT_TRUE(absl::ParseTime("%Y-%m-%d %H:%M:%S", text, absl::UTCTimeZone(), &date, &error))
        << error;
    return date;
}

/// A folder of the session that needs no folder on disk.
inline MySingleFolderPtr folderOfRank(std::int64_t rank, EditMode mode = EditMode::Together) {
    auto folder = MySingleFolder::initWithFolder("/nowhere", nullptr, mode);
    folder->folderSortGeneral = rank;
    return folder;
}

inline MySinglePicPtr add(const MySingleFolderPtr &folder, const std::string &name, Date date,
                          SpType type = SpTypeExifOriginal) {
    auto pic = MySinglePic::create(name, folder, type, date);
    folder->sfPicDetails_fullArray.push_back(pic);
    return pic;
}

} // namespace chronomender
