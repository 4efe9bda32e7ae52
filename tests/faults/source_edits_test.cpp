#include <functional>
#include <string>
#include <utility>
#include <vector>

#include <doctest/doctest.h>

#include "faults/fail_each.hpp"
#include "faults/source_decks.hpp"
#include "nurl/input/gamess/source/deck.hpp"

using namespace nurl::input::gamess;
using nurl::test::fail_each_allocation_of_change;
using nurl::test::refusable;
using source::Deck;

namespace {

using Edit = std::function<void(Deck&)>;

/// All that a deck holds: its text and where everything stands.
std::pair<std::string, std::vector<source::Group>> look(const Deck& deck) {
    return {deck.text(), {deck.sections().begin(), deck.sections().end()}};
}

void fail_each_allocation_of_edits(const std::vector<Edit>& edits) {
    const Deck deck{std::string{nurl::test::source_deck}};
    for (std::size_t edit = 0; edit < edits.size(); ++edit) {
        CAPTURE(edit);
        fail_each_allocation_of_change(deck, edits[edit], look);
    }
}

Edit set(const std::string& group, const std::string& key, const std::string& value) {
    return [=](Deck& deck) { deck.set_keyword(group, key, value); };
}

}  // namespace

TEST_CASE("A keyword that cannot be set leaves the text as it was") {
    fail_each_allocation_of_edits({
        set("CONTRL", "SCFTYP", "ROHF"),
        set("CONTRL", "SCFTYP", "UHF"),
        set("STATPT", "IFREEZ", "1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19,20,21,22,23,24"),
        set("STATPT", "A_NEW_KEYWORD_WITH_A_LONG_NAME", "a_value_of_more_than_fifteen_bytes"),
        set("SYSTEM", "TIMLIM", "525600"),
        set("A_NEW_GROUP_WITH_A_LONG_NAME", "KEY", "1"),
    });
}

TEST_CASE("An edit that is refused is refused or runs out of memory") {
    fail_each_allocation_of_edits({
        refusable(set("DATA", "A", "1")),
        refusable(set("STATPT", " ", "1")),
        refusable(set("STATPT", "NSTEP", "a value with a $ sign in it")),
        refusable(set("STATPT", "no word at all =", "1")),
        refusable([](Deck& deck) { deck.replace_section("STATPT", 2, " $STATPT $END"); }),
        refusable([](Deck& deck) { deck.replace_section("STATPT", 1, " $SOMETHING_ELSE $END"); }),
        refusable([](Deck& deck) { deck.ensure_section("no word but several"); }),
        refusable([](Deck& deck) {
            const source::Edit beyond{{1, 100'000}, "a text that is not put in"};
            deck.apply({&beyond, 1});
        }),
    });
}

TEST_CASE("A keyword that cannot be added or removed leaves the text as it was") {
    fail_each_allocation_of_edits({
        [](Deck& deck) { deck.add_keyword("STATPT", "NSTEP", "20", true); },
        [](Deck& deck) { deck.add_keyword("STATPT", "NSTEP", "20", false); },
        [](Deck& deck) { deck.add_keyword("SCF", "SOSCF", ".TRUE.", false); },
        [](Deck& deck) { deck.remove_keyword("STATPT", "NSTEP"); },
        [](Deck& deck) { deck.remove_keyword("STATPT", "IFREEZ"); },
        [](Deck& deck) { deck.remove_keyword("SCF", "DIRSCF"); },
        [](Deck& deck) { deck.remove_keyword("STATPT", "A_KEYWORD_THAT_IS_NOT_THERE"); },
    });
}

TEST_CASE("A group that cannot be made, replaced or removed leaves the text as it was") {
    fail_each_allocation_of_edits({
        [](Deck& deck) { deck.ensure_section("A_NEW_GROUP_WITH_A_LONG_NAME"); },
        [](Deck& deck) { deck.ensure_section("VEC"); },
        [](Deck& deck) { deck.ensure_section("SCF"); },
        [](Deck& deck) { deck.remove_section("SCF"); },
        [](Deck& deck) { deck.remove_section("DATA"); },
        [](Deck& deck) { deck.remove_section("A_GROUP_THAT_IS_NOT_THERE"); },
        [](Deck& deck) {
            deck.replace_section("STATPT", 1, " $STATPT NSTEP=1\n OPTTOL=0.0001 $END\n");
        },
    });
}

TEST_CASE("Edits that cannot be applied leave the text as it was") {
    fail_each_allocation_of_edits({[](Deck& deck) {
        const std::vector<source::Edit> edits{{{0, 4}, "text that goes to the beginning"},
                                              {{9, 9}, "and text that goes behind that"}};
        deck.apply(edits);
    }});
}

TEST_CASE("A deck that another one cannot be copied over stays as it was") {
    const Deck other{
        " $A_GROUP_WITH_A_LONG_NAME KEY=1 $END\n $ANOTHER_GROUP_OF_SOME_LENGTH $END\n"};
    fail_each_allocation_of_edits({[&other](Deck& deck) { deck = other; }});
}
