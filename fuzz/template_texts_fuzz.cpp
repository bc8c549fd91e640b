// SPDX-License-Identifier: GPL-3.0-or-later
#include "NameBuilder.h"
#include "Require.h"
#include "TemplateStore.h"
#include "TemplateText.h"

namespace {

using namespace chronomender;

/// A name is never empty and never leads to another folder, whatever the template.
void requireName(const RenameTemplate &renameTemplate, const std::string &text) {
    const NameFacts facts{absl::FromUnixSeconds(static_cast<std::int64_t>(text.size()) << 32),
                          absl::UTCTimeZone(),
                          "trip",
                          "IMG_1.JPG",
                          "IMG_1.JPG",
                          {}};
    NameSettings settings;
    settings.renameTemplate = renameTemplate;
    settings.fileModifications = {ChangeCase{true, 0}, ReplaceWith{true, 0, "i", "\u00E9", 0},
                                  CharCount{true, 0, 1, 2}};
    const std::string name = nameString(facts, 7, {"one", "two", "three"}, settings);
    require(name.size() > 4 && name.find('/') == name.npos);
    require(!styledNameString(facts, 7, {}, settings).empty());
}

/// Stored templates and changes are read whatever they are, and a change gives a text.
void requireStored(const std::string &text) {
    UserDefaults defaults;
    defaults.set("renameTemplates_7", text);
    defaults.set("modAtRenameSettings_1_7", text);
    defaults.set("textModTemplates_7", text);
    for (const RenameTemplate &each : renameTemplatesRaw(defaults))
        requireName(each, text);
    modifiedStringFromString(text, modificationsForTag(ModificationTag::Folder, defaults));
    textModTemplates(defaults);
    const std::string half = text.substr(text.size() / 2);
    modifiedStringFromString(text, ReplaceWith{true, 0, half.substr(0, 3), "", 0});
    require(modifiedStringFromString(text, CharCount{true, 1, 0, 3}).size() <= text.size());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const std::string text(reinterpret_cast<const char *>(data), size);
    requireStored(text);
    const auto read = templateFromText(text);
    if (const auto *error = std::get_if<TemplateTextError>(&read)) {
        require(error->place < size && !error->message.empty());
        return 0;
    }
    const RenameTemplate &renameTemplate = std::get<RenameTemplate>(read);
    const auto again = templateFromText(textOf(renameTemplate));
    require(std::holds_alternative<RenameTemplate>(again));
    require(std::get<RenameTemplate>(again) == renameTemplate);
    requireName(renameTemplate, text);
    return 0;
}
