// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

namespace chronomender::little {

/// A folder of its own for one test, removed with everything in it.
class TemporaryFolder {
public:
    TemporaryFolder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "little-XXXXXX").string();
        m_path = ::mkdtemp(pattern.data()) ? pattern : std::string();
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        if (!m_path.empty())
            std::filesystem::remove_all(m_path, ignored);
    }
    TemporaryFolder(const TemporaryFolder &) = delete;
    TemporaryFolder &operator=(const TemporaryFolder &) = delete;

    const std::string &path() const { return m_path; }
    std::string path(const std::string &name) const { return m_path + '/' + name; }

    /// Writes a file (folders on the way are made) and answers its path.
    std::string write(const std::string &name, std::string_view bytes) const {
        const std::filesystem::path file = path(name);
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary)
            .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        return file.string();
    }

private:
    std::string m_path;
};

/// The whole content of a file; empty when it cannot be read.
inline std::string fileContent(const std::string &path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace chronomender::little
