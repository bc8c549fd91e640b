// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "UserDefaults.h"

#include <vector>

class QMainWindow;
class QSplitter;

namespace chronomender {

/// How a window looked when it was closed, kept among the preferences.
class WindowMemory {
public:
    explicit WindowMemory(UserDefaults &defaults) : m_defaults(defaults) {}

    void keep(const QMainWindow &window, const std::vector<QSplitter *> &splitters);
    /// What was not kept, or cannot be read, stays as it is.
    void restore(QMainWindow &window, const std::vector<QSplitter *> &splitters) const;

private:
    UserDefaults &m_defaults;
};

} // namespace chronomender
