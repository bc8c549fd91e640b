// SPDX-License-Identifier: GPL-3.0-or-later
#include "FolderAccess.h"

namespace chronomender {
namespace {

struct Sequence {
    std::uint32_t smallest; ///< a shorter form exists for anything below
    std::uint32_t leadBits;
    std::size_t trailing;
};

std::optional<Sequence> sequenceOf(unsigned char lead) {
    if ((lead & 0xE0) == 0xC0)
        return Sequence{0x80, lead & 0x1FU, 1};
    if ((lead & 0xF0) == 0xE0)
        return Sequence{0x800, lead & 0x0FU, 2};
    if ((lead & 0xF8) == 0xF0)
        return Sequence{0x10000, lead & 0x07U, 3};
    return std::nullopt;
}

bool isScalarValue(std::uint32_t code) {
    return code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF);
}

} // namespace

bool isValidUtf8(std::string_view text) {
    for (std::size_t at = 0; at < text.size(); ++at) {
        const auto lead = static_cast<unsigned char>(text[at]);
        if (lead < 0x80)
            continue;
        const auto sequence = sequenceOf(lead);
        if (!sequence || text.size() - at <= sequence->trailing)
            return false;
        std::uint32_t code = sequence->leadBits;
        for (std::size_t i = 0; i < sequence->trailing; ++i) {
            const auto next = static_cast<unsigned char>(text[++at]);
            if ((next & 0xC0) != 0x80)
                return false;
            code = code << 6 | (next & 0x3FU);
        }
        if (code < sequence->smallest || !isScalarValue(code))
            return false;
    }
    return true;
}

} // namespace chronomender
