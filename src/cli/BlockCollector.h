// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CommandLine.h"
#include "OptionTable.h"

#include <optional>
#include <set>
#include <string>

namespace chronomender {

/// Takes the options in the order in which they were typed and gives each to its folder or to the
/// run. After an error nothing more is taken.
class BlockCollector {
public:
    explicit BlockCollector(Command command);

    void add(OptionId id, const char *name, const std::string &value);
    /// The checks that need the whole line.
    void finish();

    const std::optional<std::string> &error() const { return m_error; }
    const CommandLine &line() const { return m_line; }

private:
    /// An option of a folder as it was typed.
    struct Typed {
        const char *name;
        const std::string &value;
    };
    /// What takes a folder's option.
    struct BlockHandler {
        OptionId id;
        void (*take)(BlockCollector &collector, FolderBlock &block, const Typed &typed);
    };
    static const BlockHandler blockHandlers[];
    /// What takes an option of the run; flags have no value.
    struct RunHandler {
        OptionId id;
        void (*take)(BlockCollector &collector, const std::string &value);
    };
    static const RunHandler runHandlers[];

    void openBlock(const std::string &path, bool isPlain);
    void addToBlock(const BlockHandler &handler, const Typed &typed);
    void openPic(FolderBlock &block, const std::string &name);
    static Correction &openCorrection(FolderBlock &block);
    static const std::string &openName(const FolderBlock &block);
    void addFilter(std::optional<std::string> &filter, const std::optional<std::string> &opposite,
                   const Typed &typed);
    void addDateSequence(const std::string &value);
    void addSetting(const std::string &value);
    void addFilterPredicate(const std::string &value);
    void addRating(const std::string &value);
    void addAccepted(const std::string &value);
    void addRenameOption(OptionId id, const Typed &typed);
    void addPics(const std::string &name);
    void addAlignment(AlignCommand command);
    void addCopy(const std::string &slot);
    void checkAlignment();
    void addDragTarget(DragType dragType, const std::string &name);
    void addDragged(const std::string &name);
    void checkDrag();
    template<class Value>
    void setOnce(const std::string &owner, std::optional<Value> &place, const Typed &typed,
                 std::optional<Value> value, const char *complaintKey);
    void setOnce(const std::string &owner, std::optional<std::string> &place, const Typed &typed);
    void fail(std::string message);
    void closePic();

    CommandLine m_line;
    bool m_takesFolderOptions = false;  ///< of the block that was opened last
    std::set<OptionId> m_renameOptions; ///< those that were taken
    std::optional<std::string> m_error;
};

} // namespace chronomender
