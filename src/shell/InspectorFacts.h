// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "AlertRows.h"
#include "NewDates.h"

#include <string>
#include <vector>

namespace chronomender {

/// A name and what stands behind it. With a mixed value the selected items differ.
struct FactRow {
    std::string label, value;
    bool isMixed = false;

    bool operator==(const FactRow &) const = default;
};

/// One of the five dates of a file.
struct SlotRow {
    std::string label;
    std::string oldText;   ///< "–" where the file has none
    std::string newText;   ///< what a save would write; "" for nothing
    std::string remark;    ///< why not, where it is not plain
    bool isSource = false; ///< the item's date comes from it

    bool operator==(const SlotRow &) const = default;
};

/// What is said of one file, or of what several items share.
struct FileFacts {
    std::string title; ///< the file's name where there are two; else ""
    std::vector<FactRow> facts;
    std::vector<SlotRow> slots;

    bool operator==(const FileFacts &) const = default;
};

struct InspectorFacts {
    std::string title;  ///< name with companions, or the number of items; "" for no item
    std::string folder; ///< name, or that there are several
    std::uint16_t colorIndex = noColorIndex;
    std::string date; ///< the one that is shown now; of several their range
    std::vector<RowNote> notes;
    std::vector<AlertRow> alerts;
    std::vector<FileFacts> files; ///< the item, then the other half of its group

    bool operator==(const InspectorFacts &) const = default;
};

/// Everything about one item, or what several share. New dates are calculated on copies; those of
/// one item follow the drag of the context. Main thread; of several items one pass over what they
/// remember.
InspectorFacts inspectorFacts(const std::vector<MySinglePicPtr> &pics,
                              const NewDateContext &liveContext, const FilterContext &context);

} // namespace chronomender
