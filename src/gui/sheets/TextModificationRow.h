// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "TextModification.h"

#include <functional>

class QWidget;

namespace chronomender {

/// The controls of one change, in a row that reads as a sentence. `row` outlives them; `changed` is
/// called after each change of it.
QWidget *makeTextModificationRow(TextModification &row, const std::function<void()> &changed,
                                 QWidget *parent);

/// What each kind of row is called, by the order of the variant.
inline constexpr const char *textModificationNames[]{
    "rename_rowCharCount", "rename_rowUpToString", "rename_rowReplaceWith", "rename_rowChangeCase"};

} // namespace chronomender
