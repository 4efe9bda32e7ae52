// Checking decks whose keyword groups are all faults.
#include <array>
#include <string>
#include <vector>

#include "growth/check_operation.hpp"
#include "growth/family.hpp"
#include "growth/measure.hpp"
#include "nurl/input/gamess/source/check.hpp"

namespace nurl::bench::growth {

namespace {

namespace source = nurl::input::gamess::source;

/// Names of rules that do not exist are ignored.
void check_with_options(const Input& input) {
    const source::Deck deck{" $CONTRL MAXIT=x $END\n"};
    const source::CheckOptions options{std::vector<std::string>(input.n, "unknown-nothing")};
    require(!measured([&] { return source::check(deck, options); }).empty());
}

constexpr auto families = std::to_array<Family>({
    {"check n keywords", {" $CONTRL\n", " MAXIT=30\n", " $END\n"}, check, things},
    {"check n keywords in a line", {" $CONTRL", " MAXIT=30", " $END\n"}, check, things},
    {"check n keywords of a wrong type",
     {" $CONTRL\n", " MAXIT=x NOSYM=3O SCFTYP=\n", " $END\n"},
     check,
     costly_things},
    {"check n keywords of a wrong choice",
     {" $CONTRL\n", " SCFTYP=RHFF\n", " $END\n"},
     check,
     costly_things},
    {"check n logical values that are none",
     {" $SCF\n", " DIRSCF=TRUE\n", " $END\n"},
     check,
     things},
    {"check a value of n words too many", {" $CONTRL MAXIT=1", " 2", " $END\n"}, check, words},
    {"check a value of n broken numbers", {" $STATPT IFREEZ(1)=", "3O,", " $END\n"}, check, things},
    {"check a value of n digits", {" $CONTRL MAXIT=", "3", " $END\n"}, check, bytes},
    {"check a value of n `*`", {" $STATPT IFREEZ(1)=1", "*", " $END\n"}, check, bytes},
    {"check n unknown keywords", {" $CONTRL\n", " K%=1\n", " $END\n"}, check, things},
    {"check n keywords near a known one", {" $CONTRL\n", " MAXTI=1\n", " $END\n"}, check, things},
    {"check an unknown keyword of n letters", {" $CONTRL ", "K", "=1 $END\n"}, check, bytes},
    {"check n unknown groups", {"", " $G% A=1 $END\n"}, check, costly_things},
    {"check n groups near a known one", {"", " $CONTRLL A=1 $END\n"}, check, costly_things},
    {"check an unknown group of n letters", {" $", "G", " A=1 $END\n"}, check, swift_bytes},
    {"check n groups of one name", {"", " $SCF DIRSCF=.T. $END\n"}, check, things},
    {"check n stray words", {" $CONTRL", " word", " $END\n"}, check, words},
    {"check n stray words, one a line", {" $CONTRL\n", "word\n", " $END\n"}, check, things},
    {"check n comments with a keyword", {" $CONTRL\n", "! A=1\n", " $END\n"}, check, things},
    {"check n comments with a keyword in a group with a name of n letters",
     {" $", "G", "\n", "! A=1\n", " $END\n"},
     check,
     words},
    {"check a comment of n open parentheses",
     {" $CONTRL\n! A=1 ", "b( ", "\n $END\n"},
     check,
     words},
    {"check n groups without $END", {"", " $SCF DIRSCF=.T.\n"}, check, costly_things},
    {"check n groups of a long name without $END",
     {"", " $GGGGGGGGGGGGGGGGGGGGGGGGGGGGGGGGGGGGGGGGGGGGGG%\n"},
     check,
     things},
    {"check n groups whose $END is in a comment", {"", " $SCF ! $END\n"}, check, things},
    {"check n `$` behind a `!`", {" $SCF !", "$E"}, check, words},
    {"check n `$END` behind a `!`", {" $SCF !", "$END"}, check, words},
    {"check n groups outside column 2", {"", "$SCF DIRSCF=.T. $END\n"}, check, things},
    {"check n groups on one line", {"", " $SCF $END"}, check, things},
    {"check n groups on lines of blanks", {"", "                    $SCF $END\n"}, check, things},
    {"check n formatted groups in small letters", {"", " $vec\n $end\n"}, check, things},
    {"check n lines beyond column 80",
     {" $CONTRL\n",
      "  MAXIT=30                                                                    NOSYM=1\n",
      " $END\n"},
     check,
     costly_things},
    {"check n lines of comments beyond column 80",
     {" $CONTRL\n",
      "  MAXIT=30 ! x !                                                              NOSYM=1\n",
      " $END\n"},
     check,
     costly_things},
    {"check a line of n closed comments", {" $CONTRL MAXIT=30", " !x!", " $END\n"}, check, words},
    {"check a line of n blanks", {" $CONTRL MAXIT=30", " ", "NOSYM=1 $END\n"}, check, bytes},
    {"check a line of n `!`", {" $CONTRL MAXIT=30", "!", "\n $END\n"}, check, words},
    {"check a line of n `=`", {" $CONTRL MAXIT", "=", "\n $END\n"}, check, words},
    {"check n lone carriage returns", {" $CONTRL MAXIT=30\r", "\r", " $END\r"}, check, bytes},
    {"check n groups with lone carriage returns", {"", " $SCF DIRSCF=.T. $END\r"}, check, things},
    {"check a deck without n rules that do not exist", {}, check_with_options, things},
    {"check n groups of which all is wrong",
     {"", " $CONTRL MAXIT=x MAXTI=1 ! A=1\n  $SCF $END $BASIS $END\n"},
     check,
     costly_things},
});

}  // namespace

std::span<const Family> check_families() noexcept { return families; }

}  // namespace nurl::bench::growth
