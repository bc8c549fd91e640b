// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

// Real camera files that lie beside the source tree, for tests that need more than built ones. They
// are private and never copied into it.
namespace chronomender::little {

struct CorpusFile {
    std::string path, kind, sha256;
    nlohmann::json exiftool; ///< what ExifTool found, by "Group:Tag"
    nlohmann::json offsets;  ///< where it says that values stand: "tag", "dir", "offset", "length"
    nlohmann::json entry;    ///< all that the manifest says of the file
};

/// `CHRONOMENDER_CORPUS`, else the folder beside the source tree. It need not exist.
inline std::filesystem::path corpusFolder(const std::filesystem::path &sourceTree) {
    if (const char *given = std::getenv("CHRONOMENDER_CORPUS"))
        return given;
    return sourceTree.parent_path() / "shared" / "corpus";
}

/// All files of the corpus's manifest; empty where there is no corpus.
inline std::vector<CorpusFile> corpusFiles(const std::filesystem::path &folder) {
    std::vector<CorpusFile> files;
    std::ifstream manifest(folder / "manifest.jsonl");
    for (std::string line; std::getline(manifest, line);) {
        const auto entry = nlohmann::json::parse(line);
        files.push_back({(folder / entry.at("path").get<std::string>()).string(), entry.at("kind"),
                         entry.at("sha256"), entry.value("exiftool", nlohmann::json::object()),
                         entry.value("offsets", nlohmann::json::array()), entry});
    }
    return files;
}

} // namespace chronomender::little
