// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Alignment.h"
#include "WindowCommands.h"
#include "Zones.h"

#include <span>
#include <string>
#include <vector>

namespace chronomender {

/// A way to put a selection in order, and the command that does it.
struct AlignChoice {
    AlignCommand command{};
    CommandId id{};
    const char *explanationKey = nullptr; ///< what it does, in a sentence
};
/// In the order of the menu: spreading and ordering first, then other dates of the files.
std::span<const AlignChoice> alignChoices();
const AlignChoice *alignChoiceOf(CommandId id);

/// What a choice would do to one item.
struct AlignRow {
    std::string name, now, then; ///< `then` is empty where the item stays
};
/// The first `most` items of the selection in their order; none where the choice does nothing.
/// Nothing is changed.
std::vector<AlignRow> alignRows(AlignCommand command, const AlignSelection &selection,
                                const NewDateContext &context, const Zones &zones,
                                std::size_t most);

} // namespace chronomender
