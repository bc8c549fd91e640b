// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Cancellation.h"
#include "MySinglePic.h"
#include "PropertyDictionary.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace chronomender {

/// Which items have the image library's properties read after their import.
enum class CompletionScope : std::uint8_t { None, WhereCameraIsMissing, All };

/// The items that `scope` takes in.
std::vector<MySinglePicPtr> itemsToComplete(const std::vector<MySinglePicPtr> &items,
                                            CompletionScope scope);

using PropertyDictionaries = std::vector<std::optional<PropertyDictionary>>;

/// Reads the dictionaries of the items' files in parallel; one answer for each item, none where the
/// library knows nothing or the run was cancelled. Reads the items and changes nothing. Any thread.
PropertyDictionaries readDictionaries(const std::vector<MySinglePicPtr> &items,
                                      const Cancellation &cancellation);

/// Fills what the file's own values left open: camera, lens, picture size and, where the file has
/// no recorded location, that. Main thread.
void applyDictionary(MySinglePic &pic, const PropertyDictionary &dictionary);

} // namespace chronomender
