#include <string>
#include <vector>

#include <doctest/doctest.h>

#include "faults/decks.hpp"
#include "faults/fail_each.hpp"
#include "faults/source_decks.hpp"
#include "nurl/input/gamess/source/check.hpp"
#include "nurl/input/gamess/source/compare.hpp"
#include "nurl/input/gamess/source/wrap.hpp"
#include "support/temporary_directory.hpp"

using namespace nurl::input::gamess;
using nurl::test::fail_each_allocation_of;
using source::Deck;

namespace {

const Deck& deck() {
    static const Deck the_one{std::string{nurl::test::source_deck}};
    return the_one;
}

}  // namespace

TEST_CASE("A deck is made of a text or memory runs out") {
    std::vector<std::string_view> texts{nurl::test::source_deck};
    for (const auto& named : nurl::test::decks_to_read) texts.push_back(named.text);
    for (const std::string_view text : texts) {
        CAPTURE(text);
        fail_each_allocation_of([text] {
            const Deck made{std::string{text}};
            return std::vector<source::Group>{made.sections().begin(), made.sections().end()};
        });
    }
}

TEST_CASE("Groups and their items are given or memory runs out") {
    fail_each_allocation_of([] { return deck().find_all(" $a_group_of_a_long_name "); });
    fail_each_allocation_of([] { return deck().find_all("SCF"); });
    for (const source::Group& group : deck().sections()) {
        CAPTURE(group.name);
        fail_each_allocation_of([&group] { return deck().items(group); });
        for (const source::Item& item : deck().items(group))
            if (item.kind == source::ItemKind::Keyword)
                fail_each_allocation_of([&item] { return deck().value_of(item); });
    }
}

TEST_CASE("Keywords and places are given or memory runs out") {
    for (const char* group : {"CONTRL", "statpt", "SCF", "DATA", "A_GROUP_THAT_IS_NOT_THERE"}) {
        CAPTURE(group);
        fail_each_allocation_of([group] { return deck().list_keywords(group); });
        fail_each_allocation_of([group] { return deck().get_keyword(group, "IFREEZ"); });
        fail_each_allocation_of([group] { return deck().location(group); });
        fail_each_allocation_of([group] { return deck().location(group, "IFREEZ"); });
    }
    fail_each_allocation_of([] { return deck().location(200); });
}

TEST_CASE("Folding runs out of memory cleanly") {
    for (const std::size_t columns : {std::size_t{10}, std::size_t{40}, source::line_width}) {
        CAPTURE(columns);
        fail_each_allocation_of([columns] { return source::wrap(deck(), columns); });
    }
}

TEST_CASE("Comparing two decks runs out of memory cleanly") {
    const Deck other{std::string{nurl::test::other_source_deck}};
    REQUIRE(source::compare(deck(), other).size() > 5);
    fail_each_allocation_of([&other] { return source::compare(deck(), other); });
    fail_each_allocation_of([&other] { return source::compare(other, deck()); });
    fail_each_allocation_of([] { return source::compare(deck(), deck()); });
}

TEST_CASE("Checking a deck runs out of memory cleanly, whatever rule finds something") {
    for (const source::Rule& rule : source::rules()) {
        CAPTURE(rule.name);
        const std::string file = std::string{rule.name} + ".trips.inp";
        const Deck tripping{nurl::test::content(NURL_TEST_CHECK_GOLDEN "/" + file)};
        fail_each_allocation_of([&tripping] { return source::check(tripping); });
    }
}

TEST_CASE("Checking by few rules runs out of memory cleanly") {
    source::CheckOptions options;
    for (const source::Rule& rule : source::rules())
        if (rule.name != "unknown-keyword") options.disabled.emplace_back(rule.name);
    fail_each_allocation_of([&options] { return source::check(deck(), options); });
}
