// SPDX-License-Identifier: GPL-3.0-or-later
#include "TemplateStore.h"

#include "StoredValues.h"

#include <algorithm>
#include <array>

namespace chronomender {
namespace {

using namespace storedValues;

constexpr std::string_view templatesKey = "renameTemplates_7";
constexpr qsizetype mostTemplates = 1000, mostParts = 200;
constexpr QLatin1String optionsName("options"), partsName("stringParts"), kindName("kind"),
    textIdName("textId"), textKind("text"), graphicKind("graphic"), elementEnding(".tif");

struct StoredOption {
    QLatin1String name;
    int TemplateOptions::*option;
    int most;
};
constexpr std::array<StoredOption, 3> storedOptions{
    {{QLatin1String("1.tif"), &TemplateOptions::yearHasFourDigits, 1},
     {QLatin1String("2.tif"), &TemplateOptions::monthHasTwoDigits, 1},
     {QLatin1String("7.tif"), &TemplateOptions::counterDigits, mostCounterDigits - 1}}};

/// "7.tif" is the counter. None for what is no element.
std::optional<RenameElement> elementNamed(const QString &name) {
    bool isNumber = false;
    const int number = name.left(name.lastIndexOf(QLatin1Char('.'))).toInt(&isNumber);
    if (!isNumber || number < 1 || number > renameElementCount)
        return std::nullopt;
    return static_cast<RenameElement>(number);
}

/// A part that cannot be read places nothing. Nor does a text that would lead out of the folder.
TemplatePart partFrom(const QJsonObject &stored) {
    if (stored.value(kindName).toString() == graphicKind)
        return {{}, elementNamed(stored.value(textIdName).toString())};
    std::string text = textFrom(stored.value(textIdName)).value_or(std::string());
    const bool isRefused = text.find('/') != text.npos || text.find('\0') != text.npos;
    return TemplatePart::ofText(isRefused ? std::string() : std::move(text));
}

std::optional<RenameTemplate> templateFrom(const QJsonObject &stored) {
    const QJsonArray parts = stored.value(partsName).toArray();
    if (!stored.value(partsName).isArray() || parts.size() > mostParts)
        return std::nullopt;
    RenameTemplate renameTemplate;
    const QJsonObject options = stored.value(optionsName).toObject();
    for (const StoredOption &each : storedOptions)
        if (const auto number = integerFrom(options.value(each.name)))
            renameTemplate.options.*each.option = std::clamp(*number, 0, each.most);
    renameTemplate.stringParts.reserve(static_cast<std::size_t>(parts.size()));
    for (const QJsonValue &part : parts)
        renameTemplate.stringParts.push_back(partFrom(part.toObject()));
    return renameTemplate;
}

QJsonObject stored(const TemplatePart &part) {
    if (!part.element)
        return {{kindName, textKind}, {textIdName, valueOf(part.text)}};
    const QString number = QString::number(static_cast<int>(*part.element));
    return {{kindName, graphicKind}, {textIdName, number + elementEnding}};
}

QJsonObject stored(const RenameTemplate &renameTemplate) {
    QJsonObject options;
    for (const StoredOption &each : storedOptions)
        options.insert(each.name, renameTemplate.options.*each.option);
    QJsonArray parts;
    for (const TemplatePart &part : renameTemplate.stringParts)
        parts.append(stored(part));
    return {{optionsName, options}, {partsName, parts}};
}

std::optional<std::vector<RenameTemplate>> storedTemplates(const UserDefaults &defaults) {
    const auto array = arrayFrom(defaults.stringForKey(templatesKey), mostTemplates);
    if (!array)
        return std::nullopt;
    std::vector<RenameTemplate> templates;
    templates.reserve(static_cast<std::size_t>(array->size()));
    for (const QJsonValue &each : *array) {
        auto read = templateFrom(each.toObject());
        if (!read)
            return std::nullopt;
        templates.push_back(*std::move(read));
    }
    return templates;
}

} // namespace

const std::vector<RenameTemplate> &factoryTemplates() {
    using enum RenameElement;
    const auto run = [](const char *text) { return TemplatePart::ofText(text); };
    const auto element = [](RenameElement each) { return TemplatePart::ofElement(each); };
    static const std::vector<RenameTemplate> templates{
        {{1, 0, 3}, {run("P"), element(Month), element(Day), element(Counter)}},
        {{1, 1, 4}, {run("DSC"), element(Counter)}},
        {{1, 1, 3}, {run("IMG"), run("_"), element(Counter)}},
        {{1, 1, 2}, {element(AddOn), run("_"), element(Counter)}},
        {{1, 1, 2},
         {element(Year), run("_"), element(Month), run("_"), element(Day), run("_"),
          element(Counter)}}};
    return templates;
}

std::vector<RenameTemplate> renameTemplatesRaw(const UserDefaults &defaults) {
    auto kept = storedTemplates(defaults);
    return kept ? *std::move(kept) : factoryTemplates();
}

UserDefaults::Outcome storeRenameTemplates(const std::vector<RenameTemplate> &templates,
                                           UserDefaults &defaults) {
    // What could not be read again would lose all templates.
    if (templates.size() > static_cast<std::size_t>(mostTemplates))
        return UserDefaults::Outcome::ValueNotAllowed;
    QJsonArray array;
    for (const RenameTemplate &each : templates)
        array.append(stored(each));
    return defaults.set(templatesKey, storedText(array));
}

std::optional<RenameTemplate> selectedTemplate(const UserDefaults &defaults) {
    const auto templates = renameTemplatesRaw(defaults);
    const auto index = static_cast<std::size_t>(defaults.integerForKey("templateSelectedIndex"));
    return index < templates.size() ? std::optional(templates[index]) : std::nullopt;
}

} // namespace chronomender
