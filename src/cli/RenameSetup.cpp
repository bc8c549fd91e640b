// SPDX-License-Identifier: GPL-3.0-or-later
#include "RenameSetup.h"

#include "Commands.h"
#include "JsonLine.h"
#include "Table.h"
#include "TemplateStore.h"
#include "TemplateText.h"
#include "Texts.h"
#include "Utf8Text.h"

#include <absl/time/civil_time.h>

namespace chronomender {
namespace {

/// The name that the template gives to a picture as a camera would make it.
std::string sampleName(const RenameTemplate &renameTemplate, const AddOnTexts &addOns) {
    NameFacts facts;
    facts.zone = absl::UTCTimeZone();
    facts.date = absl::FromCivil(absl::CivilSecond(2026, 4, 11, 9, 2, 40), facts.zone);
    facts.folderName = "Kyoto";
    facts.sourceName = facts.spName = "IMG_4101.JPG";
    NameSettings settings;
    settings.renameTemplate = renameTemplate;
    settings.sheetMode = SheetMode::TemplateSample;
    return nameString(facts, 1, addOns, settings);
}

AddOnTexts addOnTexts(const UserDefaults &defaults) {
    return {defaults.stringForKey("additionalText"), defaults.stringForKey("additionalText2"),
            defaults.stringForKey("additionalText3")};
}

} // namespace

std::optional<Complaint> settleRename(MendSession &session) {
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
        const std::string sample = sampleName(templates[i], addOnTexts(defaults));
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
