// SPDX-License-Identifier: GPL-3.0-or-later
#include "CompiledPredicate.h"
#include "MySingleFolder.h"
#include "PredicateRewriting.h"
#include "Require.h"

namespace {

using namespace chronomender;

/// An item with a name that has to be folded.
const MySinglePic &item() {
    static const MySingleFolderPtr folder =
        MySingleFolder::initWithFolder("/trip", nullptr, EditMode::Together);
    static const MySinglePicPtr pic =
        MySinglePic::create("E\u0301te\u0301.jpg", folder, SpTypeExifOriginal, absl::UnixEpoch());
    return *pic;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char *>(data), size);
    const auto read = parsePredicate(text);
    if (const auto *error = std::get_if<PredicateError>(&read)) {
        require(error->position <= size && !error->textKey.empty());
        return 0;
    }
    const Predicate &predicate = std::get<Predicate>(read);
    const auto again = parsePredicate(predicateFormat(predicate));
    require(std::holds_alternative<Predicate>(again) && std::get<Predicate>(again) == predicate);

    static const Zones zones;
    const auto matches = [](const Predicate &each) {
        return CompiledPredicate(each, {zones}).matches(item());
    };
    require(matches({Predicate::Kind::Not, {}, {predicate}}) != matches(predicate));
    const Predicate run = completeFilterPredicate(optimizedAlternative(predicate));
    require(std::holds_alternative<Predicate>(parsePredicate(predicateFormat(run))));
    return 0;
}
