// SPDX-License-Identifier: GPL-3.0-or-later
#include "DefaultsStore.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace chronomender::defaultsStore {
namespace {

constexpr qint64 largestStore = 1 << 20; ///< anything beyond is no preferences file of ours

std::string escaped(std::string_view value) {
    std::string line;
    for (const char c : value) {
        if (c == '\\' || c == '\n')
            line += '\\';
        line += c == '\n' ? 'n' : c;
    }
    return line;
}

std::string unescaped(std::string_view line) {
    std::string value;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const bool isEscape = line[i] == '\\' && i + 1 < line.size();
        const char c = isEscape ? line[++i] : line[i];
        value += isEscape && c == 'n' ? '\n' : c;
    }
    return value;
}

} // namespace

Values read(const std::string &path) {
    QFile file(QFile::decodeName(path.c_str()));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    Values values;
    const QByteArray content = file.read(largestStore);
    for (const QByteArray &line : content.split('\n')) {
        const std::string_view text(line.constData(), static_cast<std::size_t>(line.size()));
        const auto equals = text.find('=');
        if (equals == std::string_view::npos || text.starts_with('#'))
            continue;
        values.insert_or_assign(std::string(text.substr(0, equals)),
                                unescaped(text.substr(equals + 1)));
    }
    return values;
}

bool write(const std::string &path, const Values &values) {
    const QString name = QFile::decodeName(path.c_str());
    if (!QDir().mkpath(QFileInfo(name).absolutePath()))
        return false;
    QSaveFile file(name);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    for (const auto &[key, value] : values) {
        const std::string line = key + '=' + escaped(value) + '\n';
        file.write(line.data(), static_cast<qint64>(line.size()));
    }
    return file.commit();
}

} // namespace chronomender::defaultsStore
