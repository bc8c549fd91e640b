// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace chronomender {

enum class WriteResult { Done, ReaderGone, Failed };

/// Writes to standard output. A reader that went away (`mend list | head`) is no failure of ours.
WriteResult writeOutput(std::string_view bytes);
WriteResult writeOutput(const std::vector<std::string> &pieces);
/// Writes to standard error; there is nowhere left to complain.
void writeError(std::string_view bytes);
/// One line to standard error, with the program's name in front.
void complain(const std::string &message);

/// The exit code of a command that would have ended with `code`, once its output is out.
int codeAfterWriting(WriteResult written, int code);

/// Builds text for 0 ≤ index < count by appending to a buffer, on all processors, and answers the
/// pieces in order. `append` is called on several threads.
std::vector<std::string>
buildPieces(std::size_t count,
            const std::function<void(std::size_t index, std::string &buffer)> &append);

} // namespace chronomender
