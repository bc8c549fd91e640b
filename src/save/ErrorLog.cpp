// SPDX-License-Identifier: GPL-3.0-or-later
#include "ErrorLog.h"

#include <absl/time/time.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

#include <unistd.h>

namespace chronomender {
namespace {

namespace fs = std::filesystem;

/// Begins each entry, and no line of its text.
constexpr const char *entryStart = "== ";

} // namespace

ErrorLog::ErrorLog(const std::string &supportFolder, std::size_t mostBytes)
    : m_folder(supportFolder), m_path(supportFolder + "/errorLog.txt"), m_mostBytes(mostBytes) {}

void ErrorLog::append(Date date, const std::string &run, const std::string &errors) const {
    std::error_code ignored;
    fs::create_directories(m_folder, ignored);
    const std::string when = absl::FormatTime("%Y-%m-%d %H:%M:%S UTC", date, absl::UTCTimeZone());
    std::ofstream(m_path, std::ios::app | std::ios::binary)
        << entryStart << when << "  " << run << '\n'
        << errors << (errors.ends_with('\n') ? "\n" : "\n\n") << std::flush;
    const auto size = fs::file_size(m_path, ignored);
    if (!ignored && size > m_mostBytes)
        keepNewest();
}

/// The shorter log takes the place of the longer one, so that no moment has none.
void ErrorLog::keepNewest() const {
    std::ifstream in(m_path, std::ios::binary);
    in.seekg(-static_cast<std::streamoff>(m_mostBytes), std::ios::end);
    const std::string tail{std::istreambuf_iterator<char>(in), {}};
    const std::size_t start = tail.find(std::string("\n") + entryStart);
    const std::string shorter = m_path + '.' + std::to_string(::getpid());
    std::ofstream out(shorter, std::ios::binary);
    out << (start == std::string::npos ? tail : tail.substr(start + 1));
    out.close();
    std::error_code ignored;
    if (out)
        fs::rename(shorter, m_path, ignored);
    if (!out || ignored)
        fs::remove(shorter, ignored);
}

} // namespace chronomender
