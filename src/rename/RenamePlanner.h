// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "PreProcess.h"
#include "RenamePlan.h"

#include <unordered_set>

namespace chronomender {

/// Makes the plan of a rename in its three parts. Worker thread, while the main thread changes no
/// item.
class RenamePlanner {
public:
    using Pics = std::unordered_set<const MySinglePic *>;

    /// Items of `keptOut`, and those whose dependent is one, are refused without a further word.
    RenamePlanner(const RenameScope &scope, const RenameChoices &choices,
                  const RenameServices &services, Pics keptOut)
        : m_scope(scope), m_choices(choices), m_services(services), m_keptOut(std::move(keptOut)) {}

    /// The wanted names, in the order in which items are counted.
    RenamePlan wantedNames() const;
    /// Proves all files; tells `progress` each item.
    void prove(RenamePlan &plan, ProgressCounter &progress) const;
    /// Finds a free name for each file.
    void giveNames(RenamePlan &plan) const;

private:
    ItemMoves wishOf(const MySinglePicPtr &pic, std::int64_t counter,
                     KnownFolderNames &folderNames) const;
    bool isKeptOut(const MySinglePic &pic) const;
    void refuseUnreachable(FolderMoves &folder) const;
    void collectFiles(FolderMoves &folder) const;
    void collectFilesOf(ItemMoves &item, FolderMoves &folder,
                        std::unordered_set<std::string> &owned) const;
    void proveItem(ItemMoves &item, const FolderMoves &folder) const;
    void giveNamesIn(FolderMoves &folder) const;

    const RenameScope &m_scope;
    const RenameChoices &m_choices;
    const RenameServices &m_services;
    Pics m_keptOut;
};

std::size_t itemCount(const RenamePlan &plan);

} // namespace chronomender
