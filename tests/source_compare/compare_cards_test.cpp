#include <string>

#include <doctest/doctest.h>

#include "model/printing.hpp"
#include "source_compare/comparing.hpp"

namespace nurl::test {

namespace {

Lines in_group(const std::string& name, const std::string& a, const std::string& b) {
    return differences(" $" + name + "\n" + a + " $END\n", " $" + name + "\n" + b + " $END\n");
}

}  // namespace

TEST_CASE("Free-format cards are compared word by word") {
    CHECK(in_group("ECP", "H-ECP NONE\n", "  H-ECP,  NONE  ! none\n") == Lines{});
    CHECK(in_group("ECP", "H-ECP NONE\n", "H-ECP GEN\n") ==
          Lines{"line ECP: \"H-ECP NONE\"@2:1 -> \"H-ECP GEN\"@2:1"});
}

TEST_CASE("Letter case and spelling of numbers count in free-format cards") {
    CHECK(in_group("DFTBSK", "C C /data/c-c.skf\n", "C C /data/C-C.skf\n").size() == 1);
    CHECK(in_group("POINTS", "ANGS 1\n 0 0 1.0\n", "ANGS 1\n 0 0 1.\n").size() == 1);
}

TEST_CASE("Blank cards count and comment lines do not") {
    CHECK(in_group("STONE", "\nATOMS\n", "\n! all\nATOMS\n") == Lines{});
    CHECK(in_group("STONE", "\nATOMS\n", "ATOMS\n") == Lines{"line STONE: \"\"@2:1 -> -"});
}

TEST_CASE("Cards that share a line or go over several are the same as others") {
    CHECK(in_group("ECP", "A ; B 1 2\n", "A\nB >\n 1 2\n") == Lines{});
    CHECK(in_group("ECP", "A ; B >\n 1 2\n", "A\nB 1 3\n") ==
          Lines{"line ECP: \"B 1 2\"@2:4 -> \"B 1 3\"@3:1"});
}

TEST_CASE("What is missing between commas counts in a card") {
    CHECK(in_group("ECP", "A,1,2,\n", "A 1 2\n") == Lines{});
    CHECK(in_group("ECP", "A,,2\n", "A,2\n").size() == 1);
    CHECK(in_group("ECP", ",A\n", "A\n").size() == 1);
    CHECK(in_group("ECP", "A,,\n", "A\n").size() == 1);
    CHECK(in_group("ECP", ",\n", "\n").size() == 1);
    CHECK(in_group("ECP", "A > ! , ! ,\n,\n", "A\n") == Lines{});
    CHECK(in_group("ECP", "A 1 0\n", "A 1\n").size() == 1);
    CHECK(in_group("ECP", "A, > ! , , ! ,\n 2\n", "A 2\n") == Lines{});
}

TEST_CASE("One card more or less is one difference") {
    const std::string cards = "A\nB\nC\nD\nE\n";
    CHECK(in_group("ECP", cards, "A\nB\nX\nC\nD\nE\n") == Lines{"line ECP: - -> \"X\"@4:1"});
    CHECK(in_group("ECP", cards, "A\nC\nD\nE\n") == Lines{"line ECP: \"B\"@3:1 -> -"});
    CHECK(in_group("ECP", cards, "X\nA\nB\nC\nD\nE\nY\n") ==
          Lines{"line ECP: - -> \"X\"@2:1", "line ECP: - -> \"Y\"@8:1"});
    CHECK(in_group("ECP", cards, "X\nB\nC\nE\nY\n") == Lines{"line ECP: \"A\"@2:1 -> \"X\"@2:1",
                                                             "line ECP: \"D\"@5:1 -> -",
                                                             "line ECP: - -> \"Y\"@6:1"});
    CHECK(in_group("ECP", "B\nA\nA\nC\n", "B\nX\nA\nD\n") ==
          Lines{"line ECP: \"A\"@3:1 -> \"X\"@3:1", "line ECP: \"C\"@5:1 -> \"D\"@5:1"});
    CHECK(in_group("ECP", "A\nA\n", "A\n") == Lines{"line ECP: \"A\"@3:1 -> -"});
    CHECK(in_group("ECP", "X\nA\nB\n", "A\nA\nC\n") ==
          Lines{"line ECP: \"X\"@2:1 -> \"A\"@2:1", "line ECP: \"B\"@4:1 -> \"C\"@4:1"});
}

TEST_CASE("Fixed columns are compared byte by byte, line ends aside") {
    const std::string lines = " 1  1 1.0E+00-2.0E+00\n 1  2 0.0E+00 ! ; >\n";
    CHECK(in_group("VEC", lines, lines) == Lines{});
    CHECK(in_group("VEC", lines, " 1  1 1.0E+00-2.0E+00\r\n 1  2 0.0E+00 ! ; >\r\n") == Lines{});
    CHECK(in_group("VEC", lines, " 1  1 1.0E+00-2.0E+00\n 1  2 0.0e+00 ! ; >\n") ==
          Lines{"line VEC: \" 1  2 0.0E+00 ! ; >\"@3:1 -> \" 1  2 0.0e+00 ! ; >\"@3:1"});
    CHECK(in_group("VEC", " 1 \n", " 1\n") == Lines{"line VEC: \" 1 \"@2:1 -> \" 1\"@2:1"});
    CHECK(in_group("VEC", " 1\n", "1\n").size() == 1);
    CHECK(in_group("VEC", " 1\n", " 1\n\n") == Lines{"line VEC: - -> \"\"@3:1"});
}

TEST_CASE("Groups of fixed columns are in capital letters") {
    CHECK(
        differences(" $VEC\n 1\n $END\n", " $vec\n 1\n $end\n") ==
        Lines{"line VEC: \"$VEC\"@1:2 -> \"$vec\"@1:2", "line VEC: \"$END\"@3:2 -> \"$end\"@3:2"});
    CHECK(differences(" $ECP\n 1\n $END\n", " $ecp\n 1\n $end\n") == Lines{});
}

TEST_CASE("A card on the line of the header or of the end is not one on a line of its own") {
    CHECK(differences(" $ECP A\n $END\n", " $ECP\n A\n $END\n") ==
          Lines{"line ECP: \"$ECP A\"@1:6 -> \" A\"@2:1"});
    CHECK(differences(" $VEC\n 1 $END\n", " $VEC\n 1\n $END\n").size() == 1);
    CHECK(differences(" $ECP\nB\n A $END\n", " $ECP\nB\n A\n $END\n") ==
          Lines{"line ECP: \" A $END\"@3:1 -> \" A\"@3:1"});
    CHECK(differences(" $ECP A $END\n", " $ECP A $END\n") == Lines{});
}

}  // namespace nurl::test
