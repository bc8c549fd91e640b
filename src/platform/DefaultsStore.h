// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <string>

namespace chronomender::defaultsStore {

/// Keys and values of a preferences file: UTF-8 lines "key=value", with "\\" and "\n" for a
/// backslash and a line feed inside a value. Lines without "=" or that begin with "#" are passed
/// over.
using Values = std::map<std::string, std::string, std::less<>>;

/// Everything in the file, also what this program does not know; empty when there is no file.
Values read(const std::string &path);
/// Replaces the file as a whole, so that a crash leaves the old or the new one; makes its folder.
bool write(const std::string &path, const Values &values);

} // namespace chronomender::defaultsStore
