#include "bounds/short_decks.hpp"

#include <array>
#include <string_view>

namespace nurl::test {

namespace {

using bench::growth::Shape;

constexpr std::string_view end = " $END\n";

constexpr auto documents = std::to_array<Shape>({
    {"", "$A\n"},
    {"", " $A $END\n"},
    {"", "$SCF\n"},
    {"", "$DATA\n"},
    {" $SCF\n", "x\n", end},
    {" $SCF\n", "$\n", end},
    {" $SCF\n", "A=1\nx\n", end},
    {" $SCF\n", "x=A=1\n", end},
    {" $SCF ", "A=1 ", end},
    {" $SCF A=1 ", "B(", end},
    {" $SCF A=1 B", "(", "", ")", "=1 $END\n"},
    {" $CONTRL\n", "x\n", end},
    {" $CONTRL ", "A=1 ", end},
    {" $CONTRL ", "A=1$", end},
    {" $FORCE\n", "x\n", end},
    {" $FORCE ", "A=1 ", end},
    {" $FORCE\n", "A=1\n", end},
    {" $VEC\n", "x\n", end},
    {" $DATA\nt\nC1\n", "x\n", end},
    {" $DATA\nt\nC1\n", "\x20\n", end},
    {" $DATA\nt\nC1\n", "H 1 0 0 0\n", end},
    {" $TDDFT\n", "x\n", end},
    {" $TDDFT ", "A=1 ", end},
    {" $TDDFT IXCORE(1)=", "1,", "1 $END\n"},
    {" $TDDFT ", "IXCORE(9)=1 ", end},
});

constexpr auto texts = std::to_array<Shape>({
    {"", "$A\n"},
    {"", " $A\n"},
    {"", " $A $END\n"},
    {"", " $MD\n"},
    {"", " $MD $MD\n"},
    {"", " $MD!$END\n"},
    {"", " $vec\n"},
    {" $MD $END", "$MD"},
    {" $A $END", "$MD$END", "\n"},
    {" $SCF\n", "x\n", end},
    {" $SCF\n", "=\n", end},
    {" $SCF ", "A=", end},
    {" $SCF\n", "A=x\n", end},
    {" $SCF ", "!A=1!", end},
    {" $SCF !", "A=1 ", "\n $END\n"},
    {" $CONTRL ", "MULT=x,", end},
    {" $STATPT IFREEZ(1)=", "x,", end},
    {" $FORCE A=1 ", "=", end},
    {" $FORCE A=1", ",", " B=1 $END\n"},
    {" $FORCE A=1", ",", "1 $END\n"},
    {" $FORCE A=1", " 1", end},
    {" $FORCE A=x", ",x", end},
    {" $FORCE A=1", "!!", end},
    {" $FORCE A=1", "!!1", end},
    {" $FORCE", "\nA=", end},
    {" $FORCE", "\nA=x,x", end},
    {" $FORCE", " K%=x", end},
    {" $QUANPO A=1", ">\n", end},
    {" $QUANPO A=1", ">\n1", end},
    {" $BASIS BASNAM(1)=", "A%,", end},
    {" $FORCE A=1\n                                                                         B=1",
     " A=", end},
    {" $VEC\n", "x\n", end},
    {" $VEC\n", "\n", end},
    {" $ECP\n", ";", "\n $END\n"},
    {" $ECP\n", "x;", "\n $END\n"},
    {" $ECP\n", ">\n", end},
    {" $DATA\nt\nC1\n", ";", "\n $END\n"},
    {" $DATA\nt\nC1\n", "x;;", "\n $END\n"},
    {" $BASIS $END\n $DATA\nt\nC1\n", "x\n", end},
    {" $CONTRL COORD=ZMT $END\n $DATA\nt\nC1\nH\n\n", "x=;", "\n $END\n"},
});

}  // namespace

std::span<const Shape> short_documents() noexcept { return documents; }

std::span<const Shape> short_texts() noexcept { return texts; }

}  // namespace nurl::test
