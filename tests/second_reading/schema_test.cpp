#include <algorithm>
#include <sstream>
#include <string>

#include <doctest/doctest.h>

#include "schema/loader.hpp"
#include "second_reading/every_text.hpp"
#include "second_reading/plain_schema.hpp"
#include "second_reading/tokens.hpp"

using namespace nurl::test;
using nurl::input::gamess::schema::read_schema;

namespace {

/// Compares the two loaders over every short row of lines behind a beginning. A line is worth
/// several tokens of a deck, so the rows are shorter.
void check_every_row(const std::string& beginning) {
    const std::size_t length = std::max<std::size_t>(exhaustive_length(5), 3) - 2;
    const Comparison comparison =
        compare_every_text(schema_lines, length, [&beginning](const std::string& rows) {
            std::istringstream stream{beginning + rows};
            return read_schema(stream) == read_schema_plainly(beginning + rows);
        });
    CHECK(comparison.first_difference.empty());
    CHECK_MESSAGE(comparison.texts == count_texts(schema_lines.size(), length),
                  comparison.first_difference);
}

}  // namespace

TEST_CASE("Every short schema file loads as the plain loader loads it") { check_every_row(""); }

TEST_CASE("Every short row of groups loads as the plain loader loads it") {
    check_every_row("sections:\n");
}

TEST_CASE("Every short row of keywords loads as the plain loader loads it") {
    check_every_row("sections:\n  $B:\n    entries:\n");
}
