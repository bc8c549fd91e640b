// SPDX-License-Identifier: GPL-3.0-or-later
#include "Output.h"

#include "Commands.h"
#include "Parallel.h"
#include "Texts.h"

#include <algorithm>
#include <cerrno>
#include <unistd.h>

namespace chronomender {
namespace {

WriteResult writeAll(int descriptor, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
        if (written >= 0)
            bytes.remove_prefix(static_cast<std::size_t>(written));
        else if (errno != EINTR)
            return errno == EPIPE ? WriteResult::ReaderGone : WriteResult::Failed;
    }
    return WriteResult::Done;
}

} // namespace

WriteResult writeOutput(std::string_view bytes) {
    return writeAll(STDOUT_FILENO, bytes);
}

WriteResult writeOutput(const std::vector<std::string> &pieces) {
    for (const std::string &piece : pieces)
        if (const WriteResult result = writeOutput(piece); result != WriteResult::Done)
            return result;
    return WriteResult::Done;
}

void writeError(std::string_view bytes) {
    writeAll(STDERR_FILENO, bytes);
}

void complain(const std::string &message) {
    writeError("mend: " + message + '\n');
}

int codeAfterWriting(WriteResult written, int code) {
    if (written != WriteResult::Failed)
        return code;
    complain(text("cli_error_outputFailed"));
    return code == exitDone ? exitItemFailed : code;
}

std::vector<std::string>
buildPieces(std::size_t count,
            const std::function<void(std::size_t index, std::string &buffer)> &append) {
    constexpr std::size_t perPiece = 512;
    std::vector<std::string> pieces((count + perPiece - 1) / perPiece);
    parallelFor(pieces.size(), [&](std::size_t piece) {
        const std::size_t end = std::min(count, (piece + 1) * perPiece);
        for (std::size_t i = piece * perPiece; i < end; ++i)
            append(i, pieces[piece]);
    });
    return pieces;
}

} // namespace chronomender
