#include <doctest/doctest.h>

#include "source_check/found.hpp"

using namespace nurl::test;
using namespace nurl::input::gamess::source;

namespace {

/// A text of so many columns.
std::string filled(std::string text, std::size_t columns) {
    return text + std::string(columns - text.size(), ' ');
}

/// The text that each finding is about.
Lines lost(const std::string& text) {
    Lines lines;
    const Deck deck{text};
    for (const Finding& finding : check(deck))
        if (finding.rule == "beyond-column-80") lines.emplace_back(deck.text(finding.span));
    return lines;
}

std::string fold(const std::string& text) { return fixed(text, "beyond-column-80"); }

}  // namespace

TEST_CASE("Text beyond column 80 is found where GAMESS would read it") {
    const std::string contrl = "Text beyond column 80 of $CONTRL is not read";
    const std::string at_80 = filled(" $CONTRL", 76);
    const std::string scf = " $CONTRL\n" + filled(" A=1", 80);
    check_rows("beyond-column-80",
               {{"the $END ends in column 80", at_80 + "$END\n", {}},
                {"the $END ends in column 81",
                 at_80 + " $END\n",
                 {"1:81 " + contrl + ", nor is the $END"}},
                {"the $END begins beyond",
                 at_80 + "      $END\n",
                 {"1:83 " + contrl + ", nor is the $END"}},
                {"text behind the $END", at_80 + "$END text\n", {}},
                {"no $END at all", at_80 + "MULT=1", {"1:81 " + contrl}},
                {"comments below", scf + " B=2\n ! x\n $END\n", {"2:82 " + contrl}},
                {"a keyword", scf + " B=2\n $END\n", {"2:82 " + contrl}},
                {"blanks", scf + "  \t\n $END\n", {}},
                {"a comment", scf + " ! B=2\n $END\n", {}},
                {"a comment that begins before column 80",
                 " $CONTRL\n" + filled(" ! x", 80) + " B=2\n $END\n",
                 {}},
                {"a comment that ends beyond", scf + " ! B=2 ! C=3\n $END\n", {"2:90 " + contrl}},
                {"text between comments", scf + " !x! B=2 !y!\n $END\n", {"2:86 " + contrl}},
                {"nothing behind text and comments",
                 " $CONTRL\n" + filled(" !x! A=1", 85) + "\n $END\n",
                 {}},
                {"text around a comment", scf + " B=2 !x! C=3\n $END\n", {"2:82 " + contrl}},
                {"lone carriage returns",
                 " $CONTRL\r" + filled(" A=1", 80) + "B=2\r $END\r",
                 {"2:81 " + contrl}},
                {"short lines between carriage returns",
                 " $CONTRL\r" + filled(" A=1", 60) + "\r" + filled(" B=1", 60) + "\r $END\r",
                 {}}});
}

TEST_CASE("What is lost runs from the first text beyond column 80 of a line to the last") {
    const std::string scf = " $CONTRL\n" + filled(" A=1", 80);
    CHECK(lost(scf + "  B=2 \t\n $END\n") == Lines{"B=2"});
    CHECK(lost(scf + " B=2 !x! C=3 !y!\n $END\n") == Lines{"B=2 !x! C=3"});
    CHECK(lost(scf + " B=2\n C=3 ! x\n $END\n") == Lines{"B=2"});
    CHECK(lost(filled(" $ECP\n 1", 88) + "2 3  ! x\n $END\n") == Lines{"2 3"});
}

TEST_CASE("Comments beyond column 80 are known on each of several wide lines") {
    const std::string line = filled(" A=1", 80);
    CHECK(lost(" $CONTRL\n" + line + " B=2\n" + line + " ! C=3\n" + line + " D=4 ! x\n $END\n") ==
          Lines{"B=2", "D=4"});
}

TEST_CASE("Titles, punched lines and what stands between groups may be wide") {
    const std::string wide = filled("x", 90) + "x\n";
    check_rows("beyond-column-80",
               {{"a title", " $DATA\n" + wide + "C1\n $END\n", {}},
                {"a point group",
                 " $DATA\nt\n" + wide + " $END\n",
                 {"3:91 Text beyond column 80 of $DATA is not read"}},
                {"a comment of a card", " $DATA\nt\nC1 ! " + wide + " $END\n", {}},
                {"a punched line", " $VEC\n" + wide + " $END\n", {}},
                {"a card of another group",
                 " $ECP\n" + wide + " $END\n",
                 {"2:91 Text beyond column 80 of $ECP is not read"}},
                {"between groups", wide + " $SCF $END\n" + wide, {}},
                {"a group that is not found", "$SCF\n" + wide + " $END\n", {}}});
}

TEST_CASE("A wide line of keywords is cut before the first word that does not fit") {
    const std::string line = filled(" $CONTRL SCFTYP=RHF", 70);
    CHECK(fold(line + " MAXIT=30   MULT=1 $END\r\n") == line + " MAXIT=30\r\n MULT=1 $END\r\n");
    CHECK(fold(line + "MAXIT=300 MULT=1\n $END\n") == line + "MAXIT=300\n MULT=1\n $END\n");
}

TEST_CASE("The $END may begin the second line, a comma may not") {
    const std::string line = filled(" $CONTRL SCFTYP=RHF", 79);
    CHECK(fold(line + "$END\n") == " $CONTRL SCFTYP=RHF\n $END\n");
    const std::string list = filled("IFREEZ(1)=1", 71) + ",2 $END\n";
    CHECK(fold(" $STATPT " + list) == " $STATPT\n " + list);
}

TEST_CASE("A list is cut behind a comma, outside the index of a keyword") {
    const std::string line = filled(" $STATPT IFREEZ(1)=1,", 76);
    CHECK(fold(line + "2,3,4 $END\n") == line + "2,3,\n 4 $END\n");
    CHECK(fold(line + "A(2,3)=4 $END\n") == " $STATPT IFREEZ(1)=1,\n A(2,3)=4 $END\n");
    CHECK(fold(line + "A = 4 $END\n") == " $STATPT IFREEZ(1)=1,\n A = 4 $END\n");
}

TEST_CASE("A wide line is left to the author where cutting it is not simple") {
    const std::string line = filled(" $CONTRL SCFTYP=RHF", 79);
    for (const std::string& text :
         {line + " $SCF $END\n", line + " MULT=1 ! x ! $END\n", line + " A='b c' $END\n",
          filled(" $QUANPO NFIXMM=1", 79) + " 2 3 $END\n", filled(" $MINE A=1", 79) + " B=1 $END\n",
          " $CONTRL A=" + std::string(90, 'x') + " $END\n",
          " $CONTRL\n" + std::string(90, 'x') + "\n $END\n",
          " $CONTRL\n" + std::string(30, ' ') + "A=" + std::string(53, 'x') + "\n $END\n",
          line + " MULT=1" + filled(" ", 75) + "$END\n", filled(" $ECP", 79) + " 1 2\n $END\n"}) {
        CAPTURE(text);
        CHECK(found(text, "beyond-column-80").size() == 1);
        CHECK(fold(text) == text);
    }
}

TEST_CASE("A wide line is cut only when the second line has room") {
    const std::string first = " $CONTRL SCFTYP=RHF";
    const std::string fits = "A=" + std::string(77, 'x');
    CHECK(fold(first + ' ' + fits + "\n $END\n") == first + "\n " + fits + "\n $END\n");
    CHECK(fold(" $CONTRL\n1 " + fits + "\n $END\n") == " $CONTRL\n1\n " + fits + "\n $END\n");
    const std::string too_wide = first + ' ' + fits + "x\n $END\n";
    CHECK(fold(too_wide) == too_wide);
}

TEST_CASE("A parenthesis that was not opened hinders no cut") {
    const std::string line = filled(" $CONTRL A=1)", 78);
    CHECK(fold(line + "2 B=1 $END\n") == line + "2\n B=1 $END\n");
}
