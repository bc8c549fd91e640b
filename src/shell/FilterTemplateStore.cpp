// SPDX-License-Identifier: GPL-3.0-or-later
#include "FilterTemplateStore.h"

#include "FilterSourceController.h"
#include "StoredValues.h"

#include <algorithm>
#include <charconv>

namespace chronomender {
namespace {

using namespace storedValues;
using Outcome = UserDefaults::Outcome;

constexpr std::string_view templatesKey = "filterTemplates";
constexpr qsizetype mostTemplates = 1000;
constexpr QLatin1String keyName("key"), nameName("name"), predicateName("predicate");
constexpr std::size_t keyDigits = 8; ///< so that keys stand in the order of their numbers

std::optional<FilterTemplate> templateFrom(const QJsonObject &stored) {
    const auto key = textFrom(stored.value(keyName)), name = textFrom(stored.value(nameName)),
               predicate = textFrom(stored.value(predicateName));
    if (!key || key->empty() || !name || !predicate)
        return std::nullopt;
    return FilterTemplate{*key, *name, *predicate};
}

/// Behind all others.
std::string newKey(const std::vector<FilterTemplate> &all) {
    unsigned last = 0;
    for (const FilterTemplate &each : all) {
        unsigned number = 0;
        std::from_chars(each.key.data(), each.key.data() + each.key.size(), number);
        last = std::max(last, number);
    }
    const std::string digits = std::to_string(last + 1);
    return std::string(keyDigits - std::min(keyDigits, digits.size()), '0') + digits;
}

auto withKey(const std::string &key, FilterSourceController &filters) {
    return std::ranges::find(filters.allSources, key, &FilterTemplate::key);
}

/// Not more than can be read again.
bool isKept(const std::string &text) {
    return text.size() <= longestText;
}

} // namespace

std::vector<FilterTemplate> storedFilterTemplates(const UserDefaults &defaults) {
    std::vector<FilterTemplate> templates;
    const auto array = arrayFrom(defaults.stringForKey(templatesKey), mostTemplates);
    if (!array)
        return templates;
    for (const QJsonValue &each : *array) {
        auto read = templateFrom(each.toObject());
        if (read &&
            std::ranges::find(templates, read->key, &FilterTemplate::key) == templates.end())
            templates.push_back(*std::move(read));
    }
    return templates;
}

Outcome storeFilterTemplates(const std::vector<FilterTemplate> &templates, UserDefaults &defaults) {
    QJsonArray array;
    for (const FilterTemplate &each : templates)
        array.append(QJsonObject{{keyName, valueOf(each.key)},
                                 {nameName, valueOf(each.name)},
                                 {predicateName, valueOf(each.predicate)}});
    return defaults.set(templatesKey, storedText(array));
}

const FilterTemplate *filterTemplateNamed(const std::string &name,
                                          const std::vector<FilterTemplate> &menu) {
    const auto found = std::ranges::find(menu, name, &FilterTemplate::name);
    return found == menu.end() ? nullptr : &*found;
}

Outcome keepFilterTemplate(const std::string &name, const std::string &predicate,
                           FilterSourceController &filters, UserDefaults &defaults) {
    std::vector<FilterTemplate> &all = filters.allSources;
    const auto menu = filters.updateSource();
    const FilterTemplate *same = filterTemplateNamed(name, menu);
    const bool isFull = !same && all.size() >= static_cast<std::size_t>(mostTemplates);
    if (isFull || !isKept(name) || !isKept(predicate))
        return Outcome::ValueNotAllowed;
    if (same)
        withKey(same->key, filters)->predicate = predicate;
    else
        all.push_back({newKey(all), name, predicate});
    return storeFilterTemplates(all, defaults);
}

Outcome renameFilterTemplate(const std::string &key, const std::string &name,
                             FilterSourceController &filters, UserDefaults &defaults) {
    const auto found = withKey(key, filters);
    if (found == filters.allSources.end() || !isKept(name))
        return Outcome::ValueNotAllowed;
    found->name = name;
    return storeFilterTemplates(filters.allSources, defaults);
}

Outcome removeFilterTemplate(const std::string &key, FilterSourceController &filters,
                             UserDefaults &defaults) {
    std::erase_if(filters.allSources, [&](const FilterTemplate &each) { return each.key == key; });
    return storeFilterTemplates(filters.allSources, defaults);
}

} // namespace chronomender
