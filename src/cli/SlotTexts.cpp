// SPDX-License-Identifier: GPL-3.0-or-later
#include "SlotTexts.h"

#include "DateTexts.h"

namespace chronomender {
namespace {

std::string arrowTo(const std::string &newDate) {
    return newDate.empty() ? newDate : "→ " + newDate;
}

} // namespace

void appendSlots(JsonLine &line, const std::vector<SlotView> &slots) {
    line.beginObject("slots");
    for (const SlotView &slot : slots) {
        line.beginObject(slot.name);
        if (slot.oldDate)
            line.fieldIfAny("old", utcText(*slot.oldDate));
        if (slot.newDate)
            line.field("new",
                       *slot.newDate == InfiniteFuture() ? "at save" : utcText(*slot.newDate));
        line.flag("stays", slot.stays);
        if (slot.result)
            line.field("result", resultName(*slot.result)).fieldIfAny("reason", slot.reason);
        line.end();
    }
    line.end();
}

void addSlotRows(Table &table, const std::vector<SlotView> &slots, SlotTense tense) {
    for (const SlotView &slot : slots)
        table.add({std::string(slot.name),
                   slot.oldDate ? readableText(*slot.oldDate, slot.oldZone) : "-",
                   arrowTo(newDateText(slot)), resultText(slot, tense)});
}

} // namespace chronomender
