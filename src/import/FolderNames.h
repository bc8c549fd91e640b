// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "NameParts.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace chronomender {

/// Names that other systems leave in a folder of photos and that nobody means as a photo: "._…"
/// (resource forks on foreign disks) and ".DS_Store".
bool isNamePassedOver(std::string_view name);

/// The path lies in the library of another program, which keeps its own list of what is inside: no
/// file in there is ever imported. Looks at every folder of the path.
bool isRefusedFolder(std::string_view path);

/// The extension is this one, whatever its letter case.
bool isExtension(std::string_view given, std::string_view lowerCase);

/// The name with its ASCII letters in lower case.
std::string lowerCaseName(std::string_view name);

/// Files whose names alone make them companions of a medium.
enum class SidecarKind : std::uint8_t { Xmp, Aae };
/// None for a name that is no sidecar's.
std::optional<SidecarKind> sidecarKindOfName(std::string_view name);

/// A folder that is not looked into when folders inside folders are imported: hidden ones, those of
/// other programs, and bundles, which a person sees as one file on other systems.
bool isFolderNotEntered(std::string_view name);

/// Sidecars and tracks: files that accompany media and are no media themselves.
bool isCompanionName(std::string_view name);

} // namespace chronomender
