// SPDX-License-Identifier: GPL-3.0-or-later
#include "PaintPalette.h"

#include "MySingleFolder.h"

#include <QString>
#include <QStringList>

namespace chronomender {
namespace {

constexpr int darkLightness = 128;

struct Appearance {
    const char *strip, *cell, *dimText, *dropTarget, *unsaved, *warning, *danger, *keeper,
        *rejected;
};
constexpr Appearance light{"#e4e6ea", "#d3d6dc", "#4b525d", "#0a6ed1", "#944a00",
                           "#7d5300", "#b3261e", "#1b7f3b", "#8a1c1c"};
constexpr Appearance dark{"#1b1d21", "#2c2f36", "#a3abb8", "#58a6ff", "#ffb454",
                          "#f2cc60", "#ff7b72", "#56d364", "#ff8f87"};

std::vector<QColor> colorsOf(std::string_view texts) {
    std::vector<QColor> colors;
    const QString all = QString::fromUtf8(texts.data(), static_cast<qsizetype>(texts.size()));
    for (const QString &name : all.split(QLatin1Char(' '), Qt::SkipEmptyParts))
        if (const QColor color(name); color.isValid())
            colors.push_back(color);
    if (colors.empty())
        colors.emplace_back(Qt::gray);
    return colors;
}

} // namespace

QColor PaintPalette::folderColor(std::uint16_t colorIndex) const {
    return colorIndex == noColorIndex ? dimText : folderColors[colorIndex % folderColors.size()];
}

PaintPalette paintPalette(const QPalette &palette, std::string_view folderColors_7) {
    PaintPalette result;
    result.window = palette.color(QPalette::Window);
    result.isDark = result.window.lightness() < darkLightness;
    const Appearance &colors = result.isDark ? dark : light;
    const auto color = [](const char *name) { return QColor(QLatin1String(name)); };
    result.strip = color(colors.strip);
    result.cell = color(colors.cell);
    result.text = palette.color(QPalette::WindowText);
    result.dimText = color(colors.dimText);
    result.selection = palette.color(QPalette::Highlight);
    result.mainSelection = result.isDark ? result.selection.lighter() : result.selection.darker();
    result.dropTarget = color(colors.dropTarget);
    result.unsaved = color(colors.unsaved);
    result.warning = color(colors.warning);
    result.danger = color(colors.danger);
    result.keeper = color(colors.keeper);
    result.rejected = color(colors.rejected);
    result.folderColors = colorsOf(folderColors_7);
    return result;
}

} // namespace chronomender
