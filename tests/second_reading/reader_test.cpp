#include "nurl/input/gamess/reader.hpp"

#include <string>
#include <vector>

#include <doctest/doctest.h>

#include "second_reading/every_text.hpp"
#include "second_reading/plain_reader.hpp"
#include "second_reading/tokens.hpp"

using namespace nurl::test;
using nurl::input::gamess::parse_string;

namespace {

/// Compares the two readers over every short text behind a beginning.
void check_every_text(const std::string& beginning, const std::vector<std::string>& tokens) {
    const std::size_t length = exhaustive_length(4);
    const Comparison comparison =
        compare_every_text(tokens, length, [&beginning](const std::string& text) {
            const std::string deck = beginning + text;
            return parse_string(deck) == read_plainly(deck);
        });
    CHECK(comparison.first_difference.empty());
    CHECK_MESSAGE(comparison.texts == count_texts(tokens.size(), length),
                  comparison.first_difference);
}

}  // namespace

TEST_CASE("Every short text reads as the plain reader reads it") {
    check_every_text("", deck_tokens);
}

TEST_CASE("Every short text of a keyword group reads as the plain reader reads it") {
    check_every_text("$A ", deck_tokens);
}

TEST_CASE("Every short text of a raw group reads as the plain reader reads it") {
    check_every_text("$VEC\n", deck_tokens);
}

TEST_CASE("Every short text of a structured group reads as the plain reader reads it") {
    check_every_text("$CONTRL ", deck_tokens);
}

TEST_CASE("Every short text of $DATA reads as the plain reader reads it") {
    check_every_text("$DATA\n", deck_tokens);
}

TEST_CASE("Every short text of a second $DATA reads as the plain reader reads it") {
    check_every_text("$DATA Title\n $END\n$data", deck_tokens);
}

TEST_CASE("Every short row of $CONTRL keywords reads as the plain reader reads it") {
    check_every_text("$CONTRL", control_tokens);
}

TEST_CASE("Every short row of atom words reads as the plain reader reads it") {
    check_every_text("$DATA\nTitle\nC1\n1 8. 0 0", molecule_tokens);
    check_every_text("$DATA Title\r", molecule_tokens);
}
