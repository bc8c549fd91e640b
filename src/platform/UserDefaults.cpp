// SPDX-License-Identifier: GPL-3.0-or-later
#include "UserDefaults.h"

#include "DefaultsStore.h"

#include <algorithm>
#include <charconv>

namespace chronomender {
namespace {

/// The whole of `text` as a number: no sign "+", no blanks, nothing behind it.
std::optional<int> wholeNumber(std::string_view text) {
    int number = 0;
    const char *end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    return error == std::errc() && stop == end ? std::optional(number) : std::nullopt;
}

bool isAllowed(const DefaultEntry &entry, std::string_view value) {
    if (entry.kind == DefaultEntry::Kind::Text)
        return true;
    const auto number = wholeNumber(value);
    if (!number)
        return false;
    if (entry.kind == DefaultEntry::Kind::Number)
        return *number >= *entry.allowed.begin() && *number <= *(entry.allowed.end() - 1);
    return std::ranges::find(entry.allowed, *number) != entry.allowed.end();
}

} // namespace

UserDefaults::UserDefaults(std::string storePath) : m_storePath(std::move(storePath)) {
    m_stored = defaultsStore::read(m_storePath);
    std::erase_if(m_stored, [](const auto &stored) {
        return check(stored.first, stored.second) != Outcome::Done;
    });
}

int UserDefaults::integerForKey(std::string_view key) const {
    const std::lock_guard lock(m_mutex);
    const auto value = valueLocked(key);
    return value ? wholeNumber(*value).value_or(0) : 0;
}

std::string UserDefaults::stringForKey(std::string_view key) const {
    const std::lock_guard lock(m_mutex);
    return std::string(valueLocked(key).value_or(std::string_view()));
}

UserDefaults::Outcome UserDefaults::setForThisRun(std::string_view key, std::string_view value) {
    const Outcome outcome = check(key, value);
    const std::lock_guard lock(m_mutex);
    if (outcome == Outcome::Done)
        m_thisRun.insert_or_assign(std::string(key), std::string(value));
    return outcome;
}

UserDefaults::Outcome UserDefaults::set(std::string_view key, std::string_view value) {
    const Outcome outcome = check(key, value);
    if (outcome != Outcome::Done)
        return outcome;
    const std::lock_guard lock(m_mutex);
    m_stored.insert_or_assign(std::string(key), std::string(value));
    if (const auto override = m_thisRun.find(key); override != m_thisRun.end())
        m_thisRun.erase(override);
    return m_storePath.empty() || storeLocked(key, value) ? Outcome::Done : Outcome::NotStored;
}

std::string UserDefaults::allowedText(const DefaultEntry &entry) {
    if (entry.kind == DefaultEntry::Kind::Text)
        return "any text";
    const char *separator = entry.kind == DefaultEntry::Kind::Number ? " to " : ", ";
    std::string words;
    for (const int number : entry.allowed)
        words += (words.empty() ? "" : separator) + std::to_string(number);
    return words;
}

UserDefaults::Outcome UserDefaults::check(std::string_view key, std::string_view value) {
    const DefaultEntry *entry = findDefaultEntry(key);
    if (entry == nullptr)
        return Outcome::UnknownKey;
    return isAllowed(*entry, value) ? Outcome::Done : Outcome::ValueNotAllowed;
}

std::optional<std::string_view> UserDefaults::valueLocked(std::string_view key) const {
    for (const auto *values : {&m_thisRun, &m_stored})
        if (const auto found = values->find(key); found != values->end())
            return found->second;
    const DefaultEntry *entry = findDefaultEntry(key);
    return entry != nullptr ? std::optional(entry->registeredValue) : std::nullopt;
}

// Only the one key is changed in what stands on disk now: another window of the program may have
// stored something since, and a newer version may keep keys there that this one does not know.
bool UserDefaults::storeLocked(std::string_view key, std::string_view value) const {
    auto onDisk = defaultsStore::read(m_storePath);
    onDisk.insert_or_assign(std::string(key), std::string(value));
    return defaultsStore::write(m_storePath, onDisk);
}

} // namespace chronomender
