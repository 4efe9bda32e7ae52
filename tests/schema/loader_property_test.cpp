#include <string>
#include <tuple>
#include <vector>

#include <doctest/doctest.h>
#include <rapidcheck.h>

#include "schema/plain_loader.hpp"
#include "schema/read_text.hpp"

using nurl::input::gamess::schema::Table;
using nurl::test::built_in_names;
using nurl::test::load_plainly;
using nurl::test::read_text;

namespace {

using Text = rc::Gen<std::string>;

std::string joined(const std::vector<std::string>& parts) {
    std::string text;
    for (const std::string& part : parts) text += part;
    return text;
}

/// Bytes that mean something in a schema file come more often than others.
Text any_text() {
    const auto byte =
        rc::gen::weightedOneOf<char>({{3, rc::gen::elementOf(std::string{" \n:#'\"$()\r\t\0", 12})},
                                      {1, rc::gen::arbitrary<char>()}});
    return rc::gen::container<std::string>(byte);
}

Text name() {
    return rc::gen::weightedOneOf<std::string>(
        {{6, rc::gen::element<std::string>("a", "$A", "b", "data", "$CONTRL", "", "$", "$$a",
                                           "c(1)", "C (2)", "(1)", "x(1)y", "'a", " \ta")},
         {1, any_text()}});
}

Text property() {
    const auto key = rc::gen::element<std::string>(
        "requires_end", "allow_unknown_entries", "allow_raw_lines", "parse_mode", "Parse_Mode",
        "alias_of", "kind", "value_type", "indexed", "$repeated", "known", "");
    const auto value = rc::gen::weightedOneOf<std::string>(
        {{6, rc::gen::element<std::string>("yes", "No", "$on", "'off'", "1", "0", "maybe", "raw",
                                           "STRUCTURED", "\"flag\"", "value", "a#b", "'a#b'", "''",
                                           "' int '", "$a", "", "a: b")},
         {1, any_text()}});
    return rc::gen::map(rc::gen::tuple(key, value), [](const auto& pair) {
        return std::get<0>(pair) + ": " + std::get<1>(pair);
    });
}

/// Spaces in front of a line, mostly as many as the ladder asks for.
Text indentation(int depth) {
    const auto width =
        rc::gen::weightedOneOf<int>({{9, rc::gen::just(depth)}, {1, rc::gen::inRange(0, 11)}});
    return rc::gen::map(
        width, [](int count) { return std::string(static_cast<std::size_t>(count), ' '); });
}

Text line(int depth, const Text& text) {
    const auto end = rc::gen::element<std::string>("\n", "\r\n", " # note\n", " \t\n");
    return rc::gen::map(rc::gen::tuple(indentation(depth), text, end), [](const auto& parts) {
        return std::get<0>(parts) + std::get<1>(parts) + std::get<2>(parts);
    });
}

Text any_line() {
    const auto header = rc::gen::map(name(), [](const std::string& text) { return text + ':'; });
    const auto odd = rc::gen::element<std::string>(
        "", "# note", "word", "- item", "\ttext:", "Entries:", "entries: x", "sections:", "x:");
    return rc::gen::weightedOneOf<std::string>(
        {{4, line(2, header)},
         {4, line(4, property())},
         {6, line(4, rc::gen::just<std::string>("entries:"))},
         {6, line(6, header)},
         {8, line(8, property())},
         {1, line(0, any_text())},
         {2, line(4, odd)}});
}

/// A schema file that a careless hand has written.
Text schema_text() {
    const auto start = rc::gen::weightedElement<std::string>({{6, "sections:\n"},
                                                              {1, "\xEF\xBB\xBFsections:\n"},
                                                              {1, "version: 1\nsections:\r\n"},
                                                              {1, "Sections:\n"}});
    const auto lines =
        rc::gen::map(rc::gen::container<std::vector<std::string>>(30, any_line()), joined);
    const auto again = rc::gen::element<std::string>("", "sections:\n", "other:\n");
    return rc::gen::map(rc::gen::tuple(start, lines, again, lines), [](const auto& parts) {
        return std::get<0>(parts) + std::get<1>(parts) + std::get<2>(parts) + std::get<3>(parts);
    });
}

}  // namespace

TEST_CASE("Any schema text reads as the plain loader reads it") {
    const Table built_in = read_text("");
    CHECK(rc::check([&built_in] {
        const std::string text = *schema_text();
        RC_ASSERT(read_text(text) == load_plainly(text, built_in));
    }));
}

TEST_CASE("Any bytes read as the plain loader reads them") {
    const Table built_in = read_text("");
    CHECK(rc::check([&built_in] {
        const std::string text = "sections:\n" + *any_text();
        RC_ASSERT(read_text(text) == load_plainly(text, built_in));
    }));
}

TEST_CASE("No schema text takes a built-in group away or leaves a group unknown") {
    CHECK(rc::check([] {
        const Table table = read_text(*schema_text());
        for (const std::string& name : built_in_names) RC_ASSERT(table.contains(name));
        for (const auto& [name, spec] : table) RC_ASSERT(spec.known);
    }));
}

TEST_CASE("Line ends with carriage returns read as those without") {
    CHECK(rc::check([] {
        const std::string text = *schema_text();
        std::string with_returns;
        for (const char c : text) with_returns += c == '\n' ? std::string{"\r\n"} : std::string{c};
        RC_ASSERT(read_text(with_returns) == read_text(text));
    }));
}
