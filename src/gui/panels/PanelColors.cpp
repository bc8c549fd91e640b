// SPDX-License-Identifier: GPL-3.0-or-later
#include "PanelColors.h"

#include "WindowSession.h"

namespace chronomender {

PaintPalette paletteOf(const QWidget &widget, WindowSession &session) {
    return paintPalette(widget.palette(), session.defaults().stringForKey("folderColors_7"));
}

QColor colorOf(RowTone tone, const PaintPalette &palette) {
    switch (tone) {
    case RowTone::Unsaved:
        return palette.unsaved;
    case RowTone::Warning:
        return palette.warning;
    case RowTone::Danger:
        return palette.danger;
    case RowTone::Plain:
        break;
    }
    return palette.dimText;
}

void setTextColor(QLabel &label, const QColor &color) {
    QPalette palette = label.palette();
    palette.setColor(QPalette::WindowText, color);
    label.setPalette(palette);
}

} // namespace chronomender
