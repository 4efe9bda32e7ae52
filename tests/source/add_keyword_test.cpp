#include <stdexcept>
#include <string>
#include <vector>

#include <doctest/doctest.h>

#include "source/edited.hpp"

namespace nurl::input::gamess::source {

using nurl::test::after_set;
using nurl::test::check_settings;

TEST_CASE("A new keyword goes behind the last one") {
    check_settings({
        {"on the line of $END", " $SCF A=1 $END\n", "B", "2", " $SCF A=1 B=2 $END\n"},
        {"in front of a glued $END", " $SCF A=1$END\n", "B", "2", " $SCF A=1 B=2$END\n"},
        {"behind a trailing comma", " $SCF A=1, $END\n", "B", "2", " $SCF A=1, B=2 $END\n"},
        {"behind a closed comment", " $SCF A=1 ! a ! $END\n", "B", "2",
         " $SCF A=1 ! a ! B=2 $END\n"},
        {"behind a value with a comment in it", " $SCF A=1, ! a ! 2 $END\n", "B", "2",
         " $SCF A=1, ! a ! 2 B=2 $END\n"},
        {"in an empty group", " $SCF $END\n", "B", "2", " $SCF B=2 $END\n"},
        {"in an empty group over two lines", " $SCF\n $END\n", "B", "2", " $SCF B=2\n $END\n"},
        {"on a line with others", " $SCF A=1 C=1\n $END\n", "B", "2", " $SCF A=1 C=1 B=2\n $END\n"},
        {"in the last copy", " $SCF A=1 $END\n $SCF C=1 $END\n", "B", "2",
         " $SCF A=1 $END\n $SCF C=1 B=2 $END\n"},
        {"behind a name without letters of one case", " $scf A_{=1 $end\n", "B", "X",
         " $scf A_{=1 B=X $end\n"},
        {"in small letters", " $scf a=1 $end\n", "B", "X", " $scf a=1 b=X $end\n"},
        {"behind a name of both cases", " $Scf $End\n", "B", "X", " $Scf B=X $End\n"},
        {"behind a name of which `z` is the only letter", " $SCF z=1 $END\n", "B", "X",
         " $SCF z=1 b=X $END\n"},
        {"behind a name with the first capital", " $scf Ab=1 $end\n", "B", "X",
         " $scf Ab=1 B=X $end\n"},
        {"behind a name with the last capital", " $scf Zb=1 $end\n", "B", "X",
         " $scf Zb=1 B=X $end\n"},
        {"behind a capital name and a closed comment", " $scf A=1 ! a ! $end\n", "B", "X",
         " $scf A=1 ! a ! B=X $end\n"},
        {"on the line of the header", " $SCF A=1\n $END\n", "B", "2", " $SCF A=1 B=2\n $END\n"},
        {"with a comma on the next line", " $SCF A=1\n , $END\n", "B", "2",
         " $SCF A=1 B=2\n , $END\n"},
        {"behind a closed comment on a line of its own", " $SCF\n A=1\n ! a ! \n $END\n", "B", "2",
         " $SCF\n A=1\n ! a ! B=2 \n $END\n"},
        {"in small letters without a neighbour", " $scf $end\n", "B", "X", " $scf b=X $end\n"},
        {"with the first index", " $SCF A=1 $END\n", "b( 1 )", "2,3", " $SCF A=1 B(1)=2,3 $END\n"},
        {"with an index", " $SCF A=1 $END\n", "B(3)", "2", " $SCF A=1 B(3)=2 $END\n"},
    });
}

TEST_CASE("A new keyword is in capitals in a group whose name has no letters") {
    CHECK(after_set(" $1 $END\n", "1", "B", "X") == " $1 B=X $END\n");
    CHECK(after_set(" $1{ $END\n", "1{", "B", "X") == " $1{ B=X $END\n");
}

TEST_CASE("A new keyword goes on the line of a header in column 1") {
    CHECK(after_set("$REKS A=1\n $END\n", "REKS", "B", "2") == "$REKS A=1 B=2\n $END\n");
}

TEST_CASE("A new keyword gets a line of its own where the others have one") {
    check_settings({
        {"a column", " $SCF\n   A=1\n   C=2\n $END\n", "B", "2",
         " $SCF\n   A=1\n   C=2\n   B=2\n $END\n"},
        {"a column with CR LF", " $SCF\r\n\tA=1\r\n $END\r\n", "B", "2",
         " $SCF\r\n\tA=1\r\n\tB=2\r\n $END\r\n"},
        {"a column at the edge", " $SCF\nA=1\n $END\n", "B", "2", " $SCF\nA=1\n B=2\n $END\n"},
        {"a line of two", " $SCF\n A=1 C=2\n $END\n", "B", "2", " $SCF\n A=1 C=2 B=2\n $END\n"},
        {"a column that $END ends", " $SCF\n A=1\n C=2 $END\n", "B", "2",
         " $SCF\n A=1\n C=2 B=2 $END\n"},
        {"blanks at the end of the line", " $SCF\n   A=1  \n $END\n", "B", "2",
         " $SCF\n   A=1  \n   B=2\n $END\n"},
        {"an open comment", " $SCF A=1 ! one\n $END\n", "B", "2", " $SCF A=1 ! one\n B=2\n $END\n"},
    });
}

TEST_CASE("A new keyword gets a line of its own when the line would pass 80 columns") {
    const std::string full = " $SCF A=" + std::string(67, '1');
    CHECK(after_set(full + " $END\n", "SCF", "B", "2") == full + "\n B=2 $END\n");
    const std::string shorter = " $SCF A=" + std::string(63, '1');
    CHECK(after_set(shorter + " $END\n", "SCF", "B", "2") == shorter + " B=2 $END\n");
    CHECK(after_set(shorter + "1 $END\n", "SCF", "B", "2") == shorter + "1\n B=2 $END\n");
}

TEST_CASE("A group whose name cannot stand in a header is not made for a keyword") {
    for (const std::string name : {"$$SCF", "$ SCF", "$$"}) {
        CAPTURE(name);
        Deck deck{" $SCF B=2 $END\n"};
        CHECK_THROWS_WITH_AS(deck.set_keyword(name, "A", "1"),
                             ("Section cannot be read back: " + name.substr(1)).c_str(),
                             std::runtime_error);
        CHECK(deck.text() == " $SCF B=2 $END\n");
    }
}

}  // namespace nurl::input::gamess::source
