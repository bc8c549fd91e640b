// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DateAlerts.h"
#include "JsonLine.h"
#include "MySingleFolder.h"

#include <string>
#include <unordered_map>
#include <vector>

namespace chronomender {

/// The alerts of an item as "alerts", each with its name and its words; nothing without any.
void appendAlerts(JsonLine &line, const std::vector<DateAlert> &alerts, const MySinglePic &pic);

/// "dependent" with the name of the other half, and "sidecars"; each only where there is one.
void appendCompanions(JsonLine &line, const MySinglePic &pic);

/// The paths of a session's folders, asked for once.
class FolderPaths {
public:
    explicit FolderPaths(const std::vector<MySingleFolderPtr> &folders);
    const std::string &path(const MySingleFolder &folder) const { return m_paths.at(&folder); }
    std::string path(const MySingleFolder &folder, const MySinglePic &pic) const;

private:
    std::unordered_map<const MySingleFolder *, std::string> m_paths;
};

} // namespace chronomender
