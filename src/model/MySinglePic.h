// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DateSlots.h"
#include "FileFormatType.h"
#include "SinglePicAttributes.h"
#include "SpType.h"

#include <absl/time/time.h>

#include <cstdint>
#include <limits>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace chronomender {

class MySingleFolder;
class MySinglePic;
using MySinglePicPtr = std::shared_ptr<MySinglePic>;
using MySingleFolderPtr = std::shared_ptr<MySingleFolder>;

/// The item's own shift against `spDateTimeOriginal`, used in single mode.
struct Shift {
    absl::Duration singlePicModification = absl::ZeroDuration();
};

/// Which slots were filled from XMP instead of the file's tags.
struct XmpFlags {
    bool isCreaXmp = false, isDigiXmp = false, isModiXmp = false;
    bool hasModiXmp = false; ///< a TIFF tag exists and XMP holds a modification stamp as well
};

/// Bits of `majorDateDifferenceType`.
enum MajorDateDifference : unsigned {
    kZoneDisagrees = 1,      ///< the zone in the file is not the one assumed for the item
    kOnlyOneSideIsLocal = 2, ///< a group lies apart, and one side alone is without a zone
    kGroupDeviates = 4,      ///< a group lies more than 300 s apart, or is harmonised
};

/// Zone and daylight-saving state. The states are bit sets over `StampSlot`.
struct ZoneFlags {
    bool isUnsavedDueToTZC = false;
    unsigned dstDivergenceState = 0;
    unsigned dstAmbiguityAtImportState = 0;
    /// Not 0: an ambiguous stamp is read as the earlier of its two instants. Kept, without effect,
    /// while the stamp means one instant only.
    int usesAltTimeAtAmbiguityReason = 0;
    unsigned majorDateDifferenceType = 0; ///< bits of MajorDateDifference
    bool hasMinorDateDifference = false;  ///< the GPS time differs from a date without a zone
};

/// What a movie says of itself.
struct MovieInfo {
    double movDuration = -1; ///< seconds; -1 until known
    /// Seconds from the movie's start to the still of a live photo; none until read.
    std::optional<double> livePhotoStillImageTime;
    int seemsRealLivePhotoType = 0; ///< 0 not looked at, 1 no mark, 2 marked as a live photo
};

/// Live photos: on the still unless told otherwise.
struct LivePhotoState {
    std::string UUID; ///< content identifier, on still and movie; "" without one
    std::optional<int> subsecTimeOriginal, customRendered;
    OptionalDate livePhotoExactTimeCached; ///< cleared by every full read
    int usesSimplerLPExactTime_cached = 0; ///< 1 yes, -1 no, 0 unknown
    std::weak_ptr<MySinglePic> compoundLivePhotoPrev, compoundLivePhotoNext;
};

/// Membership in a group of two (raw and JPEG, still and movie).
struct GroupLink {
    MySinglePicPtr bundleDependentImage;          ///< the dependent half, on the master
    std::weak_ptr<MySinglePic> bundleMasterImage; ///< the master, on the dependent half
};

struct LocationState {
    std::optional<double> gpsLat, gpsLong; ///< degrees, south and west negative
    OptionalDate spGpsUTCDate;             ///< GPS time of the picture
    bool isGpsXmp = false;                 ///< that time came from XMP
    bool hasLocationChange = false;        ///< the user or a track changed the location
};

/// Result of the last proof that the file is still what was read.
enum class FileUnchangedState : std::uint8_t {
    Unchanged = 0,
    NotFound = 1,
    CannotBeOpened = 2,
    AttributesDiffer = 3,
    BytesDiffer = 4, ///< recorded bytes differ, or a sidecar is missing
    MustBeReadAgain = 5,
};

struct SaveState {
    unsigned saveErrorType = 0; ///< bits: 1 location, 2 tag adding, 4 date
    FileUnchangedState fileUnchangedState = FileUnchangedState::Unchanged;
    OptionalDate lastCheckedAt;
    bool isInvalidDueToChangesAfterImport = false;
    bool isVerifiedDuringSave = false;
    bool isWriteUnnecessaryDuringActiveSave = false;
    bool didRefreshTimesAfterSave = false;
    bool isAffectedBySave = false;
    bool needsInternalDataRefresh = false;
    bool shouldAddExifDateTimeTags = false;
    bool didAddExifDateTimeTags = false;
    unsigned tagAddType = 0;        ///< bits of StampSlot: the tags to add
    unsigned normalizationType = 0; ///< bit 1: stamps out of order; bit 4: file dates out of order
};

/// The texts that a rename placed in a name last, by the number of the add-on, 1 to 3.
using RenameAddOns = std::map<int, std::string>;

/// What the last rename left undone.
struct RenameState {
    int hasRenameError = 0; ///< 0 none, 1 an error, 2 a number was added when the file was moved
    /// The name with extension that the user wanted; none after a rename that did all.
    std::optional<std::string> wantedName;
    /// The next number that was to be tried when the wanted name was taken; none: it was not.
    std::optional<std::int64_t> addonCounter;
    RenameAddOns lastRenameAddOns;

    /// The wanted name, none as above.
    const std::optional<std::string> &cleanCachedTargetName() const { return wantedName; }
    bool hasCTNAddonCounter() const { return addonCounter.has_value(); }
    /// As an archive holds it: a counter stands behind the name in six digits.
    std::optional<std::string> cachedTargetName() const;
};

struct ImportState {
    int importedState = 8;
    bool isPossibleBundlePic = false;     ///< raw files and QuickTime movies not yet in a group
    bool isPossibleBundlePicTemp = false; ///< the same for the time of a move into the folder
    bool wasLocationDataSearched = false;
    /// The empty-tag question was answered with "leave alone": shown, and never part of a save.
    bool isLeftAlone = false;
    bool isExtraHardLink = false; ///< the file has more than one name on disk
};

/// Positions in the visible lists; -1 before the first build and when not listed.
struct ListPositions {
    std::int64_t indexInSource_full = -1, indexInSource_filtered = -1;
    std::int64_t indexInFolder_full = -1, indexInFolder_filtered = -1;
};

struct Marks {
    bool isKeeper = false, isRejected = false;
    std::int64_t marker = 0;
};

struct CameraInfo {
    std::string make, model;
    std::string pivMakeModel; ///< make and model for display; "" when unknown
    std::string lens;         ///< read late, where a display asks for it; "" when unknown
    std::string serialNumber; ///< of the body; read late with the lens
    std::int32_t pivImageWidth = 0, pivImageHeight = 0;
};

/// One media item: one file of one folder, what was read from it, and what the user corrected.
///
/// A plain record with questions about itself; it does no I/O and asks no selection. Created by
/// import on a worker and published when finished; from then on changed on the main thread only.
class MySinglePic : public std::enable_shared_from_this<MySinglePic> {
public:
    /// The only way an item comes to be at import. Takes a fresh `sessionUniqueId`.
    static MySinglePicPtr create(std::string name, const MySingleFolderPtr &folder, SpType type,
                                 Date date);

    // ---- identity
    std::string spName; ///< file name without directory, UTF-8
    std::string spNameAtImport;
    std::uint32_t sessionUniqueId = 0;
    FileFormatType fileFormatType = FileFormatNone;
    SpType spType = SpTypeUnsupported;
    Date spDateTimeOriginal;         ///< the main date as read; shifts are deltas over it
    Date spDateTimeModified_tempFIX; ///< corrected date of one calculation

    // ---- state
    // A change of zone reads these of every item: they stand beside the stamps.
    DateSlots slots;
    Shift shift;
    XmpFlags xmp;
    ZoneFlags zones;
    GroupLink group;
    LocationState location;
    SinglePicAttributes singlePicAttributes;
    std::vector<Finding> findings; ///< what the reader refused or tolerated
    SaveState save;
    RenameState rename;
    ImportState importState;
    ListPositions positions;
    Marks marks;
    CameraInfo camera;
    MovieInfo movie;
    LivePhotoState livePhoto;
    /// As spelled on disk. For a master also those of its dependent, and the dependent's own file.
    std::vector<std::string> spSidecarExtensions;
    XmpSidecar relevantSidecarInfos; ///< what the XMP sidecar says; its places are in that file
    bool isMovedToTrash = false;
    bool isExtensionHidden = false;
    bool isHeaderIntel = false;

    // ---- questions
    /// The folder the item stands in; none once it left.
    MySingleFolderPtr spSingleRealFolder() const { return m_folder.lock(); }
    void setFolder(const MySingleFolderPtr &folder) { m_folder = folder; }
    std::string spPath() const;     ///< folder path joined with the name
    std::string spBaseName() const; ///< name without extension
    std::string extension() const;  ///< as spelled, without the dot; "" without one
    /// The wanted name of an item with a rename error, else its name.
    const std::string &spSortNameCachedErrorOrReal() const {
        return rename.hasRenameError != 0 ? spTargetName() : spName;
    }
    /// The wanted name where there is one, else the name.
    const std::string &spTargetName() const {
        return rename.wantedName ? *rename.wantedName : spName;
    }
    std::int64_t spCategory() const;                 ///< rank of the real folder
    std::vector<std::string> spSidecarPaths() const; ///< paths of all sidecar files
    std::string spXMPPath() const;                   ///< path of the XMP sidecar; "" without one
    bool hasXMPSidecar() const;                      ///< the same question without asking for paths

    bool isMovie() const { return chronomender::isMovie(spType); }
    bool isRaw() const { return fileFormatType == FileFormatRaw; }
    bool hasLocation() const { return location.gpsLat.has_value(); }
    bool hasCorrectableDate() const { return !hasNoCorrectableDate(spType); }
    bool hasSaveErrorLocation() const { return save.saveErrorType & 1U; }
    bool hasSaveErrorTagAdd() const { return save.saveErrorType & 2U; }
    bool hasSaveErrorTime() const { return save.saveErrorType & 6U; }
    /// The states of the two sides of a group joined.
    FileUnchangedState bundleUnchangedState() const;
    bool needsNormalization() const { return save.normalizationType & 5U; }

    /// The master of a dependent; none for every other item.
    MySinglePicPtr bundleMasterImage() const;

    /// The date the item shows now: a harmonised dependent photo answers with its master's.
    Date spDateTimeModified() const;
    /// Place on the timeline: the date of the item's `sortPic`.
    Date spDateTimeModified_sort() const { return sortPic().spDateTimeModified(); }
    /// The item that stands for this one on the timeline: the master of a group, or its movie where
    /// the folder sorts live photos by movie.
    const MySinglePic &sortPic() const;
    /// Main date plus the item's own shift; none when that shift is 0.
    OptionalDate singlePicModeDate() const;

    /// What the folder's mode adds to the item's main date: its own shift or the folder's.
    absl::Duration presentShift() const;

    /// The item shows its master's date instead of its own.
    bool isThisHarmonizationChanged() const;
    /// Both sides of a raw with its JPEG: their main dates lie apart, and the folder makes them
    /// one.
    bool isGroupHarmonized() const;
    /// The item is a master whose own date harmonising changes. Today the master's date always
    /// leads.
    bool isBundleMasterAffectedByHarmonization() const;
    /// A save would have a date to write for this item. Items left alone, and items without a
    /// correctable date, never count as unsaved.
    bool isThisTimeUnsaved() const;
    /// The same without stored save errors and without tags to be added.
    bool isThisPureTimeUnsaved() const;
    bool hasLocationChange() const { return location.hasLocationChange; }
    /// A date, a location, a tag or a stored error waits for a save on either side of the group.
    bool isUnsavedOrGroupHarmonized() const;
    /// A date, a location or a tag of this item alone waits for a save; stored errors do not count.
    bool isUnsavedIgnoringSaveError() const;

    /// The source date is a wall-clock stamp without a zone.
    bool isDataSourceLocal() const;
    bool isDataSourceXmp() const;
    /// How the source slot's XMP stamp says its zone; Invalid (0) for a date from elsewhere.
    XmpStampType sourceXmpDateType() const;

    /// The recorded stamp and zone stamp of a slot; none when the file has none.
    const LocatedBytes *stamp(StampSlot slot) const;
    const LocatedBytes *zoneStamp(StampSlot slot) const;
    bool isSlotXmp(StampSlot slot) const;
    /// The XMP stamp that a slot was filled from; null for other slots.
    const XmpStamp *xmpStamp(StampSlot slot) const;

private:
    MySinglePic() = default;
    bool isThisUnsaved() const;
    std::weak_ptr<MySingleFolder> m_folder;
};

/// "xmp" in any letter case, or "<own extension>.xmp" of a sidecar that repeats the whole name of
/// its item. `ownExtension` is the item's.
bool isXmpSidecarExtension(std::string_view sidecarExtension, std::string_view ownExtension);
/// Makes the file of the item's base name with this extension, as spelled on disk, one of its
/// sidecars, once.
void addSidecarExtension(MySinglePic &pic, const std::string &sidecarExtension);

/// "Canon EOS R5" of "Canon" and "Canon EOS R5"; "NIKON CORPORATION NIKON D5000" where the model
/// does not repeat the make: trimmed make, blank, model, the make left out when the model begins
/// with it.
std::string completeMakerModelString(const std::string &make, const std::string &model);

} // namespace chronomender
