// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdio>
#include <string>

namespace chronomender::little {

/// What ExifTool itself reads of a file: the values of the tags, each on a line of its own, those
/// that the file lacks left out. `tags` are its options, such as "-ModifyDate -OffsetTime".
inline std::string witness(const std::string &path, const std::string &tags) {
    const std::string command = "exiftool -s3 " + tags + " '" + path + "'";
    std::string said;
    FILE *pipe = ::popen(command.c_str(), "r");
    for (int byte = std::fgetc(pipe); byte != EOF; byte = std::fgetc(pipe))
        said += static_cast<char>(byte);
    return ::pclose(pipe) == 0 ? said : "it failed";
}

} // namespace chronomender::little
