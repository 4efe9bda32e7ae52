#include <string>
#include <utility>
#include <vector>

#include <doctest/doctest.h>

#include "model/printing.hpp"
#include "nurl/input/gamess/model.hpp"

using namespace nurl::input::gamess;
using Sections = std::vector<NamedSection>;

namespace {

/// The name under which a group is added to an empty deck.
std::string added_name(std::string name) {
    GamessInput deck;
    return deck.upsert_section(std::move(name)).name;
}

}  // namespace

TEST_CASE("A new group of a deck made in code joins the groups added in code") {
    GamessInput deck;
    NamedSection& section = deck.upsert_section(" $guess ");
    CHECK(deck.sections.empty());
    CHECK(deck.extra_sections == Sections{{"GUESS", {}, {}}});
    CHECK(&section == &deck.extra_sections[0]);
}

TEST_CASE("Asking for a group again gives the same group and adds nothing") {
    GamessInput deck;
    NamedSection& first = deck.upsert_section(" $guess ");
    first.entries.push_back({"NORB", "5"});
    CHECK(&deck.upsert_section("GUESS") == &deck.extra_sections[0]);
    CHECK(deck.extra_sections == Sections{{"GUESS", {{"NORB", "5"}}, {}}});
    CHECK(deck.sections.empty());
}

TEST_CASE("A new group of a deck that was read joins the groups read") {
    GamessInput deck;
    deck.sections = {{"SCF", {}, {}}};
    deck.extra_sections = {{"PCM", {}, {}}};
    NamedSection& section = deck.upsert_section("cis");
    CHECK(deck.sections == Sections{{"SCF", {}, {}}, {"CIS", {}, {}}});
    CHECK(deck.extra_sections == Sections{{"PCM", {}, {}}});
    CHECK(&section == &deck.sections[1]);
}

TEST_CASE("A group added in code is given also when the deck has groups that were read") {
    GamessInput deck;
    deck.sections = {{"SCF", {}, {}}};
    deck.extra_sections = {{"pcm", {{"SOLVNT", "WATER"}}, {}}};
    CHECK(&deck.upsert_section("$PCM") == &deck.extra_sections[0]);
    CHECK(deck.sections.size() == 1);
    CHECK(deck.extra_sections == Sections{{"pcm", {{"SOLVNT", "WATER"}}, {}}});
}

TEST_CASE("A group in both lists is given from the groups read and keeps what it holds") {
    GamessInput deck;
    deck.sections = {{"$Pcm", {{"IEF", "-10"}}, {"free text"}}};
    deck.extra_sections = {{"PCM", {}, {}}};
    CHECK(&deck.upsert_section("pcm") == &deck.sections[0]);
    CHECK(deck.sections == Sections{{"$Pcm", {{"IEF", "-10"}}, {"free text"}}});
}

TEST_CASE("A new group is stored under its canonical name") {
    CHECK(added_name("scf") == "SCF");
    CHECK(added_name("$Scf") == "SCF");
    CHECK(added_name("\t $$x \n") == "$X");
    CHECK(added_name("") == "SECTION");
    CHECK(added_name("  ") == "SECTION");
    CHECK(added_name("$") == "SECTION");
    CHECK(added_name("a b") == "A B");
    CHECK(added_name("\xC3\xA4x") == "\xC3\xA4X");
}

TEST_CASE("Adding a group under a structured name leaves the structured records alone") {
    for (const std::string name : {"CONTRL", "SYSTEM", "BASIS", "SCF", "GUESS", "DATA"}) {
        CAPTURE(name);
        GamessInput deck;
        deck.control.scftyp = "UHF";
        deck.upsert_section(name);
        CHECK(deck.extra_sections == Sections{{name, {}, {}}});
        deck.extra_sections.clear();
        GamessInput untouched;
        untouched.control.scftyp = "UHF";
        CHECK(deck == untouched);
    }
}
