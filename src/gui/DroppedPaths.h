// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

class QDropEvent;
class QMimeData;

namespace chronomender {

class WindowSession;

/// The files and folders of this computer that are dragged; empty for anything else.
std::vector<std::string> draggedPaths(const QMimeData *data);
/// Opens what is dropped, wherever on the window; with Alt held it is asked first how it is to be
/// read.
void openDropped(QDropEvent &event, WindowSession &session);

} // namespace chronomender
