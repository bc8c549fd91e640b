// SPDX-License-Identifier: GPL-3.0-or-later
#include "ExtensionFilter.h"

#include "FolderNames.h"

#include <algorithm>

namespace chronomender {

namespace {

constexpr std::string_view separators = " \t\r\n.,";

std::set<std::string, std::less<>> extensionsOf(std::string_view text) {
    std::set<std::string, std::less<>> extensions;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find_first_of(separators), text.size());
        // Whatever holds a slash is a path, and so no extension.
        if (end > 0 && text.substr(0, end).find('/') == std::string_view::npos)
            extensions.insert(lowerCaseName(text.substr(0, end)));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return extensions;
}

} // namespace

FilteredExtensions::FilteredExtensions(const ExtensionFilter &filter)
    : m_kind(filter.kind), m_extensions(extensionsOf(filter.text)) {}

bool FilteredExtensions::passes(std::string_view name, bool isFolder) const {
    if (!isFolder && sidecarKindOfName(name))
        return true;
    const bool isListed = m_extensions.contains(lowerCaseName(extensionOfName(name)));
    return m_kind == ExtensionFilter::Kind::Keep ? isListed || isFolder : !isListed;
}

std::vector<FolderEntry> filteredPaths(std::vector<FolderEntry> entries,
                                       const ExtensionFilter &filter) {
    const FilteredExtensions extensions(filter);
    std::erase_if(entries, [&](const FolderEntry &entry) {
        return !extensions.passes(entry.name, entry.kind == FileAttributes::Kind::Directory);
    });
    return entries;
}

} // namespace chronomender
