// SPDX-License-Identifier: GPL-3.0-or-later
#include "LittleLivePhoto.h"
#include "MendRun.h"

#include <algorithm>
#include <fstream>
#include <gmock/gmock.h>
#include <map>
#include <set>

namespace chronomender {
namespace {

struct Field {
    std::string type;
    bool isAlways = false;
};
/// By kind of line and path of the field, such as "slots.*.old" and "values[].key".
using Schema = std::map<std::string, std::map<std::string, Field>>;

std::vector<std::string> cellsOf(const std::string &row) {
    std::vector<std::string> cells;
    std::istringstream stream(row.substr(1));
    for (std::string cell; std::getline(stream, cell, '|');) {
        cell.erase(0, cell.find_first_not_of(" `"));
        cell.erase(cell.find_last_not_of(" `") + 1);
        cells.push_back(cell);
    }
    return cells;
}

/// The rows "| list | `path` | string | always | … |" of the manual: what is promised there is what
/// is tested here.
Schema documentedSchema() {
    static const std::set<std::string> kinds{"list",     "info",    "save",   "rename",
                                             "template", "summary", "resumed"};
    Schema schema;
    std::ifstream manual(std::string(CHRONOMENDER_SOURCE_TREE) + "/docs/cli.md");
    for (std::string row; std::getline(manual, row);) {
        const auto cells = row.starts_with("| ") ? cellsOf(row) : std::vector<std::string>();
        if (cells.size() >= 4 && kinds.contains(cells[0]))
            schema[cells[0]][cells[1]] = {cells[2], cells[3] == "always"};
    }
    return schema;
}

std::string typeOf(const Json &value) {
    return value.is_number_integer() ? "integer" : value.type_name();
}

void flatten(const Json &value, const std::string &path,
             std::multimap<std::string, std::string> &out) {
    if (!path.empty())
        out.emplace(path, typeOf(value));
    if (value.is_array())
        for (const Json &element : value)
            flatten(element, path + "[]", out);
    if (value.is_object())
        for (const auto &[key, member] : value.items())
            flatten(member,
                    path.empty()      ? key
                    : path == "slots" ? "slots.*"
                                      : path + '.' + key,
                    out);
}

/// Every field of the line is documented with its type, and what is always there is there.
void expectDocumented(const Json &line, const std::map<std::string, Field> &fields,
                      std::set<std::string> &seen) {
    std::multimap<std::string, std::string> found;
    flatten(line, "", found);
    for (const auto &[path, type] : found) {
        const auto field = fields.find(path);
        ASSERT_NE(field, fields.end()) << path << " is not documented";
        const bool isNumber = field->second.type == "number" && type == "integer";
        EXPECT_TRUE(type == field->second.type || isNumber) << path << " is of type " << type;
        seen.insert(path);
    }
    for (const auto &[path, field] : fields)
        if (field.isAlways && path.find_first_of(".[") == std::string::npos) {
            EXPECT_TRUE(found.contains(path)) << path << " is missing in " << line;
        }
}

class JsonSchema : public MendTest {
protected:
    JsonSchema() {
        write("trip/full.jpg", little::fullPhotoFields());
        writePhoto("trip/empty.jpg", "0000:00:00 00:00:00");
        little::PhotoFields poor;
        poor.make = poor.model = "";
        poor.original = "2024:05:06 07:08:09";
        poor.digitized = "not a date at all!!";
        write("trip/poor.jpg", poor);
        writeZonedPhoto("trip/live.jpg", "2024:05:06 07:08:09", "+00:00");
        disk().write("trip/live.mov", little::liveMovie());
        disk().write("trip/live.aae", "<plist/>");
        writePhoto("trip/night.jpg", "2024:10:27 02:30:00"); // happens twice in Berlin
    }

    /// All lines fit, and each documented field is seen at least once.
    void expectSchema(const std::string &kind, const std::vector<Json> &lines) {
        const Schema schema = documentedSchema();
        ASSERT_TRUE(schema.contains(kind)) << "docs/cli.md has no table for " << kind;
        std::set<std::string> seen;
        for (const Json &line : lines)
            expectDocumented(line, schema.at(kind), seen);
        for (const auto &[path, field] : schema.at(kind))
            if (path != "errorIds[]") { // needs a file that fails in the middle of a save
                EXPECT_TRUE(seen.contains(path)) << kind << ": " << path << " never came";
            }
    }
};

TEST_F(JsonSchema, OfListIsTheDocumentedOne) {
    expectSchema("list",
                 mend({"list", "--json", "--system-zone", "Europe/Berlin", path("trip")}).lines());
}

TEST_F(JsonSchema, OfInfoIsTheDocumentedOne) {
    const auto lines =
        mend({"info", "--json", "--system-zone", "Europe/Berlin", path("trip")}).lines();
    expectSchema("info", lines);
    const auto built = little::jpegPhoto(little::fullPhotoFields());
    const auto &full = *std::find_if(lines.begin(), lines.end(), [](const Json &line) {
        return line.at("path").get<std::string>().ends_with("full.jpg");
    });
    for (const Json &value : full.at("values")) {
        const auto place = built.offsets.find(value.at("key"));
        ASSERT_NE(place, built.offsets.end()) << value;
        EXPECT_EQ(value.at("offset"), place->second) << value;
    }
    EXPECT_EQ(full.at("values").size(), built.offsets.size());
}

TEST_F(JsonSchema, OfSaveIsTheDocumentedOne) {
    const Arguments arguments{
        "save", "--json",   "--system-zone",           "UTC", "--folder", path("trip"), "--shift",
        "60",   "--accept", "error_13_unreadableStamp"};
    auto lines = mend(arguments).lines();
    lines.pop_back();
    expectSchema("save", lines);
    expectSchema("resumed", {mend({"resume", "--json"}).lines().at(0).at("summary")});
}

TEST_F(JsonSchema, OfRenameIsTheDocumentedOne) {
    disk().write("trip/.2024.jpg/x", "a stranger");
    const auto lines = mend({"save", "--rename", "--json", "--system-zone", "UTC", path("trip"),
                             "--template-text", ".{year}", "--set", "frontDotHandlingMode=2"})
                           .lines();
    expectSchema("summary", {lines.back().at("summary")});
    std::vector<Json> names;
    std::ranges::copy_if(lines, std::back_inserter(names),
                         [](const Json &line) { return line.contains("newPath"); });
    expectSchema("rename", names);
    expectSchema("template", mend({"rename", "--templates", "--json"}).lines());
}

} // namespace
} // namespace chronomender
