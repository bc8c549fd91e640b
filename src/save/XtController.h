// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ToolAction.h"
#include "ToolOutput.h"

#include <chrono>
#include <cstddef>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace chronomender {

class ToolProcess;

/// Where ExifTool is and where it may put things.
struct ToolSettings {
    std::string supportFolder; ///< of the argument file
    /// Asked at each start of the tool; empty, or answering "": "exiftool" on PATH.
    std::function<std::string()> program = {};
    /// An action that shows no sign of life for so long is given up: no output, and no growth of
    /// the copy that the tool writes.
    std::chrono::milliseconds limit{30'000};
};

/// What one action did. A tool that died or was given up may have put the new file in the place of
/// the old one and not have said so: where `didChange` is false, compare the file's inode before
/// believing that it is as it was.
struct ToolOutcome {
    bool didChange = false; ///< the tool says that it wrote the file
    std::string error;      ///< its last line that begins with "Error", or why it could not answer
    bool isMissing = false; ///< there is no such program
};

/// ExifTool as a long-lived process that reads its arguments from a growing file: the one place
/// that knows its protocol. It starts with the first action and ends with `cleanup`; a process that
/// died or did not answer is replaced.
///
/// Actions are answered in the order in which they were sent. Several may be sent before the first
/// answer is waited for, so that the tool need not wait for us. All calls come from one thread,
/// which blocks in `postAction`.
class XtController {
public:
    explicit XtController(ToolSettings settings);
    ~XtController();
    XtController(const XtController &) = delete;
    XtController &operator=(const XtController &) = delete;

    /// The program that would be started; none when there is none.
    std::optional<std::string> program() const;

    /// Sends one action for one file. `isPng`: the tool need not check what it copies.
    void send(const ToolAction &action, const std::string &path, bool isPng);
    /// Waits for the answer to the oldest action that is not answered yet; there must be one. An
    /// action without answer is not repeated, and the copy that it left is removed, unless one
    /// stood there when it was sent or the file itself is gone; those sent behind it go to a new
    /// process.
    ToolOutcome postAction();
    /// Ends the tool and removes the argument file. Actions without answer are forgotten.
    void cleanup();

    /// Where the tool keeps its copy of a file while it writes.
    static std::string copyPath(const std::string &path);

    std::size_t errorCollectorCount() const;
    /// Every kind of error with its lines: a title, then each line behind a tab; "" without any.
    std::string errorsSummaryString() const;
    /// Keeps a line once for each type.
    void addError(const std::string &line, ToolErrorType type);
    void clearErrors();

private:
    struct Pending {
        ToolErrorType type{};
        std::string path;
        std::optional<std::string> lines; ///< none: the tool cannot be told of this path
        bool hadCopy = false;
        bool isSent = false;
    };
    bool startTool();
    void sendPending();
    ToolOutcome waitForAnswer();
    std::optional<ToolAnswer> nextAnswer(bool &isTimedOut);
    ToolOutcome giveUp(bool isTimedOut);

    ToolSettings m_settings;
    std::deque<Pending> m_pending; ///< in the order of their answers
    std::unique_ptr<ToolProcess> m_tool;
    ToolOutput m_output;
    ToolOutcome m_notSent; ///< why the oldest could not be sent
    std::map<ToolErrorType, std::vector<std::string>> m_errorCollector;
};

} // namespace chronomender
