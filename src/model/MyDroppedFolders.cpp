// SPDX-License-Identifier: GPL-3.0-or-later
#include "MyDroppedFolders.h"

#include <algorithm>

namespace chronomender {
namespace {

bool contains(const std::vector<MySingleFolderPtr> &folders, const MySingleFolderPtr &folder) {
    return std::find(folders.begin(), folders.end(), folder) != folders.end();
}

} // namespace

MyDroppedFolders::MyDroppedFolders(int colorCount) : m_maxColorIndex(colorCount - 1) {
    for (int index = 0; index < colorCount; ++index)
        m_availableColorIndexes.insert(static_cast<std::uint16_t>(index));
}

void MyDroppedFolders::append(const MySingleFolderPtr &folder) {
    folder->folderSortGeneral = m_nextRank++;
    folder->colorIndex = indexOfNextColor();
    m_droppedFolders.push_back(folder);
}

void MyDroppedFolders::insertBehind(const MySingleFolderPtr &folder,
                                    const MySingleFolderPtr &parent) {
    append(folder);
    const auto end = m_droppedFolders.end();
    if (const auto found = std::find(m_droppedFolders.begin(), end, parent); found < end - 1)
        std::rotate(found + 1, end - 1, end);
}

void MyDroppedFolders::remove(const std::vector<MySingleFolderPtr> &deleted) {
    if (deleted.size() == 1 && contains(m_droppedFolders, deleted.front()))
        recycleColorIndexFromFolder(*deleted.front());
    std::erase_if(m_droppedFolders,
                  [&](const MySingleFolderPtr &folder) { return contains(deleted, folder); });
    if (deleted.size() > 1)
        recycleColorIndexFromDeletedFolders(deleted);
}

MySingleFolderPtr MyDroppedFolders::folderWithPath(const std::string &path) const {
    const auto found =
        std::find_if(m_droppedFolders.begin(), m_droppedFolders.end(),
                     [&](const auto &folder) { return folder->sfFolderPath() == path; });
    return found == m_droppedFolders.end() ? nullptr : *found;
}

MySingleFolderPtr MyDroppedFolders::folderWithIdentity(const FileAttributes &attributes) const {
    for (const MySingleFolderPtr &folder : m_droppedFolders) {
        const auto reference = folder->reference();
        const auto present = reference ? reference->attributes() : std::nullopt;
        if (present && present->isSameFile(attributes))
            return folder;
    }
    return nullptr;
}

MediaTypesState
MyDroppedFolders::mediaStateForFolders(const std::vector<MySingleFolderPtr> &folders) {
    MediaTypesState state = MediaTypesState::Nothing;
    for (const MySingleFolderPtr &folder : folders)
        state = state | folder->mediaTypesState;
    return state;
}

bool MyDroppedFolders::hasColor(const MySingleFolder &folder) const {
    return folder.colorIndex <= m_maxColorIndex;
}

std::uint16_t MyDroppedFolders::indexOfNextColor() {
    if (m_availableColorIndexes.empty())
        return noColorIndex;
    return m_availableColorIndexes.extract(m_availableColorIndexes.begin()).value();
}

void MyDroppedFolders::recycleColorIndexFromFolder(MySingleFolder &folder) {
    if (!hasColor(folder))
        return;
    const std::uint16_t index = std::exchange(folder.colorIndex, noColorIndex);
    const auto isOtherWithoutColor = [&](const MySingleFolderPtr &other) {
        return other.get() != &folder && !hasColor(*other);
    };
    const auto heir =
        std::find_if(m_droppedFolders.begin(), m_droppedFolders.end(), isOtherWithoutColor);
    if (heir != m_droppedFolders.end())
        (*heir)->colorIndex = index;
    else
        m_availableColorIndexes.insert(index);
}

void MyDroppedFolders::recycleColorIndexFromDeletedFolders(
    const std::vector<MySingleFolderPtr> &deleted) {
    for (const MySingleFolderPtr &folder : deleted)
        if (hasColor(*folder))
            m_availableColorIndexes.insert(std::exchange(folder->colorIndex, noColorIndex));
    giveColorsToFoldersWithoutOne();
}

void MyDroppedFolders::setColorCount(int colorCount) {
    for (int index = m_maxColorIndex + 1; index < colorCount; ++index)
        m_availableColorIndexes.insert(static_cast<std::uint16_t>(index));
    m_maxColorIndex = colorCount - 1;
    std::erase_if(m_availableColorIndexes, [this](int index) { return index > m_maxColorIndex; });
}

void MyDroppedFolders::possiblyUseNewlyAddedColors() {
    giveColorsToFoldersWithoutOne();
}

void MyDroppedFolders::giveColorsToFoldersWithoutOne() {
    for (const MySingleFolderPtr &folder : m_droppedFolders) {
        if (m_availableColorIndexes.empty())
            return;
        if (!hasColor(*folder))
            folder->colorIndex = indexOfNextColor();
    }
}

bool MyDroppedFolders::canReDistributeColors() const {
    const std::size_t most = static_cast<std::size_t>(m_maxColorIndex + 1);
    for (std::size_t place = 0; place < std::min(most, m_droppedFolders.size()); ++place)
        if (m_droppedFolders[place]->colorIndex != place)
            return true;
    return false;
}

void MyDroppedFolders::reDistributeColors() {
    m_availableColorIndexes.clear();
    const int colorCount = m_maxColorIndex + 1;
    m_maxColorIndex = -1;
    setColorCount(colorCount);
    for (const MySingleFolderPtr &folder : m_droppedFolders)
        folder->colorIndex = indexOfNextColor();
}

} // namespace chronomender
