// SPDX-License-Identifier: GPL-3.0-or-later
#include "DropPlan.h"

#include "FileFormatType.h"
#include "FolderNames.h"
#include "NaturalCompare.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <map>
#include <optional>
#include <set>
#include <utility>

#include <sys/stat.h>
#include <unistd.h>

namespace chronomender {
namespace {

struct RefusalText {
    DropRefusal refusal;
    const char *key;
};
constexpr std::array<RefusalText, 4> refusalTexts{{
    {DropRefusal::NotFound, "dropRefusal_notFound"},
    {DropRefusal::NoAccess, "dropRefusal_noAccess"},
    {DropRefusal::NotAMedium, "dropRefusal_notAMedium"},
    {DropRefusal::GpsTrack, "dropRefusal_gpsTrack"},
}};

/// A file by its name alone: what it holds is looked at when it is read.
std::optional<DropRefusal> refusalOfFile(const std::string &path) {
    const std::string name = path.substr(path.rfind('/') + 1);
    const std::string_view extension = extensionOfName(name);
    if (isExtension(extension, "gpx"))
        return DropRefusal::GpsTrack;
    if (!sidecarKindOfName(name) && fileFormatTypeForExtension(extension) == FileFormatNone)
        return DropRefusal::NotAMedium;
    if (::access(path.c_str(), R_OK) != 0)
        return DropRefusal::NoAccess;
    return std::nullopt;
}

class Planner {
public:
    void add(const std::string &path) {
        struct stat status = {};
        if (::stat(path.c_str(), &status) != 0)
            refuse(path, errno == EACCES ? DropRefusal::NoAccess : DropRefusal::NotFound);
        else if (S_ISDIR(status.st_mode))
            addFolder(path);
        else if (const auto refusal = refusalOfFile(path))
            refuse(path, *refusal);
        else
            addFile(path);
    }

    DropPlan plan() {
        for (DropJob &job : m_plan.jobs)
            std::ranges::sort(job.names, [this](const std::string &a, const std::string &b) {
                return m_compare.less(a, b);
            });
        return std::move(m_plan);
    }

private:
    void refuse(const std::string &path, DropRefusal refusal) {
        m_plan.refused.push_back({path, refusal});
    }
    void addFolder(const std::string &path) { jobFor(path).names = wholeFolder(path); }
    void addFile(const std::string &path) {
        const std::filesystem::path file(path);
        const std::string folder = file.parent_path().string();
        DropJob &job = jobFor(folder);
        if (!m_whole.contains(folder))
            job.names.push_back(file.filename().string());
    }
    std::vector<std::string> wholeFolder(const std::string &path) {
        m_whole.insert(path);
        return {};
    }
    DropJob &jobFor(const std::string &folder) {
        const auto [place, isNew] = m_places.emplace(folder, m_plan.jobs.size());
        if (isNew)
            m_plan.jobs.push_back({folder, {}});
        return m_plan.jobs[place->second];
    }

    NaturalCompare m_compare;
    DropPlan m_plan;
    std::map<std::string, std::size_t> m_places;
    std::set<std::string> m_whole;
};

/// Without a slash at the end, so that a folder has one name only.
std::string trimmed(const std::string &path) {
    const std::size_t last = path.find_last_not_of('/');
    return last == std::string::npos ? path.substr(0, 1) : path.substr(0, last + 1);
}

} // namespace

const char *textKey(DropRefusal refusal) {
    return std::ranges::find(refusalTexts, refusal, &RefusalText::refusal)->key;
}

DropPlan planDrop(const std::vector<std::string> &paths) {
    Planner planner;
    for (const std::string &path : paths)
        planner.add(trimmed(path));
    return planner.plan();
}

} // namespace chronomender
