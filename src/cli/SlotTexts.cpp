// SPDX-License-Identifier: GPL-3.0-or-later
#include "SlotTexts.h"

#include "DateTexts.h"
#include "Texts.h"
#include "ZoneLookup.h"

#include <algorithm>

namespace chronomender {
namespace {

constexpr std::string_view creationSlot = "fileCreationDate";

/// Stamps are told as the file tells them; file dates, which have no zone, as the item's date.
void takeZones(SlotView &view, const MySinglePic &pic, const MySingleFolder &folder,
               const Zones &zones) {
    view.oldZone = view.newZone = targetTimeZoneForPic(pic, folder, zones).rules;
    for (const StampSlot slot : stampSlots)
        if (description(slot).name == view.name) {
            view.oldZone = sourceZoneForSlot(pic, slot, folder, zones).rules;
            view.newZone = targetZoneForSlot(pic, slot, folder, zones).rules;
        }
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

std::vector<SlotView> slotViews(const MySinglePic &pic, const MySingleFolder &folder,
                                const Zones &zones) {
    std::vector<SlotView> views;
    for (const SlotDescription &slot : slotDescriptions) {
        const OptionalDate oldDate = readable(pic.slots.*slot.oldDate);
        const OptionalDate newDate = readable(pic.slots.*slot.newDate);
        if (!oldDate && !newDate)
            continue;
        const bool isStorable = slot.name != creationSlot || newDate == oldDate;
        views.push_back(slotView(slot.name, oldDate, newDate, isStorable));
        takeZones(views.back(), pic, folder, zones);
    }
    return views;
}

std::vector<SlotView> slotViews(const ItemOutcome &outcome, const MySingleFolder &folder,
                                const Zones &zones) {
    std::vector<SlotView> views;
    for (const SlotOutcome &slot : outcome.slots) {
        const OptionalDate oldDate = readable(slot.oldDate);
        const OptionalDate wanted = readable(slot.newDate);
        const OptionalDate newDate =
            slot.result == SlotResult::Unchanged || !wanted ? oldDate : wanted;
        if (!oldDate && !newDate)
            continue;
        const bool isStorable = slot.result != SlotResult::NotStorable;
        views.push_back(slotView(slot.slot, oldDate, newDate, isStorable));
        // The same instant told in another zone is other bytes in the file.
        views.back().stays = views.back().stays && slot.result != SlotResult::WrittenInPlace;
        takeZones(views.back(), *outcome.pic, folder, zones);
    }
    return views;
}

void appendSlots(JsonLine &line, const std::vector<SlotView> &slots) {
    line.beginObject("slots");
    for (const SlotView &slot : slots) {
        line.beginObject(slot.name);
        if (slot.oldDate)
            line.fieldIfAny("old", utcText(*slot.oldDate));
        if (slot.newDate)
            line.field("new",
                       *slot.newDate == InfiniteFuture() ? "at save" : utcText(*slot.newDate));
        line.flag("stays", slot.stays).end();
    }
    line.end();
}

void addSlotRows(Table &table, const std::vector<SlotView> &slots) {
    for (const SlotView &slot : slots) {
        std::vector<std::string> row{std::string(slot.name)};
        row.push_back(slot.oldDate ? readableText(*slot.oldDate, slot.oldZone) : "-");
        if (!slot.isStorable)
            row.push_back(text("cli_slot_notStorable"));
        else if (slot.stays)
            row.push_back(text("cli_slot_stays"));
        else
            row.push_back("→ " + (*slot.newDate == InfiniteFuture()
                                      ? text("cli_slot_atSave")
                                      : readableText(*slot.newDate, slot.newZone)));
        table.add(std::move(row));
    }
}

} // namespace chronomender
