// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DateAlerts.h"
#include "MySingleFolder.h"

#include <string>
#include <string_view>
#include <vector>

namespace chronomender {

/// A save would write this item.
bool isUnsaved(const MySinglePic &pic);

/// Remarks for a person, separated by semicolons: unsaved, empty tags left alone, dated by its
/// file…
std::string noteText(const MySinglePic &pic);

/// An alert of an item in words; what is about the other half of a group begins with that file's
/// name.
std::string wordsOf(const DateAlert &alert, const MySinglePic &pic);
/// Alerts of an item in words, separated by semicolons; "" for most items.
std::string alertsText(const std::vector<DateAlert> &alerts, const MySinglePic &pic);

/// Where an item's date comes from, in words.
std::string sourceText(const MySinglePic &pic);

/// "48.8584, 2.2945", or "" without a location.
std::string locationText(const MySinglePic &pic);

/// Names of the files that go with an item and are no media of their own: XMP, AAE.
std::vector<std::string> sidecarNames(const MySinglePic &pic);

/// "IMG_1.CR3 + JPG, xmp": the name with the extensions of its other half and its sidecars.
std::string nameWithCompanions(const MySinglePic &pic);

} // namespace chronomender
