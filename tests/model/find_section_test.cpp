#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include <doctest/doctest.h>

#include "model/printing.hpp"
#include "nurl/input/gamess/model.hpp"

using namespace std::string_literals;  // names with NUL bytes
using namespace nurl::input::gamess;

namespace {

/// A deck with one group read under each name.
GamessInput deck_of(const std::vector<std::string>& names) {
    GamessInput deck;
    for (const std::string& name : names) deck.sections.push_back({name, {}, {}});
    return deck;
}

struct NameRow {
    std::string stored;
    std::string asked;
    bool found;
};

const std::vector<NameRow>& name_rows() {
    static const std::vector<NameRow> rows{
        {"CONTRL", "CONTRL", true},
        {"CONTRL", "contrl", true},
        {"CONTRL", "Contrl", true},
        {"CONTRL", "$CONTRL", true},
        {"CONTRL", "$contrl", true},
        {"CONTRL", " CONTRL ", true},
        {"CONTRL", " \t\r\n\v\f$Contrl \t\r\n\v\f", true},
        {"$Contrl ", "contrl", true},
        {"contrl", "$CONTRL", true},
        {"CONTRL", "CONTR", false},
        {"CONTRL", "CONTRLS", false},
        {"CONTRL", "CON TRL", false},
        {"CONTRL", "$$CONTRL", false},
        {"$CONTRL", "$$CONTRL", false},
        {"$$CONTRL", "$$contrl", true},
        {"$$CONTRL", "CONTRL", false},
        {"CONTRL", "$ CONTRL", false},
        {"$ CONTRL", "$ contrl", true},
        {"CONTRL", "CONTRL$", false},
        {"CONTRL", "", false},
        {"SECTION", "", true},
        {"SECTION", " \t ", true},
        {"SECTION", "$", true},
        {"SECTION", " $ ", true},
        {"section", "$", true},
        {"", "SECTION", true},
        {"", "$SECTION", true},
        {"", "$section", true},
        {"", "", true},
        {"", "$", true},
        {"$", "", true},
        {"$", "SECTION", true},
        {" ", "$", true},
        {"SECTION", "$$", false},
        {"$$", "$$", true},
        {"$$", "$", false},
        {"\xC3\x84", "\xC3\x84", true},
        {"\xC3\x84", "\xC3\xA4", false},
        {"\xA0SCF", "SCF", false},
        {"A\0B"s, "a\0b"s, true},
        {"A\0B"s, "A", false},
        {"A"s, "A\0"s, false},
    };
    return rows;
}

}  // namespace

TEST_CASE("Names of groups are compared without blanks and case and one dollar sign") {
    for (const auto& row : name_rows()) {
        CAPTURE(row.stored);
        CAPTURE(row.asked);
        GamessInput deck = deck_of({"OTHER", row.stored});
        CHECK(deck.find_section(row.asked) == (row.found ? &deck.sections[1] : nullptr));
        CHECK(std::as_const(deck).find_section(row.asked) ==
              (row.found ? &deck.sections[1] : nullptr));
    }
}

TEST_CASE("An empty deck has no group of any name") {
    const GamessInput deck;
    CHECK(deck.find_section("CONTRL") == nullptr);
    CHECK(deck.find_section("") == nullptr);
    CHECK(deck.find_section("$") == nullptr);
}

TEST_CASE("The first group of several with one name is found") {
    const GamessInput deck = deck_of({"SCF", "VEC", "vec", "$VEC"});
    CHECK(deck.find_section("VEC") == &deck.sections[1]);
}

TEST_CASE("Groups added in code are found when no group read has the name") {
    GamessInput deck = deck_of({"SCF"});
    deck.extra_sections = {{"PCM", {}, {}}, {"pcm", {}, {}}};
    CHECK(deck.find_section("$pcm") == &deck.extra_sections[0]);
}

TEST_CASE("A name in both lists is found among the groups read") {
    GamessInput deck = deck_of({"CIS", "pcm"});
    deck.extra_sections = {{"PCM", {}, {}}};
    CHECK(deck.find_section("PCM") == &deck.sections[1]);
    CHECK(std::as_const(deck).find_section("PCM") == &deck.sections[1]);
}

TEST_CASE("The structured records and the molecule are no groups to be found") {
    GamessInput deck;
    deck.has_control = true;
    deck.has_data = true;
    deck.scf.emplace();
    CHECK(deck.find_section("CONTRL") == nullptr);
    CHECK(deck.find_section("DATA") == nullptr);
    CHECK(deck.find_section("SCF") == nullptr);
}

TEST_CASE("A group found in a changing deck can be changed in place") {
    GamessInput deck = deck_of({"SCF"});
    deck.find_section("scf")->entries.push_back({"NCONV", "8"});
    CHECK(deck.sections[0].entries == std::vector<KeyValue>{{"NCONV", "8"}});
    using Found = decltype(deck.find_section(""));
    using FoundConst = decltype(std::as_const(deck).find_section(""));
    static_assert(std::is_same_v<Found, NamedSection*>);
    static_assert(std::is_same_v<FoundConst, const NamedSection*>);
}
