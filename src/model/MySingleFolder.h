// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FolderAccess.h"
#include "MySinglePic.h"
#include "ZoneAssignments.h"

#include <absl/time/time.h>

#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace chronomender {

class UserDefaults;

/// 1 one shift for the whole folder, 2 a shift per item.
enum class EditMode : std::int32_t { Together = 1, Single = 2 };

/// The together shift as the date fields show it.
struct DateModificationFields {
    std::string dmDirection = "+";
    std::string dmDays = "0", dmHours = "0", dmMinutes = "0", dmSeconds = "0";

    bool operator==(const DateModificationFields &) const = default;
};

/// How empty date tags of the folder's files are to be read; kept once asked.
struct PerFolderImportOptions {
    enum class EmptyTags : std::uint8_t { LeaveAlone, FileDate, FixedDate };
    EmptyTags withEmptyExifFixDate = EmptyTags::FileDate;
    OptionalDate prefFixDateDate;                          ///< date of the first such file
    absl::Duration step = absl::ZeroDuration();            ///< added from file to file
    absl::Duration intervalStepper = absl::ZeroDuration(); ///< how far the sequence got
};

/// What the media of a folder are.
enum class MediaTypesState : std::int64_t { Nothing = 0, Photos = 1, Movies = 2, Both = 3 };
/// What the media of two folders are together.
constexpr MediaTypesState operator|(MediaTypesState a, MediaTypesState b) {
    return static_cast<MediaTypesState>(static_cast<int>(a) | static_cast<int>(b));
}

inline constexpr std::uint16_t noColorIndex = 65535;

/// One folder on disk with its items, its shift and its zone choices. Changed on the main thread,
/// except that an import run adds to `picsImportedAndTempStoredUntilAllReady`.
class MySingleFolder : public std::enable_shared_from_this<MySingleFolder> {
public:
    static MySingleFolderPtr initWithFolder(std::string path,
                                            std::shared_ptr<FolderReference> folder, EditMode mode);

    std::string sfFolder; ///< display name
    EditMode sfEditMode = EditMode::Together;
    absl::Duration sfDateModificationsTimeInterval = absl::ZeroDuration();
    DateModificationFields sfDateModifications;
    bool hasChangedDirection = false;     ///< the shown direction is "-"
    bool tempHasChangedDirection = false; ///< the direction just picked, also at a shift of 0
    std::int64_t singlePicModeImages = 0; ///< items with a shift of their own
    OptionalDate sfFrom, sfTill;
    std::int64_t sfPics = -1; ///< number of items; -1 before the first import has ended
    int fixedDates = 0, saveErrors = 0, renameErrors = 0;
    RenameAddOns lastRenameAddOns; ///< of the folder; an item's own come first
    std::optional<PerFolderImportOptions> perFolderImportOptions;
    bool isEXIFIgnored = false;
    bool isUnsavedDueToTZC = false;
    bool isDisconnected = false;
    std::uint16_t colorIndex = noColorIndex;
    std::int64_t folderSortGeneral = 0; ///< rank in order of creation
    int importDepth = 0;
    MediaTypesState mediaTypesState = MediaTypesState::Nothing;
    OptionalDate lastLocalChange;           ///< proofs older than this are out of date
    bool isQuicktimeMDTADateEnabled = true; ///< a movie's metadata date wins over its header's
    bool isQuicktimeMVHDTimezoneCorrectionEnabled = false; ///< header times are local time
    bool areMovieOptionsSettled = false; ///< the two above were asked for or given
    int sortLPsByMovModifier = -1;       ///< -1 until first asked; 0 as the program, 1 no, 2 yes
    bool sortFolderLPsByMov = false;     ///< live photos stand at the time of their movie
    int harmonizingRawJpgsType = -1;     ///< -1 until the folder first has a raw with its JPEG
    std::int64_t hasDSTJumperType = 0;
    ZoneAssignments sourceTimeZones, targetTimeZones;

    std::vector<MySinglePicPtr> sfPicDetails_fullArray; ///< masters in import order: the main list
    std::vector<MySinglePicPtr> bundleDependentsRawAndJPG, bundleDependentsLivePhotos;
    std::vector<MySinglePicPtr> picsImportedAndTempStoredUntilAllReady;

    /// Where the folder is now; the last known path when it cannot be asked. Safe on all threads.
    std::string sfFolderPath() const;
    /// The open folder; none when it cannot be reached.
    std::shared_ptr<FolderReference> reference() const;
    /// The folder's path for work on its files, none when the folder cannot be reached.
    std::optional<std::string> unlockedSecUrl() const;
    /// With `refuseTrash`, a folder that lies in a trash counts as not writable.
    bool isWriteableCheckingTrashed(bool refuseTrash) const;

    std::int64_t count() const { return static_cast<std::int64_t>(sfPicDetails_fullArray.size()); }
    std::int64_t fullMediaCount() const;
    bool isUnsavedFolder() const;
    /// A shift is set in the present mode.
    bool isDateModified() const;
    /// The date fields differ from their start, be it only by a shown "-" at a shift of 0.
    bool isTogetherDateUIModified() const;
    std::int64_t unsavedImagesCount() const;
    /// What the present items are; the caller stores it in `mediaTypesState`.
    MediaTypesState presentMediaTypesState() const;
    /// The folder's kind of harmonising. Without a raw that has its JPEG it is 0 and stays open;
    /// the first answer with one takes the user's default and keeps it.
    int takeHarmonizingRawJpgsType(const UserDefaults &defaults);
    /// The same for `sortLPsByMovModifier` and live photos; settles `sortFolderLPsByMov` by it, or
    /// by the program's preference where the folder has none of its own. To be called again when
    /// either changes.
    void settleSortFolderLPsByMov(const UserDefaults &defaults);

private:
    MySingleFolder() = default;
    mutable std::mutex m_pathMutex;
    std::shared_ptr<FolderReference> m_reference;
    mutable std::string m_sfLastKnownFolderPath;
};

} // namespace chronomender
