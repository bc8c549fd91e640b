// SPDX-License-Identifier: GPL-3.0-or-later
#include "FolderPlans.h"

#include "Texts.h"
#include "Utf8Text.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <sys/stat.h>
#include <utility>

namespace chronomender {
namespace {

using Identity = std::pair<dev_t, ino_t>;

/// Device and inode behind a path, links followed; none when there is nothing.
std::optional<struct stat> statusOf(const std::string &path) {
    struct stat status = {};
    return ::stat(path.c_str(), &status) == 0 ? std::optional(status) : std::nullopt;
}

bool existsItself(const std::string &path) {
    struct stat status = {};
    return ::lstat(path.c_str(), &status) == 0;
}

std::string folderOf(const std::string &file) {
    const std::filesystem::path parent = std::filesystem::path(file).parent_path();
    return parent.empty() ? "." : parent.native();
}

class Planner {
public:
    explicit Planner(const Zones &zones) : m_zones(zones) {}

    std::optional<Complaint> add(const FolderBlock &block) {
        const auto status = statusOf(block.path);
        if (!block.isPlain || (status && S_ISDIR(status->st_mode)))
            return addFolder(block, status);
        if (existsItself(block.path))
            return addFile(block);
        m_result.missing.push_back(block.path);
        return std::nullopt;
    }
    FolderPlans result() { return std::move(m_result); }

private:
    std::optional<Complaint> addFolder(const FolderBlock &block,
                                       const std::optional<struct stat> &status) {
        if (status && !m_known.emplace(identity(*status), m_result.plans.size()).second)
            return twice(block.path);
        FolderPlan plan;
        plan.path = block.path;
        plan.block = block;
        if (auto complaint = lookUpZones(plan))
            return complaint;
        m_result.plans.push_back(std::move(plan));
        return std::nullopt;
    }

    std::optional<Complaint> addFile(const FolderBlock &block) {
        const std::string folder = folderOf(block.path);
        const std::string name = std::filesystem::path(block.path).filename().native();
        const auto status = statusOf(folder);
        if (status) {
            const auto known = m_known.find(identity(*status));
            if (known != m_known.end())
                return addName(m_result.plans[known->second], name);
            m_known.emplace(identity(*status), m_result.plans.size());
        }
        FolderPlan plan;
        plan.path = folder;
        plan.block = block;
        plan.names.push_back(name);
        plan.importOptions = importOptions({}, m_zones.systemZone().rules);
        m_result.plans.push_back(std::move(plan));
        return std::nullopt;
    }

    static std::optional<Complaint> addName(FolderPlan &plan, const std::string &name) {
        if (plan.names.empty())
            return twice(plan.path);
        if (std::find(plan.names.begin(), plan.names.end(), name) == plan.names.end())
            plan.names.push_back(name);
        return std::nullopt;
    }

    static Identity identity(const struct stat &status) { return {status.st_dev, status.st_ino}; }

    static Complaint twice(const std::string &path) {
        return {2, text("cli_error_folderTwice", {printable(path)})};
    }

    std::optional<Complaint> lookUpZones(FolderPlan &plan) const {
        if (auto complaint = lookUp(plan.block, plan.zones))
            return complaint;
        for (const PicBlock &pic : plan.block.pics) {
            plan.pics.push_back({pic.name, pic.shift, {}});
            if (auto complaint = lookUp(pic, plan.pics.back().zones))
                return complaint;
        }
        const absl::TimeZone stampZone =
            plan.zones.source ? plan.zones.source->zone()->rules : m_zones.systemZone().rules;
        plan.importOptions =
            importOptions(plan.block.emptyTags.value_or(EmptyTagsSpec{}), stampZone);
        return std::nullopt;
    }

    std::optional<Complaint> lookUp(const Correction &correction, ZoneWish &wish) const {
        if (auto complaint = lookUp(correction.sourceZone, wish.source))
            return complaint;
        if (correction.targetZone != "own")
            return lookUp(correction.targetZone, wish.target);
        wish.target = ZoneChoice::marker(ZoneChoice::Kind::Own);
        return std::nullopt;
    }

    std::optional<Complaint> lookUp(const std::optional<std::string> &name,
                                    std::optional<ZoneChoice> &choice) const {
        if (!name)
            return std::nullopt;
        auto found = lookUpZone(*name, m_zones);
        if (auto *complaint = std::get_if<Complaint>(&found))
            return *complaint;
        choice = ZoneChoice::named(std::get<Zone>(std::move(found)));
        return std::nullopt;
    }

    const Zones &m_zones;
    std::map<Identity, std::size_t> m_known; ///< index of the plan
    FolderPlans m_result;
};

} // namespace

std::variant<Zone, Complaint> lookUpZone(const std::string &name, const Zones &zones) {
    if (auto zone = zones.zoneWithName(name))
        return *zone;
    constexpr std::size_t mostSuggestions = 5;
    std::string near;
    for (const std::string &similar : zones.namesNear(name, mostSuggestions))
        near += (near.empty() ? "" : ", ") + similar;
    return Complaint{2, near.empty() ? text("cli_error_unknownZone", {printable(name)})
                                     : text("cli_error_unknownZoneNear", {printable(name), near})};
}

std::variant<FolderPlans, Complaint> planFolders(const std::vector<FolderBlock> &blocks,
                                                 const Zones &zones) {
    Planner planner(zones);
    for (const FolderBlock &block : blocks)
        if (auto complaint = planner.add(block))
            return *complaint;
    return planner.result();
}

} // namespace chronomender
