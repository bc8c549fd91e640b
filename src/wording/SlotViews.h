// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MySingleFolder.h"
#include "SaveDriver.h"
#include "Zones.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace chronomender {

/// One of an item's five dates, as a display shows it.
struct SlotView {
    std::string_view name;
    OptionalDate oldDate;
    OptionalDate newDate;   ///< what a save leaves there; the distant future: the moment of saving
    bool stays = true;      ///< a save writes nothing there
    bool isStorable = true; ///< false: there is a new date, and this system has no place for it
    absl::TimeZone oldZone; ///< for people: in which the file tells the old date
    absl::TimeZone newZone; ///< for people: in which a save would tell the new one
    std::optional<SlotResult> result = {}; ///< what a save made of it, or would
    std::string reason = {};               ///< why it was refused; "" for none
};

/// The slots of an item whose NEW dates are calculated; slots that neither exist nor will are left
/// out.
std::vector<SlotView> slotViews(const MySinglePic &pic, const MySingleFolder &folder,
                                const Zones &zones);
/// For people: in which zone the file tells each slot now, and in which a save would tell it.
struct SlotZones {
    std::array<absl::TimeZone, slotDescriptions.size()> oldZones, newZones;
};
/// A save moves an item's zones on, so they are taken before it.
SlotZones slotZones(const MySinglePic &pic, const MySingleFolder &folder, const Zones &zones);

/// The slots of a save's outcome, or of its plan, each with its result.
std::vector<SlotView> slotViews(const ItemOutcome &outcome, const SlotZones &zones);

/// Whether results tell what was done or what a save would do.
enum class SlotTense : bool { Planned, Done };
/// The new date of a slot for people, "at save" among them; "" where nothing is written.
std::string newDateText(const SlotView &slot);
/// What becomes of a slot, or became of it, in words.
std::string resultText(const SlotView &slot, SlotTense tense);
/// The result's stable word for programs.
std::string_view resultName(SlotResult result);

} // namespace chronomender
