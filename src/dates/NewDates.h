// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MySingleFolder.h"
#include "UndoManager.h"
#include "UserDefaults.h"

#include <optional>

namespace chronomender {

/// The preferences of a date calculation, taken once so that a whole save uses one set of values
/// and one moment of saving. Field names are the preference keys.
struct DateChangeOptions {
    int dateChangeEXIFEXIFDigiDate = 1;
    int dateChangeEXIFEXIFDigiDateUnchangedOption = 1;
    int dateChangeEXIFEXIFModDate = 1;
    int dateChangeEXIFEXIFModDateUnchangedOption = 1;
    int dateChangeEXIFChangeFinderWhenChangingEXIF = 1;
    int dateChangeEXIFFinderCreaDate2 = 0;
    int dateChangeEXIFFinderModDate = 0;
    int dateChangeEXIFFinderModDateUnchangedOption = 1;
    int dateChangeEXIFFinderModDateEXIFModDateOptions = 1;
    int dateChangeEXIFFinderModDateEXIFModDateUnchangedOption = 1;
    int dateChangeNoEXIFFinderModDate = 2;
    int dateChangeNoEXIFFinderModDateUnchangedOption = 1;
    int dateChangeNoEXIFButTIFFMetaModDate = 2;
    int dateChangeNoEXIFButTIFFFinderModDate = 2;
    int dateChangeNoEXIFButTIFFFinderModDateUnchangedOption = 1;
    Date nowDate;
    bool isSavingPhotosWithoutDateChangesEnabled = false;
};

/// Reads the fifteen keys from the preferences.
DateChangeOptions cachedSaveOptions(const UserDefaults &defaults, Date now, bool savingAll);

/// Live calculations feed displays; save calculations feed a save.
enum class CalculationMode { Live, Save };

/// What an interactive drag makes of an item while it lasts. The views keep it; the dependent of a
/// group is given its master's.
struct LiveDrag {
    OptionalDate tempTimeDuringLiveMod;                                ///< where the item is held
    absl::Duration tempMoveDateByDuringLiveMod = absl::ZeroDuration(); ///< 0: it is not moved
};

struct NewDateContext {
    CalculationMode mode = CalculationMode::Live;
    DateChangeOptions options;
    int dateComparisonThresold = 3; ///< seconds within which two dates count as the same
    int dateChangeTypeAtLocationOnlyChanges = 1;
    // The rest is asked in a live calculation only.
    bool isSavingInProgress = false; ///< nothing is calculated: the NEW slots are the save's
    bool force = false;              ///< calculate even an unchanged item
    std::optional<LiveDrag> drag;    ///< of the item to calculate; none outside a drag
};

/// The context of a display: the preferences as they are now, and now in whole seconds.
NewDateContext liveContext(const UserDefaults &defaults, Date now);

/// Fills the five NEW slots (and `spDateTimeModified_tempFIX`, in save mode `isAffectedBySave`)
/// from the item's one corrected date. An unchanged item ends with every NEW equal to its OLD; so
/// do items that were left alone and items without a correctable date. In save mode the dependent
/// of a group is calculated first, by its own path, whatever the master's type: its NEW slots would
/// otherwise be those of an earlier calculation. So a worker gives a copy of both.
///
/// A preference with a value outside its table leaves its slot as it was. In a live calculation
/// "now" reads as the distant future.
void calculateNewDates(MySinglePic &pic, const NewDateContext &context);

/// The date that a drag gives the item; none when it is not moved. A dependent keeps its distance
/// to its master. A live photo that stands at its movie's time moves by the shift, as the place
/// where it is held is the movie's.
OptionalDate draggedDate(const MySinglePic &pic, const LiveDrag &drag);

/// Missing date tags can be added to the item's file: a photo of a format that the external tool
/// writes, with tags of its own or none, whose dates do not come from XMP.
bool areExifDateTimeTagsAddable(const MySinglePic &pic);
/// Asks for the missing tags to be added, or takes that back, with the marks that it left. False
/// when nothing can be added; nothing changes then.
bool setShouldAddExifDateTimeTags(MySinglePic &pic, bool shouldAdd);
/// The same as an undoable step.
bool changeMissingDateTags(MySinglePic &pic, bool shouldAdd, UndoManager &undo);

/// For an item with `shouldAddExifDateTimeTags`: decides once which tags are to be added
/// (`tagAddType`) and lends their OLD slots a date for the length of one calculation. False when
/// there is nothing to add.
bool prepareExifDateTimeAddition(MySinglePic &pic);
/// Takes the lent dates back: the distant past marks each tag that is to be added.
void cleanupExifDateTimeAddition(MySinglePic &pic);

/// Copies the OLD slots into the NEW ones; in save mode the item is not affected by the save.
void afterCalculationSetNewToOld(MySinglePic &pic, CalculationMode mode);

} // namespace chronomender
