// SPDX-License-Identifier: GPL-3.0-or-later
#include "TemplateStore.h"
#include "TemplateText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace chronomender {
namespace {

using enum RenameElement;

RenameTemplate read(const std::string &text) {
    const auto result = templateFromText(text);
    const auto *error = std::get_if<TemplateTextError>(&result);
    EXPECT_FALSE(error) << text << ": " << error->message << " at " << error->place;
    return error ? RenameTemplate() : std::get<RenameTemplate>(result);
}

TEST(TemplateTextTest, WritesTheFactorysTemplates) {
    const char *const texts[] = {"P{month1}{day}{counter:4}", "DSC{counter:5}", "IMG{}_{counter:4}",
                                 "{addon1}_{counter:3}", "{year}_{month}_{day}_{counter:3}"};
    ASSERT_EQ(factoryTemplates().size(), std::size(texts));
    for (std::size_t i = 0; i < std::size(texts); ++i) {
        EXPECT_EQ(textOf(factoryTemplates()[i]), texts[i]);
        EXPECT_EQ(read(texts[i]), factoryTemplates()[i]);
    }
}

TEST(TemplateTextTest, ReadsWhatCanBeWrittenInSeveralWays) {
    const struct {
        const char *text, *same;
    } cases[] = {
        {"{counter}", "{counter:5}"},         {"{}a{}{}b{}", "a{}b"},
        {"{year}{}{month}", "{year}{month}"}, {"{{{year2}}}", "{{{year2}}}"},
        {"a{{{}b}}{}", "a{{{}b}}"},           {"", ""},
    };
    for (const auto &each : cases)
        EXPECT_EQ(textOf(read(each.text)), each.same) << each.text;
    EXPECT_EQ(read("{{}}").stringParts, std::vector{TemplatePart::ofText("{}")});
    EXPECT_EQ(read("\u00E9{hour}").stringParts,
              (std::vector{TemplatePart::ofText("\u00E9"), TemplatePart::ofElement(Hour)}));
}

TEST(TemplateTextTest, TellsWhereATextGoesWrong) {
    const struct {
        std::string text;
        std::size_t place;
        const char *key;
    } cases[] = {
        {"a{Year}", 1, "unknownElement"},
        {"{year}{year2}", 6, "twice"},
        {"{counter}{counter:3}", 9, "twice"},
        {"{counter:0}", 0, "counterDigits"},
        {"x{counter:10}", 1, "counterDigits"},
        {"{addon2}", 0, "addOnOrder"},
        {"{addon1}{addon3}", 8, "addOnOrder"},
        {"{addon1}{addon1}", 8, "twice"},
        {"ab{year", 2, "braceWithoutEnd"},
        {"ab}", 2, "braceWithoutBegin"},
        {"{year}}", 6, "braceWithoutBegin"},
        {"a:b", 1, "refusedCharacter"},
        {"../x", 2, "refusedCharacter"},
        {"\\", 0, "refusedCharacter"},
        {std::string("a\0", 2), 1, "refusedCharacter"},
        {"a\x7F", 1, "refusedCharacter"},
        {"\u0085", 0, "refusedCharacter"},
        {"\u00E9\u061C", 2, "refusedCharacter"},
        {"\u200F", 0, "refusedCharacter"},
        {"\u202E", 0, "refusedCharacter"},
        {"\u2069", 0, "refusedCharacter"},
        {"a\xC3(", 1, "notUtf8"},
        {"\u20AC\xED\xA0\x80", 3, "notUtf8"},
        {"a\xF0\x9F", 1, "notUtf8"},
    };
    for (const auto &each : cases) {
        const auto result = templateFromText(each.text);
        const auto *error = std::get_if<TemplateTextError>(&result);
        ASSERT_TRUE(error) << each.text;
        EXPECT_EQ(error->place, each.place) << each.text;
        EXPECT_EQ(error->message, std::string("templateTextError_") + each.key) << each.text;
    }
    for (const char *text : {"\u00A0", "\u200D", "\u202F", "\u2065", "\u206A", "\U0001F468"})
        read(text);
}

/// A template that the text form can tell: each element once, no two options without their element.
RenameTemplate randomTemplate(std::mt19937 &random) {
    const auto below = [&](int limit) { return static_cast<int>(random() % unsigned(limit)); };
    static const std::vector<std::string> runs{"{", "}", "{}", "_", "e\u0301", "{year}", ".", " "};
    RenameTemplate made;
    for (int count = below(12); count > 0; --count) {
        const auto element = static_cast<RenameElement>(1 + below(renameElementCount));
        const auto used =
            std::ranges::count(made.stringParts, std::optional(element), &TemplatePart::element);
        if (below(2) == 0)
            made.stringParts.push_back(TemplatePart::ofText(runs[random() % runs.size()]));
        else if (used < mostOccurrences(element))
            made.stringParts.push_back(TemplatePart::ofElement(element));
    }
    made.options = {made.has(Year) ? below(2) : 1, made.has(Month) ? below(2) : 1,
                    made.has(Counter) ? below(mostCounterDigits) : 4};
    return made;
}

TEST(TemplateTextTest, ReadsEveryTemplateBackAsItWas) {
    std::mt19937 random(7);
    for (int i = 0; i < 2000; ++i) {
        const RenameTemplate made = randomTemplate(random);
        EXPECT_EQ(read(textOf(made)), made) << textOf(made);
    }
}

TEST(TemplateStoreTest, KeepsTemplates) {
    std::mt19937 random(8);
    std::vector<RenameTemplate> templates{read("a\"b")};
    for (int i = 0; i < 30; ++i)
        templates.push_back(randomTemplate(random));
    UserDefaults defaults;
    EXPECT_EQ(renameTemplatesRaw(defaults), factoryTemplates());
    EXPECT_EQ(selectedTemplate(defaults), factoryTemplates()[0]);
    EXPECT_EQ(storeRenameTemplates(templates, defaults), UserDefaults::Outcome::Done);
    EXPECT_EQ(renameTemplatesRaw(defaults), templates);
    defaults.set("templateSelectedIndex", "30");
    EXPECT_EQ(selectedTemplate(defaults), templates[30]);
    defaults.set("templateSelectedIndex", "31");
    EXPECT_EQ(selectedTemplate(defaults), std::nullopt);
}

TEST(TemplateStoreTest, ReadsWhatOthersWrote) {
    const auto graphic = [](const std::string &textId) {
        return R"({"kind":"graphic","textId":")" + textId + "\"}";
    };
    const auto run = [](const std::string &textId) {
        return R"({"kind":"text","textId":")" + textId + "\"}";
    };
    const auto list = [](const std::string &parts, const std::string &options = "{}") {
        return R"([{"options":)" + options + R"(,"stringParts":[)" + parts + "]}]";
    };
    const std::string factory = textOf(factoryTemplates()[0]);
    std::string manyParts = run("x"), manyTemplates = "[{\"stringParts\":[]}";
    for (int i = 0; i < 1000; ++i) {
        if (i < 200)
            manyParts += ',' + run("x");
        manyTemplates += ",{\"stringParts\":[]}";
    }
    const std::pair<std::string, std::string> cases[] = {
        {list(graphic("1.tif") + ',' + graphic("2.tif") + ',' + graphic("7.tif"),
              R"({"1.tif":"0","2.tif":0,"7.tif":"2"})"),
         "{year2}{month1}{counter:3}"},
        {list(graphic("7.tif"), R"({"7.tif":999999999})"), "{counter:9}"},
        {list(graphic("7.tif"), R"({"7.tif":"-3"})"), "{counter:1}"},
        {list(graphic("7.tif"), R"({"7.tif":1.5})"), "{counter:5}"},
        {list(graphic("0.tif") + ',' + graphic("13.tif") + ',' + graphic("x") + ",7,null"), ""},
        {list(run("../x") + ',' + run("a\\u0000b") + ',' + run(std::string(5000, 'x'))), ""},
        {list(manyParts), factory},
        {manyTemplates + ']', factory},
        {"[7]", factory},
        {"{}", factory},
        {std::string(100'000, '['), factory},
        {"\xFF", factory},
    };
    for (const auto &[stored, text] : cases) {
        UserDefaults defaults;
        defaults.set("renameTemplates_7", stored);
        EXPECT_EQ(textOf(renameTemplatesRaw(defaults).at(0)), text) << stored.substr(0, 200);
    }
    UserDefaults empty;
    empty.set("renameTemplates_7", "[]");
    EXPECT_TRUE(renameTemplatesRaw(empty).empty());
}

} // namespace
} // namespace chronomender
