// SPDX-License-Identifier: GPL-3.0-or-later
#include "Previews.h"

namespace chronomender {

struct Previews::State {};

Previews::Previews(std::size_t /*mostBytes*/) : m_state(std::make_unique<State>()) {}
Previews::~Previews() = default;
void Previews::setChanged(std::function<void(std::uint32_t)> /*changed*/) {}
PreviewAnswer Previews::preview(const MySinglePicPtr & /*pic*/, int /*side*/) {
    return {};
}
void Previews::forget(const MySinglePicPtr & /*pic*/) {}

} // namespace chronomender
