// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "KeyStates.h"
#include "MyDroppedFolders.h"

#include <cstdint>
#include <string>

namespace chronomender {

/// One folder to open: what a drop or an option block says about it.
struct FolderRequest {
    std::string path;
    KeyStates keyStates;
};

enum class OpenFolderResult : std::uint8_t {
    Opened,
    AlreadyOpen, ///< the same directory is part of the session, perhaps under another path
    NotFound,
    NotAFolder,
    NoAccess,
    NameNotUtf8,
    LibraryOfAnotherProgram, ///< a photo library's inside, or a saved session
};

/// Makes the folder part of the session, behind a given one or at the end, and says where its zones
/// stand. `folder` takes the new folder, or with AlreadyOpen the one that is there. Main thread.
OpenFolderResult openFolder(const FolderRequest &request, MyDroppedFolders &droppedFolders,
                            const MySingleFolderPtr &behind, MySingleFolderPtr &folder);

} // namespace chronomender
