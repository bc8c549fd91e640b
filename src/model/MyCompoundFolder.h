// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MySingleFolder.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace chronomender {

/// The answer of several folders to one question: what all of them say, or that they differ.
template<class Value>
struct Combined {
    enum class Kind : std::uint8_t { NoFolder, Same, Mixed } kind = Kind::NoFolder;
    std::optional<Value> value; ///< present when all folders say the same

    bool isMixed() const { return kind == Kind::Mixed; }
    void add(const Value &answer) {
        if (kind == Kind::NoFolder)
            *this = {Kind::Same, answer};
        else if (value != answer)
            *this = {Kind::Mixed, std::nullopt};
    }
};

/// Several folders that are selected together. It owns nothing of its own: every answer is made
/// from the folders' answers by the rule that stands here, and folders that differ give a mixed
/// answer. Main thread.
class MyCompoundFolder {
public:
    explicit MyCompoundFolder(std::vector<MySingleFolderPtr> folders)
        : m_folders(std::move(folders)) {}

    const std::vector<MySingleFolderPtr> &folders() const { return m_folders; }

    std::int64_t count() const;
    std::int64_t fullMediaCount() const;
    std::int64_t unsavedImagesCount() const;
    std::vector<MySinglePicPtr> sfPicDetails_fullArray() const; ///< folder after folder
    /// The earliest and the latest date; none when no folder has one. Without any folder `sfFrom`
    /// is the distant future.
    OptionalDate sfFrom() const, sfTill() const;
    std::string sfFolder() const;
    bool isUnsavedFolder() const;
    bool isDisconnected() const;
    MediaTypesState mediaTypesState() const;
    bool isQuicktimeMVHDTimezoneCorrectionMixed() const;
    Combined<EditMode> sfEditMode() const;
    Combined<absl::Duration> sfDateModificationsTimeInterval() const;
    Combined<DateModificationFields> sfDateModifications() const;
    bool isDateModified() const;           ///< any folder
    bool isTogetherDateUIModified() const; ///< any folder

private:
    std::vector<MySingleFolderPtr> m_folders;
};

} // namespace chronomender
