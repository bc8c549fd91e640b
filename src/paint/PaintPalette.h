// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QPalette>

#include <cstdint>
#include <string_view>
#include <vector>

namespace chronomender {

/// The colours of all that is drawn by hand, for a light or a dark appearance.
struct PaintPalette {
    bool isDark = false;
    QColor window, strip, cell;       ///< backgrounds: of panels, of a strip, of an empty cell
    QColor text, dimText;             ///< on these backgrounds
    QColor selection, mainSelection;  ///< frames of selected items, and of the main one
    QColor dropTarget;                ///< where a dragged item would go
    QColor unsaved, warning, danger;  ///< marks and alerts, mild to serious
    QColor keeper, rejected;          ///< ratings
    std::vector<QColor> folderColors; ///< of the user; at least one

    /// The colour of a folder by its index; a neutral one for folders without a colour.
    QColor folderColor(std::uint16_t colorIndex) const;
};

/// `palette` is the application's; `folderColors_7` the preference of that name: "#rrggbb" values
/// parted by blanks. Values that are no colours are passed over.
PaintPalette paintPalette(const QPalette &palette, std::string_view folderColors_7);

} // namespace chronomender
