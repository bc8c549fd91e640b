// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FolderPlans.h"
#include "MySingleFolder.h"

#include <string>
#include <unordered_map>
#include <variant>
#include <vector>

namespace chronomender {

/// Finds the items that names mean, over all folders of a session. Both files of a group are names
/// of their item. Good until a folder gains or loses items.
class PicLookup {
public:
    explicit PicLookup(const std::vector<MySingleFolderPtr> &folders);

    /// `typed` is a name, FOLDER/NAME with the folder's shown name, or a path. A name that means
    /// none or several items is a complaint, which names those.
    std::variant<MySinglePicPtr, Complaint> find(const std::string &typed) const;
    /// The items of `all` that the names mean, in the order of `all`; the name "all" means each.
    std::variant<std::vector<MySinglePicPtr>, Complaint>
    select(const std::vector<std::string> &names, const std::vector<MySinglePicPtr> &all) const;

private:
    struct File {
        MySingleFolderPtr folder;
        MySinglePicPtr pic;
    };
    std::vector<File> candidates(const std::string &typed) const;
    std::vector<File> filesWithName(const std::string &name) const;
    static std::string namesOf(const std::vector<File> &files, const std::string &name);

    std::unordered_multimap<std::string, File> m_files; ///< by name
};

} // namespace chronomender
