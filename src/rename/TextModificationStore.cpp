// SPDX-License-Identifier: GPL-3.0-or-later
#include "StoredValues.h"
#include "TextModification.h"

#include <algorithm>
#include <array>

namespace chronomender {
namespace {

using namespace storedValues;

constexpr std::string_view templatesKey = "textModTemplates_7";
constexpr qsizetype mostTemplates = 1000, mostRows = 200;
constexpr QLatin1String idName("id"), defaultsName("defaults"), keyName("key"), nameName("name"),
    rowsName("rows");

/// The values of the four kinds of rows by their names: what reads and writes them.
template<class Visitor>
void visitValues(CharCount &row, const Visitor &visit) {
    visit("isEnabled", row.isEnabled);
    visit("type", row.type);
    visit("direction", row.direction);
    visit("value", row.value);
}
template<class Visitor>
void visitValues(UpToString &row, const Visitor &visit) {
    visit("isEnabled", row.isEnabled);
    visit("type", row.type);
    visit("direction", row.direction);
    visit("value", row.value);
    visit("value2", row.value2);
}
template<class Visitor>
void visitValues(ReplaceWith &row, const Visitor &visit) {
    visit("isEnabled", row.isEnabled);
    visit("direction", row.direction);
    visit("value", row.value);
    visit("value2", row.value2);
    visit("value3", row.value3);
}
template<class Visitor>
void visitValues(ChangeCase &row, const Visitor &visit) {
    visit("isEnabled", row.isEnabled);
    visit("value", row.value);
}

/// In the order of the variant's alternatives.
constexpr std::array<QLatin1String, std::variant_size_v<TextModification>> rowIds{
    QLatin1String("CharCount"), QLatin1String("UpToString"), QLatin1String("ReplaceWith"),
    QLatin1String("ChangeCase")};

void read(const QJsonValue &stored, int &value) {
    value = integerFrom(stored).value_or(value);
}
void read(const QJsonValue &stored, bool &value) {
    value = integerFrom(stored).value_or(value) != 0;
}
void read(const QJsonValue &stored, std::string &value) {
    value = textFrom(stored).value_or(value);
}

/// None for a kind that is not known.
std::optional<TextModification> rowFrom(const QJsonObject &stored) {
    const QString id = stored.value(idName).toString();
    for (const TextModification &factoryRow : factoryModifications()) {
        if (id != rowIds[factoryRow.index()])
            continue;
        TextModification row = factoryRow;
        const QJsonObject values = stored.value(defaultsName).toObject();
        std::visit(
            [&](auto &each) {
                visitValues(each, [&](const char *name, auto &value) {
                    read(values.value(QLatin1String(name)), value);
                });
            },
            row);
        return row;
    }
    return std::nullopt;
}

std::optional<TextModifications> rowsFrom(const QJsonArray &array) {
    TextModifications rows;
    rows.reserve(static_cast<std::size_t>(array.size()));
    for (const QJsonValue &each : array) {
        auto row = rowFrom(each.toObject());
        if (!row)
            return std::nullopt;
        rows.push_back(*std::move(row));
    }
    return array.size() <= mostRows ? std::optional(std::move(rows)) : std::nullopt;
}

QJsonObject stored(TextModification row) {
    QJsonObject values;
    const auto keep = [&](const char *name, const auto &value) {
        if constexpr (std::is_same_v<decltype(value), const std::string &>)
            values.insert(QLatin1String(name), valueOf(value));
        else
            values.insert(QLatin1String(name), value);
    };
    std::visit([&](auto &each) { visitValues(each, keep); }, row);
    return {{idName, rowIds[row.index()]}, {defaultsName, values}};
}

QJsonArray stored(const TextModifications &rows) {
    QJsonArray array;
    for (const TextModification &row : rows)
        array.append(stored(row));
    return array;
}

std::string settingsKey(ModificationTag tag) {
    return "modAtRenameSettings_" + std::to_string(static_cast<int>(tag)) + "_7";
}

std::optional<TextModificationTemplate> templateFrom(const QJsonObject &stored) {
    const auto key = integerFrom(stored.value(keyName));
    auto rows = rowsFrom(stored.value(rowsName).toArray());
    if (!key || !rows)
        return std::nullopt;
    return TextModificationTemplate{*key, textFrom(stored.value(nameName)).value_or(""),
                                    *std::move(rows)};
}

std::optional<TextModifications> rowsOfTemplate(int key, const UserDefaults &defaults) {
    for (TextModificationTemplate &each : textModTemplates(defaults))
        if (each.key == key)
            return std::move(each.rows);
    return std::nullopt;
}

} // namespace

const TextModifications &factoryModifications() {
    static const TextModifications rows{CharCount(), UpToString(), ReplaceWith(), ChangeCase()};
    return rows;
}

TextModifications modificationsForTag(ModificationTag tag, const UserDefaults &defaults) {
    const std::string settings = defaults.stringForKey(settingsKey(tag));
    // A number alone names a template.
    const auto key = integerFrom(valueOf(settings));
    std::optional<TextModifications> rows;
    if (key)
        rows = rowsOfTemplate(*key, defaults);
    else if (const auto array = arrayFrom(settings, mostRows))
        rows = rowsFrom(*array);
    return rows ? *std::move(rows) : factoryModifications();
}

UserDefaults::Outcome storeModifications(ModificationTag tag, const TextModifications &rows,
                                         UserDefaults &defaults) {
    return defaults.set(settingsKey(tag), storedText(stored(rows)));
}

UserDefaults::Outcome chooseModificationTemplate(ModificationTag tag, int key,
                                                 UserDefaults &defaults) {
    return defaults.set(settingsKey(tag), std::to_string(key));
}

std::vector<TextModificationTemplate> textModTemplates(const UserDefaults &defaults) {
    std::vector<TextModificationTemplate> templates;
    const auto array = arrayFrom(defaults.stringForKey(templatesKey), mostTemplates);
    if (!array)
        return templates;
    templates.reserve(static_cast<std::size_t>(array->size()));
    for (const QJsonValue &each : *array)
        if (auto read = templateFrom(each.toObject()))
            templates.push_back(*std::move(read));
    std::ranges::stable_sort(templates, {}, &TextModificationTemplate::key);
    return templates;
}

UserDefaults::Outcome storeTextModTemplates(std::vector<TextModificationTemplate> templates,
                                            UserDefaults &defaults) {
    std::ranges::stable_sort(templates, {}, &TextModificationTemplate::key);
    QJsonArray array;
    for (const TextModificationTemplate &each : templates)
        array.append(QJsonObject{{keyName, QString::number(each.key)},
                                 {nameName, valueOf(each.name)},
                                 {rowsName, stored(each.rows)}});
    return defaults.set(templatesKey, storedText(array));
}

} // namespace chronomender
