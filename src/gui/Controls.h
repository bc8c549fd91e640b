// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Texts.h"

#include <QString>
#include <QWidget>

#include <initializer_list>
#include <string>
#include <string_view>

namespace chronomender {

inline QString qString(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}
/// The text of a key; see text().
inline QString qText(std::string_view key, std::initializer_list<std::string> arguments = {}) {
    return qString(text(key, arguments));
}

/// Gives a control the name by which screen readers and tests know it. Every widget that can have
/// the focus needs one.
template<class Widget>
Widget *named(Widget *widget, std::string_view key) {
    widget->setAccessibleName(qText(key));
    return widget;
}

} // namespace chronomender
