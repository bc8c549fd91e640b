// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Cancellation.h"
#include "FailingFileLayer.h"
#include "Grouping.h"
#include "ImportRun.h"
#include "ItemFilling.h"
#include "LittlePhoto.h"
#include "MainThread.h"
#include "MySingleFolder.h"
#include "SaveDriver.h"
#include "TemporaryFolder.h"
#include "Texts.h"
#include "UndoManager.h"
#include "UserDefaults.h"
#include "Zones.h"

#include <QCoreApplication>

#include <fcntl.h>
#include <sys/stat.h>

#include <map>
#include <set>

namespace chronomender::little {

inline void setFileDate(const std::string &path, Date date) {
    const timespec times[2] = {{0, UTIME_OMIT}, absl::ToTimespec(date)};
    utimensat(AT_FDCWD, path.c_str(), times, 0);
}

inline FileAttributes attributesOf(const std::string &path) {
    return makeSystemFileLayer()->attributes(path).value_or(FileAttributes{});
}

/// Seconds of UTC, for example utc(2024, 5, 6, 7, 8, 9).
inline Date utc(int year, int month, int day, int hour = 0, int minute = 0, int second = 0) {
    return absl::FromCivil(absl::CivilSecond(year, month, day, hour, minute, second),
                           absl::UTCTimeZone());
}

/// A session without a window: folders of little photos, imported, shifted and saved. The system's
/// zone is Europe/Berlin; every file is last modified at `fileDate`.
class FakeSession : public ImportQuestions {
public:
    explicit FakeSession(std::size_t folderCount = 1) {
        static int argumentCount = 1;
        static char name[] = "test";
        static char *arguments[] = {name, nullptr};
        if (!QCoreApplication::instance())
            static QCoreApplication application(argumentCount, arguments);
        mainThread::initialise();
        loadTexts("en");
        zones.setSystemZone(*zones.zoneWithName("Europe/Berlin"));
        for (std::size_t i = 0; i < folderCount; ++i)
            addFolder("folder" + std::to_string(i));
    }

    TemporaryFolder disk;
    Zones zones;
    UserDefaults defaults;
    UndoManager undo;
    Cancellation cancellation;
    FailingFileLayer files;
    std::vector<MySingleFolderPtr> folders;
    PerFolderImportOptions emptyTags;
    Date now = utc(2024, 8, 1, 12);
    Date fileDate = utc(2024, 5, 6, 20) + absl::Milliseconds(500);
    RunJournal journal{disk.path("support"), RunJournal::Durability::Unsynced};
    std::string toolProgram; ///< "": the ExifTool of this machine
    XtController tool{{disk.path("support"), [this] { return toolProgram; }}};
    SaveDriver driver{
        folders,
        {files, zones, defaults, undo, cancellation, journal, tool, [this] { return now; }, {}}};

    MovieOptions movieOptions(const MySingleFolder &) override { return movieAnswer; }
    MovieOptions movieAnswer;
    PerFolderImportOptions emptyTagOptions(const MySingleFolder &) override { return emptyTags; }

    MySingleFolder &folder(std::size_t index = 0) { return *folders.at(index); }
    std::string path(const std::string &name, std::size_t index = 0) const {
        return disk.path("folder" + std::to_string(index) + '/' + name);
    }

    std::string write(const std::string &name, std::string_view bytes, std::size_t index = 0) {
        const std::string file = disk.write("folder" + std::to_string(index) + '/' + name, bytes);
        setFileDate(file, fileDate);
        return file;
    }
    BuiltPhoto photo(const std::string &name, const PhotoFields &fields, std::size_t index = 0) {
        BuiltPhoto built = jpegPhoto(fields);
        write(name, built.bytes, index);
        return built;
    }

    void import() {
        std::int64_t position = 0;
        for (const MySingleFolderPtr &each : folders) {
            each->sfPicDetails_fullArray.clear(); // an import passes over names that are there
            each->bundleDependentsRawAndJPG.clear();
            each->bundleDependentsLivePhotos.clear();
            each->sfPicDetails_fullArray = importInto(*each);
            for (const MySinglePicPtr &pic : each->sfPicDetails_fullArray)
                pic->positions.indexInSource_full = position++;
        }
    }
    /// The items as a session that starts now would see them.
    std::vector<MySinglePicPtr> freshImport(std::size_t index = 0) {
        auto fresh = MySingleFolder::initWithFolder(
            folder(index).sfFolderPath(), folder(index).reference(), folder(index).sfEditMode);
        fresh->sourceTimeZones = folder(index).sourceTimeZones;
        return importInto(*fresh);
    }

    /// The item's file read again in the system's zone.
    bool readAgain(MySinglePic &pic) {
        const auto file = files.open(pic.spPath(), OpenMode::Read, nullptr);
        return file && refreshInternalData(pic, *file, file->attributes().value(),
                                           zones.systemZone().rules);
    }

    MySinglePic &item(const std::string &name) {
        for (const MySingleFolderPtr &each : folders)
            for (const auto *list :
                 {&each->sfPicDetails_fullArray, &each->bundleDependentsRawAndJPG,
                  &each->bundleDependentsLivePhotos})
                for (const MySinglePicPtr &pic : *list)
                    if (pic->spName == name)
                        return *pic;
        throw std::out_of_range(name);
    }

    PreProcessResult preProcess(const SaveRequest &request = {}) {
        return driver.preProcessThread(request);
    }
    SaveRunResult save(const SaveRequest &request = {}) {
        return driver.continueProcessThread(request, preProcess(request));
    }

private:
    /// The items of the main list; their dependents stand in the folder.
    std::vector<MySinglePicPtr> importInto(MySingleFolder &target) {
        auto items = updatePicData(target, {}, {zones, defaults, *this, cancellation, {}}).items;
        std::set<std::string> names;
        for (const MySinglePicPtr &pic : items)
            names.insert(pic->spName);
        const auto groups = checkForPossibleBundles(target, items, names, {zones, defaults});
        for (const MySinglePicPtr &dependent : groups.newDependents)
            std::erase(items, dependent);
        return items;
    }
    void addFolder(const std::string &name) {
        std::filesystem::create_directories(disk.path(name));
        folders.push_back(MySingleFolder::initWithFolder(
            disk.path(name), FolderReference::open(disk.path(name)), EditMode::Together));
    }
};

} // namespace chronomender::little
