// SPDX-License-Identifier: GPL-3.0-or-later
#include "BlockCollector.h"

#include "Texts.h"
#include "Utf8Text.h"

#include <algorithm>

namespace chronomender {

void BlockCollector::fail(std::string message) {
    if (!m_error)
        m_error = std::move(message);
}

void BlockCollector::add(OptionId id, const char *name, const std::string &value) {
    if (m_error)
        return;
    switch (id) {
    case OptionId::Path:
    case OptionId::Folder:
        checkOpenPic();
        m_line.blocks.push_back({});
        m_line.blocks.back().path = value;
        m_line.blocks.back().isPlain = id == OptionId::Path;
        if (value.empty())
            fail(text("cli_error_emptyPath"));
        return;
    case OptionId::Shift:
    case OptionId::Pic:
    case OptionId::SourceZone:
    case OptionId::TargetZone:
    case OptionId::EmptyTags:
        addToBlock(id, name, value);
        return;
    default:
        addToRun(id, value);
    }
}

void BlockCollector::finish() {
    checkOpenPic();
    if (m_line.blocks.empty())
        fail(text("cli_error_noPaths"));
}

void BlockCollector::checkOpenPic() {
    if (m_pic)
        fail(text("cli_error_picWithoutShift", {printable(*m_pic)}));
}

void BlockCollector::addToRun(OptionId id, const std::string &value) {
    switch (id) {
    case OptionId::Json:
        m_line.isJson = true;
        break;
    case OptionId::DryRun:
        m_line.isDryRun = true;
        break;
    case OptionId::All:
        m_line.savesAll = true;
        break;
    case OptionId::Set:
        addSetting(value);
        break;
    case OptionId::Accept:
        addAccepted(value);
        break;
    case OptionId::SystemZone:
        m_line.systemZone = value;
        break;
    default:
        break;
    }
}

void BlockCollector::addSetting(const std::string &value) {
    const std::size_t equals = value.find('=');
    if (equals == std::string::npos || equals == 0)
        fail(text("cli_error_badSetting", {printable(value)}));
    else
        m_line.settings.emplace_back(value.substr(0, equals), value.substr(equals + 1));
}

void BlockCollector::addAccepted(const std::string &value) {
    if (value == "all")
        m_line.acceptsAll = true;
    else if (const auto problem = problemWithKey(value))
        m_line.accepted.insert(*problem);
    else
        fail(text("cli_error_unknownProblem", {printable(value)}));
}

void BlockCollector::addToBlock(OptionId id, const char *name, const std::string &value) {
    if (m_line.blocks.empty() || m_line.blocks.back().isPlain) {
        fail(text("cli_error_optionWithoutFolder", {name}));
        return;
    }
    FolderBlock &block = m_line.blocks.back();
    using Text = std::optional<std::string>;
    switch (id) {
    case OptionId::Shift:
        addShift(block, name, value);
        break;
    case OptionId::Pic:
        checkOpenPic();
        m_pic = value;
        break;
    case OptionId::SourceZone:
        setOnce(block.sourceZone, name, Text(value), "", value);
        break;
    case OptionId::TargetZone:
        setOnce(block.targetZone, name, Text(value), "", value);
        break;
    case OptionId::EmptyTags:
        setOnce(block.emptyTags, name, parseEmptyTags(value), "cli_error_badEmptyTags", value);
        break;
    default:
        break;
    }
}

void BlockCollector::addShift(FolderBlock &block, const char *name, const std::string &value) {
    const auto shift = parseShift(value);
    if (!m_pic) {
        setOnce(block.shift, name, shift, "cli_error_badShift", value);
        return;
    }
    const std::string pic = *std::exchange(m_pic, std::nullopt);
    const bool isKnown = std::any_of(block.picShifts.begin(), block.picShifts.end(),
                                     [&](const auto &other) { return other.first == pic; });
    if (isKnown)
        fail(text("cli_error_picTwice", {printable(pic)}));
    else if (!shift)
        fail(text("cli_error_badShift", {printable(value)}));
    else
        block.picShifts.emplace_back(pic, *shift);
}

template<class Value>
void BlockCollector::setOnce(std::optional<Value> &place, const char *name,
                             std::optional<Value> value, const char *complaintKey,
                             const std::string &typed) {
    if (place)
        fail(text("cli_error_optionTwice", {name, printable(m_line.blocks.back().path)}));
    else if (!value)
        fail(text(complaintKey, {printable(typed)}));
    else
        place = std::move(value);
}

} // namespace chronomender
