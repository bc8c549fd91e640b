// SPDX-License-Identifier: GPL-3.0-or-later
#include "BlockCollector.h"

#include "FilterOption.h"
#include "RenameOptions.h"
#include "Texts.h"
#include "Utf8Text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>

namespace chronomender {
namespace {

template<class Value>
struct Word {
    std::string_view word;
    Value value;
};
constexpr std::array<Word<MovieDate>, 2> movieDates{
    {{"mdta", MovieDate::Mdta}, {"mvhd", MovieDate::Mvhd}}};
constexpr std::array<Word<MovieClock>, 2> movieClocks{
    {{"utc", MovieClock::Utc}, {"local", MovieClock::Local}}};

constexpr std::array<Word<RatingFilter>, 2> ratings{
    {{"keepers", RatingFilter::Keepers}, {"not-rejected", RatingFilter::NotRejected}}};

/// The dates that `--copy` can take, as found in the file and as a save would leave them.
constexpr std::array<Word<AlignCommand>, 8> copyableSlots{{
    {"digitized", AlignCommand::CopyDigitizedOld},
    {"digitized-new", AlignCommand::CopyDigitizedNew},
    {"modification", AlignCommand::CopyTiffOld},
    {"modification-new", AlignCommand::CopyTiffNew},
    {"file-creation", AlignCommand::CopyFileCreationOld},
    {"file-creation-new", AlignCommand::CopyFileCreationNew},
    {"file-modification", AlignCommand::CopyFileModificationOld},
    {"file-modification-new", AlignCommand::CopyFileModificationNew},
}};

template<class Value, std::size_t count>
std::optional<Value> wordIn(const std::array<Word<Value>, count> &words, std::string_view typed) {
    const auto found = std::ranges::find(words, typed, &Word<Value>::word);
    return found == words.end() ? std::nullopt : std::optional(found->value);
}

/// Levels of folders inside a folder, 0 to 100.
std::optional<int> parseDepth(std::string_view typed) {
    constexpr int deepest = 100;
    int depth = 0;
    const auto [end, error] = std::from_chars(typed.data(), typed.data() + typed.size(), depth);
    const bool isNumber = error == std::errc() && end == typed.data() + typed.size();
    return isNumber && depth >= 0 && depth <= deepest ? std::optional(depth) : std::nullopt;
}

} // namespace

const BlockCollector::BlockHandler BlockCollector::blockHandlers[] =
    {
        {OptionId::Shift,
         [](BlockCollector &collector, FolderBlock &block, const Typed &typed) {
             collector.setOnce(openName(block), openCorrection(block).shift, typed,
                               parseShift(typed.value), "cli_error_badShift");
         }},
        {OptionId::Pic, [](BlockCollector &collector, FolderBlock &block,
                           const Typed &typed) { collector.openPic(block, typed.value); }},
        {OptionId::Alternative,
         [](BlockCollector &, FolderBlock &block, const Typed &typed) {
             block.alternatives.push_back(typed.value);
         }},
        {OptionId::SourceZone,
         [](BlockCollector &collector, FolderBlock &block, const Typed &typed) {
             collector.setOnce(openName(block), openCorrection(block).sourceZone, typed);
         }},
        {OptionId::TargetZone,
         [](BlockCollector &collector, FolderBlock &block, const Typed &typed) {
             collector.setOnce(openName(block), openCorrection(block).targetZone, typed);
         }},
        {OptionId::EmptyTags,
         [](BlockCollector &collector, FolderBlock &block, const Typed &typed) {
             collector.setOnce(block.path, block.emptyTags, typed, parseEmptyTags(typed.value),
                               "cli_error_badEmptyTags");
         }},
        {OptionId::MovieDate,
         [](BlockCollector &collector, FolderBlock &block, const Typed &typed) {
             collector.setOnce(block.path, block.movieDate, typed, wordIn(movieDates, typed.value),
                               "cli_error_badMovieDate");
         }},
        {OptionId::MovieClock,
         [](BlockCollector &collector, FolderBlock &block, const Typed &typed) {
             collector.setOnce(block.path, block.movieClock, typed,
                               wordIn(movieClocks, typed.value), "cli_error_badMovieClock");
         }},
        {OptionId::FilterExt,
         [](BlockCollector &collector, FolderBlock &block, const Typed &typed) {
             collector.addFilter(block.filterExt, block.filterExtNot, typed);
         }},
        {OptionId::FilterExtNot,
         [](BlockCollector &collector, FolderBlock &block, const Typed &typed) {
             collector.addFilter(block.filterExtNot, block.filterExt, typed);
         }},
        {OptionId::Subfolders,
         [](BlockCollector &collector, FolderBlock &block, const Typed &typed) {
             collector.setOnce(block.path, block.subfolderDepth, typed, parseDepth(typed.value),
                               "cli_error_badDepth");
         }},
        {OptionId::TagMissing,
         [](BlockCollector &collector, FolderBlock &block, const Typed &typed) {
             collector.setOnce(block.path, block.tagsMissing, typed, std::optional(true), "");
         }},
};

const BlockCollector::RunHandler BlockCollector::runHandlers[] = {
    {OptionId::Json, [](BlockCollector &c, const std::string &) { c.m_line.isJson = true; }},
    {OptionId::DryRun, [](BlockCollector &c, const std::string &) { c.m_line.isDryRun = true; }},
    {OptionId::All, [](BlockCollector &c, const std::string &) { c.m_line.savesAll = true; }},
    {OptionId::DateSequence,
     [](BlockCollector &c, const std::string &value) { c.addDateSequence(value); }},
    {OptionId::Filter,
     [](BlockCollector &c, const std::string &value) { c.addFilterPredicate(value); }},
    {OptionId::Rating, [](BlockCollector &c, const std::string &value) { c.addRating(value); }},
    {OptionId::Set, [](BlockCollector &c, const std::string &value) { c.addSetting(value); }},
    {OptionId::Accept, [](BlockCollector &c, const std::string &value) { c.addAccepted(value); }},
    {OptionId::SystemZone,
     [](BlockCollector &c, const std::string &value) { c.m_line.systemZone = value; }},
    {OptionId::Gaps,
     [](BlockCollector &c, const std::string &) { c.addAlignment(AlignCommand::MatchingGaps); }},
    {OptionId::Pack,
     [](BlockCollector &c, const std::string &) { c.addAlignment(AlignCommand::MinimizingGaps); }},
    {OptionId::ByName,
     [](BlockCollector &c, const std::string &) { c.addAlignment(AlignCommand::Filename); }},
    {OptionId::Reverse,
     [](BlockCollector &c, const std::string &) { c.addAlignment(AlignCommand::Reversing); }},
    {OptionId::Mirror,
     [](BlockCollector &c, const std::string &) { c.addAlignment(AlignCommand::ReversingAlt); }},
    {OptionId::Copy, [](BlockCollector &c, const std::string &value) { c.addCopy(value); }},
    {OptionId::Pics, [](BlockCollector &c, const std::string &value) { c.addPics(value); }},
    {OptionId::Main,
     [](BlockCollector &c, const std::string &value) { c.m_line.align.mainPic = value; }},
    {OptionId::Dragged, [](BlockCollector &c, const std::string &value) { c.addDragged(value); }},
    {OptionId::Between,
     [](BlockCollector &c,
        const std::string &value) { c.addDragTarget(DragType::Between, value); }},
    {OptionId::Before,
     [](BlockCollector &c,
        const std::string &value) { c.addDragTarget(DragType::SecondBefore, value); }},
    {OptionId::After,
     [](BlockCollector &c,
        const std::string &value) { c.addDragTarget(DragType::SecondAfter, value); }},
    {OptionId::Onto,
     [](BlockCollector &c, const std::string &value) { c.addDragTarget(DragType::Onto, value); }},
    {OptionId::SyncXmp,
     [](BlockCollector &c,
        const std::string &) { c.m_line.settings.emplace_back("syncXMPDataOnSave", "1"); }},
    {OptionId::TakeBack,
     [](BlockCollector &c, const std::string &) { c.m_line.isTakingBack = true; }},
    {OptionId::Forget,
     [](BlockCollector &c, const std::string &) { c.m_line.isForgetting = true; }},
    {OptionId::Save, [](BlockCollector &c, const std::string &) { c.m_line.isDryRun = false; }},
};

/// An alignment or a drag is only shown until it is to be saved.
BlockCollector::BlockCollector(Command command) {
    m_line.command = command;
    m_line.isDryRun = command == Command::Align || command == Command::Drag;
    m_line.rename.isWanted = command == Command::Rename;
}

void BlockCollector::fail(std::string message) {
    if (!m_error)
        m_error = std::move(message);
}

void BlockCollector::add(OptionId id, const char *name, const std::string &value) {
    if (m_error)
        return;
    if (id == OptionId::Path || id == OptionId::Folder) {
        openBlock(value, id == OptionId::Path);
        return;
    }
    if (renameOption(id)) {
        addRenameOption(id, {name, value});
        return;
    }
    const auto handler = std::ranges::find(blockHandlers, id, &BlockHandler::id);
    if (handler != std::end(blockHandlers)) {
        addToBlock(*handler, {name, value});
        return;
    }
    const auto ofRun = std::ranges::find(runHandlers, id, &RunHandler::id);
    if (ofRun != std::end(runHandlers))
        ofRun->take(*this, value);
}

void BlockCollector::openBlock(const std::string &path, bool isPlain) {
    closePic();
    m_line.blocks.push_back({});
    m_line.blocks.back().path = path;
    m_line.blocks.back().isPlain = isPlain;
    m_takesFolderOptions = !isPlain;
    if (path.empty())
        fail(text("cli_error_emptyPath"));
}

void BlockCollector::finish() {
    closePic();
    const bool needsNoPath = m_line.command == Command::Resume || m_line.rename.listsTemplates;
    if (m_line.blocks.empty() && !needsNoPath)
        fail(text("cli_error_noPaths"));
    if (m_line.command == Command::Align)
        checkAlignment();
    if (m_line.command == Command::Drag)
        checkDrag();
    if (auto error = checkRename(m_line, m_renameOptions))
        fail(std::move(*error));
}

void BlockCollector::checkAlignment() {
    const AlignWish &wish = m_line.align;
    if (!wish.command)
        fail(text("cli_error_noAlignment"));
    else if (wish.pics.empty())
        fail(text("cli_error_alignWithoutPics"));
    else if (wish.mainPic && wish.command != AlignCommand::MinimizingGaps)
        fail(text("cli_error_mainWithoutPack"));
}

/// A correction behind it could be meant for the item alone, and must not move its whole folder.
void BlockCollector::addDragged(const std::string &name) {
    m_line.drag.pics.push_back(name);
    m_takesFolderOptions = false;
}

void BlockCollector::addDragTarget(DragType dragType, const std::string &name) {
    DragWish &wish = m_line.drag;
    const std::size_t most = dragType == DragType::Between ? 2 : 1;
    const bool isSame = wish.dragType == DragType::None || wish.dragType == dragType;
    if (!isSame || wish.targets.size() == most)
        fail(text("cli_error_twoDragTargets"));
    wish.dragType = dragType;
    wish.targets.push_back(name);
}

void BlockCollector::checkDrag() {
    const DragWish &wish = m_line.drag;
    if (wish.pics.empty())
        fail(text("cli_error_dragWithoutPic"));
    else if (wish.dragType == DragType::None)
        fail(text("cli_error_noDragTarget"));
    else if (wish.dragType == DragType::Between && wish.targets.size() != 2)
        fail(text("cli_error_betweenNeedsTwo"));
    else if (wish.pics.size() > 1 && wish.dragType != DragType::Between)
        fail(text("cli_error_severalDragged"));
}

void BlockCollector::addRenameOption(OptionId id, const Typed &typed) {
    if (!m_renameOptions.insert(id).second)
        fail(text("cli_error_onlyOnce", {typed.name}));
    else if (auto error = renameOption(id)->take(m_line, typed.value))
        fail(std::move(*error));
}

void BlockCollector::addPics(const std::string &name) {
    const bool isRename = m_line.command == Command::Rename;
    (isRename ? m_line.rename.pics : m_line.align.pics).push_back(name);
}

void BlockCollector::addAlignment(AlignCommand command) {
    if (m_line.align.command)
        fail(text("cli_error_twoAlignments"));
    m_line.align.command = command;
}

void BlockCollector::addCopy(const std::string &slot) {
    std::string known;
    for (const auto &word : copyableSlots)
        known += (known.empty() ? "" : ", ") + std::string(word.word);
    if (const auto command = wordIn(copyableSlots, slot))
        addAlignment(*command);
    else
        fail(text("cli_error_badSlot", {printable(slot), known}));
}

/// Behind a --pic the corrections are its own, up to the next one.
Correction &BlockCollector::openCorrection(FolderBlock &block) {
    if (block.pics.empty())
        return block;
    return block.pics.back();
}

void BlockCollector::openPic(FolderBlock &block, const std::string &name) {
    closePic();
    if (std::ranges::find(block.pics, name, &PicBlock::name) != block.pics.end())
        fail(text("cli_error_picTwice", {printable(name)}));
    block.pics.push_back({{}, name});
}

void BlockCollector::closePic() {
    if (m_line.blocks.empty() || m_line.blocks.back().pics.empty())
        return;
    const PicBlock &pic = m_line.blocks.back().pics.back();
    if (pic.isEmpty())
        fail(text("cli_error_picWithoutCorrection", {printable(pic.name)}));
}

void BlockCollector::addDateSequence(const std::string &value) {
    const auto spec = parseEmptyTags(value);
    if (spec && spec->choice == PerFolderImportOptions::EmptyTags::FixedDate)
        m_line.dateSequence = spec;
    else
        fail(text("cli_error_badDateSequence", {printable(value)}));
}

void BlockCollector::addSetting(const std::string &value) {
    const std::size_t equals = value.find('=');
    if (equals == std::string::npos || equals == 0)
        fail(text("cli_error_badSetting", {printable(value)}));
    else
        m_line.settings.emplace_back(value.substr(0, equals), value.substr(equals + 1));
}

void BlockCollector::addFilterPredicate(const std::string &value) {
    auto read = readFilter(value);
    if (m_line.filter.predicate)
        fail(text("cli_error_optionTwice", {"--filter", printable(value)}));
    else if (const auto *complaint = std::get_if<std::string>(&read))
        fail(*complaint);
    else
        m_line.filter.predicate = std::get<Predicate>(std::move(read));
}

void BlockCollector::addRating(const std::string &value) {
    m_line.filter.rating = wordIn(ratings, value);
    if (!m_line.filter.rating)
        fail(text("cli_error_badRating", {printable(value)}));
}

void BlockCollector::addAccepted(const std::string &value) {
    if (value == "all")
        m_line.acceptsAll = true;
    else if (const auto problem = problemWithKey(value))
        m_line.accepted.insert(*problem);
    else
        fail(text("cli_error_unknownProblem", {printable(value)}));
}

void BlockCollector::addToBlock(const BlockHandler &handler, const Typed &typed) {
    if (!m_takesFolderOptions)
        fail(text("cli_error_optionWithoutFolder", {typed.name}));
    else
        handler.take(*this, m_line.blocks.back(), typed);
}

void BlockCollector::addFilter(std::optional<std::string> &filter,
                               const std::optional<std::string> &opposite, const Typed &typed) {
    if (opposite)
        fail(text("cli_error_twoFilters", {printable(m_line.blocks.back().path)}));
    else
        setOnce(m_line.blocks.back().path, filter, typed);
}

const std::string &BlockCollector::openName(const FolderBlock &block) {
    return block.pics.empty() ? block.path : block.pics.back().name;
}

template<class Value>
void BlockCollector::setOnce(const std::string &owner, std::optional<Value> &place,
                             const Typed &typed, std::optional<Value> value,
                             const char *complaintKey) {
    if (place)
        fail(text("cli_error_optionTwice", {typed.name, printable(owner)}));
    else if (!value)
        fail(text(complaintKey, {printable(typed.value)}));
    else
        place = std::move(value);
}

void BlockCollector::setOnce(const std::string &owner, std::optional<std::string> &place,
                             const Typed &typed) {
    setOnce(owner, place, typed, std::optional(typed.value), "");
}

} // namespace chronomender
