// SPDX-License-Identifier: GPL-3.0-or-later
#include "WindowMemory.h"

#include <QMainWindow>
#include <QSplitter>

#include <algorithm>

namespace chronomender {
namespace {

constexpr const char *geometryKey = "mainWindowGeometry", *splittersKey = "mainWindowSplitters";

} // namespace

void WindowMemory::keep(const QMainWindow &window, const std::vector<QSplitter *> &splitters) {
    m_defaults.set(geometryKey, window.saveGeometry().toBase64().toStdString());
    QByteArrayList states;
    for (const QSplitter *splitter : splitters)
        states.append(splitter->saveState().toBase64());
    m_defaults.set(splittersKey, states.join(' ').toStdString());
}

void WindowMemory::restore(QMainWindow &window, const std::vector<QSplitter *> &splitters) const {
    const auto stored = [this](const char *key) {
        return QByteArray::fromStdString(m_defaults.stringForKey(key));
    };
    window.restoreGeometry(QByteArray::fromBase64(stored(geometryKey)));
    const QByteArrayList states = stored(splittersKey).split(' ');
    const auto count = std::min(states.size(), static_cast<qsizetype>(splitters.size()));
    for (qsizetype i = 0; i < count; ++i)
        splitters[static_cast<std::size_t>(i)]->restoreState(QByteArray::fromBase64(states[i]));
}

} // namespace chronomender
