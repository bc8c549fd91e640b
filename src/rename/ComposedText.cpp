// SPDX-License-Identifier: GPL-3.0-or-later
#include "ComposedText.h"

#include "AsciiText.h"
#include "FolderAccess.h"

#include <QStringDecoder>
#include <QTextBoundaryFinder>

namespace chronomender {
namespace {

bool isIndicatorAt(const QString &text, qsizetype place) {
    constexpr char32_t first = 0x1F1E6, last = 0x1F1FF;
    if (place + 1 >= text.size() || !QChar::isSurrogate(text[place].unicode()))
        return false;
    const char32_t code = QChar::surrogateToUcs4(text[place], text[place + 1]);
    return code >= first && code <= last;
}

/// Two regional indicators make a flag, paired from the first one on (rules GB12 and GB13). Qt
/// counts an emoji in front of them as well, and so parts the flags behind one. In their place
/// comes a letter with a mark, which nobody parts, of the same length.
QString withFlagsAsLetters(QString text) {
    constexpr char32_t letter = 0x1D400, mark = 0x1D167;
    bool isSecond = false;
    for (qsizetype place = 0; place < text.size(); ++place) {
        if (!isIndicatorAt(text, place)) {
            isSecond = false;
            continue;
        }
        const char32_t shown = isSecond ? mark : letter;
        text[place] = QChar::highSurrogate(shown);
        text[++place] = QChar::lowSurrogate(shown);
        isSecond = !isSecond;
    }
    return text;
}

} // namespace

QString wideText(std::string_view utf8) {
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    return decoder(QByteArrayView(utf8.data(), static_cast<qsizetype>(utf8.size())));
}

ComposedText::ComposedText(std::string_view text)
    : m_text(text), m_isBytewise(isAscii(text) || !isValidUtf8(text)) {
    if (m_isBytewise)
        return;
    const QString wide = wideText(text);
    const QString shown = withFlagsAsLetters(wide);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, shown);
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
