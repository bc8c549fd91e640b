// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FolderAccess.h"

#include <cstdint>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace chronomender {

/// Which files of a folder are imported, by extension. The numbers stand in saved sessions.
struct ExtensionFilter {
    enum class Kind : std::uint8_t {
        Keep = 0,   ///< only files with one of the extensions
        Remove = 1, ///< all files but those
    };
    std::string text; ///< extensions as typed, for example " .mov, .mp4 avi"
    Kind kind = Kind::Keep;
};

/// A filter made ready for many names. Sidecars (XMP, AAE) always pass, since they follow the
/// medium that they belong to. A filter that keeps extensions keeps folders as well.
class FilteredExtensions {
public:
    /// The text is split at blanks, dots and commas; letter case does not matter.
    explicit FilteredExtensions(const ExtensionFilter &filter);

    bool passes(std::string_view name, bool isFolder) const;

private:
    ExtensionFilter::Kind m_kind;
    std::set<std::string, std::less<>> m_extensions; ///< lower case
};

/// The entries of a listing that pass the filter, in their order.
std::vector<FolderEntry> filteredPaths(std::vector<FolderEntry> entries,
                                       const ExtensionFilter &filter);

} // namespace chronomender
