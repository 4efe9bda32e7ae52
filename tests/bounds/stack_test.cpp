#include <algorithm>
#include <cstddef>
#include <string>

#include <doctest/doctest.h>

#include "bounds/counting.hpp"
#include "bounds/painted_stack.hpp"
#include "growth/family.hpp"
#include "nurl/input/gamess/schema.hpp"
#include "schema/loader.hpp"

namespace growth = nurl::bench::growth;
namespace schema = nurl::input::gamess::schema;
using nurl::test::stack_used_by;

namespace {

/// What SECURITY.md promises.
constexpr std::size_t most_stack = 32768;

void check_family(const growth::Family& family) {
    constexpr std::size_t n = 400;
    const growth::Input input{text_of(family.shape, n), n};
    INFO(family.name);
    CHECK(stack_used_by([&] { family.operation(input); }) <= most_stack);
}

/// Calls itself. Each call needs some of the stack, and does something after it.
std::size_t depth(std::size_t levels) {  // NOLINT(misc-no-recursion): to be noticed
    volatile std::byte room[64] = {};
    room[levels % 64] = std::byte{1};
    return levels == 0 ? 0 : depth(levels - 1) + static_cast<std::size_t>(room[levels % 64]);
}

}  // namespace

TEST_SUITE_BEGIN("stack" * doctest::skip(nurl::test::is_sanitized()));

TEST_CASE("Hostile input of every family takes no more of the stack than is promised") {
    REQUIRE(schema::find_entry("CONTRL", "MAXIT") != nullptr);
    for (const growth::Table table : growth::tables())
        for (const growth::Family& family : table()) check_family(family);
}

TEST_CASE("Finding and loading the schema takes no more of the stack than is promised") {
    CHECK(stack_used_by([] {
              const std::string path = schema::resolve_schema_path("");
              REQUIRE(schema::load_schema(path, nullptr).size() > 100);
          }) <= most_stack);
}

TEST_CASE("What calls itself for each piece of its input would be noticed") {
    constexpr std::size_t levels = 400;
    std::size_t reached = 0;
    CHECK(stack_used_by([&] { reached = depth(levels); }) > most_stack);
    CHECK(reached == levels);
}

TEST_SUITE_END();
