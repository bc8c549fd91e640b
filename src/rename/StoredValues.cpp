// SPDX-License-Identifier: GPL-3.0-or-later
#include "StoredValues.h"

#include <QJsonDocument>

#include <cmath>
#include <limits>

namespace chronomender::storedValues {

std::optional<QJsonArray> arrayFrom(const std::string &stored, qsizetype mostEntries) {
    const QByteArray bytes =
        QByteArray::fromRawData(stored.data(), static_cast<qsizetype>(stored.size()));
    const QJsonDocument document = QJsonDocument::fromJson(bytes);
    if (!document.isArray() || document.array().size() > mostEntries)
        return std::nullopt;
    return document.array();
}

std::string storedText(const QJsonArray &array) {
    return QJsonDocument(array).toJson(QJsonDocument::Compact).toStdString();
}

std::optional<int> integerFrom(const QJsonValue &value) {
    if (value.isBool())
        return value.toBool() ? 1 : 0;
    if (value.isString()) {
        bool isNumber = false;
        const int number = value.toString().toInt(&isNumber);
        return isNumber ? std::optional(number) : std::nullopt;
    }
    const double number = value.toDouble(std::numeric_limits<double>::quiet_NaN());
    const bool isWhole =
        std::trunc(number) == number && std::abs(number) <= double{std::numeric_limits<int>::max()};
    return isWhole ? std::optional(static_cast<int>(number)) : std::nullopt;
}

std::optional<std::string> textFrom(const QJsonValue &value) {
    if (!value.isString())
        return std::nullopt;
    std::string text = value.toString().toStdString();
    return text.size() <= longestText ? std::optional(std::move(text)) : std::nullopt;
}

QJsonValue valueOf(const std::string &text) {
    return QString::fromStdString(text);
}

} // namespace chronomender::storedValues
