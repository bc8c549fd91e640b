// SPDX-License-Identifier: GPL-3.0-or-later
#include "FolderOpening.h"

#include "FolderAccess.h"
#include "FolderNames.h"
#include "ZoneLookup.h"

#include <cerrno>

namespace chronomender {
namespace {

OpenFolderResult resultOf(const FileError &error) {
    switch (error.code) {
    case EACCES:
    case EPERM:
        return OpenFolderResult::NoAccess;
    case ENOTDIR:
        return OpenFolderResult::NotAFolder;
    default:
        return OpenFolderResult::NotFound;
    }
}

void apply(const KeyStates &keyStates, MySingleFolder &folder) {
    folder.isEXIFIgnored = keyStates.isEXIFIgnored;
    const AdaptedZone &zone = keyStates.adaptedZone;
    if (zone.source)
        setTZDefaultsSource(folder, *zone.source, !zone.target);
    if (zone.target)
        folder.targetTimeZones.folderDefault = zone.target;
}

} // namespace

OpenFolderResult openFolder(const FolderRequest &request, MyDroppedFolders &droppedFolders,
                            const MySingleFolderPtr &behind, MySingleFolderPtr &folder) {
    FileError error;
    const auto reference = FolderReference::open(request.path, &error);
    const auto attributes = reference ? reference->attributes() : std::nullopt;
    if (!attributes)
        return resultOf(error);
    const std::string path = reference->path();
    if (!isValidUtf8(path))
        return OpenFolderResult::NameNotUtf8;
    if (isRefusedFolder(path))
        return OpenFolderResult::LibraryOfAnotherProgram;
    folder = droppedFolders.folderWithIdentity(*attributes);
    if (folder)
        return OpenFolderResult::AlreadyOpen;
    folder = MySingleFolder::initWithFolder(path, reference, request.keyStates.sfEditMode);
    apply(request.keyStates, *folder);
    if (behind)
        droppedFolders.insertBehind(folder, behind);
    else
        droppedFolders.append(folder);
    return OpenFolderResult::Opened;
}

} // namespace chronomender
