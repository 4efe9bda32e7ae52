// A deck of any bytes: it reads as the plain reader reads it, nothing inside a group is lost, and
// its canonical text is read and written again as it is.
#include "nurl/input/gamess/reader.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "bytes.hpp"
#include "reader/kept_text.hpp"
#include "require.hpp"
#include "second_reading/plain_reader.hpp"
#include "second_reading/plain_scanner.hpp"
#include "second_reading/plain_text.hpp"

namespace {

using nurl::fuzz::require;
using nurl::input::gamess::AtomRecord;
using nurl::input::gamess::GamessInput;
using nurl::input::gamess::KeyValue;
using nurl::input::gamess::NamedSection;
using nurl::input::gamess::parse_string;
using nurl::input::gamess::ParseResult;

/// Canonical text with the line of one blank that the end of `$DATA` leaves when it is read.
std::string with_blank_line(std::string text) {
    constexpr std::string_view end = " $END\n";
    return text.insert(text.size() - end.size(), " \n");
}

/// Free text is written on lines of its own, where it must not become a header or a pair.
bool stays_free_text(const std::string& line) {
    return !line.starts_with('$') && nurl::test::scan_plainly(line).empty();
}

/// Pairs of several lines are written on one, where a parenthesis that a value leaves open could be
/// closed by a later one.
bool closes_parentheses(const KeyValue& entry) {
    std::size_t open = 0;
    for (const char c : entry.value) {
        if (c == '(') ++open;
        if (c == ')' && open > 0) --open;
    }
    return open == 0;
}

bool stays_as_written(const NamedSection& section) {
    return std::ranges::all_of(section.raw_lines, stays_free_text) &&
           std::ranges::all_of(section.entries, closes_parentheses);
}

/// The label of an atom may read as its index, and a charge is rounded to six decimals, without a
/// point where all of them are zero.
bool stays_as_written(const AtomRecord& atom) {
    constexpr double decimals = 1e6;
    const double charge = *atom.nuclear_charge;
    const bool is_whole = charge == std::round(charge);
    const bool is_broken = std::abs(charge - std::round(charge)) * decimals >= 1.0;
    return !atom.symbol.starts_with('$') && !nurl::test::plain::integer_of(atom.symbol) &&
           (is_whole || is_broken);
}

/// A second `$DATA` can have text directly behind its name that begins with a `$`.
bool stays_data_line(const std::string& line) {
    return !nurl::test::plain::trimmed(line).starts_with('$');
}

/// Whether the canonical text of a document says the same as the document. A deck from the field
/// always does; bytes can be chosen so that a piece of text means something else on its own line.
bool stays_as_written(const GamessInput& deck) {
    return stays_data_line(deck.title) && stays_data_line(deck.point_group) &&
           std::ranges::all_of(deck.data_lines, stays_data_line) &&
           std::ranges::all_of(deck.sections,
                               [](const NamedSection& one) { return stays_as_written(one); }) &&
           std::ranges::all_of(deck.atoms,
                               [](const AtomRecord& one) { return stays_as_written(one); });
}

void check_canonical_text(const GamessInput& deck) {
    const std::string canonical = deck.to_string();
    const std::string again = parse_string(canonical).input.to_string();
    require(again == (deck.has_data ? with_blank_line(canonical) : canonical),
            "canonical text is read and written again as it is but for one blank line of $DATA");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text = nurl::fuzz::text_of(data, size);
    const ParseResult deck = parse_string(text);
    require(deck == nurl::test::read_plainly(text), "a deck reads as the plain reader reads it");
    require(nurl::test::lost_text(text, deck.input).empty(), "nothing inside a group is lost");
    if (stays_as_written(deck.input)) check_canonical_text(deck.input);
    return 0;
}
