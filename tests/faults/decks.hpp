/// @file
/// Small decks that between them take every road through the library.
///
/// Names and values are longer than the fifteen bytes that a string of the standard library holds
/// without an allocation, wherever that tells one road from another.
#pragma once

#include <array>
#include <string_view>

namespace nurl::test {

/// A deck, with a name for messages.
struct NamedDeck {
    std::string_view name;  ///< what is in it
    std::string_view text;  ///< its text
};

/// Every kind of group in one deck.
inline constexpr std::string_view whole_deck =
    "text in front of the groups\n"
    " $CONTRL SCFTYP=UHF RUNTYP=optimize MULT=3 UNITS=BOHR DFTTYP=a-long-functional-name\n"
    "  COORD=a-long-kind-of-coordinates NOSYM=1 MAXIT=many $END\n"
    " $SYSTEM MWORDS=250 TIMLIM=525600 a stray word that is long enough $END\n"
    " $BASIS GBASIS=a-long-name-of-a-basis NGAUSS=6 DIFFSP=.T. EXTFIL=.TRUE. $END\n"
    " $SCF DIRSCF=.TRUE. DAMP=a-value-without-member $END\n"
    " $GUESS GUESS=a-long-kind-of-guess NORB=12 PRTMO=.TRUE. $END\n"
    " $PCM SOLVNT=a-long-name-of-a-solvent IEF=-10\n"
    "  some words that belong to no keyword  SMD=.TRUE.\n"
    "  # a comment that is longer than a short text\n"
    " $END\n"
    " $STATPT NSTEP=100 IFREEZ(1)=1,2,3,4,5,6,7,8,9,10 HESS=READ $END\n"
    " $VEC\n"
    " 1  1 1.00000000E+00 0.00000000E+00 0.00000000E+00 0.00000000E+00 0.00000000E+00\n"
    " 2  1 1.00000000E+00 0.00000000E+00 0.00000000E+00 0.00000000E+00 0.00000000E+00\n"
    " $END\n"
    " $DATA\n"
    "A title that is longer than fifteen bytes\n"
    "CNV      2 and some more\n"
    "\n"
    " a-label-that-is-long  8.0   0.0000000000   0.0000000000   0.1173000000\n"
    " H                     1.0   0.0000000000   0.7572000000  -0.4692000000\n"
    "   a line of a basis set that is kept as it is\n"
    " $END\n";

/// Decks to be read.
inline constexpr std::array<NamedDeck, 10> decks_to_read{{
    {"every kind of group", whole_deck},
    {"parentheses in parentheses",
     " $FORCE A((1,(2),3))=some-value-that-is-long KEY(2,(3=x ))=(a (b c) d) INDEX(1)=((((\n"
     " B(1=2)=unbalanced-and-long-enough C)=3 D(4)(5)=6 $END\n"},
    {"groups that are not closed",
     " $AGROUPTHATHASALONGNAME A=1\n $SCF DIRSCF=.T. and stray words of some length\n"
     " $DATA\nA title of more than fifteen bytes\nC1\nH 1.0 0.0 0.0 0.0\n"},
    {"free text in structured groups",
     " $CONTRL no keyword in a line of text\n ! a comment\n more of the same $END\n"
     " $SCF a second group of text $END\n"},
    {"copies of structured groups",
     " $SCF DAMP=.TRUE. $END\n $SCF DIIS=.TRUE. SHIFT=.TRUE. $END\n"},
    {"text on the lines of headers and ends",
     "\xEF\xBB\xBF $HESS a line behind the header of some length\r\n 1 2 3\r\n tail $END behind "
     "it\r\n"},
    {"no group", "a text that is no deck at all and has no group\n"},
    {"nothing", ""},
    {"a molecule without a point group", " $DATA\nA title that is longer than fifteen bytes\n"},
    {"a molecule twice",
     " $DATA\nThe first title of the two\nC1\nCarbon-one 6.0 0 0 0\n $END\n"
     " $DATA\nThe second title of the two\nC1\nCarbon-two 6 1.5D0 0 0\n words of a basis set\n"
     " $END\n"},
}};

}  // namespace nurl::test
