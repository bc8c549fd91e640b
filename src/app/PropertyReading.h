// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Cancellation.h"
#include "LateCompletion.h"
#include "MySinglePic.h"

#include <cstdint>
#include <vector>

namespace chronomender {

/// Which items have the image library's properties read after their import.
enum class CompletionScope : std::uint8_t { None, WhereCameraIsMissing, All };

/// Those of the items, and of their other halves, that `scope` takes in.
std::vector<MySinglePicPtr> itemsToComplete(const std::vector<MySinglePicPtr> &items,
                                            CompletionScope scope);

using PropertyDictionaries = std::vector<LateProperties>;

/// Reads the dictionaries of the items' files in parallel; one answer for each item, empty where
/// the libraries know nothing or the run was cancelled. Reads the items and changes nothing. Any
/// thread.
PropertyDictionaries readDictionaries(const std::vector<MySinglePicPtr> &items,
                                      const Cancellation &cancellation);

/// Completes the items that have an answer. Main thread.
void completeItems(const std::vector<MySinglePicPtr> &items,
                   const PropertyDictionaries &dictionaries);

} // namespace chronomender
