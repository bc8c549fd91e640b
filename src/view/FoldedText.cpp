// SPDX-License-Identifier: GPL-3.0-or-later
#include "FoldedText.h"

#include "AsciiText.h"

#include <QList>
#include <QString>

#include <algorithm>

namespace chronomender {
namespace {

constexpr char lowered(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter | 0x20) : letter;
}

QString withoutMarks(const QString &decomposed) {
    QList<uint> kept = decomposed.toUcs4();
    kept.removeIf([](uint each) {
        const QChar::Category category = QChar::category(each);
        return category == QChar::Mark_NonSpacing || category == QChar::Mark_Enclosing;
    });
    return QString::fromUcs4(reinterpret_cast<const char32_t *>(kept.constData()), kept.size());
}

} // namespace

std::string foldedText(std::string_view text, ComparisonFlags flags) {
    QString folded = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()))
                         .normalized(QString::NormalizationForm_D);
    // By capitals "ß" is "ss", too; Qt folds one letter to one only. Either can compose letters
    // with their marks, or part them.
    if (flags.ignoresCase)
        folded = folded.toUpper().toCaseFolded().normalized(QString::NormalizationForm_D);
    if (flags.ignoresDiacritics)
        folded = withoutMarks(folded);
    return folded.normalized(QString::NormalizationForm_C).toStdString();
}

TextTest::TextTest(std::string_view wanted, PredicateOperator comparison, ComparisonFlags flags)
    : m_wanted(foldedText(wanted, flags)), m_comparison(comparison), m_flags(flags) {}

bool TextTest::isEqualAt(std::string_view value, std::size_t position) const {
    if (position > value.size() || m_wanted.size() > value.size() - position)
        return false;
    if (!m_flags.ignoresCase)
        return value.compare(position, m_wanted.size(), m_wanted) == 0;
    return std::equal(m_wanted.begin(), m_wanted.end(), value.begin() + static_cast<long>(position),
                      [](char wanted, char each) { return wanted == lowered(each); });
}

bool TextTest::isContainedIn(std::string_view value) const {
    if (!m_flags.ignoresCase || m_wanted.empty())
        return value.find(m_wanted) != std::string_view::npos;
    const char first = m_wanted.front();
    for (std::size_t at = 0; at + m_wanted.size() <= value.size(); ++at)
        if (lowered(value[at]) == first && isEqualAt(value, at))
            return true;
    return false;
}

/// By the numbers of the letters, which is the order of the bytes of UTF-8.
int TextTest::order(std::string_view value) const {
    const bool ignoresCase = m_flags.ignoresCase;
    const std::size_t length = std::min(value.size(), m_wanted.size());
    for (std::size_t at = 0; at < length; ++at) {
        const auto own = static_cast<unsigned char>(ignoresCase ? lowered(value[at]) : value[at]);
        const auto other = static_cast<unsigned char>(m_wanted[at]);
        if (own != other)
            return own < other ? -1 : 1;
    }
    return value.size() == m_wanted.size() ? 0 : value.size() < m_wanted.size() ? -1 : 1;
}

bool TextTest::matches(std::string_view value) const {
    using enum PredicateOperator;
    if (value.empty())
        return m_comparison == Equal ? m_wanted.empty()
                                     : m_comparison == NotEqual && !m_wanted.empty();
    std::string folded;
    if (!isAscii(value))
        value = folded = foldedText(value, m_flags);
    switch (m_comparison) {
    case Equal:
        return value.size() == m_wanted.size() && isEqualAt(value, 0);
    case NotEqual:
        return value.size() != m_wanted.size() || !isEqualAt(value, 0);
    case Less:
        return order(value) < 0;
    case LessOrEqual:
        return order(value) <= 0;
    case Greater:
        return order(value) > 0;
    case GreaterOrEqual:
        return order(value) >= 0;
    case Contains:
        return isContainedIn(value);
    case BeginsWith:
        return isEqualAt(value, 0);
    case EndsWith:
        return value.size() >= m_wanted.size() && isEqualAt(value, value.size() - m_wanted.size());
    }
    return false;
}

} // namespace chronomender
