// SPDX-License-Identifier: GPL-3.0-or-later
#include "Texts.h"

#include <QLocale>
#include <QString>
#include <QTranslator>

#include <array>
#include <memory>

// Outside any namespace, as the resource compiler names what it makes.
static void registerTextResources() {
    Q_INIT_RESOURCE(texts);
}

namespace chronomender {
namespace {

constexpr std::string_view fallbackLanguage = "en";
constexpr std::array<std::string_view, 2> languages = {fallbackLanguage, "de"};

/// The chosen language, and English for what it lacks. Held apart from the application's own
/// translators, so that the lookup needs no lock and no application object.
struct LoadedTexts {
    std::unique_ptr<QTranslator> chosen;
    std::unique_ptr<QTranslator> fallback;
};

LoadedTexts &loaded() {
    static LoadedTexts texts;
    return texts;
}

std::unique_ptr<QTranslator> loadLanguage(std::string_view language) {
    auto translator = std::make_unique<QTranslator>();
    const QString name = QStringLiteral(":/texts/chronomender_") +
                         QString::fromUtf8(language.data(), qsizetype(language.size()));
    return translator->load(name) ? std::move(translator) : nullptr;
}

std::string_view knownLanguage(std::string_view wanted) {
    for (const std::string_view language : languages)
        if (wanted.substr(0, language.size()) == language)
            return language;
    return {};
}

std::string_view usersLanguage() {
    for (const QString &name : QLocale::system().uiLanguages())
        if (const auto known = knownLanguage(name.toStdString()); !known.empty())
            return known;
    return fallbackLanguage;
}

QString lookUp(const std::string &key) {
    for (const auto *translator : {loaded().chosen.get(), loaded().fallback.get()}) {
        if (translator == nullptr)
            continue;
        if (QString found = translator->translate(nullptr, key.c_str()); !found.isEmpty())
            return found;
    }
    return {};
}

/// Replaces in one pass, so that an argument that itself holds "%1" stays as it is.
std::string filled(std::string_view pattern, std::initializer_list<std::string> arguments) {
    std::string result;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        const bool isPlace = pattern[i] == '%' && i + 1 < pattern.size() && pattern[i + 1] >= '1' &&
                             pattern[i + 1] <= '9';
        const auto number = isPlace ? static_cast<std::size_t>(pattern[i + 1] - '1') : 0;
        if (isPlace && number < arguments.size()) {
            result += arguments.begin()[number];
            ++i;
        } else {
            result += pattern[i];
        }
    }
    return result;
}

} // namespace

void loadTexts(std::string_view language) {
    registerTextResources();
    const auto given = knownLanguage(language);
    loaded().chosen = loadLanguage(given.empty() ? usersLanguage() : given);
    loaded().fallback = loadLanguage(fallbackLanguage);
}

std::string text(std::string_view key, std::initializer_list<std::string> arguments) {
    const std::string name(key);
    const QString found = lookUp(name);
    return filled(found.isEmpty() ? name : found.toStdString(), arguments);
}

} // namespace chronomender
