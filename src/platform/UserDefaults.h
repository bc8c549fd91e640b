// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <initializer_list>
#include <map>
#include <mutex>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace chronomender {

/// One preference: its key, its default, and what it may be set to.
struct DefaultEntry {
    enum class Kind : std::uint8_t { Choice, Number, Text };
    std::string_view key;
    std::string_view registeredValue;
    Kind kind = Kind::Choice;
    /// Choice: the numbers that are allowed. Number: the lowest and the highest.
    std::initializer_list<int> allowed{};
};

/// Every preference that the program knows, sorted by key: the one table.
std::span<const DefaultEntry> defaultEntries();
const DefaultEntry *findDefaultEntry(std::string_view key);

/// The user's preferences: registered defaults, overlaid by the stored file, overlaid by the run's
/// own values. Values are texts and are read as integers or booleans. Safe on all threads.
class UserDefaults {
public:
    /// NotStored: the value holds for this run, but the file could not be written.
    enum class Outcome : std::uint8_t { Done, UnknownKey, ValueNotAllowed, NotStored };

    /// Registered defaults only; nothing is read from disk.
    UserDefaults() = default;
    /// Reads the file, if there is one; unknown keys and refused values in it are ignored.
    explicit UserDefaults(std::string storePath);

    int integerForKey(std::string_view key) const; ///< 0 for an unknown key
    bool boolForKey(std::string_view key) const { return integerForKey(key) != 0; }
    std::string stringForKey(std::string_view key) const;

    /// Sets a value for this run only.
    Outcome setForThisRun(std::string_view key, std::string_view value);
    /// Sets and stores a value; it also takes the place of a value that was set for this run.
    Outcome set(std::string_view key, std::string_view value);
    /// Words for what a key accepts, for example "0, 1, 2, 3" or "0 to 3600".
    static std::string allowedText(const DefaultEntry &entry);

private:
    static Outcome check(std::string_view key, std::string_view value);
    std::optional<std::string_view> valueLocked(std::string_view key) const;
    bool storeLocked(std::string_view key, std::string_view value) const;

    mutable std::mutex m_mutex;
    std::string m_storePath;
    std::map<std::string, std::string, std::less<>> m_stored, m_thisRun;
};

} // namespace chronomender
