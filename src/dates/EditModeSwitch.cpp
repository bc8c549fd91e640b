// SPDX-License-Identifier: GPL-3.0-or-later
#include "DateModifications.h"

#include <cstdint>
#include <unordered_map>

namespace chronomender {
namespace {

/// All that a switch of the mode changes.
struct ModeState {
    EditMode sfEditMode{};
    absl::Duration sfDateModificationsTimeInterval;
    DateModificationFields sfDateModifications;
    bool hasChangedDirection = false, tempHasChangedDirection = false;
    /// Own shifts by `sessionUniqueId`, of masters and dependents; items without one are left out.
    std::unordered_map<std::uint32_t, absl::Duration> ownShifts;
};

/// Masters and dependents alike.
template<class Visit>
void forEachItem(const MySingleFolder &folder, Visit visit) {
    for (const MySinglePicPtr &pic : folder.sfPicDetails_fullArray) {
        visit(*pic);
        if (pic->group.bundleDependentImage)
            visit(*pic->group.bundleDependentImage);
    }
}

ModeState modeStateOf(const MySingleFolder &folder) {
    ModeState state{folder.sfEditMode,
                    folder.sfDateModificationsTimeInterval,
                    folder.sfDateModifications,
                    folder.hasChangedDirection,
                    folder.tempHasChangedDirection,
                    {}};
    forEachItem(folder, [&](const MySinglePic &pic) {
        if (pic.shift.singlePicModification != absl::ZeroDuration())
            state.ownShifts.emplace(pic.sessionUniqueId, pic.shift.singlePicModification);
    });
    return state;
}

void restore(MySingleFolder &folder, const ModeState &state) {
    folder.sfEditMode = state.sfEditMode;
    folder.sfDateModificationsTimeInterval = state.sfDateModificationsTimeInterval;
    folder.sfDateModifications = state.sfDateModifications;
    folder.hasChangedDirection = state.hasChangedDirection;
    folder.tempHasChangedDirection = state.tempHasChangedDirection;
    forEachItem(folder, [&](MySinglePic &pic) {
        const auto own = state.ownShifts.find(pic.sessionUniqueId);
        pic.shift.singlePicModification =
            own == state.ownShifts.end() ? absl::ZeroDuration() : own->second;
    });
    clearSinglePicModeImages(folder);
    sfUpdatePicsFromAndTill(folder);
}

} // namespace

void changeEditMode(MySingleFolder &folder, EditMode mode, UndoManager &undo) {
    if (folder.sfEditMode == mode)
        return;
    const UndoGroup group(undo);
    // The way forward is made anew each time, so that items that came in between keep their dates.
    undo.registerUndo(folder.shared_from_this(), [before = modeStateOf(folder), mode,
                                                  &undo](MySingleFolder &target) {
        restore(target, before);
        undo.recordAffected(target.shared_from_this());
        undo.registerUndo(target.shared_from_this(), [mode, &undo](MySingleFolder &again) {
            changeEditMode(again, mode, undo);
        });
    });
    undo.setActionName("changeEditMode");
    undo.recordAffected(folder.shared_from_this());
    changeEditMode(folder, mode);
}

} // namespace chronomender
