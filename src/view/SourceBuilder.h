// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MySingleFolder.h"

#include <vector>

namespace chronomender {

/// Builds the one visible list of all media of all folders in display order: by the date shown,
/// then by name in natural order, then by folder, then by order of creation. Main thread.
class SourceBuilder {
public:
    /// Gathers, sorts and numbers the items (`indexInSource_full`, `indexInFolder_full`).
    void buildNewSource(const std::vector<MySingleFolderPtr> &folders);

    const std::vector<MySinglePicPtr> &source_full() const { return m_sourceFull; }

private:
    std::vector<MySinglePicPtr> m_sourceFull;
};

} // namespace chronomender
