// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CounterWalk.h"
#include "RenameSheetItems.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace chronomender {

/// The box that keeps an add-on which items or folders have already.
struct KeepAddOnButton {
    bool isVisible = false; ///< the template places the add-on
    bool isEnabled = false; ///< there is a text to keep
};

/// The rename sheet without its drawing, for one opening: which items it lists, and the names they
/// would receive, by the rules of the run. Preferences are read once; `settingsChanged` says that
/// the user changed one, the selected template or a template. Main thread.
class RenameSheetController {
public:
    RenameSheetController(RenameSheetRequest request, RenameSheetViews views,
                          const UserDefaults &defaults, const Zones &zones);

    RenameSheetItems &items() { return m_items; }
    void settingsChanged();

    /// What the run goes by that the sheet starts, with `items().saveRequest()`. None without a
    /// selected template: then no item has a name.
    const std::optional<RenameChoices> &choices();
    int useAddOnsCount();
    /// Which add-ons some listed item or its folder has a text of. All items are looked at, unless
    /// all three are found before.
    std::array<bool, 3> whichOldAddOnsExistIs1and2and3();
    std::array<KeepAddOnButton, 3> validateOldAddOnButtons();

    /// Hidden or shown, as the preference says or else as the item is.
    SuffixVisibility liveSuffixVisibilityForImage(const MySinglePic &pic);
    /// The name that the item would receive; empty where it is not counted, or has no folder.
    StyledName sampleTextForImage(const MySinglePic &pic);
    /// The names that a template gives to the first listed items, numbered from 1; to samples where
    /// none is listed. Without a template the selected one's, and empty without that.
    StyledName sampleTextForImages(std::size_t most, const std::optional<RenameTemplate> &settings);
    std::string renameSummaryString();

private:
    RenameScope scope();
    std::vector<NameFacts> factsForSample(std::size_t most);

    RenameSheetItems m_items;
    const UserDefaults &m_defaults;
    const Zones &m_zones;
    std::optional<std::optional<RenameChoices>> m_choices; ///< none: to be read
    int m_countedRestrictType = 0;                         ///< what `m_counters` was made for
    std::optional<LiveCounters> m_counters;
};

} // namespace chronomender
