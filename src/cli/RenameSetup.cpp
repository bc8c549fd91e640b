// SPDX-License-Identifier: GPL-3.0-or-later
#include "RenameSetup.h"

#include "Commands.h"
#include "JsonLine.h"
#include "RenameSamples.h"
#include "Table.h"
#include "TemplateStore.h"
#include "TemplateText.h"
#include "Texts.h"
#include "Utf8Text.h"

#include <algorithm>
#include <filesystem>

namespace chronomender {
namespace {

AddOnTexts addOnTexts(const UserDefaults &defaults) {
    return {defaults.stringForKey("additionalText"), defaults.stringForKey("additionalText2"),
            defaults.stringForKey("additionalText3")};
}

/// What belongs to a file is looked for in its folder: alone, it would be parted from that.
std::optional<Complaint> refuseFiles(const CommandLine &line) {
    const auto file = std::ranges::find_if_not(line.blocks, [](const FolderBlock &block) {
        std::error_code failure;
        return std::filesystem::is_directory(block.path, failure);
    });
    if (file == line.blocks.end())
        return std::nullopt;
    return Complaint{2, text("cli_error_renameOfFile", {printable(file->path)})};
}

} // namespace

std::optional<Complaint> settleRename(MendSession &session) {
    if (auto complaint = refuseFiles(session.line()))
        return complaint;
    UserDefaults &defaults = session.controller().defaults();
    const auto &typed = session.line().rename.renameTemplate;
    const auto renameTemplate = typed ? typed : selectedTemplate(defaults);
    if (!renameTemplate)
        return Complaint{2, text("cli_error_noTemplate",
                                 {std::to_string(defaults.integerForKey("templateSelectedIndex")),
                                  "mend rename --templates"})};
    const TemplateStatus status = statusOf(*renameTemplate);
    if (status == TemplateStatus::OnlyOneName)
        return Complaint{2, text("templateStatusText1")};
    if (status == TemplateStatus::NamesMayBeEqual)
        complain(text("templateStatusText2"));
    session.controller().setRenameChoices(renameChoices(defaults, *renameTemplate));
    return std::nullopt;
}

int listTemplates(const CommandLine &line) {
    AppServices services = systemServices();
    if (const auto complaint = applySettings(line, services)) {
        complain(complaint->message);
        return complaint->exitCode;
    }
    const UserDefaults &defaults = *services.defaults;
    const auto selected = static_cast<std::size_t>(defaults.integerForKey("templateSelectedIndex"));
    const auto templates = renameTemplatesRaw(defaults);
    std::string buffer;
    Table table;
    for (std::size_t i = 0; i < templates.size(); ++i) {
        const std::string typed = textOf(templates[i]);
        const std::string sample =
            plainText(sampleTextWithSettings(templates[i], addOnTexts(defaults), *services.zones));
        table.add({(i == selected ? "* " : "  ") + std::to_string(i), printable(typed),
                   printable(sample)});
        if (line.isJson)
            JsonLine(buffer)
                .field("number", static_cast<std::int64_t>(i))
                .field("text", typed)
                .field("sample", sample)
                .flag("selected", i == selected)
                .finish();
    }
    return codeAfterWriting(writeOutput(line.isJson ? buffer : table.text()), exitDone);
}

} // namespace chronomender
