// SPDX-License-Identifier: GPL-3.0-or-later
#include "FreeNames.h"

#include <QString>

#include <algorithm>
#include <unordered_set>

namespace chronomender {
namespace {

bool isAscii(const std::string &name) {
    return std::ranges::all_of(name,
                               [](char each) { return static_cast<unsigned char>(each) < 0x80; });
}

bool isLetter(char character) {
    const char lower = static_cast<char>(character | 0x20);
    return lower >= 'a' && lower <= 'z';
}

char lowered(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character | 0x20) : character;
}

std::string inOtherCase(std::string name) {
    for (char &each : name)
        if (isLetter(each))
            each = static_cast<char>(each ^ 0x20);
    return name;
}

} // namespace

std::string FreeNames::key(const std::string &name) const {
    if (m_rule == CaseRule::Sensitive)
        return name;
    if (!isAscii(name))
        return QString::fromStdString(name)
            .normalized(QString::NormalizationForm_D)
            .toCaseFolded()
            .normalized(QString::NormalizationForm_D)
            .toStdString();
    std::string folded(name.size(), '\0');
    std::ranges::transform(name, folded.begin(), lowered);
    return folded;
}

std::uint8_t FreeNames::find(const std::string &name) const {
    const auto found =
        m_rule == CaseRule::Sensitive ? m_states.find(name) : m_states.find(key(name));
    return found == m_states.end() ? std::uint8_t{0} : found->second;
}

bool FreeNames::isTaken(const std::string &name) const {
    const std::uint8_t state = find(name);
    return (state & Given) != 0 || (state & (Existing | GivenUp)) == Existing;
}

void FreeNames::takeAllBack() {
    for (auto &[name, state] : m_states)
        state &= ~Given;
}

FreeNames::CaseRule caseRuleOf(const std::string &folderPath,
                               const std::vector<FolderEntry> &entries, FileLayer &files) {
    std::unordered_set<std::string> names;
    for (const FolderEntry &entry : entries)
        names.insert(entry.name);
    const auto attributesOf = [&, prefix = folderPath + '/'](const std::string &name) {
        return files.attributes(std::string(prefix).append(name));
    };
    for (const FolderEntry &entry : entries) {
        const std::string other = inOtherCase(entry.name);
        // Where both are listed they are two names, be they of one file.
        if (names.contains(other))
            continue;
        const auto there = attributesOf(other);
        const auto self = there ? attributesOf(entry.name) : std::nullopt;
        return self && self->isSameFile(*there) ? FreeNames::CaseRule::Insensitive
                                                : FreeNames::CaseRule::Sensitive;
    }
    return FreeNames::CaseRule::Sensitive;
}

std::string joinedName(const std::string &base, std::int64_t number, const std::string &extension) {
    std::string name;
    constexpr std::size_t roomOfNumber = 21;
    name.reserve(base.size() + roomOfNumber + extension.size());
    name = base;
    if (number >= 2)
        name.append(1, ' ').append(std::to_string(number));
    if (!extension.empty())
        name.append(1, '.').append(extension);
    return name;
}

} // namespace chronomender
