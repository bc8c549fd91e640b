// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MySingleFolder.h"
#include "Patch.h"
#include "SaveErrors.h"
#include "SaveOutcome.h"
#include "ToolAction.h"
#include "UserDefaults.h"
#include "Zones.h"

#include <array>
#include <span>
#include <string>
#include <vector>

namespace chronomender {

/// Why an item cannot be written.
enum class PlanObstacle : std::uint8_t {
    None,
    UnreadableBack, ///< a stamp would not read back as the wanted instant, or cannot be built
    NoRoom,         ///< the stamp that holds the item's date has no room in its field
    ValuesCollide,  ///< two values of the file share bytes and want different ones
    NotAccepted,    ///< it would do what nobody accepted
    OutOfRange,     ///< a movie header cannot hold the date
};
/// Text key of an obstacle, for example "saveObstacle_noRoom"; "" for none.
std::string_view textKey(PlanObstacle obstacle);

/// What is to become of one stamp.
struct StampPlan {
    SlotResult result = SlotResult::Unchanged;
    PlanObstacle obstacle = PlanObstacle::None; ///< why the slot is refused
    /// The instant that the stamp stands for after the save; none where nothing is recorded.
    OptionalDate readBack;
    bool isAmbiguous = false;          ///< it reads back as another instant, and that is known
    bool isPre1904 = false;            ///< the date lies before all that a movie header can hold
    std::string overwrittenUnreadable; ///< the unreadable stamp that would go; "" without one
    std::string zoneChange;            ///< "+02:00 → +00:00"; "" when the offset stays
};

/// Everything that a save of one item will do to its file, decided before the file is opened.
struct PatchPlan {
    std::array<StampPlan, stampSlots.size()> stamps; ///< in the order of `stampSlots`
    std::vector<Patch> patches;                      ///< only those that change a byte
    OptionalDate modificationDate;                   ///< none: the file's times stay as they are
    OptionalDate newGpsDate;                         ///< none: the GPS stamps stay
    std::optional<ToolAction> toolAction; ///< what the external tool does, behind the patches
    PlanObstacle obstacle = PlanObstacle::None;

    bool isEmpty() const { return patches.empty() && !modificationDate && !toolAction; }
};

/// What a plan needs to know beside the item.
struct PlanContext {
    const MySingleFolder &folder;
    const Zones &zones;
    bool syncGPSDataOnSave = true;
    bool syncGPSDataOnSaveType = true;
    bool syncXMPDataOnSave = false;
    bool shouldSupportXmpSave = true;

    PlanContext(const MySingleFolder &folder, const Zones &zones, const UserDefaults &defaults);
};

/// Builds every stamp from the item's NEW slots and reads it back by the reader's own parser. The
/// item is only read.
PatchPlan planForPic(const MySinglePic &pic, const PlanContext &context);

/// Every problem that the plan brings along stands among those that a person accepted.
bool isAccepted(const PatchPlan &plan, std::span<const PreSaveFinding> problems);

/// The five slots of the item, OLD and NEW, with what the plan makes of them.
std::vector<SlotOutcome> slotOutcomes(const MySinglePic &pic, const PatchPlan &plan);

} // namespace chronomender
