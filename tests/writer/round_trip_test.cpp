#include <string>

#include <doctest/doctest.h>
#include <rapidcheck.h>

#include "nurl/input/gamess/reader.hpp"
#include "support/deck_generator.hpp"

using nurl::input::gamess::GamessInput;
using nurl::input::gamess::parse_string;
using nurl::test::deck_text;
using nurl::test::document;

namespace {

/// Canonical text with what a reading adds to it: the blank that stands in front of the last `$END`
/// is one more line of `$DATA`.
std::string with_blank_line(std::string text) {
    constexpr std::string_view end = " $END\n";
    if (text.find(" $DATA\n") != std::string::npos) text.insert(text.size() - end.size(), " \n");
    return text;
}

bool has_molecule(const std::string& text) { return text.find(" $DATA\n") != std::string::npos; }

}  // namespace

TEST_CASE("Canonical text read and written again gains one blank line in $DATA at most") {
    CHECK(rc::check([] {
        const std::string text = (*document()).to_string();
        RC_CLASSIFY(text.empty(), "empty");
        RC_CLASSIFY(has_molecule(text), "with $DATA");
        RC_ASSERT(parse_string(text).input.to_string() == with_blank_line(text));
    }));
}

TEST_CASE("Canonical text reads as the same document each time but for a blank line of $DATA") {
    CHECK(rc::check([] {
        const std::string text = (*document()).to_string();
        GamessInput first = parse_string(text).input;
        const GamessInput second = parse_string(first.to_string()).input;
        if (first.has_data) first.data_lines.emplace_back(" ");
        RC_ASSERT(second == first);
    }));
}

TEST_CASE("Canonical text keeps what the records and $DATA hold") {
    CHECK(rc::check([] {
        const GamessInput deck = parse_string(*deck_text()).input;
        GamessInput again = parse_string(deck.to_string()).input;
        if (deck.has_data) {
            RC_ASSERT(again.data_lines.back() == " ");
            again.data_lines.pop_back();
        }
        RC_ASSERT(again.data_lines == deck.data_lines);
        RC_ASSERT(again.atoms.size() == deck.atoms.size());
        RC_ASSERT(again.control == deck.control);
        if (again.system) RC_ASSERT(again.system == deck.system);
        if (again.basis) RC_ASSERT(again.basis == deck.basis);
        if (again.scf) RC_ASSERT(again.scf == deck.scf);
        if (again.guess) RC_ASSERT(again.guess == deck.guess);
    }));
}
