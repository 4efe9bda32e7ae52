#include "corpus/corpus.hpp"

#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <doctest/doctest.h>

#include "model/printing.hpp"
#include "nurl/core/text.hpp"
#include "nurl/input/gamess/reader.hpp"
#include "nurl/input/gamess/validation.hpp"
#include "reader/kept_text.hpp"

using namespace nurl::input::gamess;
using namespace nurl::test;
using Lines = std::vector<std::string>;

namespace {

/// `text` with the line of one blank that the end of `$DATA` leaves when it is read.
std::string with_blank_line(const std::string& text) {
    constexpr std::string_view end = " $END\n";
    if (!text.ends_with(end)) return text;
    return text.substr(0, text.size() - end.size()) + " \n" + std::string{end};
}

std::string written_again(const std::string& text) { return parse_string(text).input.to_string(); }

}  // namespace

TEST_SUITE_BEGIN("real decks" * doctest::skip(!has_corpus()));

TEST_CASE("Every real deck is read") {
    for (const Deck& deck : corpus()) {
        CAPTURE(deck.name);
        const ParseResult result = parse_file(deck.path);
        CHECK(result.ok);
        CHECK(result.error.empty());
        CHECK(result == parse_string(deck.text));
    }
}

TEST_CASE("Everything inside the groups of a real deck is in the document") {
    for (const Deck& deck : corpus()) {
        CAPTURE(deck.name);
        CHECK(lost_text(deck.text, parse_string(deck.text).input) == Lines{});
    }
}

TEST_CASE("The canonical text of a real deck is read and written again as it is") {
    for (const Deck& deck : corpus()) {
        CAPTURE(deck.name);
        const GamessInput read = parse_string(deck.text).input;
        const std::string canonical = read.to_string();
        const std::string expected = read.has_data ? with_blank_line(canonical) : canonical;
        CHECK(written_again(canonical) == expected);
    }
}

TEST_CASE("No keyword that GAMESS knows is reported in a real deck") {
    // Of decks for other programs, which share most of the format.
    const std::set<std::string> known_to_others{"CONTRL.DFTD", "ZMAT.SCAN",   "ZMAT.DLCTOL",
                                                "ZMAT.ORTTOL", "ZMAT.IFDMOD", "SURF.REUSE"};
    for (const Deck& deck : corpus()) {
        CAPTURE(deck.name);
        const GamessInput read = parse_string(deck.text).input;
        for (const validation::Issue& issue : validation::validate(read, {})) {
            if (issue.severity != validation::Severity::Warning) continue;
            const std::string place =
                nurl::core::text::to_upper_copy(issue.section) + '.' + issue.key;
            CHECK_MESSAGE(known_to_others.contains(place), place);
        }
    }
}

TEST_SUITE_END();
