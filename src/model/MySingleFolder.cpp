// SPDX-License-Identifier: GPL-3.0-or-later
#include "MySingleFolder.h"

#include "UserDefaults.h"

#include <algorithm>
#include <array>

namespace chronomender {
namespace {

/// Folders in which desktops keep trashed files: the home trash of the XDG trash rules, and those
/// at the top of other volumes (".Trash/<uid>", ".Trash-<uid>").
constexpr std::array trashMarks{std::string_view("/.local/share/Trash/"),
                                std::string_view("/.Trash/"), std::string_view("/.Trash-")};

bool liesInTrash(const std::string &path) {
    const std::string whole = path + '/';
    return std::any_of(trashMarks.begin(), trashMarks.end(), [&](std::string_view mark) {
        return whole.find(mark) != std::string::npos;
    });
}

std::string withoutFinalSlashes(std::string path) {
    while (path.size() > 1 && path.back() == '/')
        path.pop_back();
    return path;
}

std::string lastComponent(const std::string &path) {
    return path == "/" ? path : path.substr(path.rfind('/') + 1);
}

} // namespace

MySingleFolderPtr MySingleFolder::initWithFolder(std::string path,
                                                 std::shared_ptr<FolderReference> folder,
                                                 EditMode mode) {
    MySingleFolderPtr result(new MySingleFolder);
    result->m_sfLastKnownFolderPath = withoutFinalSlashes(std::move(path));
    result->sfFolder = lastComponent(result->m_sfLastKnownFolderPath);
    result->m_reference = std::move(folder);
    result->sfEditMode = mode;
    return result;
}

std::string MySingleFolder::sfFolderPath() const {
    const std::lock_guard lock(m_pathMutex);
    if (std::string path = m_reference ? m_reference->path() : std::string(); !path.empty())
        m_sfLastKnownFolderPath = std::move(path);
    return m_sfLastKnownFolderPath;
}

std::shared_ptr<FolderReference> MySingleFolder::reference() const {
    const std::lock_guard lock(m_pathMutex);
    return m_reference;
}

std::optional<std::string> MySingleFolder::unlockedSecUrl() const {
    const auto folder = reference();
    if (!folder || folder->path().empty())
        return std::nullopt;
    return sfFolderPath();
}

bool MySingleFolder::isWriteableCheckingTrashed(bool refuseTrash) const {
    const auto folder = reference();
    const auto path = unlockedSecUrl();
    return path && folder->isWritable() && !(refuseTrash && liesInTrash(*path));
}

std::int64_t MySingleFolder::fullMediaCount() const {
    return count() + static_cast<std::int64_t>(bundleDependentsRawAndJPG.size() +
                                               bundleDependentsLivePhotos.size());
}

bool MySingleFolder::isUnsavedFolder() const {
    return std::any_of(sfPicDetails_fullArray.begin(), sfPicDetails_fullArray.end(),
                       [](const MySinglePicPtr &pic) { return pic->isUnsavedOrGroupHarmonized(); });
}

std::int64_t MySingleFolder::unsavedImagesCount() const {
    return std::count_if(
        sfPicDetails_fullArray.begin(), sfPicDetails_fullArray.end(),
        [](const MySinglePicPtr &pic) { return pic->isUnsavedOrGroupHarmonized(); });
}

bool MySingleFolder::isDateModified() const {
    return sfEditMode == EditMode::Together
               ? sfDateModificationsTimeInterval != absl::ZeroDuration()
               : singlePicModeImages != 0;
}

bool MySingleFolder::isTogetherDateUIModified() const {
    return sfDateModificationsTimeInterval != absl::ZeroDuration() || hasChangedDirection;
}

MediaTypesState MySingleFolder::presentMediaTypesState() const {
    MediaTypesState state = MediaTypesState::Nothing;
    for (const MySinglePicPtr &pic : sfPicDetails_fullArray)
        state = state | (pic->isMovie() ? MediaTypesState::Movies : MediaTypesState::Photos);
    return state;
}

int MySingleFolder::takeHarmonizingRawJpgsType(const UserDefaults &defaults) {
    if (harmonizingRawJpgsType < 0 && !bundleDependentsRawAndJPG.empty())
        harmonizingRawJpgsType = defaults.integerForKey("harmonizingRawJpgsTypeDefault");
    return std::max(harmonizingRawJpgsType, 0);
}

void MySingleFolder::settleSortFolderLPsByMov(const UserDefaults &defaults) {
    if (sortLPsByMovModifier < 0 && !bundleDependentsLivePhotos.empty())
        sortLPsByMovModifier = defaults.integerForKey("sortLPsByMovModifierDefault");
    sortFolderLPsByMov =
        sortLPsByMovModifier > 0 ? sortLPsByMovModifier == 2 : defaults.boolForKey("sortLPsByMov");
}

} // namespace chronomender
