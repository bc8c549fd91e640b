// SPDX-License-Identifier: GPL-3.0-or-later
#include "AlertRows.h"

#include "AppController.h"
#include "DateAlerts.h"
#include "DaylightSavingChecks.h"
#include "ItemAlerts.h"
#include "ItemTexts.h"
#include "NewDates.h"
#include "Texts.h"

#include <algorithm>

namespace chronomender {
namespace {

struct ActionKey {
    AlertAction action;
    const char *key;
};
constexpr ActionKey actionKeys[] = {
    {AlertAction::ReadAsEarlier, "inspector_readAsEarlier"},
    {AlertAction::ReadAsLater, "inspector_readAsLater"},
    {AlertAction::SetZones, "inspector_setZones"},
    {AlertAction::AddMissingTags, "inspector_addMissingTags"},
    {AlertAction::LeaveTagsOut, "inspector_leaveTagsOut"},
    {AlertAction::ShowErrors, "inspector_showErrors"},
};

template<class Question>
bool isTrueOfBundle(const MySinglePic &pic, Question isTrue) {
    const MySinglePicPtr &dependent = pic.group.bundleDependentImage;
    return isTrue(pic) || (dependent && isTrue(*dependent));
}

bool canTagsBeAdded(const MySinglePic &pic) {
    return isTrueOfBundle(pic, [](const MySinglePic &each) {
        return !each.importState.isLeftAlone && !each.save.shouldAddExifDateTimeTags &&
               areExifDateTimeTagsAddable(each);
    });
}

bool areTagsWanted(const MySinglePic &pic) {
    return isTrueOfBundle(
        pic, [](const MySinglePic &each) { return each.save.shouldAddExifDateTimeTags; });
}

bool isInState(const MySinglePic &pic, FileUnchangedState state) {
    return pic.bundleUnchangedState() == state;
}

/// What can be found out from what an item remembers, with the text key of its words.
struct Remark {
    const char *key;
    RowTone tone;
    bool (*applies)(const MySinglePic &, const FilterContext &);
    std::vector<AlertAction> actions;
};
/// What an item says beside its dates. `key` is of one item, `key` + "_of" with a number.
const std::vector<Remark> &remembered() {
    using Context = FilterContext;
    static const std::vector<Remark> table{
        {"inspector_notFound",
         RowTone::Danger,
         [](const MySinglePic &pic, const Context &) {
             return isInState(pic, FileUnchangedState::NotFound);
         },
         {}},
        {"inspector_changedSinceRead",
         RowTone::Danger,
         [](const MySinglePic &pic, const Context &) {
             return !isInState(pic, FileUnchangedState::Unchanged) &&
                    !isInState(pic, FileUnchangedState::NotFound);
         },
         {}},
        {"inspector_saveError",
         RowTone::Danger,
         [](const MySinglePic &pic, const Context &) { return hasBundleSaveError(pic); },
         {AlertAction::ShowErrors}},
        {"inspector_renameError",
         RowTone::Danger,
         [](const MySinglePic &pic, const Context &) { return pic.rename.hasRenameError != 0; },
         {AlertAction::ShowErrors}},
        {"inspector_before1970",
         RowTone::Warning,
         [](const MySinglePic &pic, const Context &) { return isMetaLessWith70Problem(pic); },
         {}},
        {"inspector_emptyTags", RowTone::Warning, hasEmptyMetaTagsAndThatsImportant, {}},
        {"inspector_youngerThanFile",
         RowTone::Warning,
         [](const MySinglePic &pic, const Context &) {
             return isPreferringFileDateAndThatsImportant(pic);
         },
         {AlertAction::SetZones}},
        {"inspector_tagsMissing",
         RowTone::Plain,
         [](const MySinglePic &pic, const Context &) { return canTagsBeAdded(pic); },
         {AlertAction::AddMissingTags}},
        {"inspector_tagsWillBeAdded",
         RowTone::Plain,
         [](const MySinglePic &pic, const Context &) { return areTagsWanted(pic); },
         {AlertAction::LeaveTagsOut}},
        {"inspector_noTags",
         RowTone::Plain,
         [](const MySinglePic &pic, const Context &) {
             return hasIgnoredEmbeddedMetasAndThatsImportant(pic) && !canTagsBeAdded(pic);
         },
         {}},
    };
    return table;
}

bool isAmbiguous(const MySinglePic &pic) {
    return isDateSourceAmbiguousAtImport(pic);
}

AlternativeTarget targetOf(const DateAlert &alert, const MySinglePic &pic) {
    const MySinglePicPtr &dependent = pic.group.bundleDependentImage;
    if (!dependent || !isAmbiguous(*dependent) || !isAmbiguous(pic))
        return AlternativeTarget::Master;
    return alert.isOfDependent ? AlternativeTarget::Dependent : AlternativeTarget::Both;
}

std::vector<AlertAction> actionsFor(const DateAlert &alert) {
    switch (alert.kind) {
    case DateAlertKind::RepeatedTime:
        return {alert.isAlternative ? AlertAction::ReadAsLater : AlertAction::ReadAsEarlier,
                AlertAction::SetZones};
    case DateAlertKind::GroupApart:
        return {};
    default:
        return {AlertAction::SetZones};
    }
}

AlertRow rowOf(const DateAlert &alert, const MySinglePic &pic) {
    const bool isMild =
        alert.kind == DateAlertKind::GroupApart || alert.kind == DateAlertKind::GpsApart;
    std::string words = wordsOf(alert, pic);
    if (!alert.isOfDependent) // which begins with a name
        words = asSentence(words);
    return {std::move(words), isMild ? RowTone::Warning : RowTone::Danger, actionsFor(alert),
            targetOf(alert, pic)};
}

/// The reasons of dateAlerts(), for many items: how many have each.
const std::vector<Remark> &countedDates() {
    using Context = FilterContext;
    static const std::vector<Remark> table{
        {"inspector_repeatedTimes",
         RowTone::Danger,
         [](const MySinglePic &pic, const Context &) { return hasBundleDstAmbiguityAtImport(pic); },
         {AlertAction::ReadAsEarlier, AlertAction::ReadAsLater, AlertAction::SetZones}},
        {"inspector_otherThanInFile",
         RowTone::Danger,
         [](const MySinglePic &pic, const Context &) { return hasBundleDstDivergence(pic); },
         {AlertAction::SetZones}},
        {"inspector_cannotBeWritten",
         RowTone::Danger,
         [](const MySinglePic &pic, const Context &context) {
             const MySingleFolderPtr folder = pic.spSingleRealFolder();
             return folder && hasBundleDstAmbiguityAtExport(pic, *folder, context.zones);
         },
         {AlertAction::SetZones}},
        {"inspector_zonesDisagree",
         RowTone::Danger,
         [](const MySinglePic &pic, const Context &) { return hasBundleMajorDateDifference(pic); },
         {AlertAction::SetZones}},
        {"inspector_groupsApart",
         RowTone::Warning,
         [](const MySinglePic &pic, const Context &) {
             return hasGroupDivergenceAndThatsImportant(pic);
         },
         {}},
        {"inspector_gpsApart",
         RowTone::Warning,
         [](const MySinglePic &pic, const Context &) {
             return hasBundleMinorDateDifferencesAndThatsImportant(pic);
         },
         {AlertAction::SetZones}},
    };
    return table;
}

/// One row for each remark that applies to any item, with the number of items.
void appendCounts(std::vector<AlertRow> &rows, const std::vector<Remark> &table,
                  const std::string &suffix, const std::vector<MySinglePicPtr> &pics,
                  const FilterContext &context) {
    for (const Remark &line : table) {
        const auto number = std::ranges::count_if(
            pics, [&](const MySinglePicPtr &pic) { return line.applies(*pic, context); });
        if (number > 0)
            rows.push_back({countText(line.key + suffix, number), line.tone, line.actions,
                            AlternativeTarget::Master});
    }
}

/// Of several items every file is meant, be it one of its group or both.
void read(const std::vector<MySinglePicPtr> &pics, AlternativeTarget target, bool isEarlier,
          AppController &controller) {
    const UndoGroup group(controller.undoManager());
    controller.useAlternative(pics, target, isEarlier);
    if (pics.size() > 1)
        controller.useAlternative(pics, AlternativeTarget::Dependent, isEarlier);
}

} // namespace

const char *textKey(AlertAction action) {
    return std::ranges::find(actionKeys, action, &ActionKey::action)->key;
}

std::vector<AlertRow> alertRows(const MySinglePic &pic, const FilterContext &context) {
    std::vector<AlertRow> rows;
    if (const MySingleFolderPtr folder = pic.spSingleRealFolder())
        for (const DateAlert &alert : dateAlerts(pic, *folder, context.zones))
            rows.push_back(rowOf(alert, pic));
    for (const Remark &each : remembered())
        if (each.applies(pic, context))
            rows.push_back({text(each.key), each.tone, each.actions, AlternativeTarget::Master});
    std::ranges::stable_sort(rows, std::greater(), &AlertRow::tone);
    return rows;
}

std::vector<AlertRow> alertRows(const std::vector<MySinglePicPtr> &pics,
                                const FilterContext &context) {
    std::vector<AlertRow> rows;
    appendCounts(rows, countedDates(), "", pics, context);
    appendCounts(rows, remembered(), "_of", pics, context);
    std::ranges::stable_sort(rows, std::greater(), &AlertRow::tone);
    return rows;
}

bool perform(AlertAction action, AlternativeTarget target, const std::vector<MySinglePicPtr> &pics,
             AppController &controller) {
    switch (action) {
    case AlertAction::ReadAsEarlier:
    case AlertAction::ReadAsLater:
        read(pics, target, action == AlertAction::ReadAsEarlier, controller);
        return true;
    case AlertAction::AddMissingTags:
    case AlertAction::LeaveTagsOut:
        controller.addMissingDateTags(pics, action == AlertAction::AddMissingTags);
        return true;
    case AlertAction::SetZones:
    case AlertAction::ShowErrors:
        return false;
    }
    return false;
}

} // namespace chronomender
