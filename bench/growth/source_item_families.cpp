// Taking the bodies of groups apart, and looking for keywords and places in them.
#include <array>
#include <string>
#include <vector>

#include "growth/family.hpp"
#include "growth/measure.hpp"
#include "nurl/input/gamess/source/deck.hpp"

namespace nurl::bench::growth {

namespace {

using nurl::input::gamess::source::Deck;
using nurl::input::gamess::source::Group;
using nurl::input::gamess::source::Item;

/// The items of every group.
void take_apart(const Input& input) {
    const Deck deck{input.text};
    const auto items = measured([&] {
        std::vector<std::vector<Item>> all;
        for (const Group& group : deck.sections()) all.push_back(deck.items(group));
        return all;
    });
    require(!items.empty());
}

void list(const Input& input) {
    const Deck deck{input.text};
    const auto entries = measured([&] { return deck.list_keywords("FORCE"); });
    require(!entries.empty());
}

void get_first(const Input& input) {
    const Deck deck{input.text};
    require(measured([&] { return deck.get_keyword("FORCE", "K0000000"); }).has_value());
}

void ask_for_none(const Input& input) {
    const Deck deck{input.text};
    require(!measured([&] { return deck.get_keyword("FORCE", "NONE"); }));
}

void find_copies(const Input& input) {
    const Deck deck{input.text};
    require(measured([&] { return deck.find_all("FORCE"); }).size() == input.n);
}

void locate_end(const Input& input) {
    const Deck deck{input.text};
    require(measured([&] { return deck.location(deck.text().size()); }).column > 0);
}

void locate_keyword(const Input& input) {
    const Deck deck{input.text};
    require(measured([&] { return deck.location("FORCE", "K0000000"); }).has_value());
}

constexpr Shape column{" $FORCE\n", " K%=1\n", " $END\n"};
constexpr Shape copies{"", " $FORCE K%=1 $END\n"};

constexpr auto families = std::to_array<Family>({
    {"take n keywords apart, one a line", column, take_apart, things},
    {"take n keywords apart in a line", {" $FORCE", " K%=1", " $END\n"}, take_apart, things},
    {"take n words of a value apart", {" $FORCE K=", " 1", " $END\n"}, take_apart, words},
    {"take n words of a value apart, one a line",
     {" $FORCE K=", " 1\n", " $END\n"},
     take_apart,
     words},
    {"take n commas of a value apart", {" $FORCE K=1", ",", " $END\n"}, take_apart, words},
    {"take n commas apart", {" $FORCE ", ",", " $END\n"}, take_apart, words},
    {"take n stray words apart", {" $FORCE", " word", " $END\n"}, take_apart, words},
    {"take n stray `=` apart", {" $FORCE ", "=", " $END\n"}, take_apart, words},
    {"take n open comments apart", {" $FORCE\n", "!x\n", " $END\n"}, take_apart, words},
    {"take n closed comments in a value apart",
     {" $FORCE K=1", "!x!", " $END\n"},
     take_apart,
     words},
    {"take n comments between words of a value apart",
     {" $FORCE K=1", "!x! 1", " $END\n"},
     take_apart,
     words},
    {"take n quotes apart", {" $FORCE K=", " 'x", " $END\n"}, take_apart, words},
    {"take n quotes of two kinds apart", {" $FORCE K=", " 'x \"", " $END\n"}, take_apart, words},
    {"take a quote of n bytes apart", {" $FORCE K='", "x", "' $END\n"}, take_apart, bytes},
    {"take n words that open an index apart",
     {" $FORCE ", " A(1, 2", " $END\n"},
     take_apart,
     words},
    {"take a word that opens n indices apart", {" $FORCE A", "(1", " $END\n"}, take_apart, words},
    {"take n parentheses apart", {" $FORCE A", "(", " $END\n"}, take_apart, bytes},
    {"take an index of n blanks apart", {" $FORCE A(", " ", ")=1 $END\n"}, take_apart, bytes},
    {"take an index of n blanks without an end apart",
     {" $FORCE A(", " ", " $END\n"},
     take_apart,
     bytes},
    {"take n words far from a `=` apart",
     {" $FORCE ", "w         \n", " $END\n"},
     take_apart,
     words},
    {"take n `>` apart", {" $QUANPO A=1", " >", " $END\n"}, take_apart, words},
    {"take n joined lines apart", {" $QUANPO A=1", " >\n 1", " $END\n"}, take_apart, words},
    {"take n cards apart", {" $ECP\n", "1 2 3\n", " $END\n"}, take_apart, words},
    {"take n cards in a line apart", {" $ECP\n", "1 2;", "\n $END\n"}, take_apart, words},
    {"take n empty cards in a line apart", {" $ECP\n", ";", "\n $END\n"}, take_apart, words},
    {"take n cards that are joined apart", {" $ECP\n", "1 >\n", " $END\n"}, take_apart, words},
    {"take n comments between joined cards apart",
     {" $ECP\n", "1 > ! x\n", " $END\n"},
     take_apart,
     words},
    {"take a card of n words apart", {" $ECP\n", "1 ", "\n $END\n"}, take_apart, words},
    {"take n lines of fixed columns apart", {" $VEC\n", "1\n", " $END\n"}, take_apart, words},
    {"take n groups apart, one a line", {"", " $SCF A=1 $END\n"}, take_apart, things},
    {"take n groups on one line apart", {"", " $SCF $END"}, take_apart, things},
    {"take n groups with lone carriage returns apart",
     {"", " $SCF A=1 $END\r"},
     take_apart,
     things},
    {"list n keywords of a text", column, list, things},
    {"list n keywords of n copies of a group", copies, list, things},
    {"list one keyword given n times in a text", {" $FORCE\n", " K=1\n", " $END\n"}, list, things},
    {"get the first of n keywords of a text", column, get_first, things},
    {"get the first keyword of n copies of a group", copies, get_first, things},
    {"ask a text for a keyword that n others are not", column, ask_for_none, things},
    {"find n copies of a group in a text", copies, find_copies, things},
    {"locate the end of a group of n lines", column, locate_end, words},
    {"locate the first of n keywords of a text", column, locate_keyword, things},
});

}  // namespace

std::span<const Family> source_item_families() noexcept { return families; }

}  // namespace nurl::bench::growth
