// SPDX-License-Identifier: GPL-3.0-or-later
#include "MyCompoundFolder.h"

#include <algorithm>

namespace chronomender {
namespace {

using Folders = std::vector<MySingleFolderPtr>;

template<class Question>
std::int64_t sum(const Folders &folders, Question question) {
    std::int64_t total = 0;
    for (const MySingleFolderPtr &folder : folders)
        total += (*folder.*question)();
    return total;
}

template<class Question>
bool anySaysSo(const Folders &folders, Question question) {
    return std::any_of(folders.begin(), folders.end(), question);
}

template<class Value>
Combined<Value> combined(const Folders &folders, Value MySingleFolder::*field) {
    Combined<Value> answer;
    for (const MySingleFolderPtr &folder : folders)
        answer.add(*folder.*field);
    return answer;
}

template<class IsBetter>
OptionalDate extreme(const Folders &folders, OptionalDate MySingleFolder::*field,
                     IsBetter isBetter) {
    OptionalDate best;
    for (const MySingleFolderPtr &folder : folders)
        if (const OptionalDate &date = *folder.*field; date && (!best || isBetter(*date, *best)))
            best = date;
    return best;
}

} // namespace

std::int64_t MyCompoundFolder::count() const {
    return sum(m_folders, &MySingleFolder::count);
}

std::int64_t MyCompoundFolder::fullMediaCount() const {
    return sum(m_folders, &MySingleFolder::fullMediaCount);
}

std::int64_t MyCompoundFolder::unsavedImagesCount() const {
    return sum(m_folders, &MySingleFolder::unsavedImagesCount);
}

std::vector<MySinglePicPtr> MyCompoundFolder::sfPicDetails_fullArray() const {
    std::vector<MySinglePicPtr> all;
    all.reserve(static_cast<std::size_t>(count()));
    for (const MySingleFolderPtr &folder : m_folders)
        all.insert(all.end(), folder->sfPicDetails_fullArray.begin(),
                   folder->sfPicDetails_fullArray.end());
    return all;
}

OptionalDate MyCompoundFolder::sfFrom() const {
    if (m_folders.empty())
        return InfiniteFuture();
    return extreme(m_folders, &MySingleFolder::sfFrom, std::less<Date>());
}

OptionalDate MyCompoundFolder::sfTill() const {
    return extreme(m_folders, &MySingleFolder::sfTill, std::greater<Date>());
}

std::string MyCompoundFolder::sfFolder() const {
    return "Compound folder with " + std::to_string(m_folders.size()) + " \"subfolders\"";
}

bool MyCompoundFolder::isUnsavedFolder() const {
    return anySaysSo(m_folders, [](const auto &folder) { return folder->isUnsavedFolder(); });
}

bool MyCompoundFolder::isDisconnected() const {
    return anySaysSo(m_folders, [](const auto &folder) { return folder->isDisconnected; });
}

MediaTypesState MyCompoundFolder::mediaTypesState() const {
    MediaTypesState state = MediaTypesState::Nothing;
    for (const MySingleFolderPtr &folder : m_folders)
        state = state | folder->mediaTypesState;
    return state;
}

bool MyCompoundFolder::isQuicktimeMVHDTimezoneCorrectionMixed() const {
    return combined(m_folders, &MySingleFolder::isQuicktimeMVHDTimezoneCorrectionEnabled).isMixed();
}

Combined<EditMode> MyCompoundFolder::sfEditMode() const {
    return combined(m_folders, &MySingleFolder::sfEditMode);
}

Combined<absl::Duration> MyCompoundFolder::sfDateModificationsTimeInterval() const {
    return combined(m_folders, &MySingleFolder::sfDateModificationsTimeInterval);
}

Combined<DateModificationFields> MyCompoundFolder::sfDateModifications() const {
    return combined(m_folders, &MySingleFolder::sfDateModifications);
}

bool MyCompoundFolder::isDateModified() const {
    return anySaysSo(m_folders, [](const auto &folder) { return folder->isDateModified(); });
}

bool MyCompoundFolder::isTogetherDateUIModified() const {
    return anySaysSo(m_folders,
                     [](const auto &folder) { return folder->isTogetherDateUIModified(); });
}

} // namespace chronomender
