// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ImportRun.h"
#include "LittlePhoto.h"
#include "TemporaryFolder.h"

#include <absl/time/time.h>

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace chronomender {

inline Date utc(const std::string &text) {
    Date date;
    std::string error;
    EXPECT_TRUE(absl::ParseTime("%Y-%m-%d %H:%M:%S", text, absl::UTCTimeZone(), &date, &error))
        << error;
    return date;
}

/// Answers the questions of an import and counts how often they were asked.
class ReadyAnswers : public ImportQuestions {
public:
    MovieOptions movieOptions(const MySingleFolder &) override {
        ++askedAboutMovies;
        return movieAnswer;
    }
    PerFolderImportOptions emptyTagOptions(const MySingleFolder &) override {
        ++asked;
        if (whenAsked)
            whenAsked();
        return answer;
    }
    PerFolderImportOptions answer;
    std::function<void()> whenAsked;
    MovieOptions movieAnswer;
    int asked = 0, askedAboutMovies = 0;
};

/// A folder on disk, the folder of the session that stands for it, and what an import needs.
class ImportTest : public testing::Test {
protected:
    using EmptyTags = PerFolderImportOptions::EmptyTags;

    ImportTest() { zones.setSystemZone(*zones.zoneWithName("Europe/Berlin")); }

    /// Writes a file whose modification date is `fileDate`.
    std::string file(const std::string &name, const std::string &bytes) {
        const std::string path = disk.write(name, bytes);
        const timespec seconds{absl::ToUnixSeconds(fileDate), 0};
        const timespec times[]{seconds, seconds};
        EXPECT_EQ(::utimensat(AT_FDCWD, path.c_str(), times, 0), 0);
        return path;
    }
    std::string photo(const std::string &name, const little::PhotoFields &fields) {
        return file(name, little::jpegPhoto(fields).bytes);
    }
    std::string dated(const std::string &name) {
        return photo(name, {.original = "2024:05:06 07:08:09"});
    }

    ImportServices services() {
        return {zones, defaults, questions, cancellation, progress, sessionFiles, {}};
    }
    ImportOutcome import(std::vector<std::string> names = {}) {
        if (!folder)
            openFolder();
        return updatePicData(*folder, {std::move(names), keyStates}, services());
    }
    /// Imports and makes the items part of the folder, as the main thread does.
    ImportOutcome importAndPublish(std::vector<std::string> names = {}) {
        ImportOutcome outcome = import(std::move(names));
        auto &list = folder->sfPicDetails_fullArray;
        list.insert(list.end(), outcome.items.begin(), outcome.items.end());
        folder->sfPics = folder->count();
        return outcome;
    }
    void openFolder() {
        folder = MySingleFolder::initWithFolder(disk.path(), FolderReference::open(disk.path()),
                                                EditMode::Together);
    }

    static std::vector<std::string> namesOf(const std::vector<MySinglePicPtr> &items) {
        std::vector<std::string> names;
        for (const MySinglePicPtr &item : items)
            names.push_back(item->spName);
        return names;
    }
    /// Skipped names with the last part of their reason's text key: "a.mov notYetSupported".
    static std::vector<std::string> skippedOf(const ImportOutcome &outcome) {
        std::vector<std::string> words;
        for (const SkippedEntry &entry : outcome.skipped)
            words.push_back(entry.path.substr(entry.path.rfind('/') + 1) + ' ' +
                            std::string(textKey(entry.reason)).substr(sizeof "skipReason"));
        return words;
    }

    little::TemporaryFolder disk;
    const Date fileDate = utc("2024-06-01 12:00:00");
    Zones zones;
    UserDefaults defaults;
    ReadyAnswers questions;
    Cancellation cancellation;
    std::function<void(ImportProgress)> progress;
    SessionFiles *sessionFiles = nullptr;
    KeyStates keyStates;
    MySingleFolderPtr folder;
};

} // namespace chronomender
