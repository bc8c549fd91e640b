// SPDX-License-Identifier: GPL-3.0-or-later
#include "PreferencesAppearance.h"

#include <QApplication>
#include <QPalette>

#include <array>

namespace chronomender {
namespace {

struct RoleColors {
    QPalette::ColorRole role;
    const char *light, *dark;
};
constexpr std::array<RoleColors, 19> roleColors{{
    {QPalette::Window, "#f0f0f2", "#2d3035"},
    {QPalette::WindowText, "#1c1d20", "#e9eaec"},
    {QPalette::Base, "#ffffff", "#17191c"},
    {QPalette::AlternateBase, "#f5f6f8", "#1f2226"},
    {QPalette::Text, "#1c1d20", "#e9eaec"},
    {QPalette::PlaceholderText, "#6a6f78", "#9aa1ac"},
    {QPalette::Button, "#f0f0f2", "#3a3e44"},
    {QPalette::ButtonText, "#1c1d20", "#e9eaec"},
    {QPalette::BrightText, "#b3261e", "#ff7b72"},
    {QPalette::ToolTipBase, "#ffffff", "#3a3e44"},
    {QPalette::ToolTipText, "#1c1d20", "#e9eaec"},
    {QPalette::Highlight, "#0a6ed1", "#2f7fd6"},
    {QPalette::HighlightedText, "#ffffff", "#ffffff"},
    {QPalette::Link, "#0a6ed1", "#58a6ff"},
    {QPalette::Light, "#ffffff", "#45494f"},
    {QPalette::Midlight, "#e6e7ea", "#3a3d43"},
    {QPalette::Mid, "#b4b8be", "#1f2124"},
    {QPalette::Dark, "#a0a4aa", "#17181b"},
    {QPalette::Shadow, "#70747a", "#0c0d0e"},
}};
constexpr std::array<QPalette::ColorRole, 4> textRoles{
    QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText};

QPalette paletteOf(bool isDark) {
    QPalette palette;
    for (const RoleColors &each : roleColors)
        palette.setColor(each.role, QColor(QLatin1String(isDark ? each.dark : each.light)));
    const QColor dim = isDark ? QColor(0x72, 0x78, 0x82) : QColor(0x96, 0x9b, 0xa3);
    for (const QPalette::ColorRole role : textRoles)
        palette.setColor(QPalette::Disabled, role, dim);
    return palette;
}

} // namespace

void applyAppearance(const UserDefaults &defaults) {
    constexpr int asSystem = 0, dark = 2;
    const int wanted = defaults.integerForKey("appearance");
    QApplication::setPalette(wanted == asSystem ? QPalette() : paletteOf(wanted == dark));
}

} // namespace chronomender
