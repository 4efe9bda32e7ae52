// Comparing a deck with itself, and with one that has a `y` wherever the first has an `x`.
#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "growth/family.hpp"
#include "growth/measure.hpp"
#include "nurl/input/gamess/source/compare.hpp"

namespace nurl::bench::growth {

namespace {

namespace source = nurl::input::gamess::source;

void compare_with_itself(const Input& input) {
    const source::Deck deck{input.text};
    require(measured([&] { return source::compare(deck, deck); }).empty());
}

void compare(const Input& input) {
    std::string text = input.text;
    std::ranges::replace(text, 'x', 'y');
    const source::Deck a{input.text};
    const source::Deck b{std::move(text)};
    require(!measured([&] { return source::compare(a, b); }).empty());
}

/// The second deck has a line more in front of the first `x`.
void compare_shifted(const Input& input) {
    std::string text = input.text;
    text.insert(text.find('x'), "z\n");
    const source::Deck a{input.text};
    const source::Deck b{std::move(text)};
    require(!measured([&] { return source::compare(a, b); }).empty());
}

constexpr Shape values{" $FORCE\n", " K%=x\n", " $END\n"};
constexpr Shape names{" $FORCE\n", " Kx%=1\n", " $END\n"};
constexpr Shape numbers{" $FORCE\n", " K%=1.0D0\n", " $END\n"};
constexpr Shape groups{"", " $Gx% A=1 $END\n"};
constexpr Shape copies{"", " $FORCE K%=x $END\n"};
constexpr Shape atoms{" $DATA\nt\nC1\n", "x 1.0 0.0 0.0 %.0\n\n", " $END\n"};
constexpr Shape molecules{"", " $DATA\nt\nC1\nx 1.0 0.0 0.0 0.0\n\n $END\n"};
constexpr Shape long_name{" $", "G", "\n", " K%=x\n", " $END\n"};

constexpr auto families = std::to_array<Family>({
    {"compare n keywords with themselves", values, compare_with_itself, things},
    {"compare n keywords of other values", values, compare, things},
    {"compare n keywords of other names", names, compare, things},
    {"compare n numbers with themselves", numbers, compare_with_itself, things},
    {"compare n groups with themselves", groups, compare_with_itself, things},
    {"compare n groups of other names", groups, compare, things},
    {"compare n copies of a group with themselves", copies, compare_with_itself, things},
    {"compare n copies of a group of other values", copies, compare, costly_things},
    {"compare n groups without $END", {"", " $SCF K%=x\n"}, compare, costly_things},
    {"compare a list of n other words", {" $FORCE K=", "x,", " $END\n"}, compare, words},
    {"compare an array in n pieces", {" $FORCE\n", " K(%)=x\n", " $END\n"}, compare, things},
    {"compare an array of which n pieces overlap",
     {" $FORCE\n", " K(%)=x,2,3\n", " $END\n"},
     compare,
     things},
    {"compare an element given n times", {" $FORCE\n", " K(1)=x\n", " $END\n"}, compare, things},
    {"compare n keywords without a value", {" $FORCE\n", " Kx%=\n", " $END\n"}, compare, things},
    {"compare a value of n commas", {" $FORCE K=x", ",", "1 $END\n"}, compare, words},
    {"compare n comments in a value", {" $FORCE K=x", " !c! 1", " $END\n"}, compare, words},
    {"compare a value of n bytes", {" $FORCE K=", "x", " $END\n"}, compare, bytes},
    {"compare a number of n digits with itself",
     {" $FORCE K=", "3", ".0 $END\n"},
     compare_with_itself,
     bytes},
    {"compare n stray words", {" $FORCE ", " x", " $END\n"}, compare, words},
    {"compare n stray words between keywords",
     {" $FORCE\n", " K%=1 = x\n", " $END\n"},
     compare,
     costly_things},
    {"compare n atoms with themselves", atoms, compare_with_itself, costly_things},
    {"compare n atoms of other names", atoms, compare, costly_things},
    {"compare n atoms with one more", atoms, compare_shifted, costly_things},
    {"compare n variables of a Z-matrix",
     {" $CONTRL COORD=ZMT $END\n $DATA\nt\nC1\nH\n\n", "x=1.0\n", " $END\n"},
     compare,
     things},
    {"compare a variable with n `=`",
     {" $CONTRL COORD=ZMT $END\n $DATA\nt\nC1\nH\n\nx", "=", "\n $END\n"},
     compare,
     swift_words},
    {"compare n groups called $DATA with themselves", molecules, compare_with_itself, words},
    {"compare n groups called $DATA of other atoms", molecules, compare, words},
    {"compare n groups of fixed columns", {"", " $VEC\n1 1 x\n $END\n"}, compare, things},
    {"compare n lines of fixed columns", {" $VEC\n", "1 1 x\n", " $END\n"}, compare, things},
    {"compare n lines of fixed columns with one more",
     {" $VEC\n", "x %\n", " $END\n"},
     compare_shifted,
     things},
    {"compare n cards", {" $ECP\n", "x 1 2\n", " $END\n"}, compare, things},
    {"compare n cards in a line", {" $ECP\n", "x 1;", "\n $END\n"}, compare, things},
    {"compare a card of n words", {" $ECP\n", "x ", "\n $END\n"}, compare, words},
    {"compare n keywords with themselves in a group with a name of n letters", long_name,
     compare_with_itself, things},
    {"compare n keywords of other values in a group with a name of n letters", long_name, compare,
     things},
});

}  // namespace

std::span<const Family> compare_families() noexcept { return families; }

}  // namespace nurl::bench::growth
