// SPDX-License-Identifier: GPL-3.0-or-later
#include "DroppedPaths.h"

#include "WindowSession.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

namespace chronomender {

std::vector<std::string> draggedPaths(const QMimeData *data) {
    std::vector<std::string> paths;
    for (const QUrl &url : data->urls())
        if (url.isLocalFile())
            paths.push_back(url.toLocalFile().toStdString());
    return paths;
}

void openDropped(QDropEvent &event, WindowSession &session) {
    const std::vector<std::string> paths = draggedPaths(event.mimeData());
    if (paths.empty())
        return;
    event.acceptProposedAction();
    if (event.modifiers().testFlag(Qt::AltModifier))
        session.openPathsWithOptions(paths);
    else
        session.openPaths(paths);
}

} // namespace chronomender
