// Folding long lines.
#include <array>

#include "growth/family.hpp"
#include "growth/measure.hpp"
#include "nurl/input/gamess/source/wrap.hpp"

namespace nurl::bench::growth {

namespace {

namespace source = nurl::input::gamess::source;

void wrap(const Input& input) {
    const source::Deck deck{input.text};
    require(!measured([&] { return source::wrap(deck); }).empty());
}

/// Lines without a place to fold at stay as they are.
void wrap_in_vain(const Input& input) {
    const source::Deck deck{input.text};
    require(measured([&] { return source::wrap(deck); }).empty());
}

void wrap_to_few_columns(const Input& input) {
    const source::Deck deck{input.text};
    require(!measured([&] { return source::wrap(deck, 8); }).empty());
}

constexpr Shape keywords{" $FORCE", " A=1", " $END\n"};
constexpr Shape long_keywords{" $FORCE", " AAAAAAAAAAAAAAAAAAAA=1111111111111111111111111111",
                              " $END\n"};
constexpr Shape list{" $FORCE A=", "1,", " $END\n"};

constexpr auto families = std::to_array<Family>({
    {"fold a line of n keywords", keywords, wrap, words},
    {"fold a line of n keywords to eight columns", keywords, wrap_to_few_columns, words},
    {"fold a line of n long keywords", long_keywords, wrap, words},
    {"fold a list of n numbers", list, wrap, words},
    {"fold a line of n words", {" $FORCE ", "word ", " $END\n"}, wrap, words},
    {"fold a line of n closed comments", {" $FORCE A=1", " !x!", " $END\n"}, wrap, words},
    {"fold a line of n comments in a value", {" $FORCE A=1", " !x! 1", " $END\n"}, wrap, words},
    {"fold a line of n quotes", {" $FORCE A=1", " 'x", " $END\n"}, wrap, words},
    {"fold a line of n glued words", {" $QUANPO A=1", " 1", " $END\n"}, wrap, words},
    {"fold a value of n bytes", {" $FORCE A=", "1", " B=1 $END\n"}, wrap, bytes},
    {"fold a line of n blanks", {" $FORCE A=1", " ", "B=1 $END\n"}, wrap, bytes},
    {"fold a line of n commas", {" $FORCE A=1", ",", " $END\n"}, wrap, words},
    {"fold a line of n open parentheses", {" $FORCE A=1", " b(", " $END\n"}, wrap, words},
    {"fold a line with n bytes behind $END", {" $FORCE A=1 $END", "x", "\n"}, wrap_in_vain, bytes},
    {"fold a line of n `!`", {" $FORCE A=1 ", "!", "\n $END\n"}, wrap_in_vain, words},
    {"fold a line of n `=`", {" $FORCE A=1 ", "= ", "\n $END\n"}, wrap_in_vain, words},
    {"fold n blanks in front of a keyword",
     {" $FORCE\n", " ", "A=1 B=1\n $END\n"},
     wrap_in_vain,
     bytes},
    {"fold n long lines",
     {" $FORCE\n",
      " AAAAAAAA=11111111 BBBBBBBB=22222222 CCCCCCCC=33333333 DDDDDDDD=44444444 "
      "EEEEEEEE=55555555\n",
      " $END\n"},
     wrap,
     things},
    {"fold the long lines of n groups",
     {"",
      " $FORCE AAAAAAAA=11111111 BBBBBBBB=22222222 CCCCCCCC=33333333 DDDDDDDD=44444444 $END ! x\n"},
     wrap,
     things},
    {"fold the long lines of n groups with lone carriage returns",
     {"",
      " $FORCE AAAAAAAA=11111111 BBBBBBBB=22222222 CCCCCCCC=33333333 DDDDDDDD=44444444 $END ! x\r"},
     wrap,
     things},
});

}  // namespace

std::span<const Family> wrap_families() noexcept { return families; }

}  // namespace nurl::bench::growth
