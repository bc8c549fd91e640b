// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FileLayer.h"
#include "FolderAccess.h"

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

namespace chronomender {

/// The names of one folder: those on disk, those of them that a plan gives up, and those that it
/// has given out. On folders that do not tell upper from lower case, neither does this. One thread
/// at a time.
class FreeNames {
public:
    enum class CaseRule : bool { Sensitive, Insensitive };
    explicit FreeNames(CaseRule rule) : m_rule(rule) {}

    void addExisting(const std::string &name) { stateOf(name) |= Existing; }
    /// The file with this name gets another one; `keep` takes that back.
    void giveUp(const std::string &name) { stateOf(name) |= GivenUp; }
    void keep(const std::string &name) { stateOf(name) &= ~GivenUp; }
    void give(const std::string &name) { stateOf(name) |= Given; }
    void takeAllBack();

    bool isGiven(const std::string &name) const { return (find(name) & Given) != 0; }
    /// Somebody will have the name when all is done.
    bool isTaken(const std::string &name) const;
    /// Somebody has the name now, or will have it.
    bool isKnown(const std::string &name) const { return find(name) != 0; }

    /// What two names that are the same to the folder have in common.
    std::string key(const std::string &name) const;

private:
    enum : std::uint8_t { Existing = 1, GivenUp = 2, Given = 4 };
    std::uint8_t &stateOf(const std::string &name) { return m_states[key(name)]; }
    std::uint8_t find(const std::string &name) const;

    CaseRule m_rule;
    std::unordered_map<std::string, std::uint8_t> m_states;
};

/// Asks the folder for a file that it has, under its name in the other letter case.
FreeNames::CaseRule caseRuleOf(const std::string &folderPath,
                               const std::vector<FolderEntry> &entries, FileLayer &files);

/// "IMG 2.JPG" of "IMG", 2 and "JPG"; a number below 2 is none.
std::string joinedName(const std::string &base, std::int64_t number, const std::string &extension);

} // namespace chronomender
