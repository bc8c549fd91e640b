// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "WindowSession.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

class QWidget;

namespace chronomender {

// The sheets of an import. Each opens at once and calls `answer` once.

/// How the empty date tags of a folder's files are to be read. Closed without an answer, the files
/// are left alone.
void openEmptyTagsSheet(const MySingleFolderPtr &folder, WindowSession &session, QWidget *parent,
                        const std::function<void(PerFolderImportOptions)> &answer);
/// Which clock the movies of a folder tell. Closed without an answer, the preferences hold.
void openMovieOptionsSheet(const MySingleFolderPtr &folder, WindowSession &session, QWidget *parent,
                           const std::function<void(MovieOptions)> &answer);
/// The choices of one import; none when it is not wanted.
void openImportOptionsSheet(const std::vector<std::string> &paths, WindowSession &session,
                            QWidget *parent,
                            const std::function<void(std::optional<KeyStates>)> &answer);

} // namespace chronomender
