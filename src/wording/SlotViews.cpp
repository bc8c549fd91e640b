// SPDX-License-Identifier: GPL-3.0-or-later
#include "SlotViews.h"

#include "DateTexts.h"
#include "Texts.h"
#include "ZoneLookup.h"

#include <algorithm>
#include <array>

namespace chronomender {
namespace {

constexpr std::string_view creationSlot = "fileCreationDate";

struct SlotResultTexts {
    SlotResult result;
    std::string_view name;
    const char *plannedKey, *doneKey;
};
constexpr std::array<SlotResultTexts, 5> slotResults{{
    {SlotResult::Unchanged, "unchanged", "cli_slot_unchanged", "cli_slot_unchanged"},
    {SlotResult::WrittenInPlace, "writtenInPlace", "cli_slot_toBeWritten", "cli_slot_written"},
    {SlotResult::WrittenByTool, "writtenByTool", "cli_slot_toBeWrittenByTool",
     "cli_slot_writtenByTool"},
    {SlotResult::Refused, "refused", "cli_slot_refused", "cli_slot_refused"},
    {SlotResult::NotStorable, "notStorable", "cli_slot_notStorable", "cli_slot_notStorable"},
}};

const SlotResultTexts &textsOf(SlotResult result) {
    return *std::ranges::find(slotResults, result, &SlotResultTexts::result);
}

bool isWritten(SlotResult result) {
    return result == SlotResult::WrittenInPlace || result == SlotResult::WrittenByTool;
}

void takeZones(SlotView &view, const SlotZones &zones, std::size_t slot) {
    view.oldZone = zones.oldZones[slot];
    view.newZone = zones.newZones[slot];
}

/// The distant past marks a tag that is to be added: nothing that a person could read.
OptionalDate readable(const OptionalDate &date) {
    return date && *date == InfinitePast() ? std::nullopt : date;
}

/// A slot whose new date cannot be stored shows none.
SlotView slotView(std::string_view name, const OptionalDate &oldDate, const OptionalDate &newDate,
                  bool isStorable) {
    SlotView view;
    view.name = name;
    view.oldDate = oldDate;
    view.newDate = isStorable ? newDate : std::nullopt;
    view.stays = !isStorable || !newDate || newDate == oldDate;
    view.isStorable = isStorable;
    return view;
}

} // namespace

/// Stamps are told as the file tells them; file dates, which have no zone, as the item's date.
SlotZones slotZones(const MySinglePic &pic, const MySingleFolder &folder, const Zones &zones) {
    SlotZones result;
    result.oldZones.fill(targetTimeZoneForPic(pic, folder, zones).rules);
    result.newZones = result.oldZones;
    for (std::size_t i = 0; i < stampSlots.size(); ++i) {
        result.oldZones[i] = sourceZoneForSlot(pic, stampSlots[i], folder, zones).rules;
        result.newZones[i] = targetZoneForSlot(pic, stampSlots[i], folder, zones).rules;
    }
    return result;
}

std::vector<SlotView> slotViews(const MySinglePic &pic, const MySingleFolder &folder,
                                const Zones &zones) {
    const SlotZones itsZones = slotZones(pic, folder, zones);
    std::vector<SlotView> views;
    for (std::size_t i = 0; i < slotDescriptions.size(); ++i) {
        const SlotDescription &slot = slotDescriptions[i];
        const OptionalDate oldDate = readable(pic.slots.*slot.oldDate);
        const OptionalDate newDate = readable(pic.slots.*slot.newDate);
        if (!oldDate && !newDate)
            continue;
        const bool isStorable = slot.name != creationSlot || newDate == oldDate;
        views.push_back(slotView(slot.name, oldDate, newDate, isStorable));
        takeZones(views.back(), itsZones, i);
    }
    return views;
}

std::vector<SlotView> slotViews(const ItemOutcome &outcome, const SlotZones &zones) {
    std::vector<SlotView> views;
    for (std::size_t i = 0; i < outcome.slots.size(); ++i) {
        const SlotOutcome &slot = outcome.slots[i];
        const OptionalDate oldDate = readable(slot.oldDate);
        const OptionalDate wanted = readable(slot.newDate);
        const OptionalDate newDate =
            slot.result == SlotResult::Unchanged || !wanted ? oldDate : wanted;
        if (!oldDate && !newDate)
            continue;
        SlotView view =
            slotView(slot.slot, oldDate, newDate, slot.result != SlotResult::NotStorable);
        // The same instant told in another zone is other bytes in the file.
        view.stays = view.stays && !isWritten(slot.result);
        view.result = slot.result;
        if (!slot.reasonKey.empty())
            view.reason = text(slot.reasonKey);
        takeZones(view, zones, i);
        views.push_back(std::move(view));
    }
    return views;
}

std::string newDateText(const SlotView &slot) {
    if (slot.stays || !slot.isStorable)
        return {};
    return *slot.newDate == InfiniteFuture() ? text("cli_slot_atSave")
                                             : readableText(*slot.newDate, slot.newZone);
}

std::string resultText(const SlotView &slot, SlotTense tense) {
    if (!slot.isStorable)
        return text("cli_slot_notStorable");
    if (!slot.result)
        return slot.stays ? text("cli_slot_stays") : std::string();
    const SlotResultTexts &texts = textsOf(*slot.result);
    const std::string result = text(tense == SlotTense::Done ? texts.doneKey : texts.plannedKey);
    return slot.reason.empty() ? result : result + ": " + slot.reason;
}

std::string_view resultName(SlotResult result) {
    return textsOf(result).name;
}

} // namespace chronomender
