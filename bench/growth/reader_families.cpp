// Reading decks of keyword groups, and what is no deck.
#include <array>
#include <string_view>

#include "growth/family.hpp"
#include "growth/measure.hpp"
#include "nurl/input/gamess/reader.hpp"

namespace nurl::bench::growth {

namespace {

using namespace std::string_view_literals;

void read(const Input& input) {
    const auto result = measured([&] { return nurl::input::gamess::parse_string(input.text); });
    require(result.ok);
}

/// Text that holds no group is looked through all the same.
void read_in_vain(const Input& input) {
    const auto result = measured([&] { return nurl::input::gamess::parse_string(input.text); });
    require(!result.ok);
}

constexpr auto families = std::to_array<Family>({
    {"read a value and n words that open a parenthesis", {" $SCF A=x ", "b( "}, read, words},
    {"read n parentheses that open behind a key", {" $SCF A=1 B", "("}, read, bytes},
    {"read n nested parentheses of an index",
     {" $SCF A=1 B", "(", "", ")", "=1 $END\n"},
     read,
     bytes},
    {"read n parentheses that close behind a key", {" $SCF A=1 B", ")"}, read, bytes},
    {"read n parentheses that open and close by turns", {" $SCF A=1 B", "()"}, read, words},
    {"read n parentheses that close and open by turns", {" $SCF A=1 B", ")("}, read, words},
    {"read n keys with an open index", {" $SCF ", "A(1=2 "}, read, words},
    {"read n keys with an index in parentheses", {" $SCF ", "A((1)) =2 "}, read, words},
    {"read n words in a line", {" $SCF ", "word "}, read, words},
    {"read n words in a line behind a value", {" $SCF A=1 ", "word "}, read, words},
    {"read n words with a `=` and no value", {" $SCF ", "w   = "}, read, words},
    {"read n keywords far apart", {" $SCF ", "w         =         1         "}, read, words},
    {"read n `$` in a line of a group", {" $SCF ", "$"}, read, bytes},
    {"read n `$` in a line outside groups", {"", "$"}, read_in_vain, swift_bytes},
    {"read n `$`, one a line", {"", "$\n"}, read_in_vain, words},
    {"read n `$`, one a line, in a group", {" $SCF\n", "$\n"}, read, words},
    {"read n `$EN` in a line of a group", {" $SCF A=1 ", "$EN"}, read, words},
    {"read n keywords with a `$` behind each", {" $SCF ", "A=1 $ "}, read, words},
    {"read n groups of different names", {"", " $G% A=1 $END\n"}, read, things},
    {"read n groups of one name", {"", " $FORCE A=1 $END\n"}, read, things},
    {"read n groups of a structured name", {"", " $CONTRL A=1 MAXIT=2 $END\n"}, read, things},
    {"read n groups on one line", {"", " $SCF A=1 $END"}, read, swift_words},
    {"read n groups without $END", {"", " $SCF A=1\n"}, read, things},
    {"read n groups with lone carriage returns", {"", " $SCF A=1 $END\r"}, read, things},
    {"read n groups with carriage returns and line feeds",
     {"", " $SCF A=1 $END\r\n"},
     read,
     things},
    {"read n keywords, one a line", {" $FORCE\n", " K%=1\n", " $END\n"}, read, things},
    {"read n keywords in a line", {" $FORCE", " K%=1", " $END\n"}, read, things},
    {"read n keywords of a structured group", {" $CONTRL\n", " K%=1\n", " $END\n"}, read, things},
    {"read one keyword of a structured group n times",
     {" $CONTRL\n", " SCFTYP=UHF\n", " $END\n"},
     read,
     things},
    {"read n lines of free text in a structured group",
     {" $CONTRL\n", "free text\n", " $END\n"},
     read,
     things},
    {"read n comments with a keyword", {" $SCF\n", "! A=1\n", " $END\n"}, read, things},
    {"read a value of n bytes", {" $SCF A=", "x", " $END\n"}, read, bytes},
    {"read a key of n bytes", {" $SCF ", "K", "=1 $END\n"}, read, bytes},
    {"read a group name of n bytes", {" $", "N", " A=1 $END\n"}, read, bytes},
    {"read a raw line of n bytes", {" $VEC\n", "1", "\n $END\n"}, read, swift_bytes},
    {"read a line of n blanks in a group", {" $SCF A=1", " ", "B=1 $END\n"}, read, bytes},
    {"read a line of n blanks outside groups", {"", " "}, read_in_vain, bytes},
    {"read a line of n `=`", {" $SCF ", "=", " $END\n"}, read, bytes},
    {"read a line of n `!`", {" $SCF ", "!", " $END\n"}, read, bytes},
    {"read n lone carriage returns outside groups", {"", "\r"}, read_in_vain, words},
    {"read n lone carriage returns in a group", {" $SCF A=1\r", "\r"}, read, words},
    {"read n line ends in the wrong order in a group", {" $SCF A=1\n", "\n\r"}, read, words},
    {"read n $END in a line behind a group", {" $SCF A=1 ", "$END"}, read, swift_words},
    {"read n $END in a line outside groups", {"", "$END "}, read_in_vain, swift_words},
    {"read n $END, one a line, outside groups", {"", " $END\n"}, read_in_vain, words},
    {"read n bytes of zero in a group", {" $SCF A=", "\0"sv, " $END\n"}, read, bytes},
    {"read n bytes above 127 in a group", {" $SCF A=", "\xFF", " $END\n"}, read, bytes},
    {"read n bytes of zero and above 127 between blanks",
     {" $SCF ", "\0 \xC3\xA4 "sv, " $END\n"},
     read,
     words},
});

}  // namespace

std::span<const Family> reader_families() noexcept { return families; }

}  // namespace nurl::bench::growth
