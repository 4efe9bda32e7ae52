#include <string>

#include <doctest/doctest.h>

#include "nurl/input/gamess/reader.hpp"
#include "second_reading/every_text.hpp"
#include "second_reading/plain_scanner.hpp"
#include "second_reading/tokens.hpp"

using namespace nurl::test;
using nurl::input::gamess::detail::scan_key_values;

TEST_CASE("Every short text scans as the plain scanner scans it") {
    const std::size_t length = exhaustive_length(5);
    const Comparison comparison = compare_every_text(
        deck_tokens, length,
        [](const std::string& text) { return scan_key_values(text) == scan_plainly(text); });
    CHECK(comparison.first_difference.empty());
    CHECK_MESSAGE(comparison.texts == count_texts(deck_tokens.size(), length),
                  comparison.first_difference);
}
