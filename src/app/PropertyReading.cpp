// SPDX-License-Identifier: GPL-3.0-or-later
#include "PropertyReading.h"

#include "Parallel.h"

namespace chronomender {
namespace {

bool isWanted(const MySinglePic &pic, CompletionScope scope) {
    return scope == CompletionScope::All ||
           (scope == CompletionScope::WhereCameraIsMissing && lacksCamera(pic));
}

} // namespace

std::vector<MySinglePicPtr> itemsToComplete(const std::vector<MySinglePicPtr> &items,
                                            CompletionScope scope) {
    std::vector<MySinglePicPtr> wanted;
    for (const MySinglePicPtr &pic : items)
        for (const MySinglePicPtr &half : {pic, pic->group.bundleDependentImage})
            if (half && isWanted(*half, scope))
                wanted.push_back(half);
    return wanted;
}

PropertyDictionaries readDictionaries(const std::vector<MySinglePicPtr> &items,
                                      const Cancellation &cancellation) {
    PropertyDictionaries dictionaries(items.size());
    parallelFor(
        items.size(), [&](std::size_t i) { dictionaries[i] = readLateProperties(*items[i]); },
        [&] { return cancellation.isRequested(); });
    return dictionaries;
}

void completeItems(const std::vector<MySinglePicPtr> &items,
                   const PropertyDictionaries &dictionaries) {
    for (std::size_t i = 0; i < items.size(); ++i)
        completeItem(*items[i], dictionaries[i]);
}

} // namespace chronomender
