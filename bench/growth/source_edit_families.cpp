// Edits in the text of a deck. Each reads back what it did, so all cost a few passes over the text.
#include <array>
#include <string>
#include <vector>

#include "growth/family.hpp"
#include "growth/measure.hpp"
#include "nurl/input/gamess/source/deck.hpp"

namespace nurl::bench::growth {

namespace {

using nurl::input::gamess::source::Deck;
using nurl::input::gamess::source::Edit;

void set_first(const Input& input) {
    Deck deck{input.text};
    require(measured([&] { return deck.set_keyword("FORCE", "K0000000", "2"), true; }));
    require(deck.text() != input.text);
}

void add_new(const Input& input) {
    Deck deck{input.text};
    require(measured([&] { return deck.add_keyword("FORCE", "NEW", "2", false); }));
}

void add_group(const Input& input) {
    Deck deck{input.text};
    require(measured([&] { return deck.add_keyword("NEW", "NEW", "2", false); }));
}

void remove_first(const Input& input) {
    Deck deck{input.text};
    require(measured([&] { return deck.remove_keyword("FORCE", "K0000000"); }));
}

void remove_all(const Input& input) {
    Deck deck{input.text};
    require(measured([&] { return deck.remove_keyword("FORCE", "K"); }));
}

/// Sets a value of n words.
void set_long_value(const Input& input) {
    Deck deck{input.text};
    std::string value = "2";
    for (std::size_t i = 1; i < input.n; ++i) value += ",2";
    require(measured([&] { return deck.set_keyword("FORCE", "K0000000", value), true; }));
}

void ensure(const Input& input) {
    Deck deck{input.text};
    require(measured([&] { return deck.ensure_section("NEW"), true; }));
    require(!deck.find_all("NEW").empty());
}

void remove_groups(const Input& input) {
    Deck deck{input.text};
    require(measured([&] { return deck.remove_section("FORCE"); }));
}

/// The text of a group in the place of the last of its copies.
void replace_last(const Input& input) {
    Deck deck{input.text};
    const std::size_t last = deck.find_all("FORCE").size();
    const auto replace = [&] {
        deck.replace_section("FORCE", last, " $FORCE A=1 $END");
        return true;
    };
    require(measured(replace));
}

/// The text in the place of a small group.
void replace_by_long(const Input& input) {
    Deck deck{" $FORCE A=1 $END\n"};
    require(measured([&] { return deck.replace_section("FORCE", 1, input.text), true; }));
    require(deck.text().size() >= input.text.size());
}

/// An edit in front of each group.
void apply_many(const Input& input) {
    Deck deck{input.text};
    std::vector<Edit> edits;
    for (const auto& group : deck.sections())
        edits.push_back({{group.header.end, group.header.end}, " NEW=1"});
    require(measured([&] { return deck.apply(edits), true; }));
}

constexpr Shape column{" $FORCE\n", " K%=1\n", " $END\n"};
constexpr Shape line{" $FORCE", " K%=1", " $END\n"};
constexpr Shape copies{"", " $FORCE K%=1 $END\n"};
constexpr Shape groups{" $FORCE K0000000=1 $END\n", " $G% A=1 $END\n"};
constexpr Shape comments{" $FORCE K0000000=1", " ! x\n 1", " $END\n"};

constexpr auto families = std::to_array<Family>({
    {"set one of n keywords in a text", column, set_first, things},
    {"set one of n keywords in a line of text", line, set_first, things},
    {"set a keyword of n copies of a group in a text", copies, set_first, things},
    {"set a keyword among n groups in a text", groups, set_first, things},
    {"set a value of n lines and comments in a text", comments, set_first, things},
    {"set a value of n commas in a text",
     {" $FORCE K0000000=1", ",", "2 $END\n"},
     set_first,
     words},
    {"set a value to n words in a text", column, set_long_value, things},
    {"set a value of n words to n others in a text",
     {" $FORCE K0000000=1", ",1", " $END\n"},
     set_long_value,
     things},
    {"set a keyword before n quotes in a text",
     {" $FORCE K0000000=1 A=", " '", " $END\n"},
     set_first,
     words},
    {"add a keyword to n others in a text", column, add_new, things},
    {"add a keyword to n others in a line of text", line, add_new, things},
    {"add a keyword to n copies of a group in a text", copies, add_new, things},
    {"add a keyword in a new group to n groups in a text", groups, add_group, things},
    {"add a keyword behind n blanks in a text", {" $FORCE A=1", " ", "$END\n"}, add_new, bytes},
    {"add a keyword behind n commas in a text", {" $FORCE A=1", ",", " $END\n"}, add_new, words},
    {"remove one of n keywords in a text", column, remove_first, things},
    {"remove one of n keywords in a line of text", line, remove_first, things},
    {"remove a value of n lines and comments in a text", comments, remove_first, things},
    {"remove a keyword given n times in a text",
     {" $FORCE\n", " K=1\n", " $END\n"},
     remove_all,
     things},
    {"remove a keyword given n times in a line of text",
     {" $FORCE", " K=1,", " $END\n"},
     remove_all,
     things},
    {"remove a keyword of n copies of a group in a text",
     {"", " $FORCE\n K=1\n $END\n"},
     remove_all,
     things},
    {"remove a keyword behind n blank lines in a text",
     {" $FORCE", "\n", " K=1 $END\n"},
     remove_all,
     words},
    {"make sure of a group among n others in a text", groups, ensure, things},
    {"make sure of a group before n atoms in a text",
     {" $DATA\nt\nC1\n", "H 1.0 0.0 0.0 %.0\n", " $END\n"},
     ensure,
     swift_things},
    {"remove n copies of a group in a text", copies, remove_groups, things},
    {"remove a group among n others in a text", groups, remove_groups, things},
    {"replace the last of n copies of a group in a text", copies, replace_last, things},
    {"replace a group by one of n lines in a text", column, replace_by_long, things},
    {"apply n edits to a text", groups, apply_many, things},
});

}  // namespace

std::span<const Family> source_edit_families() noexcept { return families; }

}  // namespace nurl::bench::growth
