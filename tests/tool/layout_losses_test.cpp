#include <string>
#include <vector>

#include <doctest/doctest.h>

#include "tool/workplace.hpp"

using nurl::test::Outcome;
using nurl::test::Workplace;

namespace {

/// What `format --canonical` says about a deck, without file name and weight, and
/// without what comparing the decks adds.
std::vector<std::string> losses(std::string_view deck) {
    const Workplace place;
    const std::string err =
        place.run({"format", "--canonical", "--force", "-"}, {.input = std::string{deck}}).err;
    const std::string_view front = "<stdin>: note: ";
    std::vector<std::string> sentences;
    for (std::size_t begin = 0; begin < err.size();) {
        const std::size_t end = err.find('\n', begin);
        REQUIRE(err.compare(begin, front.size(), front) == 0);
        sentences.push_back(err.substr(begin + front.size(), end - begin - front.size()));
        if (sentences.back().starts_with("GAMESS reads ")) sentences.pop_back();
        begin = end + 1;
    }
    return sentences;
}

using Sentences = std::vector<std::string>;

const std::string data = " $DATA\nTitle\nC1\nH 1.0 0.0 0.0 0.1\n$END\n";

}  // namespace

TEST_CASE("Nothing is said about a deck that loses nothing") {
    CHECK(losses(" $contrl scftyp=rhf runtyp=energy $end\n\n $scf dirscf=.true. $end\r\n"
                 " $PCM A=1 B=two words $END\n"
                 "   \n"
                 " $VEC\n1 1 0.1\n1 2 0.2\n $END\n" +
                 data) == Sentences{});
}

TEST_CASE("Text between the groups is left out, blank lines there do not count") {
    CHECK(losses("one\n\n $PCM A=1 $END\n  \ntwo\n$END\n") ==
          Sentences{"3 lines of text outside the groups are left out"});
    CHECK(losses("! one\n $PCM A=1 $END\n") ==
          Sentences{"1 line of text outside the groups is left out"});
}

TEST_CASE("Text behind $END is left out, blanks there do not count") {
    CHECK(losses(" $PCM A=1 $END  \n $DFT A=1 $END $VEC\n $SCF DIRSCF=.T. $ENDX\n") ==
          Sentences{"2 texts behind $END are left out"});
}

TEST_CASE("Copies of structured groups and of the molecule are merged") {
    CHECK(losses(" $SCF DIRSCF=.T. $END\n $SCF MOM=.T. $END\n $PCM A=1 $END\n $PCM A=2 $END\n") ==
          Sentences{"1 further copy of a structured group or of $DATA is merged into the first "
                    "one"});
    CHECK(losses(data + data) ==
          Sentences{"1 further copy of a structured group or of $DATA is merged into the first one",
                    "2 lines of $DATA that are no atoms are moved behind the atoms"});
}

TEST_CASE("Groups behind the molecule are written in front of it") {
    CHECK(losses(data + " $PCM A=1 $END\n $VEC\n1 1 0.1\n $END\n") ==
          Sentences{"2 groups behind $DATA are written in front of it"});
}

TEST_CASE("Free text and comments in structured groups are left out") {
    CHECK(losses(" $SCF some words DIRSCF=.T. $END\n $CONTRL ! note\n RUNTYP=\nENERGY $END\n"
                 " $BASIS GBASIS=STO $END\n") ==
          Sentences{"4 pieces of free text or comment in $CONTRL, $SYSTEM, $BASIS, $SCF or $GUESS "
                    "are left out",
                    "1 structured group without a keyword is left out"});
}

TEST_CASE("A structured group without keywords is left out") {
    CHECK(losses(" $SCF $END\n $PCM $END\n") ==
          Sentences{"1 structured group without a keyword is left out"});
}

TEST_CASE("Earlier values of repeated keywords of structured groups are left out") {
    CHECK(losses(" $CONTRL MULT=1 MULT=2 NPRINT=1 NPRINT=2 $END\n $PCM A=1 A=2 $END\n") ==
          Sentences{"1 earlier value of a keyword that is given again in $CONTRL, $SYSTEM, $BASIS, "
                    "$SCF or $GUESS is left out"});
}

TEST_CASE("Units that the document does not know become Angstrom") {
    CHECK(losses(" $CONTRL UNITS=AU $END\n") ==
          Sentences{"1 value of UNITS other than ANGS and BOHR is written as ANGS"});
    CHECK(losses(" $CONTRL UNITS=angstrom $END\n $PCM UNITS=AU $END\n") == Sentences{});
    CHECK(losses(" $CONTRL UNITS=Bohr $END\n") == Sentences{});
}

TEST_CASE("Keywords in comments come to life") {
    CHECK(losses(" $PCM A=1\n! B=2 ! C=3\n $END\n") ==
          Sentences{"1 keyword in a comment is written as a keyword that counts",
                    "1 comment behind a value is joined with the keywords that follow, which "
                    "GAMESS then skips",
                    "1 keyword group loses its line breaks",
                    "1 piece of free text or continued value in a keyword group is moved behind "
                    "the keywords"});
    CHECK(losses(" $SCF ! DIRSCF=.T. $END\n") ==
          Sentences{"1 piece of free text or comment in $CONTRL, $SYSTEM, $BASIS, $SCF or $GUESS "
                    "is left out",
                    "1 keyword in a comment is written as a keyword that counts"});
}

TEST_CASE("A comment behind a value hides what comes behind it on the joined line") {
    CHECK(losses(" $PCM A=1 ! note\n B=2 ! done ! $END\n") ==
          Sentences{"1 comment behind a value is joined with the keywords that follow, which "
                    "GAMESS then skips",
                    "1 keyword group loses its line breaks"});
}

TEST_CASE("A keyword that a comment behind a value hides stays hidden, but not in a record") {
    CHECK(losses(" $PCM A=1 ! B=2 $END\n") ==
          Sentences{"1 comment behind a value is joined with the keywords that follow, which "
                    "GAMESS then skips"});
    CHECK(losses(" $CONTRL NPRINT=1 ! MULT=2 $END\n") ==
          Sentences{"1 keyword in a comment is written as a keyword that counts",
                    "1 comment behind a value is joined with the keywords that follow, which "
                    "GAMESS then skips"});
}

TEST_CASE("Keyword groups lose their line breaks") {
    CHECK(losses(" $SCF\n DIRSCF=.T.\n MOM=.T.\n $END\n $PCM A=1\n $END\n $DFT A=1\nB=2 $END\n") ==
          Sentences{"2 keyword groups lose their line breaks"});
}

TEST_CASE("Free text in front of keywords is moved behind them") {
    CHECK(losses(" $STATPT IFREEZ(1)=1,2,\n3,4\n5\nOPTTOL=1\ntail\n $END\n") ==
          Sentences{"1 keyword group loses its line breaks",
                    "2 pieces of free text or continued values in keyword groups are moved behind "
                    "the keywords"});
    CHECK(losses(" $STATPT OPTTOL=1\ntail\n $END\n") == Sentences{});
    CHECK(losses(" $STATPT words OPTTOL=1 $END\n") ==
          Sentences{"1 piece of free text or continued value in a keyword group is moved behind "
                    "the keywords"});
}

TEST_CASE("Text on the header line of a raw group gets a line of its own") {
    CHECK(losses(" $VEC 1 1 0.1\n1 2 0.2\n $END\n") ==
          Sentences{"1 text on the header line of a raw group is moved to a line of its own"});
}

TEST_CASE("Lines of raw groups lose their leading blanks") {
    CHECK(losses(" $VEC\n 1  1 0.1\n 1  2-0.2\n10  1 0.3\n $END\n") ==
          Sentences{"2 lines of raw groups lose their leading blanks, and fixed columns as in $VEC "
                    "with them"});
}

TEST_CASE("Blank lines of raw groups are left out") {
    CHECK(losses(" $VEC\n\n1 1 0.1\n  \n $END\n") ==
          Sentences{"2 blank lines of raw groups are left out"});
}

TEST_CASE("A group without keywords that the schema does not know counts as raw") {
    CHECK(losses(" $MYBAS\n S 1\n\n $END\n") ==
          Sentences{"1 line of a raw group loses its leading blanks, and fixed columns as in $VEC "
                    "with them",
                    "1 blank line of a raw group is left out"});
    CHECK(losses(" $STATPT\n words\n\n $END\n") == Sentences{});
    CHECK(losses(" $MYKEYS A=1\n words\n\n $END\n") == Sentences{});
}

TEST_CASE("Text on the header line of the molecule gets a line of its own") {
    CHECK(losses(" $DATA Title\nC1\nH 1.0 0.0 0.0 0.1\n$END\n") ==
          Sentences{"1 text on the header line of $DATA is written as a line of its own"});
}

TEST_CASE("Blank lines of the molecule are left out, or moved when they hold blanks") {
    const std::string sentence =
        " of $DATA are left out or moved behind the atoms; GAMESS needs one for an empty title, "
        "after a point group other than C1 and after each inline basis";
    CHECK(losses(" $DATA\nTitle\nCNV 2\n\nH 1.0 0.0 0.0 0.1\n\n $END\n") ==
          Sentences{"2 blank lines" + sentence});
    CHECK(losses(" $DATA\n  \nTitle\nCNV 2\n  \nH 1.0 0.0 0.0 0.1\n  \n $END\n") ==
          Sentences{"2 blank lines" + sentence});
}

TEST_CASE("Lines of the molecule that are no atoms are moved behind the atoms") {
    CHECK(losses(" $DATA\nTitle\nC1\nO 8.0 0.0 0.0 0.1\n N31 6\nH 1.0 0.0 0.7 0.1\n N31 6\n"
                 " $END\n") ==
          Sentences{"1 line of $DATA that is no atom is moved behind the atoms"});
}

TEST_CASE("Numbers in front of atoms and texts behind them are left out") {
    CHECK(losses(" $DATA\nTitle\nC1\n1 H 1.0 0.0 0.0 0.1\n2 H 1.0 0.0 0.0 0.7 ! far\n"
                 "+3 H 1.0 0.0 0.0 1.7\nH 1.0 0.0 0.0 2.7 x\nH 1.0 0.0 0.0 3.7\n$END\n") ==
          Sentences{"3 numbers in front of atoms are left out",
                    "2 texts behind the coordinates of atoms are left out"});
}

TEST_CASE("Numbers with more decimals than are written are rounded") {
    CHECK(losses(" $DATA\nTitle\nC1\nH 1.0 0.12345678901 1.0E-11 0.1234567890\n"
                 "H 1.0000001 0.0 0.0 1D2\n$END\n") == Sentences{"3 numbers of atoms are rounded"});
}

TEST_CASE("Lines that become longer than GAMESS reads are counted") {
    const std::string words(30, 'A');
    const std::string group = " $PCM A=" + words + "\n B=" + words + "\n C=" + words + " $END\n";
    CHECK(losses(group) ==
          Sentences{"1 keyword group loses its line breaks",
                    "1 line becomes longer than 80 columns, where GAMESS cuts it"});
}

TEST_CASE("Lines that are too long already are not counted, nor are lines of 80 columns") {
    const std::string title(81, 'T');
    CHECK(losses(" $DATA\n" + title + "\nC1\n$END\n") == Sentences{});
    const std::string value(80 - std::string{" $PCM A= $END"}.size(), 'A');
    CHECK(losses(" $PCM\nA=" + value + " $END\n") ==
          Sentences{"1 keyword group loses its line breaks"});
    CHECK(losses(" $PCM\nA=A" + value + " $END\n") ==
          Sentences{"1 keyword group loses its line breaks",
                    "1 line becomes longer than 80 columns, where GAMESS cuts it"});
}
