// SPDX-License-Identifier: GPL-3.0-or-later
#include "CompiledPredicate.h"

#include "PredicateRewriting.h"

#include <algorithm>

namespace chronomender {
namespace {

template<class Value>
bool holds(const Value &value, PredicateOperator comparison, const Value &wanted) {
    switch (comparison) {
    case PredicateOperator::Equal:
        return value == wanted;
    case PredicateOperator::NotEqual:
        return value != wanted;
    case PredicateOperator::Less:
        return value < wanted;
    case PredicateOperator::LessOrEqual:
        return value <= wanted;
    case PredicateOperator::Greater:
        return value > wanted;
    case PredicateOperator::GreaterOrEqual:
        return value >= wanted;
    default:
        return false;
    }
}

bool isCostly(const Predicate &predicate) {
    if (predicate.kind != Predicate::Kind::Comparison)
        return std::ranges::any_of(predicate.operands, isCostly);
    const FilterKey *key = findFilterKey(predicate.comparison.key);
    return key && key->isCostly;
}

/// A date in a text without a zone is meant in the system's.
Date instantOf(const PredicateValue &value, const Zones &zones) {
    if (const Date *date = std::get_if<Date>(&value))
        return *date;
    const auto *text = std::get_if<std::string>(&value);
    const auto stamp = text ? readFilterDate(*text) : std::nullopt;
    return stamp ? instantFromIsoStamp(*stamp, zones.systemZone().rules) : InfinitePast();
}

template<class Value>
Value valueOr(const PredicateValue &value, Value otherwise) {
    const Value *found = std::get_if<Value>(&value);
    return found ? *found : otherwise;
}

} // namespace

CompiledPredicate::CompiledPredicate(const Predicate &predicate, const FilterContext &context)
    : m_context(context) {
    add(optimizedAlternative(predicate));
}

void CompiledPredicate::add(const Predicate &predicate) {
    const std::size_t index = m_nodes.size();
    m_nodes.push_back({predicate.kind, 0, nullptr, NumberTest{}});
    if (predicate.kind == Predicate::Kind::Comparison)
        addComparison(m_nodes.back(), predicate.comparison);
    for (const bool addsCostly : {false, true})
        for (const Predicate &operand : predicate.operands)
            if (isCostly(operand) == addsCostly)
                add(operand);
    m_nodes[index].end = static_cast<std::uint32_t>(m_nodes.size());
}

void CompiledPredicate::addComparison(Node &node, const Comparison &comparison) const {
    node.key = findFilterKey(comparison.key);
    if (!node.key)
        return;
    if (node.key->text)
        node.test = TextTest(valueOr<std::string>(comparison.value, {}), comparison.comparison,
                             comparison.flags);
    else if (node.key->date)
        node.test = DateTest{comparison.comparison, instantOf(comparison.value, m_context.zones)};
    else
        node.test = NumberTest{comparison.comparison, valueOr<double>(comparison.value, 0)};
}

bool CompiledPredicate::matches(std::size_t index, const MySinglePic &pic) const {
    switch (m_nodes[index].kind) {
    case Predicate::Kind::Comparison:
        return matchesComparison(m_nodes[index], pic);
    case Predicate::Kind::And:
        return !matchesAnyOperand(index, pic, false);
    case Predicate::Kind::Or:
        return matchesAnyOperand(index, pic, true);
    case Predicate::Kind::Not:
        return matchesAnyOperand(index, pic, false);
    }
    return false;
}

bool CompiledPredicate::matchesAnyOperand(std::size_t index, const MySinglePic &pic,
                                          bool wanted) const {
    for (std::size_t each = index + 1; each < m_nodes[index].end; each = m_nodes[each].end)
        if (matches(each, pic) == wanted)
            return true;
    return false;
}

bool CompiledPredicate::matchesComparison(const Node &node, const MySinglePic &pic) const {
    if (const auto *text = std::get_if<TextTest>(&node.test)) {
        std::string scratch;
        return text->matches(node.key->text(pic, scratch));
    }
    if (const auto *date = std::get_if<DateTest>(&node.test)) {
        const OptionalDate value = node.key->date(pic);
        return value ? holds(*value, date->comparison, date->wanted)
                     : date->comparison == PredicateOperator::NotEqual;
    }
    if (!node.key || !node.key->number)
        return false;
    const auto &number = std::get<NumberTest>(node.test);
    return holds(static_cast<double>(node.key->number(pic, m_context)), number.comparison,
                 number.wanted);
}

} // namespace chronomender
