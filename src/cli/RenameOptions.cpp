// SPDX-License-Identifier: GPL-3.0-or-later
#include "RenameOptions.h"

#include "TemplateText.h"
#include "Texts.h"
#include "Utf8Text.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace chronomender {
namespace {

using Error = std::optional<std::string>;

Error setPreference(CommandLine &line, const char *key, const std::string &value) {
    line.settings.emplace_back(key, value);
    return std::nullopt;
}

Error setAddOn(CommandLine &line, const char *key, const std::string &value) {
    if (value.find('/') != std::string::npos)
        return text("cli_error_badAddOn", {printable(value)});
    return setPreference(line, key, value);
}

Error setCounter(CommandLine &line, const std::string &value) {
    if (value != "all" && value != "folder")
        return text("cli_error_badCounter", {printable(value)});
    setPreference(line, "counterType_prefersCompoundAltOption", "0");
    return setPreference(line, "counterType", value == "all" ? "1" : "0");
}

Error setCounterStart(CommandLine &line, const std::string &value) {
    setPreference(line, "renameCounterStartOption", "2");
    return setPreference(line, "renameCounterStartValue", value);
}

Error setTemplateText(CommandLine &line, const std::string &value) {
    auto read = templateFromText(value);
    if (const auto *error = std::get_if<TemplateTextError>(&read))
        return text("cli_error_badTemplateText",
                    {std::to_string(columnOfByte(value, error->place) + 1), error->message}) +
               pointedAt(value, error->place);
    line.rename.renameTemplate = std::get<RenameTemplate>(std::move(read));
    return std::nullopt;
}

constexpr RenameOption options[]{
    {OptionId::Rename,
     [](CommandLine &line, const std::string &) {
         line.rename.isWanted = true;
         return Error();
     }},
    {OptionId::Templates,
     [](CommandLine &line, const std::string &) {
         line.rename.listsTemplates = true;
         return Error();
     }},
    {OptionId::Template,
     [](CommandLine &line, const std::string &value) {
         return setPreference(line, "templateSelectedIndex", value);
     }},
    {OptionId::TemplateText, setTemplateText},
    {OptionId::AddOn1,
     [](CommandLine &line, const std::string &value) {
         return setAddOn(line, "additionalText", value);
     }},
    {OptionId::AddOn2,
     [](CommandLine &line, const std::string &value) {
         return setAddOn(line, "additionalText2", value);
     }},
    {OptionId::AddOn3,
     [](CommandLine &line, const std::string &value) {
         return setAddOn(line, "additionalText3", value);
     }},
    {OptionId::Counter, setCounter},
    {OptionId::CounterStart, setCounterStart},
};

} // namespace

const RenameOption *renameOption(OptionId id) {
    const auto *found = std::ranges::find(options, id, &RenameOption::id);
    return found == std::end(options) ? nullptr : found;
}

std::optional<std::string> checkRename(const CommandLine &line, const std::set<OptionId> &taken) {
    if (taken.contains(OptionId::Template) && taken.contains(OptionId::TemplateText))
        return text("cli_error_twoTemplates");
    if (line.rename.listsTemplates && !line.blocks.empty())
        return text("cli_error_templatesWithPaths");
    if (!line.rename.isWanted && !taken.empty())
        return text("cli_error_withoutRename");
    return std::nullopt;
}

} // namespace chronomender
