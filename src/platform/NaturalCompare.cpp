// SPDX-License-Identifier: GPL-3.0-or-later
#include "NaturalCompare.h"

#include <QCollator>
#include <QLocale>
#include <QString>

namespace chronomender {
namespace {

QLocale collationLocale() {
    const QLocale users = QLocale::system().collation();
    return users.language() == QLocale::C ? QLocale(QLocale::English) : users;
}

QString decoded(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

struct NaturalCompare::Collator {
    Collator() : collator(collationLocale()) { collator.setNumericMode(true); }
    QCollator collator;
};

NaturalCompare::NaturalCompare() : m_collator(std::make_unique<Collator>()) {}
NaturalCompare::~NaturalCompare() = default;

int NaturalCompare::compare(std::string_view a, std::string_view b) const {
    return a == b ? 0 : m_collator->collator.compare(decoded(a), decoded(b));
}

QCollatorSortKey NaturalCompare::sortKey(std::string_view name) const {
    return m_collator->collator.sortKey(decoded(name));
}

} // namespace chronomender
