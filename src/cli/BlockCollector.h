// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CommandLine.h"
#include "OptionTable.h"

#include <optional>
#include <string>

namespace chronomender {

/// Takes the options in the order in which they were typed and gives each to its folder or to the
/// run. After an error nothing more is taken.
class BlockCollector {
public:
    explicit BlockCollector(Command command) { m_line.command = command; }

    void add(OptionId id, const char *name, const std::string &value);
    /// The checks that need the whole line.
    void finish();

    const std::optional<std::string> &error() const { return m_error; }
    const CommandLine &line() const { return m_line; }

private:
    void addToRun(OptionId id, const std::string &value);
    void addToBlock(OptionId id, const char *name, const std::string &value);
    void addShift(FolderBlock &block, const char *name, const std::string &value);
    void addFilter(std::optional<std::string> &filter, const std::optional<std::string> &opposite,
                   const char *name, const std::string &value);
    void addDateSequence(const std::string &value);
    void addSetting(const std::string &value);
    void addAccepted(const std::string &value);
    template<class Value>
    void setOnce(std::optional<Value> &place, const char *name, std::optional<Value> value,
                 const char *complaintKey, const std::string &text);
    void fail(std::string message);
    void checkOpenPic();

    CommandLine m_line;
    std::optional<std::string> m_pic; ///< `--pic NAME` waits for its `--shift`
    std::optional<std::string> m_error;
};

} // namespace chronomender
