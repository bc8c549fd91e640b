// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "JsonLine.h"
#include "SlotViews.h"
#include "Table.h"

#include <vector>

namespace chronomender {

/// {"exifDateTimeOriginal": {"old": …, "new": …, "stays": false}, …} under "slots".
void appendSlots(JsonLine &line, const std::vector<SlotView> &slots);
/// One row a slot: name, old, arrow, new, and the result where there is one.
void addSlotRows(Table &table, const std::vector<SlotView> &slots,
                 SlotTense tense = SlotTense::Planned);

} // namespace chronomender
