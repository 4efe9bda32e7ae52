// Indexing the text of a deck.
#include <array>
#include <string>
#include <string_view>
#include <utility>

#include "growth/family.hpp"
#include "growth/measure.hpp"
#include "nurl/input/gamess/source/deck.hpp"

namespace nurl::bench::growth {

namespace {

using namespace std::string_view_literals;
using nurl::input::gamess::source::Deck;

Deck indexed(const Input& input) {
    std::string text = input.text;
    return measured([&] { return Deck{std::move(text)}; });
}

void index(const Input& input) {
    const Deck deck = indexed(input);
    require(!deck.sections().empty());
}

/// Text that holds no group is looked through all the same.
void index_in_vain(const Input& input) {
    const Deck deck = indexed(input);
    require(deck.sections().empty());
}

constexpr auto families = std::to_array<Family>({
    {"index n groups of different names", {"", " $G% A=1 $END\n"}, index, things},
    {"index n groups of one name", {"", " $SCF A=1 $END\n"}, index, things},
    {"index n groups that are not visible", {"", "$SCF A=1 $END\n"}, index, things},
    {"index n groups on one line", {"", " $SCF $END"}, index, things},
    {"index n unknown groups on one line", {" $SCF $END", " $G% $END"}, index, things},
    {"index n groups without $END", {"", " $SCF A=1\n"}, index, things},
    {"index n groups whose $END is in a comment", {"", " $SCF ! $END\n"}, index, things},
    {"index n groups of fixed columns", {"", " $VEC\n1 1 1.0\n $END\n"}, index, things},
    {"index n groups with lone carriage returns", {"", " $SCF A=1 $END\r"}, index, things},
    {"index n groups with carriage returns and line feeds",
     {"", " $SCF A=1 $END\r\n"},
     index,
     things},
    {"index n `$` in a line of a group", {" $SCF ", "$"}, index, words},
    {"index n `$` behind a group", {" $SCF $END ", "$"}, index, words},
    {"index n `$`, one a line, in a group", {" $SCF\n", " $\n"}, index, words},
    {"index n `$` far apart", {" $SCF $END", "          $"}, index, words},
    {"index n `$` in a line without groups", {"", "$"}, index_in_vain, words},
    {"index n $END in a line behind a group", {" $SCF A=1", "$END"}, index, words},
    {"index n $END without groups", {"", " $END\n"}, index_in_vain, words},
    {"index n $END behind a `!`", {" $SCF !", "$END"}, index, words},
    {"index n `$` and `!` by turns", {" $SCF ", "! $ "}, index, words},
    {"index n lines of a group that may hold headers", {" $VB2000\n", " $CTRL\n"}, index, words},
    {"index n groups found in any column", {"", "          $REKS A=1 $END\n"}, index, things},
    {"index n groups that a basis names",
     {" $BASIS BASNAM(1)=", "G%,", " $END\n", " $G%\n $END\n"},
     index,
     things},
    {"index n fragments that are named",
     {" $EFRAG\n", "FRAGNAME = G%\n", " $END\n", " $G%\n $END\n"},
     index,
     things},
    {"index fragments with n `=`", {" $EFRAG\n", "= ", " $END\n"}, index, words},
    {"index a group name of n digits", {" $VEC", "1", " \n $END\n"}, index, bytes},
    {"index a line of n blanks in a group", {" $SCF A=1", " ", " $END\n"}, index, bytes},
    {"index a line of n blanks before a `$`", {"", " ", "$SCF $END\n"}, index, bytes},
    {"index a line of n `=`", {" $SCF ", "=", " $END\n"}, index, bytes},
    {"index a line of n `!`", {" $SCF ", "!", " $END\n"}, index, bytes},
    {"index a line of n bytes of zero", {" $SCF ", "\0"sv, " $END\n"}, index, bytes},
    {"index n lone carriage returns", {" $SCF A=1", "\r", " $END\n"}, index, swift_bytes},
    {"index n lines of $DATA", {" $DATA\nt\nC1\n", "x\n", " $END\n"}, index, swift_words},
});

}  // namespace

std::span<const Family> source_index_families() noexcept { return families; }

}  // namespace nurl::bench::growth
