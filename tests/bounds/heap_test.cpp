#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <sstream>
#include <string>
#include <string_view>

#include <doctest/doctest.h>

#include "bounds/counting.hpp"
#include "bounds/operations.hpp"
#include "bounds/short_decks.hpp"
#include "growth/family.hpp"
#include "growth/measure.hpp"
#include "nurl/input/gamess/builder.hpp"
#include "nurl/input/gamess/schema.hpp"
#include "schema/loader.hpp"

namespace growth = nurl::bench::growth;
namespace gamess = nurl::input::gamess;
using nurl::test::heap_used_by;
using nurl::test::is_sanitized;

namespace {

/// What SECURITY.md promises: so many bytes for each byte of input, and so many more.
constexpr std::size_t bytes_per_byte = 100;
constexpr std::size_t bytes_per_byte_of_listings = 700;
constexpr std::size_t further_bytes = 65536;

/// Of these bytes next to nothing is needed, so that small decks show what each byte takes.
constexpr std::size_t few_further_bytes = 2048;

/// The schema is loaded once a process and is no part of any operation.
void load_schema() { REQUIRE(gamess::schema::find_entry("CONTRL", "MAXIT") != nullptr); }

/// How many units make a text of about `size` bytes; even, as a molecule without faults needs it.
std::size_t units_for(const growth::Shape& shape, std::size_t size) {
    constexpr std::size_t few = 100;
    const std::size_t of_few = text_of(shape, few).size() - text_of(shape, 0).size();
    return size * few / of_few / 2 * 2;
}

/// Documents made in code have no text; what these take is looked at below.
bool has_text(const growth::Family& family) { return !family.shape.unit.empty(); }

bool is_listing(std::string_view name) {
    return name.starts_with("take ") || name.starts_with("check ") || name.starts_with("compare ");
}

void check_family(const growth::Family& family) {
    constexpr std::size_t size = 8192;
    const std::size_t n = units_for(family.shape, size);
    const growth::Input input{text_of(family.shape, n), n};
    const std::size_t each = is_listing(family.name) ? bytes_per_byte_of_listings : bytes_per_byte;
    const std::size_t used = heap_used_by([&] { family.operation(input); });
    INFO(family.name);
    CHECK(used <= each * input.text.size() + further_bytes);
}

/// Numbers of units behind which a list that doubles, or grows by half, has just grown.
constexpr auto numbers_of_units = std::to_array<std::size_t>({513, 475});

void check_operations(std::span<const nurl::test::Operation> operations, const std::string& text,
                      std::size_t each) {
    for (const auto& operation : operations) {
        const std::size_t used = heap_used_by([&] { operation.run(text); });
        INFO(operation.name, " a deck that begins with ", text.substr(0, 40));
        CHECK(used <= each * text.size() + few_further_bytes);
    }
}

void check_operations(std::span<const nurl::test::Operation> operations,
                      std::span<const growth::Shape> shapes, std::size_t each) {
    for (const growth::Shape& shape : shapes)
        for (const std::size_t n : numbers_of_units)
            check_operations(operations, text_of(shape, n), each);
}

/// Names of three letters that all differ, each between two texts.
std::string different_names(std::string_view before, std::string_view behind) {
    constexpr std::string_view letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
    std::string text;
    for (std::size_t i = 0; i < numbers_of_units[0]; ++i) {
        text += before;
        for (const std::size_t place : {i / 676, i / 26, i}) text += letters[place % 26];
        text += behind;
    }
    return text;
}

void check_schema(const std::string& text) {
    std::istringstream stream{text};
    gamess::schema::Choices choices;
    const std::size_t used = heap_used_by([&] {
        static_cast<void>(
            growth::measured([&] { return gamess::schema::read_schema(stream, &choices); }));
    });
    INFO("a schema that ends with ", text.substr(text.size() - 40));
    CHECK(used <= bytes_per_byte * text.size() + further_bytes);
}

/// What building takes, for each byte of the deck that is built.
void check_building(void (*add_to)(gamess::InputBuilder& builder)) {
    std::size_t size = 0;
    const std::size_t used = heap_used_by([&] {
        const std::string text = growth::measured([&] {
            gamess::InputBuilder builder;
            for (std::size_t i = 0; i < numbers_of_units[0]; ++i) add_to(builder);
            return builder.to_string();
        });
        size = text.size();
    });
    CHECK(used <= bytes_per_byte * size + few_further_bytes);
}

}  // namespace

TEST_SUITE_BEGIN("heap" * doctest::skip(is_sanitized()));

TEST_CASE("Hostile input of every family takes no more of the heap than is promised") {
    load_schema();
    for (const growth::Table table : growth::tables())
        for (const growth::Family& family : table())
            if (has_text(family)) check_family(family);
}

TEST_CASE("Documents of the shortest pieces take no more of the heap than is promised") {
    load_schema();
    check_operations(nurl::test::document_operations(), nurl::test::short_documents(),
                     bytes_per_byte);
}

TEST_CASE("Texts of the shortest pieces take no more of the heap than is promised") {
    load_schema();
    check_operations(nurl::test::text_operations(), nurl::test::short_texts(), bytes_per_byte);
}

TEST_CASE("Names that all differ take no more of the heap than is promised") {
    load_schema();
    for (const std::string& text : {different_names("$", "\n"), different_names(" $", " $END\n"),
                                    " $FORCE " + different_names("", "=1 ") + "$END\n",
                                    " $CONTRL " + different_names("", "=1 ") + "$END\n"}) {
        check_operations(nurl::test::document_operations(), text, bytes_per_byte);
        check_operations(nurl::test::text_operations(), text, bytes_per_byte);
    }
    check_operations(nurl::test::text_operations(),
                     " $FORCE " + different_names("", "=") + "$END\n", bytes_per_byte);
}

TEST_CASE("A schema takes no more of the heap than is promised") {
    check_schema("sections:\n" + different_names("  ", ":\n"));
    check_schema("sections:\n" + different_names("  ", ":\n    alias_of: A\n"));
    check_schema("sections:\n  A:\n    entries:\n" + different_names("      ", ":\n"));
    check_schema("sections:\n" + different_names("  ", ":\n    entries:\n      A:\n"));
    check_schema("sections:\n  A:\n    entries:\n" +
                 different_names("      ", ":\n        choices: [A]\n"));
}

TEST_CASE("Building a deck takes no more of the heap than is promised") {
    check_building([](gamess::InputBuilder& builder) { builder.add_atom({"H", {}, 0, 0, 0}); });
    check_building([](gamess::InputBuilder& builder) { builder.add_section({"", {}, {}}); });
    check_building([](gamess::InputBuilder& builder) {
        builder.add_section({"A", {{"A", "1"}}, {"x"}});
    });
    check_building([](gamess::InputBuilder& builder) { builder.add_control_keyword("A", "1"); });
}

TEST_CASE("Items, findings and differences take no more of the heap than is promised") {
    load_schema();
    check_operations(nurl::test::listing_operations(), nurl::test::short_texts(),
                     bytes_per_byte_of_listings);
}

TEST_SUITE_END();
