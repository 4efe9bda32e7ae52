/// @file
/// Decks whose text is edited, compared and checked.
#pragma once

#include <string_view>

namespace nurl::test {

/// Every kind of group, several copies, a line that is just short enough, comments.
inline constexpr std::string_view source_deck =
    "! a comment in front of all groups\n"
    " $CONTRL SCFTYP=UHF RUNTYP=OPTIMIZE MULT=3 ! a comment behind the keywords\n"
    "  ICHARG=1 COORD=UNIQUE $END\n"
    " $SCF DIRSCF=.TRUE. $END\n"
    " $STATPT NSTEP=100 OPTTOL=1.0E-5 IFREEZ(1)=1,2,3, ! the first of them\n"
    "  4,5,6,\n"
    "  7 METHOD=A_METHOD_WITH_A_LONG_NAME $END\n"
    " $SCF DIRSCF=.FALSE. DIIS=.TRUE. SHIFT=.TRUE. RESTRICT=.FALSE. EXTRAP=.FALSE. $END\n"
    "$A_GROUP_OF_A_LONG_NAME A_KEYWORD_OF_A_LONG_NAME=1 $END\n"
    " $A_GROUP_OF_A_LONG_NAME A_KEYWORD_OF_A_LONG_NAME=\"a text in quotes, of some length\" $END\n"
    " $VEC\n"
    " 1  1 1.00000000E+00 0.00000000E+00 0.00000000E+00 0.00000000E+00 0.00000000E+00\n"
    " $END\n"
    " $DATA\n"
    "A title that is longer than fifteen bytes\n"
    "CNV      2\n"
    "\n"
    "OXYGEN-ATOM   8.0   0.0000000000   0.0000000000   0.1173000000\n"
    "   S 3\n"
    "     1 3.42525091 0.15432897\n"
    "     2 0.62391373 0.53532814\n"
    "     3 0.16885540 0.44463454\n"
    "\n"
    "HYDROGEN-ATOM 1.0   0.0000000000   0.7572000000  -0.4692000000\n"
    "   N31 6\n"
    "\n"
    " $END\n";

/// A deck that asks for much else.
inline constexpr std::string_view other_source_deck =
    " $CONTRL SCFTYP=ROHF MULT=3 COORD=UNIQUE $END\n"
    " $STATPT NSTEP=50 IFREEZ(1)=1,2 IFREEZ(5)=9 HESS=A_KIND_OF_HESSIAN_OF_SOME_LENGTH $END\n"
    " $ANOTHER_GROUP_OF_A_LONG_NAME KEY=1 a_stray_word_of_some_length $END\n"
    " $VEC\n"
    " 1  1 1.00000000E+00 0.00000000E+00 1.00000000E+00 0.00000000E+00 0.00000000E+00\n"
    " 1  2 1.00000000E+00\n"
    " $END\n"
    " $DATA\n"
    "Another title that is longer than fifteen bytes\n"
    "CN       2\n"
    "\n"
    "OXYGEN-ATOM   8.0   0.0000000000   0.0000000000   0.2173000000\n"
    "   S 2\n"
    "     1 3.42525091 0.15432897\n"
    "     2 0.62391373 0.53532814\n"
    "\n"
    "NITROGEN-ATOM 7.0   0.0000000000   0.7572000000  -0.4692000000\n"
    "   N31 6\n"
    "\n"
    " $END\n";

}  // namespace nurl::test
