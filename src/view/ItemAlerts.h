// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FilterKeys.h"

namespace chronomender {

// What deserves a second look in an item, as the filter asks it. "Bundle" is the item or the other
// half of its group. An alert "that's important" is about an item which a save would write to: one
// that was left alone, or that has no date to correct, was decided about and is not named again.

bool hasBundleLocation(const MySinglePic &pic);
bool hasBundleSaveError(const MySinglePic &pic);

/// The date is that of the file, and lies before 1970: it was never set, or lost on the way.
bool isMetaLessWith70Problem(const MySinglePic &pic);
/// Its date tags are empty; by the preference highlightEmptyMetaTags.
bool hasEmptyMetaTagsAndThatsImportant(const MySinglePic &pic, const FilterContext &context);
/// The GPS time tells another time than a date without a zone.
bool hasBundleMinorDateDifferencesAndThatsImportant(const MySinglePic &pic);
/// One half of a group is without a zone and lies apart, or the zone in the file is not the one
/// that was said of the item. The system's zone, which nobody said, is held against no file.
bool hasBundleMajorDateDifference(const MySinglePic &pic);
/// There is no date tag, and none is to be added: the date is that of the file.
bool hasIgnoredEmbeddedMetasAndThatsImportant(const MySinglePic &pic);
/// The file's date overruled a younger date inside it.
bool isPreferringFileDateAndThatsImportant(const MySinglePic &pic);
/// The two halves of a group lie apart, and harmonising does not make them one.
bool hasGroupDivergenceAndThatsImportant(const MySinglePic &pic);

/// Any of these, an error of a save or a rename, a changed file, or a date that the clocks' going
/// forward or back made doubtful.
bool hasAnyAlert(const MySinglePic &pic, const FilterContext &context);

} // namespace chronomender
