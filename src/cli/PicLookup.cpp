// SPDX-License-Identifier: GPL-3.0-or-later
#include "PicLookup.h"

#include "Texts.h"
#include "Utf8Text.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <set>

namespace chronomender {

namespace fs = std::filesystem;

PicLookup::PicLookup(const std::vector<MySingleFolderPtr> &folders) {
    for (const MySingleFolderPtr &folder : folders)
        for (const MySinglePicPtr &pic : folder->sfPicDetails_fullArray) {
            m_files.emplace(pic->spName, File{folder, pic});
            if (const MySinglePicPtr &dependent = pic->group.bundleDependentImage)
                m_files.emplace(dependent->spName, File{folder, pic});
        }
}

std::vector<PicLookup::File> PicLookup::filesWithName(const std::string &name) const {
    std::vector<File> files;
    const auto [begin, end] = m_files.equal_range(name);
    for (auto file = begin; file != end; ++file)
        files.push_back(file->second);
    return files;
}

/// A path means more than a folder's shown name, which several folders may have.
std::vector<PicLookup::File> PicLookup::candidates(const std::string &typed) const {
    const fs::path path(typed);
    std::vector<File> files = filesWithName(path.filename().native());
    if (!path.has_parent_path())
        return files;
    const auto isElsewhere = [&](const File &file) {
        std::error_code error;
        return !fs::equivalent(path.parent_path(), file.folder->sfFolderPath(), error);
    };
    const auto isOfOtherName = [&](const File &file) {
        return path.parent_path().native() != file.folder->sfFolder;
    };
    if (std::ranges::all_of(files, isElsewhere))
        std::erase_if(files, isOfOtherName);
    else
        std::erase_if(files, isElsewhere);
    return files;
}

/// FOLDER/NAME of each, or the paths where those names would not tell them apart.
std::string PicLookup::namesOf(const std::vector<File> &files, const std::string &name) {
    std::set<std::string> shown;
    for (const File &file : files)
        shown.insert(file.folder->sfFolder);
    std::vector<std::string> names;
    names.reserve(files.size());
    for (const File &file : files)
        names.push_back(
            (shown.size() == files.size() ? file.folder->sfFolder : file.folder->sfFolderPath()) +
            '/' + name);
    std::ranges::sort(names);
    std::string joined;
    for (const std::string &one : names)
        joined += (joined.empty() ? "" : ", ") + printable(one);
    return joined;
}

std::variant<MySinglePicPtr, Complaint> PicLookup::find(const std::string &typed) const {
    const std::vector<File> files = candidates(typed);
    if (files.empty())
        return Complaint{2, text("cli_error_noSuchPicAnywhere", {printable(typed)})};
    if (files.size() == 1)
        return files.front().pic;
    return Complaint{2,
                     text("cli_error_severalPics",
                          {printable(typed), namesOf(files, fs::path(typed).filename().native())})};
}

std::variant<std::vector<MySinglePicPtr>, Complaint>
PicLookup::select(const std::vector<std::string> &names,
                  const std::vector<MySinglePicPtr> &all) const {
    std::set<MySinglePicPtr> chosen;
    for (const std::string &name : names) {
        if (name == "all") {
            chosen.insert(all.begin(), all.end());
            continue;
        }
        auto found = find(name);
        if (const auto *complaint = std::get_if<Complaint>(&found))
            return *complaint;
        chosen.insert(std::get<MySinglePicPtr>(std::move(found)));
    }
    std::vector<MySinglePicPtr> pics;
    std::ranges::copy_if(all, std::back_inserter(pics),
                         [&](const auto &pic) { return chosen.contains(pic); });
    return pics;
}

} // namespace chronomender
