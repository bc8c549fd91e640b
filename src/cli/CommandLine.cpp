// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine.h"

#include "BlockCollector.h"
#include "OptionTable.h"
#include "Texts.h"
#include "Utf8Text.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <map>
#include <sstream>

#ifndef CHRONOMENDER_VERSION
#error "the build tells the version"
#endif

namespace chronomender {
namespace {

struct CommandDescription {
    Command command;
    const char *name, *textKey, *footerKey;
};
constexpr CommandDescription commandTable[]{
    {Command::List, "list", "cli_help_list", "cli_help_list_footer"},
    {Command::Info, "info", "cli_help_info", "cli_help_info_footer"},
    {Command::Save, "save", "cli_help_save", "cli_help_save_footer"},
    {Command::Align, "align", "cli_help_align", "cli_help_align_footer"},
    {Command::Drag, "drag", "cli_help_drag", "cli_help_drag_footer"},
    {Command::Rename, "rename", "cli_help_rename", "cli_help_rename_footer"},
    {Command::Resume, "resume", "cli_help_resume", "cli_help_resume_footer"},
};

const OptionDescription *findOption(const std::string &name) {
    for (const OptionDescription &option : optionTable)
        if (name == option.name)
            return &option;
    return nullptr;
}

/// Arguments that belong to an option whatever they look like.
std::size_t argumentsTaken(const std::string &argument) {
    const OptionDescription *option = findOption(argument);
    const bool takesOne = argument == "--language" || (option && *option->valueName);
    return option && option->values == Values::Two ? 2 : takesOne ? 1 : 0;
}

bool takesAllNextArguments(const std::string &argument) {
    const OptionDescription *option = findOption(argument);
    return option && option->values == Values::Several;
}

/// The library reads a plain argument in brackets as a list of values; "./[a]" names the same file.
void shieldBrackets(std::vector<std::string> &arguments) {
    bool isPlain = true;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        if (arguments[i].starts_with('-'))
            isPlain = !takesAllNextArguments(arguments[i]);
        if (const std::size_t taken = argumentsTaken(arguments[i]))
            i += taken;
        else if (isPlain && arguments[i].starts_with('['))
            arguments[i].insert(0, "./");
    }
}

/// The library's parser of one command, and which of its options is which of ours.
class CommandParser {
public:
    CommandParser(CLI::App &root, const CommandDescription &description)
        : m_command(description.command),
          m_app(root.add_subcommand(description.name, text(description.textKey))) {
        m_app->footer(text(description.footerKey));
        m_app->set_help_flag("-h,--help", text("cli_help_help"));
        m_app->fallthrough();
        if (m_command != Command::Resume)
            addPaths();
        for (const OptionDescription &option : optionTable)
            if (option.commands & commandBit(m_command))
                addOption(option);
    }

    bool wasChosen() const { return m_app->parsed(); }

    ParsedCommandLine collect(const std::string &typed) const {
        BlockCollector collector(m_command);
        std::map<const CLI::Option *, std::size_t> taken;
        for (const CLI::Option *option : m_app->parse_order()) {
            const auto known = m_options.find(option);
            if (known == m_options.end())
                continue;
            const OptionDescription *description = known->second;
            const std::size_t index = taken[option]++;
            const auto &values = option->results();
            collector.add(description ? description->id : OptionId::Path,
                          description ? description->name : "",
                          index < values.size() ? values[index] : std::string());
        }
        collector.finish();
        if (collector.error())
            return ParseEnd{2, "", "mend: " + *collector.error() + '\n'};
        CommandLine line = collector.line();
        line.typed = typed;
        return line;
    }

private:
    void addPaths() {
        const bool isInfo = m_command == Command::Info;
        CLI::Option *paths = m_app->add_option(isInfo ? "FILE" : "PATH", m_values[nullptr],
                                               text(isInfo ? "cli_help_file" : "cli_help_path"));
        paths->type_name("")->expected(-1);
        m_options[paths] = nullptr;
    }

    void addOption(const OptionDescription &description) {
        CLI::Option *option = nullptr;
        if (*description.valueName) {
            option = m_app->add_option(description.name, m_values[&description],
                                       text(description.textKey));
            const bool takesSeveral = description.values == Values::Several;
            const int fewest = description.values == Values::Two ? 2 : 1;
            option->expected(fewest, takesSeveral ? -1 : fewest);
            option->type_name(description.valueName);
            option->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
                ->allow_extra_args(takesSeveral);
        } else {
            const std::string help = text(description.textKey);
            option = m_app->add_flag(description.name, help);
        }
        option->group(
            text(description.isOfFolder ? "cli_help_folderOptions" : "cli_help_runOptions"));
        m_options[option] = &description;
    }

    Command m_command;
    CLI::App *m_app;
    std::map<const OptionDescription *, std::vector<std::string>> m_values;
    std::map<const CLI::Option *, const OptionDescription *> m_options;
};

std::string typedText(const std::vector<std::string> &arguments) {
    std::string typed = "mend";
    for (const std::string &argument : arguments) {
        const bool isPlain =
            !argument.empty() && argument.find_first_of(" '\"") == std::string::npos;
        typed += ' ' + (isPlain ? printable(argument) : '\'' + printable(argument) + '\'');
    }
    return typed;
}

ParseEnd endOf(const CLI::App &app, const CLI::ParseError &error) {
    std::ostringstream output, errors;
    const int code = app.exit(error, output, errors);
    return {code == 0 ? 0 : 2, output.str(), code == 0 ? "" : "mend: " + errors.str()};
}

} // namespace

ParsedCommandLine parseCommandLine(std::vector<std::string> arguments) {
    CLI::App root(text("cli_help_mend"), "mend");
    root.set_help_flag("-h,--help", text("cli_help_help"));
    root.set_version_flag("--version", "mend " CHRONOMENDER_VERSION, text("cli_help_version"));
    root.footer(text("cli_help_footer"));
    root.require_subcommand(1);
    std::string language;
    root.add_option("--language", language, text("cli_help_language"))
        ->type_name("en|de")
        ->check(CLI::IsMember({"en", "de"}));
    std::vector<std::unique_ptr<CommandParser>> parsers;
    for (const CommandDescription &description : commandTable)
        parsers.push_back(std::make_unique<CommandParser>(root, description));
    const std::string typed = typedText(arguments);
    shieldBrackets(arguments);
    std::reverse(arguments.begin(), arguments.end()); // the library takes them from the end
    try {
        root.parse(arguments);
    } catch (const CLI::ParseError &error) {
        return endOf(root, error);
    }
    const auto chosen = std::find_if(parsers.begin(), parsers.end(),
                                     [](const auto &parser) { return parser->wasChosen(); });
    return (*chosen)->collect(typed);
}

std::string languageArgument(const std::vector<std::string> &arguments) {
    constexpr std::string_view prefix = "--language=";
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        if (arguments[i].starts_with(prefix))
            return arguments[i].substr(prefix.size());
        if (arguments[i] == "--language" && i + 1 < arguments.size())
            return arguments[i + 1];
    }
    return {};
}

} // namespace chronomender
