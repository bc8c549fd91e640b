// SPDX-License-Identifier: GPL-3.0-or-later
#include "ItemAlerts.h"

#include "DaylightSavingChecks.h"
#include "ZoneLookup.h"

namespace chronomender {
namespace {

template<class Question>
bool isTrueOfBundle(const MySinglePic &pic, Question isTrue) {
    const MySinglePicPtr &dependent = pic.group.bundleDependentImage;
    return isTrue(pic) || (dependent && isTrue(*dependent));
}

bool isImportant(const MySinglePic &pic) {
    return !pic.importState.isLeftAlone && pic.hasCorrectableDate();
}

bool disagreesWithSaidZone(const MySinglePic &pic) {
    if (!(pic.zones.majorDateDifferenceType & kZoneDisagrees))
        return false;
    const MySingleFolderPtr folder = pic.spSingleRealFolder();
    const ZoneChoice *said = folder ? choiceForPic(pic, folder->sourceTimeZones) : nullptr;
    return said && said->zone();
}

/// Everything that the item remembers. Of most items there is nothing, which is found out from a
/// few numbers.
bool hasRememberedAlert(const MySinglePic &pic, const FilterContext &context) {
    return hasBundleSaveError(pic) || pic.rename.hasRenameError != 0 ||
           pic.bundleUnchangedState() != FileUnchangedState::Unchanged ||
           hasEmptyMetaTagsAndThatsImportant(pic, context) ||
           hasIgnoredEmbeddedMetasAndThatsImportant(pic) ||
           isPreferringFileDateAndThatsImportant(pic) || hasBundleDstDivergence(pic) ||
           hasBundleDstAmbiguityAtImport(pic) ||
           hasBundleMinorDateDifferencesAndThatsImportant(pic) ||
           hasBundleMajorDateDifference(pic) || hasGroupDivergenceAndThatsImportant(pic);
}

} // namespace

bool hasBundleLocation(const MySinglePic &pic) {
    return isTrueOfBundle(pic, [](const MySinglePic &each) { return each.hasLocation(); });
}

bool hasBundleSaveError(const MySinglePic &pic) {
    return isTrueOfBundle(pic,
                          [](const MySinglePic &each) { return each.save.saveErrorType != 0; });
}

bool isMetaLessWith70Problem(const MySinglePic &pic) {
    return isTrueOfBundle(pic, [](const MySinglePic &each) {
        return (hasNoDateTags(each.spType) || isPreferringFileDate(each.spType)) &&
               each.spDateTimeModified() < absl::UnixEpoch();
    });
}

bool hasEmptyMetaTagsAndThatsImportant(const MySinglePic &pic, const FilterContext &context) {
    return context.highlightEmptyMetaTags && isNullerFile(pic.spType) && isImportant(pic);
}

bool hasBundleMinorDateDifferencesAndThatsImportant(const MySinglePic &pic) {
    return isTrueOfBundle(pic, [](const MySinglePic &each) {
        return each.zones.hasMinorDateDifference && isImportant(each);
    });
}

bool hasBundleMajorDateDifference(const MySinglePic &pic) {
    return isTrueOfBundle(pic, [](const MySinglePic &each) {
        return (each.zones.majorDateDifferenceType & kOnlyOneSideIsLocal) ||
               disagreesWithSaidZone(each);
    });
}

bool hasIgnoredEmbeddedMetasAndThatsImportant(const MySinglePic &pic) {
    return hasNoDateTags(pic.spType) && !pic.save.shouldAddExifDateTimeTags && isImportant(pic);
}

bool isPreferringFileDateAndThatsImportant(const MySinglePic &pic) {
    return isPreferringFileDate(pic.spType) && isImportant(pic);
}

bool hasGroupDivergenceAndThatsImportant(const MySinglePic &pic) {
    return (pic.zones.majorDateDifferenceType & kGroupDeviates) && isImportant(pic) &&
           !pic.isGroupHarmonized();
}

bool hasAnyAlert(const MySinglePic &pic, const FilterContext &context) {
    if (hasRememberedAlert(pic, context) || isMetaLessWith70Problem(pic))
        return true;
    const MySingleFolderPtr folder = pic.spSingleRealFolder();
    return folder && hasBundleDstAmbiguityAtExport(pic, *folder, context.zones);
}

} // namespace chronomender
