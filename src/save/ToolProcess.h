// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ArgumentFile.h"

#include <QProcess>

#include <chrono>
#include <memory>
#include <string>
#include <string_view>

namespace chronomender {

/// One run of the tool, with its argument file. Nothing of a user's own set-up of the tool or of
/// the language takes part, and the tool dies with the thread that started it. All calls come from
/// that thread; it needs no event loop.
class ToolProcess {
public:
    /// None when it cannot be started; `reason` then says why.
    static std::unique_ptr<ToolProcess>
    start(const std::string &program, const std::string &supportFolder, std::string &reason);
    /// Ends the tool when it still runs.
    ~ToolProcess();
    ToolProcess(const ToolProcess &) = delete;
    ToolProcess &operator=(const ToolProcess &) = delete;

    bool isRunning();
    /// Adds lines to the argument file; false when the system refused.
    bool append(std::string_view lines);
    /// Why the last `append` was refused.
    std::string refusal() const { return m_arguments->lastError().text(); }
    /// What came since the last call, waited for at most so long; "" also when the tool ended.
    std::string read(std::chrono::milliseconds atMost);
    /// Kills the tool at once and answers the rest of its output.
    std::string kill();

private:
    explicit ToolProcess(std::unique_ptr<ArgumentFile> arguments);
    bool launch(const std::string &program);

    std::unique_ptr<ArgumentFile> m_arguments;
    QProcess m_process;
};

} // namespace chronomender
