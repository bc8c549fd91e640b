// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FilterKeys.h"
#include "FoldedText.h"
#include "MySinglePic.h"
#include "Predicate.h"

#include <cstddef>
#include <cstdint>
#include <variant>
#include <vector>

namespace chronomender {

/// A predicate made ready to be asked of very many items: keys looked up, texts folded, and of what
/// is joined the cheap before the costly. Asking changes nothing. Main thread.
///
/// Where an item has no value (no camera is known, no date can be corrected), `!=` holds, as the
/// item has not that value, and every other comparison fails; `== ""` and `!= ""` ask of a text
/// whether there is none, or one.
class CompiledPredicate {
public:
    CompiledPredicate(const Predicate &predicate, const FilterContext &context);

    bool matches(const MySinglePic &pic) const { return matches(0, pic); }

private:
    struct NumberTest {
        PredicateOperator comparison;
        double wanted;
    };
    struct DateTest {
        PredicateOperator comparison;
        Date wanted;
    };
    /// Predicates in the order of their text: each is followed by its operands.
    struct Node {
        Predicate::Kind kind = Predicate::Kind::And;
        std::uint32_t end = 0; ///< behind the last of its operands
        const FilterKey *key = nullptr;
        std::variant<NumberTest, DateTest, TextTest> test;
    };

    void add(const Predicate &predicate);
    void addComparison(Node &node, const Comparison &comparison) const;
    bool matches(std::size_t index, const MySinglePic &pic) const;
    bool matchesAnyOperand(std::size_t index, const MySinglePic &pic, bool wanted) const;
    bool matchesComparison(const Node &node, const MySinglePic &pic) const;

    FilterContext m_context;
    std::vector<Node> m_nodes;
};

} // namespace chronomender
