// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "NameBuilder.h"
#include "SpType.h"

#include <span>
#include <string>
#include <vector>

namespace chronomender {

// Names that show what a template does.

/// Stands in for an item where there is none.
struct MySampleNameSinglePic {
    SpType spType;
    absl::CivilSecond spDateTimeModified; ///< in the system's zone
    std::string spName;
};
/// Stands in for a folder.
struct MySampleNameSingleFolder {
    std::string sfFolder;
    std::vector<MySampleNameSinglePic> pics;
};
const std::vector<MySampleNameSingleFolder> &sampleFolders();
NameFacts sampleFacts(const MySampleNameSinglePic &pic, const MySampleNameSingleFolder &folder,
                      const Zones &zones);

/// The title of a template: the name of the first item of the last sample folder, with counter 1.
/// An add-on without a text is shown by its label.
StyledName sampleTextWithSettings(const RenameTemplate &renameTemplate, const AddOnTexts &addOns,
                                  const Zones &zones);
/// One name a line, numbered from 1; lines are parted by carriage returns.
StyledName sampleBlock(std::span<const NameFacts> items, const AddOnTexts &addOns,
                       NameSettings settings);
/// The text of a styled name without its styles.
std::string plainText(const StyledName &name);

} // namespace chronomender
