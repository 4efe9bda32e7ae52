#include <string>

#include <doctest/doctest.h>

#include "editor/edit_result.hpp"
#include "nurl/input/gamess/editor.hpp"
#include "nurl/input/gamess/reader.hpp"
#include "support/groups.hpp"
#include "support/show_model.hpp"

using nurl::input::gamess::GamessInput;
using nurl::input::gamess::InputEditor;
using nurl::input::gamess::parse_string;
using nurl::test::after_set;
using nurl::test::deck_of;
using nurl::test::Entries;
using nurl::test::group;
using nurl::test::Groups;
using nurl::test::Lines;

namespace {

/// The group "X" after setting its keyword "K" to "new".
nurl::input::gamess::NamedSection set_in(const Entries& entries, const Lines& raw_lines) {
    return after_set(deck_of({group("X", entries, raw_lines)}), "X", "K", "new").sections.front();
}

}  // namespace

TEST_CASE("A new keyword is appended in upper case, its value trimmed with its case kept") {
    const GamessInput deck = deck_of({group("X", {{"a", " 1 "}})});
    CHECK(after_set(deck, " $x ", "\tkey(1)\n", " \tSome  Words\r\n").sections ==
          Groups{group("X", {{"a", " 1 "}, {"KEY(1)", "Some  Words"}})});
}

TEST_CASE("A keyword that is there gets the new value at its place") {
    CHECK(set_in({{"A", "1"}, {"K", "old"}, {"B", "2"}}, {}) ==
          group("X", {{"A", "1"}, {"K", "new"}, {"B", "2"}}));
    CHECK(set_in({{"A", "1"}, {" k\t", "old"}}, {}) == group("X", {{"A", "1"}, {" k\t", "new"}}));
}

TEST_CASE("A value may be text of the document, also where the group has to be added") {
    for (const std::string section : {"X", "SCF", "NEW"}) {
        CAPTURE(section);
        InputEditor editor{deck_of({group("X")})};
        editor.set_keyword(section, "K", editor.input().sections.front().name);
        CHECK(editor.get_keyword(section, "K") == "X");
    }
}

TEST_CASE("Of a keyword that stands twice only the first value is replaced") {
    const Entries twice{{"K", "1"}, {"A", "2"}, {"k", "3"}};
    CHECK(set_in(twice, {}) == group("X", {{"K", "new"}, {"A", "2"}, {"k", "3"}}));
}

TEST_CASE("A keyword with an index is another keyword") {
    CHECK(set_in({{"K(1)", "1"}}, {}) == group("X", {{"K(1)", "1"}, {"K", "new"}}));
    CHECK(set_in({}, {"K(1)=1 K=2 K(2)=3"}) == group("X", {{"K", "new"}}, {"K(1)=1 K(2)=3"}));
}

TEST_CASE("A vertical tab belongs to a keyword and to a value") {
    const GamessInput deck = after_set(deck_of({group("X", {{"K", "1"}})}), "X", "\vk", "\v2\f");
    CHECK(deck.sections == Groups{group("X", {{"K", "1"}, {"\vK", "\v2\f"}})});
}

TEST_CASE("An empty value is kept") {
    const GamessInput deck = after_set(deck_of({group("X")}), "X", "K", " \t");
    CHECK(deck.sections == Groups{group("X", {{"K", ""}})});
    CHECK(InputEditor{deck}.get_keyword("X", "K") == "");
    CHECK(deck.to_string() == " $X $END\n");
}

TEST_CASE("A keyword in a raw line moves to the entries, the rest of the line staying") {
    CHECK(set_in({{"A", "1"}}, {"text K=old B=2"}) ==
          group("X", {{"A", "1"}, {"K", "new"}}, {"text B=2"}));
}

TEST_CASE("A raw line that held nothing but the keyword disappears") {
    CHECK(set_in({}, {"first", "  k = old value ", "last"}) ==
          group("X", {{"K", "new"}}, {"first", "last"}));
}

TEST_CASE("Blank raw lines disappear, also when no line holds the keyword") {
    CHECK(set_in({}, {"", "text", " \t\r\n", ""}) == group("X", {{"K", "new"}}, {"text"}));
}

TEST_CASE("A raw line of a vertical tab is not blank") {
    CHECK(set_in({}, {" \v "}) == group("X", {{"K", "new"}}, {"\v"}));
}

TEST_CASE("Every raw line is tidied, with pairs more than without") {
    CHECK(set_in({}, {"  no\t\tpairs  here ", "  a  pair \v here   B =  two   words "}) ==
          group("X", {{"K", "new"}}, {"no\t\tpairs  here", "a pair here B = two words"}));
}

TEST_CASE("The keyword leaves all raw lines") {
    CHECK(set_in({{"K", "0"}}, {"K=1 A=2 K=3", "B=4", "K=5"}) ==
          group("X", {{"K", "new"}}, {"A=2", "B=4"}));
}

TEST_CASE("A keyword set twice stands once") {
    const GamessInput once = after_set({}, "X", "K", "1");
    CHECK(after_set(once, "X", "k", "2").extra_sections == Groups{group("X", {{"K", "2"}})});
}

TEST_CASE("A group that is missing is made where new groups go") {
    const GamessInput from_nothing = after_set({}, "$x", "k", "1");
    CHECK(from_nothing.extra_sections == Groups{group("X", {{"K", "1"}})});
    CHECK(from_nothing.sections.empty());
    const GamessInput from_text = after_set(deck_of({group("A")}), "$x", "k", "1");
    CHECK(from_text.sections == Groups{group("A"), group("X", {{"K", "1"}})});
    CHECK(from_text.extra_sections.empty());
}

TEST_CASE("Only the first group of the name is edited, read groups before added ones") {
    GamessInput deck = deck_of({group("A"), group("x", {{"K", "1"}}), group("X", {{"K", "2"}})});
    deck.extra_sections = {group("X", {{"K", "3"}}), group("Y", {{"K", "4"}}, {"z K=5"})};
    GamessInput expected = deck;
    expected.sections[1].entries[0].value = "new";
    CHECK(after_set(deck, "X", "K", "new") == expected);
    expected = deck;
    expected.extra_sections[1] = group("Y", {{"K", "new"}}, {"z"});
    CHECK(after_set(deck, "Y", "K", "new") == expected);
}

TEST_CASE("A group without a name is edited as SECTION") {
    const GamessInput deck = deck_of({group("A"), group(" $ ")});
    CHECK(after_set(deck, "section", "K", "1").sections ==
          Groups{group("A"), group(" $ ", {{"K", "1"}})});
}

TEST_CASE("A keyword of a structured group has no member in a generic one") {
    CHECK(after_set({}, "X", "SCFTYP", "uhf").extra_sections ==
          Groups{group("X", {{"SCFTYP", "uhf"}})});
}

TEST_CASE("A keyword in the free text of a raw group is found and moved") {
    const GamessInput deck = parse_string("$VEC\n 1 1 0.5\n NORB=4 rest\n$END\n").input;
    CHECK(after_set(deck, "VEC", "NORB", "5").to_string() == " $VEC NORB=5\n1 1 0.5\n $END\n");
}
