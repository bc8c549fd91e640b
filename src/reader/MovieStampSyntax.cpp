// SPDX-License-Identifier: GPL-3.0-or-later
#include "MovieStampSyntax.h"

namespace chronomender {

namespace {

constexpr std::string_view kDigits = "0123456789";
constexpr std::size_t kUtcLength = 20, kBasicLength = 24, kExtendedLength = 25;
constexpr std::size_t kShortestLocation = 3;

} // namespace

bool isValidQtCreationDateData(std::string_view data) {
    const std::size_t length = data.size();
    if (length != kUtcLength && length != kBasicLength && length != kExtendedLength)
        return false;
    if (data[4] != '-' || data[7] != '-' || data[10] != 'T')
        return false;
    if ((length == kUtcLength && data[19] != 'Z') || (length == kExtendedLength && data[22] != ':'))
        return false;
    return data.substr(0, length - 1).find_first_not_of("0123456789+-:T") == std::string_view::npos;
}

bool isValidQtLocationData(std::string_view data) {
    return data.size() >= kShortestLocation && (data.front() == '+' || data.front() == '-') &&
           (data.back() == '/' || kDigits.find(data.back()) != std::string_view::npos);
}

} // namespace chronomender
