// SPDX-License-Identifier: GPL-3.0-or-later
#include "RenameReport.h"

#include "Table.h"
#include "Texts.h"
#include "Utf8Text.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <optional>

namespace chronomender {
namespace {

struct ResultName {
    RenameResult result;
    std::string_view name, plannedName;
};
constexpr std::array<ResultName, 5> resultNames{{
    {RenameResult::Renamed, "renamed", "planned"},
    {RenameResult::Unchanged, "unchanged", "unchanged"},
    {RenameResult::Refused, "refused", "refused"},
    {RenameResult::LeftOnTheWay, "leftOnTheWay", "leftOnTheWay"},
    {RenameResult::NotReached, "notReached", "notReached"},
}};

/// Errors that a line of an item says in words of its own; the file's name is their argument.
struct ErrorNote {
    SaveErrorId id;
    const char *key;
};
constexpr std::array<ErrorNote, 4> errorNotes{{
    {SaveErrorId::NotRenamed, "cli_rename_noteNotRenamed"},
    {SaveErrorId::CompanionNotWritable, "cli_rename_noteNotWritable"},
    {SaveErrorId::CompanionNotRenamed, "cli_rename_noteCompanion"},
    {SaveErrorId::NameBeginsWithDot, "cli_rename_noteDot"},
}};

bool isFailure(const SaveError &error) {
    return error.id != SaveErrorId::NumberAdded && error.id != SaveErrorId::NameBeginsWithDot;
}

std::string nameIn(const std::string &path) {
    return path.substr(path.rfind('/') + 1);
}

std::string pathIn(const std::string &folderPath, const std::string &name) {
    return folderPath + (folderPath.ends_with('/') ? "" : "/") + name;
}

std::string noteOf(const SaveError &error) {
    const auto *own = std::ranges::find(errorNotes, error.id, &ErrorNote::id);
    if (own == errorNotes.end())
        return descriptionOf(error);
    const std::string note = text(own->key, {printable(nameIn(error.path))});
    return error.systemText.empty() ? note : note + " (" + printable(error.systemText) + ')';
}

/// The file of the item that an error is about; the main file where it is none of them.
std::size_t fileOf(const SaveError &error, const ItemRename &rename) {
    const std::string name = nameIn(error.path);
    for (std::size_t i = 0; i < rename.files.size(); ++i)
        if (name == rename.files[i].oldName || name == rename.files[i].newName)
            return i;
    return 0;
}

/// Errors that are about a file of the item, as a line of that file says them. The number that was
/// added is told by itself.
std::string reasonOf(const ItemRename &rename, std::optional<std::size_t> file = std::nullopt) {
    std::string reason;
    for (const SaveError &error : rename.errors)
        if (error.id != SaveErrorId::NumberAdded && (!file || fileOf(error, rename) == *file))
            reason += (reason.empty() ? "" : "; ") + noteOf(error);
    return reason;
}

void appendLine(std::string &buffer, const ItemRename &rename, std::size_t index,
                std::string_view result) {
    const RenamedFile &file = rename.files[index];
    JsonLine line(buffer);
    line.field("path", pathIn(rename.folderPath, file.oldName))
        .field("kind", "rename")
        .field("newPath", pathIn(rename.folderPath, file.newName))
        .field("item", pathIn(rename.folderPath, rename.files.front().oldName))
        .field("result", result);
    if (rename.addedNumber > 0)
        line.field("number", rename.addedNumber);
    if (index == 0 && rename.wantedName != file.newName)
        line.fieldIfAny("wanted", rename.wantedName);
    line.beginArray("errorIds");
    for (const SaveError &error : rename.errors)
        if (fileOf(error, rename) == index)
            line.element(static_cast<std::int64_t>(error.id));
    line.end().fieldIfAny("reason", reasonOf(rename, index)).finish();
}

} // namespace

RenameReport::RenameReport(const std::vector<ItemRename> &renames, Stage stage)
    : m_renames(renames), m_stage(stage) {}

std::string_view RenameReport::nameOf(RenameResult result) const {
    const auto *named = std::ranges::find(resultNames, result, &ResultName::result);
    return m_stage == Stage::Plan ? named->plannedName : named->name;
}

bool RenameReport::hasFailure() const {
    return std::ranges::any_of(m_renames, [](const ItemRename &rename) {
        return rename.result == RenameResult::Refused ||
               rename.result == RenameResult::LeftOnTheWay ||
               std::ranges::any_of(rename.errors, isFailure);
    });
}

bool RenameReport::isInterrupted() const {
    return std::ranges::find(m_renames, RenameResult::NotReached, &ItemRename::result) !=
           m_renames.end();
}

std::string RenameReport::noteOf(const ItemRename &rename) const {
    const std::string wanted = printable(rename.wantedName);
    std::string note;
    if (rename.result == RenameResult::Refused || rename.result == RenameResult::LeftOnTheWay ||
        rename.result == RenameResult::NotReached)
        note = text("cli_rename_" + std::string(nameOf(rename.result)) + "Note", {wanted});
    else if (rename.addedNumber > 0)
        note = text("cli_rename_numberNote", {std::to_string(rename.addedNumber), wanted});
    else if (rename.result == RenameResult::Unchanged)
        note = text("cli_rename_unchangedNote");
    const std::string reason = reasonOf(rename);
    return note + (note.empty() || reason.empty() ? "" : "; ") + reason;
}

std::vector<std::string> RenameReport::nameTable() const {
    std::vector<std::string> pieces;
    for (auto rename = m_renames.begin(); rename != m_renames.end();) {
        const std::string &folderPath = rename->folderPath;
        Table table("    ");
        for (; rename != m_renames.end() && rename->folderPath == folderPath; ++rename)
            for (std::size_t i = 0; i < rename->files.size(); ++i) {
                const auto &[oldName, newName] = rename->files[i];
                table.add({(i == 0 ? "" : "  ") + printable(oldName),
                           oldName == newName ? "" : "→ " + printable(newName),
                           i == 0 ? noteOf(*rename) : ""});
            }
        pieces.push_back(printable(folderPath) + '\n' + table.text());
    }
    return pieces;
}

std::vector<RenameReport::Count> RenameReport::counts() const {
    const auto items = [this](RenameResult result) {
        return static_cast<std::size_t>(std::ranges::count(m_renames, result, &ItemRename::result));
    };
    const bool isPlan = m_stage == Stage::Plan;
    const std::size_t renamed = items(RenameResult::Renamed);
    const auto numbered = std::ranges::count_if(
        m_renames, [](const ItemRename &rename) { return rename.addedNumber > 0; });
    return {{"planned", isPlan ? renamed : 0, isPlan},
            {"renamed", isPlan ? 0 : renamed, !isPlan},
            {"numbered", static_cast<std::size_t>(numbered)},
            {"unchanged", items(RenameResult::Unchanged)},
            {"refused", items(RenameResult::Refused)},
            {"leftOnTheWay", items(RenameResult::LeftOnTheWay)},
            {"notReached", items(RenameResult::NotReached)}};
}

std::string RenameReport::summaryText() const {
    std::string buffer;
    for (const Count &count : counts())
        if (count.items > 0 || count.isAlwaysSaid)
            buffer += (buffer.empty() ? "" : ", ") +
                      text("cli_rename_" + std::string(count.name), {std::to_string(count.items)});
    return buffer + '\n';
}

void RenameReport::appendLines(std::string &buffer) const {
    for (const ItemRename &rename : m_renames)
        for (std::size_t i = 0; i < rename.files.size(); ++i)
            appendLine(buffer, rename, i, nameOf(rename.result));
}

void RenameReport::appendCounts(JsonLine &line) const {
    line.beginObject("rename");
    for (const Count &count : counts())
        line.field(count.name, static_cast<std::int64_t>(count.items));
    line.end();
}

std::vector<SaveError> RenameReport::errors() const {
    std::vector<SaveError> errors;
    for (const ItemRename &rename : m_renames)
        std::ranges::copy_if(rename.errors, std::back_inserter(errors), [this](const auto &error) {
            return m_stage == Stage::Run || error.id != SaveErrorId::NumberAdded;
        });
    return errors;
}

} // namespace chronomender
