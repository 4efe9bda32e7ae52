#include <sstream>

#include <doctest/doctest.h>

#include "nurl/input/gamess/schema.hpp"
#include "schema/loader.hpp"
#include "schema/schema_line.hpp"
#include "schema/table.hpp"

namespace schema = nurl::input::gamess::schema;
using Words = std::vector<std::string>;

namespace {

Words list(std::string_view value) {
    const auto items = schema::read_list(value);
    return {items.begin(), items.end()};
}

/// The choices of keyword K of group G that a text gives.
Words choices_from(const std::string& properties) {
    std::istringstream stream("sections:\n  G:\n    entries:\n      K:\n" + properties);
    schema::Choices choices;
    const schema::Table table = schema::read_schema(stream, &choices);
    const auto hit = choices.find(&table.at("g").entries.at("k"));
    return hit == choices.end() ? Words{} : list(hit->second);
}

Words choices_known(std::string_view section, std::string_view entry) {
    const auto choices = schema::choices_of(schema::find_entry(section, entry));
    return {choices.begin(), choices.end()};
}

}  // namespace

TEST_CASE("The choices of a keyword are read with the schema") {
    CHECK(choices_from("        choices: [A, B C , 'D,E']\n") == Words{"A", "B C", "'D", "E'"});
    CHECK(choices_from("        choices: ['TRUE', -1]  # two\n") == Words{"TRUE", "-1"});
    CHECK(choices_from("        Choices: [A]\n") == Words{"A"});
    CHECK(choices_from("        kind: value\n") == Words{});
    CHECK(choices_from("        choices: A, B\n") == Words{});
    CHECK(choices_from("        choices: [A]\n        choices: [B]\n") == Words{"B"});
    CHECK(choices_from("        choices: [A]\n      K:\n") == Words{});
}

TEST_CASE("A list is split at its commas") {
    CHECK(list("[]") == Words{});
    CHECK(list("[ ]") == Words{});
    CHECK(list("[A,,B,]") == Words{"A", "B"});
    CHECK(list("[") == Words{});
    CHECK(list("]") == Words{});
    CHECK(list("[A, B") == Words{});
    CHECK(list("A, B]") == Words{});
    CHECK(list("") == Words{});
}

TEST_CASE("Reading a schema without a table for choices gives the same groups") {
    const std::string text = "sections:\n  G:\n    entries:\n      K:\n        choices: [A]\n";
    std::istringstream first(text);
    std::istringstream second(text);
    schema::Choices choices;
    CHECK(schema::read_schema(first) == schema::read_schema(second, &choices));
}

TEST_CASE("The choices of the shipped schema are known, through aliases too") {
    CHECK(choices_known("contrl", "units") == Words{"ANGS", "BOHR"});
    CHECK(choices_known("$CONTRL", "ISPHER") == Words{"-1", "0", "1"});
    CHECK(choices_known("DRT1", "MXNINT") == choices_known("DRT", "MXNINT"));
    CHECK(choices_known("contrl", "mult") == Words{});
    CHECK(choices_known("contrl", "nosuch") == Words{});
    CHECK(schema::choices_of(nullptr).empty());
}
