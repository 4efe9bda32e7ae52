#include <string>

#include <doctest/doctest.h>

#include "nurl/input/gamess/editor.hpp"
#include "support/groups.hpp"
#include "support/structured_values.hpp"

using nurl::input::gamess::AtomRecord;
using nurl::input::gamess::GamessInput;
using nurl::input::gamess::InputEditor;
using nurl::test::deck_of;
using nurl::test::deck_with;
using nurl::test::group;
using nurl::test::structured_groups;

namespace {

bool has(const GamessInput& deck, std::string_view name) {
    return InputEditor{deck}.has_section(name);
}

}  // namespace

TEST_CASE("All spellings of a structured name agree") {
    for (const char* name : {"CONTRL", "contrl", "$contrl", "  CONTRL  ", "\t$ConTrl\r\n"}) {
        CAPTURE(name);
        CHECK(has(deck_with("CONTRL"), name));
        CHECK_FALSE(has(GamessInput{}, name));
    }
}

TEST_CASE("All spellings of a generic name agree") {
    for (const char* name : {"PCM", "pcm", "$pcm", "  PCM  ", "\t$Pcm\r\n"}) {
        CAPTURE(name);
        CHECK(has(deck_of({group("pcm")}), name));
        CHECK(has(deck_of({group(" $Pcm")}), name));
        CHECK_FALSE(has(deck_of({group("PCMX")}), name));
    }
}

TEST_CASE("A structured group is there when its record is, and no other group with it") {
    for (const auto present : structured_groups) {
        for (const auto asked : structured_groups) {
            CAPTURE(present);
            CAPTURE(asked);
            CHECK(has(deck_with(present), asked) == (present == asked));
        }
    }
}

TEST_CASE("A copy of a structured group does not make it present") {
    for (const auto name : structured_groups) {
        CAPTURE(name);
        GamessInput deck = deck_of({group(std::string{name}, {{"MULT", "2"}})});
        CHECK_FALSE(has(deck, name));
        deck.extra_sections = deck.sections;
        CHECK_FALSE(has(deck, name));
    }
}

TEST_CASE("A generic group is found in either list") {
    GamessInput deck = deck_of({group("READ")});
    deck.extra_sections = {group("ADDED")};
    CHECK(has(deck, "read"));
    CHECK(has(deck, "added"));
    CHECK_FALSE(has(deck, "other"));
}

TEST_CASE("$DATA is there when it is marked or any of its parts holds something") {
    GamessInput marked;
    marked.has_data = true;
    GamessInput titled;
    titled.title = "water";
    GamessInput grouped;
    grouped.point_group = "C1";
    GamessInput with_atom;
    with_atom.atoms.push_back(AtomRecord{});
    GamessInput with_line;
    with_line.data_lines = {""};
    for (const char* name : {"DATA", "data", " $Data\n"}) {
        CAPTURE(name);
        CHECK_FALSE(has(GamessInput{}, name));
        CHECK(has(marked, name));
        CHECK(has(titled, name));
        CHECK(has(grouped, name));
        CHECK(has(with_atom, name));
        CHECK(has(with_line, name));
    }
}

TEST_CASE("A title and a point group of blanks do not make $DATA present") {
    GamessInput deck;
    deck.title = deck.point_group = " \t\r\n";
    CHECK_FALSE(has(deck, "DATA"));
}

TEST_CASE("A vertical tab is no blank in the title and the point group") {
    GamessInput deck;
    deck.title = " \v ";
    CHECK(has(deck, "DATA"));
    deck.title.clear();
    deck.point_group = "\f";
    CHECK(has(deck, "DATA"));
}

TEST_CASE("A generic group named DATA is not $DATA") {
    CHECK_FALSE(has(deck_of({group("DATA", {{"A", "1"}})}), "DATA"));
}

TEST_CASE("A blank name asks for the group SECTION") {
    for (const char* name : {"", " \t", "$", " $\n", "SECTION", "$section"}) {
        CAPTURE(name);
        CHECK_FALSE(has(deck_of({group("X")}), name));
        CHECK(has(deck_of({group("X"), group("SECTION")}), name));
        CHECK(has(deck_of({group("")}), name));
        CHECK(has(deck_of({group(" $ ")}), name));
    }
}

TEST_CASE("A name with a vertical tab is not the name of a structured group") {
    CHECK_FALSE(has(deck_with("SCF"), "\vSCF"));
    CHECK_FALSE(has(deck_with("CONTRL"), "CONTRL\f"));
}
