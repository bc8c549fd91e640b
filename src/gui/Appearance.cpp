// SPDX-License-Identifier: GPL-3.0-or-later
#include "Appearance.h"

#include <QApplication>
#include <QPalette>
#include <QProxyStyle>
#include <QStyle>
#include <QStyleFactory>
#include <QStyleOption>

// Outside any namespace, as the resource compiler names what it makes.
static void registerIcons() {
    Q_INIT_RESOURCE(icons);
}

namespace chronomender {
namespace {

struct RoleColor {
    QPalette::ColorRole role;
    const char *light, *dark;
};
constexpr RoleColor roles[] = {
    {QPalette::Window, "#f3f4f6", "#25272c"},
    {QPalette::WindowText, "#1d2026", "#e8eaee"},
    {QPalette::Base, "#ffffff", "#1d1f23"},
    {QPalette::AlternateBase, "#f0f1f4", "#25272c"},
    {QPalette::Text, "#1d2026", "#e8eaee"},
    {QPalette::PlaceholderText, "#6b727d", "#9aa2ae"},
    {QPalette::Button, "#e9ebee", "#33363d"},
    {QPalette::ButtonText, "#1d2026", "#e8eaee"},
    {QPalette::BrightText, "#b3261e", "#ff7b72"},
    {QPalette::Highlight, "#2f6fb4", "#3d7fc4"},
    {QPalette::HighlightedText, "#ffffff", "#ffffff"},
    {QPalette::Link, "#0a5bb5", "#7fb8f5"},
    {QPalette::LinkVisited, "#6a4fa0", "#b9a3e3"},
    {QPalette::ToolTipBase, "#ffffff", "#33363d"},
    {QPalette::ToolTipText, "#1d2026", "#e8eaee"},
    {QPalette::Light, "#ffffff", "#3c4048"},
    {QPalette::Midlight, "#f0f1f3", "#363a41"},
    {QPalette::Mid, "#c3c7ce", "#1f2125"},
    {QPalette::Dark, "#9aa0aa", "#17181b"},
    {QPalette::Shadow, "#6f7681", "#0c0d0f"},
};
constexpr RoleColor disabledRoles[] = {
    {QPalette::WindowText, "#8a919c", "#767d88"},
    {QPalette::Text, "#8a919c", "#767d88"},
    {QPalette::ButtonText, "#8a919c", "#767d88"},
    {QPalette::Highlight, "#b9c3cf", "#4a505a"},
};

QPalette paletteOf(bool isDark) {
    const auto color = [isDark](const RoleColor &entry) {
        return QColor(QLatin1String(isDark ? entry.dark : entry.light));
    };
    QPalette palette;
    for (const RoleColor &entry : roles)
        palette.setColor(entry.role, color(entry));
    for (const RoleColor &entry : disabledRoles)
        palette.setColor(QPalette::Disabled, entry.role, color(entry));
    return palette;
}

/// Fusion draws the outline of check boxes and radio buttons darker than the window, which a dark
/// window swallows. It takes that outline from the window's colour; here it gets a lighter one.
class OutlinedStyle : public QProxyStyle {
public:
    OutlinedStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override {
        const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option);
        const bool isIndicator =
            element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton;
        if (!isIndicator || !button)
            return QProxyStyle::drawPrimitive(element, option, painter, widget);
        QStyleOptionButton outlined = *button;
        outlined.palette.setColor(QPalette::Window,
                                  option->palette.color(QPalette::PlaceholderText).lighter(120));
        QProxyStyle::drawPrimitive(element, &outlined, painter, widget);
    }
};

} // namespace

void applyAppearance(Appearance appearance) {
    static const QPalette systemPalette = QApplication::palette();
    static const QString systemStyle = QApplication::style()->objectName();
    const bool isSystem = appearance == Appearance::System;
    // Other styles draw some controls in the desktop's own colours.
    QApplication::setStyle(isSystem ? QStyleFactory::create(systemStyle) : new OutlinedStyle);
    QApplication::setPalette(isSystem ? systemPalette : paletteOf(appearance == Appearance::Dark));
}

QIcon applicationIcon() {
    registerIcons();
    return QIcon(QStringLiteral(":/icons/chronomender.svg"));
}

} // namespace chronomender
