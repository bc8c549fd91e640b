// SPDX-License-Identifier: GPL-3.0-or-later
#include "TemplateStore.h"
#include "TemplateText.h"
#include "Texts.h"

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
    } cases[] = {{"{counter}", "{counter:5}"},         {"{}a{}{}b{}", "a{}b"},
                 {"{year}{}{month}", "{year}{month}"}, {"{{{year2}}}", "{{{year2}}}"},
                 {"a{{{}b}}{}", "a{{{}b}}"},           {"", ""}};
    for (const auto &each : cases)
        EXPECT_EQ(textOf(read(each.text)), each.same) << each.text;
    EXPECT_EQ(read("{{}}").stringParts, std::vector{TemplatePart::ofText("{}")});
    EXPECT_EQ(read("\u00E9{hour}").stringParts,
              (std::vector{TemplatePart::ofText("\u00E9"), TemplatePart::ofElement(Hour)}));
}

TEST(TemplateTextTest, TellsWhereATextGoesWrong) {
    const struct {
        const char *key;
        std::vector<std::pair<std::string, std::size_t>> texts; ///< and the place
    } cases[] = {
        {"unknownElement", {{"a{Year}", 1}, {"{ year}", 0}}},
        {"twice", {{"{year}{year2}", 6}, {"{counter}{counter:3}", 9}, {"{addon1}{addon1}", 8}}},
        {"counterDigits", {{"{counter:0}", 0}, {"x{counter:10}", 1}}},
        {"addOnOrder", {{"{addon2}", 0}, {"{addon1}{addon3}", 8}}},
        {"braceWithoutEnd", {{"ab{year", 2}}},
        {"braceWithoutBegin", {{"ab}", 2}, {"{year}}", 6}}},
        {"refusedCharacter",
         {{"a:b", 1},
          {"../x", 2},
          {"\\", 0},
          {std::string("a\0", 2), 1},
          {"a\x7F", 1},
          {"\u0085", 0},
          {"\u00E9\u061C", 2},
          {"\u200F", 0},
          {"\u202E", 0},
          {"\u2069", 0}}},
        {"notUtf8", {{"a\xC3(", 1}, {"\u20AC\xED\xA0\x80", 3}, {"a\xF0\x9F", 1}}}};
    for (const auto &[key, texts] : cases)
        for (const auto &[written, place] : texts) {
            const auto result = templateFromText(written);
            const auto *error = std::get_if<TemplateTextError>(&result);
            ASSERT_TRUE(error) << written;
            EXPECT_EQ(error->place, place) << written;
            const std::string element =
                written.substr(place + 1, written.find('}', place) - place - 1);
            EXPECT_EQ(error->message, text(std::string("templateTextError_") + key, {element}));
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

std::string repeated(const std::string &text, int times) {
    std::string all = text;
    for (int i = 1; i < times; ++i)
        all += ',' + text;
    return all;
}

TEST(TemplateStoreTest, ReadsWhatOthersWrote) {
    const auto part = [](const std::string &kind, const std::string &textId) {
        return R"({"kind":")" + kind + R"(","textId":")" + textId + "\"}";
    };
    const auto list = [](const std::string &parts, const std::string &options = "{}") {
        return R"([{"options":)" + options + R"(,"stringParts":[)" + parts + "]}]";
    };
    const std::string factory = textOf(factoryTemplates()[0]), counter = part("graphic", "7.tif");
    const std::pair<std::string, std::string> cases[] = {
        {list(part("graphic", "1.tif") + ',' + part("graphic", "2.tif") + ',' + counter,
              R"({"1.tif":"0","2.tif":0,"7.tif":"2"})"),
         "{year2}{month1}{counter:3}"},
        {list(counter, R"({"7.tif":999999999})"), "{counter:9}"},
        {list(counter, R"({"7.tif":"-3"})"), "{counter:1}"},
        {list(counter, R"({"7.tif":1.5})"), "{counter:5}"},
        {list(part("graphic", "0.tif") + ',' + part("graphic", "13.tif") + ",7,null"), ""},
        {list(part("text", "../x") + ',' + part("text", "a\\u0000b")), ""},
        {list(part("text", std::string(5000, 'x'))), ""},
        {list(repeated(part("text", "x"), 201)), factory},
        {'[' + repeated("{\"stringParts\":[]}", 1001) + ']', factory},
        {"[7]", factory},
        {"{}", factory},
        {std::string(100'000, '['), factory},
        {"\xFF", factory}};
    for (const auto &[stored, text] : cases) {
        UserDefaults defaults;
        defaults.set("renameTemplates_7", stored);
        EXPECT_EQ(textOf(renameTemplatesRaw(defaults).at(0)), text) << stored.substr(0, 200);
    }
}

} // namespace
} // namespace chronomender
