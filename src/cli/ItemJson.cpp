// SPDX-License-Identifier: GPL-3.0-or-later
#include "ItemJson.h"

#include "DateAlertTexts.h"
#include "ItemTexts.h"

namespace chronomender {

void appendAlerts(JsonLine &line, const std::vector<DateAlert> &alerts, const MySinglePic &pic) {
    if (alerts.empty())
        return;
    line.beginArray("alerts");
    for (const DateAlert &alert : alerts)
        line.beginElement()
            .field("name", alertName(alert.kind))
            .field("text", wordsOf(alert, pic))
            .end();
    line.end();
}

void appendCompanions(JsonLine &line, const MySinglePic &pic) {
    if (const MySinglePicPtr &dependent = pic.group.bundleDependentImage)
        line.field("dependent", dependent->spName);
    const std::vector<std::string> sidecars = sidecarNames(pic);
    if (sidecars.empty())
        return;
    line.beginArray("sidecars");
    for (const std::string &name : sidecars)
        line.element(name);
    line.end();
}

FolderPaths::FolderPaths(const std::vector<MySingleFolderPtr> &folders) {
    for (const MySingleFolderPtr &folder : folders)
        m_paths.emplace(folder.get(), folder->sfFolderPath());
}

std::string FolderPaths::path(const MySingleFolder &folder, const MySinglePic &pic) const {
    const std::string &folderPath = path(folder);
    return folderPath + (folderPath.ends_with('/') ? "" : "/") + pic.spName;
}

} // namespace chronomender
