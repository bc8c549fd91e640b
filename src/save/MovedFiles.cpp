// SPDX-License-Identifier: GPL-3.0-or-later
#include "MovedFiles.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <unordered_map>
#include <utility>

namespace chronomender {
namespace {

/// File times may be kept to two seconds.
constexpr absl::Duration coarsestFileTime = absl::Seconds(2);

void addName(std::vector<std::string> &names, const std::string &name) {
    if (std::ranges::find(names, name) == names.end())
        names.push_back(name);
}

/// The listing tells names as they are spelled, also where a look-up does not ask for their case.
ListedFolder listed(const std::string &path,
                    const std::function<bool(int descriptor)> &hasLastingInodes) {
    ListedFolder folder;
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) {
        folder.error.code = errno;
        return folder;
    }
    folder.hasLastingInodes = hasLastingInodes(descriptor);
    ::close(descriptor);
    std::error_code failure;
    std::filesystem::directory_iterator each(path, failure);
    for (; !failure && each != std::filesystem::directory_iterator(); each.increment(failure))
        folder.names.insert(each->path().filename().string());
    folder.error.code = failure.value();
    return folder;
}

/// A name of a file, and what stands there.
struct Candidate {
    std::string name;
    FileAttributes attributes;
};

bool isTheFile(const MoveIntent &intent, const FileAttributes &found, bool byInode) {
    if (found.kind != FileAttributes::Kind::Regular)
        return false;
    if (byInode)
        return found.inode == intent.before.inode;
    return found.size == intent.before.size &&
           distance(found.modificationDate, intent.before.modificationDate) <= coarsestFileTime;
}

/// A name that is listed, and of which nothing can be learnt, makes the whole folder unreadable:
/// what is not found is forgotten.
std::vector<Candidate> candidatesOf(const MovedFile &file, ListedFolder &folder, FileLayer &files) {
    std::vector<Candidate> candidates;
    for (const std::string &name : file.names) {
        const auto found = files.attributes(file.path(name));
        if (found && isTheFile(file.intent, *found, folder.hasLastingInodes))
            candidates.push_back({name, *found});
        if (!found && folder.names.contains(name))
            folder.error.code = EIO;
    }
    const auto isSpelledSo = [&](const Candidate &each) {
        return folder.names.contains(each.name);
    };
    if (std::ranges::any_of(candidates, isSpelledSo))
        std::erase_if(candidates, std::not_fn(isSpelledSo));
    return candidates;
}

void settleOn(MovedFile &file, const Candidate &found) {
    file.present = found.name;
    file.attributes = found.attributes;
}

/// Two names of one inode are two links, but where a look-up does not ask for the spelling.
void takeByInode(MovedFile &file, const std::vector<Candidate> &candidates) {
    if (candidates.empty())
        return;
    settleOn(file, candidates.back());
    if (candidates.size() > 1 && candidates.back().attributes.hardLinks > 1 &&
        candidates.front().attributes.isSameFile(candidates.back().attributes))
        file.leftover = candidates.front().name;
}

/// Tells files apart that look alike: a name that one file must have is no other's.
class Elimination {
public:
    void add(MovedFile &file, std::vector<Candidate> candidates) {
        const auto isElsewhere = [&](const Candidate &each) {
            return each.name != file.intent.temporaryName; // which is nobody else's
        };
        if (!std::ranges::all_of(candidates, isElsewhere))
            std::erase_if(candidates, isElsewhere);
        const std::size_t index = m_files.size();
        for (const Candidate &each : candidates)
            m_wanting[file.path(each.name)].push_back(index);
        m_files.push_back({&file, std::move(candidates)});
    }
    void run() {
        for (std::size_t i = 0; i < m_files.size(); ++i)
            settle(i);
        // A whole circle is left. The numbers, though they do not last, may still be the same.
        for (std::size_t i = 0; i < m_files.size(); ++i)
            keepThoseWithItsNumber(i);
    }

private:
    struct Open {
        MovedFile *file;
        std::vector<Candidate> candidates;
    };

    void settle(std::size_t first) {
        for (std::vector<std::size_t> next{first}; !next.empty();) {
            Open &open = m_files[next.back()];
            next.pop_back();
            if (open.file->present || open.candidates.size() != 1)
                continue;
            settleOn(*open.file, open.candidates.front());
            for (const std::size_t other : m_wanting[open.file->path(*open.file->present)])
                if (m_files[other].file != open.file) {
                    std::erase_if(m_files[other].candidates, [&](const Candidate &each) {
                        return each.name == *open.file->present;
                    });
                    next.push_back(other);
                }
        }
    }
    void keepThoseWithItsNumber(std::size_t index) {
        Open &open = m_files[index];
        if (open.file->present)
            return;
        std::erase_if(open.candidates, [&](const Candidate &each) {
            return each.attributes.inode != open.file->intent.before.inode;
        });
        settle(index);
    }

    std::vector<Open> m_files;
    std::unordered_map<std::string, std::vector<std::size_t>> m_wanting;
};

/// Brings together what is recorded of one item. A file that was recorded under a name which an
/// earlier record gives it is that file.
class ItemCollection {
public:
    void add(std::size_t unit, const std::vector<MoveIntent> &moves) {
        std::size_t item = m_items.size();
        for (const MoveIntent &move : moves)
            if (const Place *known = placeOf(move))
                item = known->item;
        if (item == m_items.size())
            m_items.emplace_back();
        for (const MoveIntent &move : moves)
            add(unit, move, item);
    }
    std::vector<MovedItem> take() { return std::move(m_items); }

private:
    struct Place {
        std::size_t item, file;
    };
    using Inode = std::pair<std::string, std::uint64_t>; ///< with its folder

    const Place *placeOf(const MoveIntent &move) const {
        const auto found = m_places.find({move.folder, move.before.inode});
        if (found == m_places.end())
            return nullptr;
        const auto &names = m_items[found->second.item].files[found->second.file].names;
        return std::ranges::find(names, move.oldName) != names.end() ? &found->second : nullptr;
    }

    void add(std::size_t unit, const MoveIntent &move, std::size_t item) {
        const Place *known = placeOf(move);
        const Place place = known ? *known : Place{item, m_items[item].files.size()};
        MovedItem &owner = m_items[place.item];
        if (!known) {
            m_places.insert_or_assign(Inode(move.folder, move.before.inode), place);
            owner.files.push_back({move, {}});
        }
        if (owner.units.empty() || owner.units.back() != unit)
            owner.units.push_back(unit);
        MovedFile &file = owner.files[place.file];
        const std::string firstName = file.intent.oldName;
        file.intent = move;
        file.intent.oldName = firstName;
        for (const std::string *name : {&move.oldName, &move.temporaryName, &move.finalName})
            addName(file.names, *name);
    }

    std::vector<MovedItem> m_items;
    std::map<Inode, Place> m_places;
};

} // namespace

std::vector<MovedItem> itemsOf(std::span<const RecordedUnit> units) {
    ItemCollection items;
    for (std::size_t i = 0; i < units.size(); ++i)
        if (!units[i].unit.moves.empty())
            items.add(i, units[i].unit.moves);
    return items.take();
}

ListedFolders findFiles(std::vector<MovedItem> &items, FileLayer &files,
                        const std::function<bool(int descriptor)> &hasLastingInodes) {
    ListedFolders folders;
    Elimination elimination;
    for (MovedItem &item : items)
        for (MovedFile &file : item.files) {
            const std::string &path = file.intent.folder;
            auto folder = folders.find(path);
            if (folder == folders.end())
                folder = folders.emplace(path, listed(path, hasLastingInodes)).first;
            if (folder->second.error.code != 0)
                continue;
            auto candidates = candidatesOf(file, folder->second, files);
            if (folder->second.hasLastingInodes)
                takeByInode(file, candidates);
            else
                elimination.add(file, std::move(candidates));
        }
    elimination.run();
    for (const MovedItem &item : items)
        for (const MovedFile &file : item.files)
            folders.at(file.intent.folder).hasAny |= file.present.has_value();
    return folders;
}

} // namespace chronomender
