// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "PreferenceTable.h"

#include <functional>

class QWidget;

namespace chronomender {

/// Told after a preference was set, with what came of storing it.
using PreferenceSet = std::function<void(UserDefaults::Outcome)>;

/// The control of one preference of the kind Switch, Choice or Number; it sets the preference as
/// soon as the person does. A Switch tells its text itself, the others want a label in front.
QWidget *makePreferenceControl(const Preference &preference, UserDefaults &defaults,
                               PreferenceSet isSet, QWidget *parent);
/// Shows the present value, and whether the preference counts now; nothing is told.
void showPreference(QWidget &control, const Preference &preference, const UserDefaults &defaults);

} // namespace chronomender
