// SPDX-License-Identifier: GPL-3.0-or-later
#include "ComposedText.h"

#include "AsciiText.h"

#include <QString>
#include <QTextBoundaryFinder>

namespace chronomender {

ComposedText::ComposedText(std::string_view text) : m_text(text), m_isAscii(isAscii(text)) {
    if (m_isAscii)
        return;
    const QString wide = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, wide);
    m_starts.reserve(static_cast<std::size_t>(wide.size()) + 1);
    m_starts.push_back(0);
    qsizetype begin = 0;
    for (qsizetype end = finder.toNextBoundary(); end > 0; end = finder.toNextBoundary()) {
        const qsizetype bytes = QStringView(wide).sliced(begin, end - begin).toUtf8().size();
        m_starts.push_back(m_starts.back() + static_cast<std::size_t>(bytes));
        begin = end;
    }
}

} // namespace chronomender
