// SPDX-License-Identifier: GPL-3.0-or-later
#include "NewDates.h"

#include <array>
#include <string_view>

namespace chronomender {
namespace {

using Options = DateChangeOptions;

struct OptionKey {
    std::string_view key;
    int Options::*value;
};

#define OPTION_KEY(name)                                                                           \
    OptionKey {                                                                                    \
#name, &Options::name                                                                      \
    }
constexpr std::array<OptionKey, 15> optionKeys{
    OPTION_KEY(dateChangeEXIFEXIFDigiDate),
    OPTION_KEY(dateChangeEXIFEXIFDigiDateUnchangedOption),
    OPTION_KEY(dateChangeEXIFEXIFModDate),
    OPTION_KEY(dateChangeEXIFEXIFModDateUnchangedOption),
    OPTION_KEY(dateChangeEXIFChangeFinderWhenChangingEXIF),
    OPTION_KEY(dateChangeEXIFFinderCreaDate2),
    OPTION_KEY(dateChangeEXIFFinderModDate),
    OPTION_KEY(dateChangeEXIFFinderModDateUnchangedOption),
    OPTION_KEY(dateChangeEXIFFinderModDateEXIFModDateOptions),
    OPTION_KEY(dateChangeEXIFFinderModDateEXIFModDateUnchangedOption),
    OPTION_KEY(dateChangeNoEXIFFinderModDate),
    OPTION_KEY(dateChangeNoEXIFFinderModDateUnchangedOption),
    OPTION_KEY(dateChangeNoEXIFButTIFFMetaModDate),
    OPTION_KEY(dateChangeNoEXIFButTIFFFinderModDate),
    OPTION_KEY(dateChangeNoEXIFButTIFFFinderModDateUnchangedOption),
};
#undef OPTION_KEY

} // namespace

DateChangeOptions cachedSaveOptions(const UserDefaults &defaults, Date now, bool savingAll) {
    DateChangeOptions options;
    for (const OptionKey &option : optionKeys)
        options.*option.value = defaults.integerForKey(option.key);
    options.nowDate = now;
    options.isSavingPhotosWithoutDateChangesEnabled = savingAll;
    return options;
}

NewDateContext liveContext(const UserDefaults &defaults, Date now) {
    NewDateContext context;
    context.options = cachedSaveOptions(defaults, cleanDate(now).value_or(now), false);
    context.dateComparisonThresold = defaults.integerForKey("dateComparisonThresold");
    context.dateChangeTypeAtLocationOnlyChanges =
        defaults.integerForKey("dateChangeTypeAtLocationOnlyChanges");
    return context;
}

} // namespace chronomender
