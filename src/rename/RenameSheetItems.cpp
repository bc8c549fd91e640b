// SPDX-License-Identifier: GPL-3.0-or-later
#include "RenameSheetItems.h"
#include "CompoundMenuTag.h"

#include <algorithm>
#include <unordered_set>

namespace chronomender {
namespace {

using Folders = std::vector<MySingleFolderPtr>;

std::vector<MySinglePicPtr> picsIn(const Folders &folders,
                                   const std::vector<MySinglePicPtr> &pics) {
    std::unordered_set<const MySingleFolder *> wanted;
    for (const MySingleFolderPtr &folder : folders)
        wanted.insert(folder.get());
    std::vector<MySinglePicPtr> found;
    std::ranges::copy_if(pics, std::back_inserter(found), [&](const MySinglePicPtr &pic) {
        return wanted.contains(pic->spSingleRealFolder().get());
    });
    return found;
}

} // namespace

std::vector<MySingleFolderPtr> unsavedOf(const std::vector<MySingleFolderPtr> &folders) {
    Folders unsaved;
    std::ranges::copy_if(folders, std::back_inserter(unsaved),
                         [](const MySingleFolderPtr &each) { return each->isUnsavedFolder(); });
    return unsaved;
}

RenameSheetType renameSheetTypeOf(RenameSheetRequest request) {
    using enum RenameSheetRequest;
    switch (request) {
    case RenameCurrent:
        return RenameSheetType::Current;
    case RenameAll:
        return RenameSheetType::All;
    case SaveCurrent:
    case SaveCurrentWithoutChanges:
        return RenameSheetType::SaveCurrent;
    case SaveAll:
    case SaveAllWithoutChanges:
        break;
    }
    return RenameSheetType::SaveAll;
}

bool savesItemsWithoutChanges(RenameSheetRequest request) {
    return request == RenameSheetRequest::SaveCurrentWithoutChanges ||
           request == RenameSheetRequest::SaveAllWithoutChanges;
}

RenameSheetItems::RenameSheetItems(RenameSheetRequest request, RenameSheetViews views,
                                   const UserDefaults &defaults)
    : m_type(renameSheetTypeOf(request)),
      m_savesWithoutChanges(savesItemsWithoutChanges(request)),
      m_views(std::move(views)),
      m_defaults(defaults) {
    for (std::size_t i = 0; i < m_hasValidSelection.size(); ++i)
        m_hasValidSelection[i] = computeValidSelection(m_views.timelines[i]);
}

bool RenameSheetItems::isCompoundEntryVisible() const {
    return m_type == RenameSheetType::SaveCurrent && m_views.isCompound();
}

RenameAtSave RenameSheetItems::renameAtSave() const {
    const CompoundMenuTag chosen = menuTag(renameAtSaveMenu, m_defaults);
    return static_cast<RenameAtSave>(isCompoundEntryVisible() ? chosen.tag : chosen.integer());
}

bool RenameSheetItems::isForCompound() const {
    return m_views.isCompound() &&
           (m_type == RenameSheetType::Current ||
            (m_type == RenameSheetType::SaveCurrent && renameAtSave() != RenameAtSave::All));
}

bool RenameSheetItems::computeValidSelection(const StripSelection &selection) const {
    const Folders &folders = m_views.selectedFolders;
    if (!selection.picSelection || picsIn(folders, {selection.picSelection}).empty())
        return false;
    const auto chosen =
        static_cast<std::int64_t>(picsIn(folders, selection.sortedAllSelectedThumbsArray).size());
    std::int64_t all = 0;
    for (const MySingleFolderPtr &folder : folders)
        all += folder->count();
    return chosen > 0 && chosen < all;
}

bool RenameSheetItems::hasValidSelection(int strip) const {
    return (strip == 1 || strip == 2) && m_hasValidSelection[static_cast<std::size_t>(strip - 1)];
}

bool RenameSheetItems::shouldShowRestrictionOptions() const {
    const auto wanted =
        isCompoundEntryVisible() ? RenameAtSave::CurrentCompound : RenameAtSave::Current;
    const bool isForSelection =
        m_type == RenameSheetType::Current ||
        (m_type == RenameSheetType::SaveCurrent && renameAtSave() == wanted);
    return isForSelection && (hasValidSelection(1) || hasValidSelection(2));
}

int RenameSheetItems::restrictRenameType() const {
    return shouldShowRestrictionOptions() ? m_restrictRenameType : 0;
}

bool RenameSheetItems::setRestrictRenameType(int type) {
    if (type != 0 && !hasValidSelection(type))
        return false;
    m_restrictRenameType = type;
    return true;
}

RenameSheetItems::List RenameSheetItems::unrestrictedList() const {
    const RenameAtSave atSave = renameAtSave();
    const bool isJustChanged = !m_savesWithoutChanges && atSave == RenameAtSave::Current;
    switch (m_type) {
    case RenameSheetType::Current:
        return List::Current;
    case RenameSheetType::All:
        return List::Everything;
    case RenameSheetType::SaveCurrent:
        if (atSave == RenameAtSave::All)
            return List::Everything;
        return isJustChanged && m_views.isCompound() ? List::CurrentJustChanged : List::Current;
    case RenameSheetType::SaveAll:
        break;
    }
    return isJustChanged ? List::JustChanged : List::Everything;
}

std::vector<MySingleFolderPtr> RenameSheetItems::foldersOf(List list) const {
    if (list == List::Everything)
        return m_views.folders;
    if (list == List::JustChanged)
        return unsavedOf(m_views.folders);
    return list == List::CurrentJustChanged ? unsavedOf(m_views.selectedFolders)
                                            : m_views.selectedFolders;
}

const std::vector<MySinglePicPtr> &RenameSheetItems::currentPicsToSampleWithRestrictType(int type) {
    List list = unrestrictedList();
    const Pics *from = &m_views.source_full;
    if (type != 0) {
        list = type == 1 ? List::Restricted1 : List::Restricted2;
        from = &m_views.timelines[type == 1 ? 0 : 1].sortedAllSelectedThumbsArray;
    } else if (list == List::Everything) {
        return m_views.source_full;
    }
    auto known = m_lists.find(list);
    if (known == m_lists.end())
        known = m_lists.emplace(list, picsIn(foldersOf(list), *from)).first;
    return known->second;
}

const std::vector<MySinglePicPtr> &RenameSheetItems::currentPicsToSample() {
    return currentPicsToSampleWithRestrictType(
        m_defaults.boolForKey("rename_dontHideFilteredMedia") ? 0 : restrictRenameType());
}

SaveProcessType RenameSheetItems::processType(bool isForAll) const {
    using enum SaveProcessType;
    const bool isSave =
        m_type == RenameSheetType::SaveCurrent || m_type == RenameSheetType::SaveAll;
    if (isSave && renameAtSave() == RenameAtSave::Nothing)
        return Save;
    if (!isSave && unsavedOf(isForAll ? m_views.folders : m_views.selectedFolders).empty())
        return Rename;
    return isForAll ? SaveThenRenameAll : SaveThenRename;
}

std::optional<SaveRequest> RenameSheetItems::saveRequest() {
    const List list = unrestrictedList();
    SaveRequest request;
    request.type = processType(list == List::Everything);
    request.savingAll = m_savesWithoutChanges;
    if (list != List::Everything) {
        request.onlyFolders = foldersOf(list);
        // Without folders a request means all of them, which nobody asked for.
        if (request.onlyFolders.empty())
            return std::nullopt;
    }
    if (const int strip = restrictRenameType(); strip != 0)
        request.onlyPics = currentPicsToSampleWithRestrictType(strip);
    return request;
}

} // namespace chronomender
