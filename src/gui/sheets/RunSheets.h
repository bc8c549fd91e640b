// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "SaveDriver.h"

#include <functional>
#include <string>
#include <vector>

class QWidget;

namespace chronomender {

// The sheets around a save, and those that only tell something. Each opens at once.

enum class PreSaveAnswer : std::uint8_t {
    Cancel,
    Save,
    KeepZones, ///< nothing is written now: zone stamps are to keep their offsets first
};
/// The problems that were found before anything was written, and what is to become of them.
void openPreSaveSheet(const PreProcessResult &found, bool renames, QWidget *parent,
                      const std::function<void(PreSaveAnswer)> &answer);
/// What a run could not do, by reason, with the files.
void openRunErrorsSheet(const SaveRunResult &result, QWidget *parent);
/// Lines to be read, selected and copied.
void openTextSheet(const std::string &message, const std::string &information,
                   const std::vector<std::string> &lines, QWidget *parent);
/// The log of errors of the last runs; it can be deleted here.
void openErrorLogSheet(QWidget *parent);
/// Every command with its keys.
void openShortcutsSheet(QWidget *parent);
void openAboutSheet(QWidget *parent);

} // namespace chronomender
