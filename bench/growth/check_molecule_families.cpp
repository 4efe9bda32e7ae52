// Checking decks whose molecule is all faults.
#include <array>

#include "growth/check_operation.hpp"
#include "growth/family.hpp"

namespace nurl::bench::growth {

namespace {

constexpr std::string_view basis = " $BASIS GBASIS=N31 $END\n $DATA\nt\nC1\n";
constexpr std::string_view own_basis = " $DATA\nt\nC1\n";
constexpr std::string_view end = " $END\n";

constexpr auto families = std::to_array<Family>({
    {"check n atoms apart", {basis, "H 1.0 0.0 0.0 %.0\n", end}, check_faultless, things},
    {"check n atoms in one place", {basis, "H 1.0 0.0 0.0 0.0\n", end}, check, things},
    {"check n atoms just far enough apart", {basis, "H 1.0 0.0 0.0 0.%\n", end}, check, things},
    {"check n atoms very far away",
     {basis, "H 1.0 0.0 0.0 %.0E300\n", end},
     check_faultless,
     things},
    {"check n atoms with a wrong charge", {basis, "H 6.0 0.0 0.0 %.0\n", end}, check, things},
    {"check n atoms without a charge", {basis, "H 0.5 0.5 %.5\n", end}, check, things},
    {"check n atoms with a broken number", {basis, "H 1.0 0.0 O.O %.0\n", end}, check, things},
    {"check an atom with a number of n digits",
     {basis, "1", "\nH 1.0 0.0 0.0 0.", "3", "x\n $END\n"},
     check,
     bytes},
    {"check an atom with a name of n letters",
     {basis, "H", " 1.0 0.0 0.0 0.0x\n $END\n"},
     check,
     bytes},
    {"check n atoms in a line", {basis, "H 6.0 0.0 0.0 %.0;", "\n $END\n"}, check, things},
    {"check n atoms with a basis set",
     {own_basis, "H 6.0 0.0 0.0 %.0\nN31 6\n\n", end},
     check,
     costly_things},
    {"check n atoms with a basis set that no card closes",
     {own_basis, "H 1.0 0.0 0.0 %.0\nN31 6\n", end},
     check,
     things},
    {"check n atoms with an open basis set in a line",
     {own_basis, "H 1.0 0.0 0.0 %.0;N31 6;", "\n $END\n"},
     check,
     things},
    {"check n cards of a basis set", {own_basis, "N31 6\n", end}, check, things},
    {"check n blank cards behind C1",
     {own_basis, "\n", "H 1.0 0.0 0.0 0.0\n\n $END\n"},
     check,
     words},
    {"check n blank cards behind C1 in a line",
     {own_basis, ";", "\nH 1.0 0.0 0.0 0.0\n\n $END\n"},
     check,
     words},
    {"check a point group of n letters", {" $DATA\nt\n", "C", "\n $END\n"}, check, bytes},
    {"check a point group of n words", {" $DATA\nt\nCNV", " 9", "\nH\n $END\n"}, check, words},
    {"check an axis card of n words", {" $DATA\nt\nCNV 2\n", " 1.0", "\nH\n $END\n"}, check, words},
    {"check a Z-matrix of n atoms",
     {" $CONTRL COORD=ZMT $END\n $DATA\nt\nC1\n", "H 1 r% 2 a%\n", "\n", "r%=1.0\n", " $END\n"},
     check_faultless,
     things},
    {"check n lines of $DATA beyond column 80",
     {basis,
      "H 1.0 0.0 0.0 %.0                                                                     x\n",
      end},
     check,
     costly_things},
    {"check a line of $DATA of n words", {basis, "1.0 ", "\n $END\n"}, check, swift_words},
    {"check n groups called $DATA",
     {"", " $DATA\nt\nC1\nH 6.0 0.0 0.0 0.0\n\n $END\n"},
     check,
     things},
    {"check n groups called $DATA with lone carriage returns",
     {"", " $DATA\rt\rC1\rH 6.0 0.0 0.0 0.0\r\r $END\r"},
     check,
     things},
});

}  // namespace

std::span<const Family> check_molecule_families() noexcept { return families; }

}  // namespace nurl::bench::growth
