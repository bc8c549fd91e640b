// SPDX-License-Identifier: GPL-3.0-or-later
#include "SupportFolders.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <string_view>

namespace chronomender {
namespace {

constexpr std::string_view programName = "chronoMender";

std::string homeFolder() {
    if (const char *home = std::getenv("HOME"); home != nullptr && *home == '/')
        return home;
    const passwd *user = getpwuid(getuid());
    return user != nullptr ? user->pw_dir : "/";
}

/// The folder that the XDG Base Directory Specification names for `variable`.
std::string baseFolder(const char *variable, std::string_view fallback) {
    if (const char *moved = std::getenv("CHRONOMENDER_HOME"); moved != nullptr && *moved != '\0')
        return moved;
    if (const char *given = std::getenv(variable); given != nullptr && *given == '/')
        return given;
    return homeFolder().append(fallback);
}

} // namespace

std::string supportFolder() {
    return baseFolder("XDG_DATA_HOME", "/.local/share").append("/").append(programName);
}

std::string userDefaultsPath() {
    return baseFolder("XDG_CONFIG_HOME", "/.config")
        .append("/")
        .append(programName)
        .append(".conf");
}

} // namespace chronomender
