// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MendRun.h"

#include <map>

namespace chronomender {

/// An independent reader's view of files: what ExifTool sees, by path, with keys such as
/// "ExifIFD:DateTimeOriginal". One call for many files, since each start is dear.
class Witness {
public:
    static bool isAvailable() { return std::system("exiftool -ver >/dev/null 2>&1") == 0; }

    explicit Witness(const Arguments &paths) {
        const Arguments tags = words("-DateTimeOriginal -CreateDate -ModifyDate -OffsetTime "
                                     "-OffsetTimeOriginal -OffsetTimeDigitized -DateCreated "
                                     "-DateTimeDigitized -CreationDate");
        const Arguments arguments =
            joined(joined({"-j", "-G1", "-a", "-s", "-n", "-q"}, tags), paths);
        const little::TemporaryFolder work;
        const RunResult run = StartedProgram("exiftool", arguments, work.path()).wait();
        for (const Json &entry : Json::parse(run.output))
            m_seen[entry.at("SourceFile")] = entry;
    }

    /// The value of a tag; "" where ExifTool sees none.
    std::string value(const std::string &path, const std::string &tag) const {
        const auto file = m_seen.find(path);
        return file == m_seen.end() ? "" : file->second.value(tag, std::string());
    }

private:
    std::map<std::string, Json> m_seen;
};

} // namespace chronomender
