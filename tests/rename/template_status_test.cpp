// SPDX-License-Identifier: GPL-3.0-or-later
#include "RenameTemplate.h"

#include <gtest/gtest.h>

namespace chronomender {
namespace {

TEST(TemplateStatusTest, TellsWhetherNamesCanDiffer) {
    using enum RenameElement;
    using enum TemplateStatus;
    const auto status = [](std::vector<TemplatePart> parts) {
        return statusOf({{}, std::move(parts)});
    };
    const auto text = TemplatePart::ofText("Trip");
    EXPECT_EQ(status({}), OnlyOneName);
    EXPECT_EQ(status({text, TemplatePart::ofElement(FolderName)}), OnlyOneName);
    EXPECT_EQ(status({text, TemplatePart::ofElement(AddOn)}), OnlyOneName);
    EXPECT_EQ(status({text, TemplatePart::ofElement(Second)}), NamesMayBeEqual);
    EXPECT_EQ(status({TemplatePart::ofElement(Year), TemplatePart::ofElement(Counter)}), Good);
    EXPECT_EQ(status({TemplatePart::ofElement(SourceName)}), Good);
}

} // namespace
} // namespace chronomender
