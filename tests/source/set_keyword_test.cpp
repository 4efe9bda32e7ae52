#include <algorithm>
#include <string>
#include <vector>

#include <doctest/doctest.h>

#include "nurl/input/gamess/source/deck.hpp"
#include "source/edited.hpp"
#include "source/value_edit.hpp"

namespace nurl::input::gamess::source {

using nurl::test::after_set;
using nurl::test::check_settings;

TEST_CASE("Setting a value replaces its bytes where the value that counts stands") {
    check_settings({
        {"one value", " $SCF A=1  B=2 $END\n", "A", "17", " $SCF A=17  B=2 $END\n"},
        {"any case of the name", " $scf a=1 $end\n", "A", "2", " $scf a=2 $end\n"},
        {"blanks around it", " $SCF A = 1 $END\n", "A", " 2\t", " $SCF A = 2 $END\n"},
        {"the last of two", " $SCF A=1 A=2 $END\n", "A", "3", " $SCF A=1 A=3 $END\n"},
        {"the last copy of the group", " $SCF A=1 $END\n $SCF A=2 $END\n", "A", "3",
         " $SCF A=1 $END\n $SCF A=3 $END\n"},
        {"not in a copy without it", " $SCF A=1 $END\n $SCF B=2 $END\n", "A", "3",
         " $SCF A=3 $END\n $SCF B=2 $END\n"},
        {"not in a copy off column 2", " $SCF A=1 $END\n$SCF A=2 $END\n", "A", "3",
         " $SCF A=3 $END\n$SCF A=2 $END\n"},
        {"not in a comment", " $SCF ! A=1\n A=1 $END\n", "A", "3", " $SCF ! A=1\n A=3 $END\n"},
        {"a keyword without a value", " $SCF A= B=1 $END\n", "A", "3", " $SCF A=3 B=1 $END\n"},
        {"the first element", " $SCF A(1)=1 $END\n", "A", "3", " $SCF A(1)=3 $END\n"},
        {"another element", " $SCF A(2)=1 $END\n", "A(2)", "3", " $SCF A(2)=3 $END\n"},
        {"the same value", " $SCF A=1 $END\n", "A", "1", " $SCF A=1 $END\n"},
        {"a group that the text ends", " $SCF A=1", "A", "2", " $SCF A=2"},
        {"a group without $END", " $SCF A=1\n $DATA\n $END\n", "A", "2",
         " $SCF A=2\n $DATA\n $END\n"},
    });
}

TEST_CASE("Words of a list that stay the same keep their bytes and their layout") {
    check_settings({
        {"one of many", " $SCF A=1,2,\n   3,  4 $END\n", "A", "1,2,5,  4",
         " $SCF A=1,2,\n   5,  4 $END\n"},
        {"two of many", " $SCF A=1, ! one\n 2,3 $END\n", "A", "7,2,8",
         " $SCF A=7, ! one\n 2,8 $END\n"},
        {"one more at the end", " $SCF A=1,\n 2 B=1 $END\n", "A", "1,2,3",
         " $SCF A=1,\n 2,3 B=1 $END\n"},
        {"one less at the end", " $SCF A=1,\n 2,3 B=1 $END\n", "A", "1,2",
         " $SCF A=1,\n 2 B=1 $END\n"},
        {"one more in the middle", " $SCF A=1,\n 3 $END\n", "A", "1,2,3",
         " $SCF A=1,2,\n 3 $END\n"},
        {"one less at the front", " $SCF A=1,\n 2,3 $END\n", "A", "2,3", " $SCF A=2,3 $END\n"},
        {"the same over two lines", " $SCF A=1,\n 2 $END\n", "A", "1,2", " $SCF A=1,\n 2 $END\n"},
        {"the same with a blank behind the comma", " $SCF A=1,\n 2 $END\n", "A", "1, 2",
         " $SCF A=1,\n 2 $END\n"},
        {"the same with a vertical tab", " $SCF A=1\n 2 $END\n", "A", "1\v2",
         " $SCF A=1\n 2 $END\n"},
        {"another blank", " $SCF A=1 2 $END\n", "A", "1\v2", " $SCF A=1\v2 $END\n"},
        {"another separator", " $SCF A=1,2 $END\n", "A", "1 2", " $SCF A=1 2 $END\n"},
    });
}

TEST_CASE("Comments between words that go follow those that come") {
    check_settings({
        {"a closed one", " $SCF A=1,2, ! two !3 B=1 $END\n", "A", "9",
         " $SCF A=9 ! two ! B=1 $END\n"},
        {"an open one", " $SCF A=1, ! one\n  2,3 B=1 $END\n", "A", "9",
         " $SCF A=9 ! one\n  B=1 $END\n"},
    });
}

TEST_CASE("A line that a new value makes longer than 80 columns is folded") {
    std::string list = "1";
    for (int i = 2; i <= 40; ++i) list += ',' + std::to_string(i);
    Deck deck{" $SCF A=1 B=2 $END\n"};
    deck.set_keyword("SCF", "A", list);
    CHECK(deck.get_keyword("SCF", "A") == list);
    CHECK(deck.get_keyword("SCF", "B") == "2");
    std::size_t longest = 0;
    for (std::size_t at = 0; at < deck.text().size();) {
        const std::size_t end = deck.text().find('\n', at);
        longest = std::max(longest, end - at);
        at = end + 1;
    }
    CHECK(longest <= 80);
    CHECK(longest > 70);
}

TEST_CASE("A line that was longer than 80 columns before is not folded") {
    const std::string before = " $SCF A=1 B=" + std::string(80, 'x') + " $END\n";
    CHECK(after_set(before, "SCF", "A", "1234") ==
          " $SCF A=1234 B=" + std::string(80, 'x') + " $END\n");
}

TEST_CASE("Only lines that a new value made too long are folded") {
    const std::string wide = " $GUESS X=1 Y=" + std::string(80, 'y') + " Z=1 $END\n";
    const std::string last = " $SCF C=" + std::string(80, 'c') + " D=1 $END\n";
    const std::string full = " $SCF A=1 B=" + std::string(60, 'b');
    CHECK(after_set(wide + full + " $END\n" + last, "SCF", "A", "12345678") ==
          wide + " $SCF A=12345678 B=" + std::string(60, 'b') + "\n $END\n" + last);
}

TEST_CASE("A list may be folded when the value beside it grows") {
    const std::string list = "11, 22, 33, 44, 55, 66, 77, 88, 99, 10, 11, 12, 13, 14, 15";
    CHECK(after_set(" $SCF A=1 B=" + list + "\n $END\n", "SCF", "A", "1,2,3,4,5,6,7,8") ==
          " $SCF A=1,2,3,4,5,6,7,8 B=11, 22, 33, 44, 55, 66, 77, 88, 99, 10, 11, 12, 13,\n"
          " 14, 15\n $END\n");
}

TEST_CASE("A quote that closes what stands in front of it is refused") {
    CHECK(after_set(" $SCF B='q A=1 $END\n", "SCF", "A", "x'") ==
          "refused: Value cannot be read back: x'");
    CHECK(after_set(" $SCF A=0 B='q A=1 $END\n", "SCF", "A", "x'") ==
          "refused: Value cannot be read back: x'");
    CHECK(after_set(" $SCF A=x' B='q A=1 $END\n", "SCF", "A", "x'") ==
          "refused: Value cannot be read back: x'");
}

TEST_CASE("A group that is not there is made in front of $DATA") {
    CHECK(after_set(" $GUESS $END\n $DATA\nt\nC1\n $END\n", "SCF", "A", "1") ==
          " $GUESS $END\n $SCF A=1 $END\n $DATA\nt\nC1\n $END\n");
}

TEST_CASE("A value that would not be read back is refused") {
    const std::string deck = " $SCF A=1 $END\n";
    for (const char* const value :
         {"", " ", "$", "a$b", "a=b", "a!b", "a\nb", "a\rb", "1,", ",1", "B =1", "'a=b"}) {
        CAPTURE(value);
        std::string trimmed{value};
        if (trimmed == " ") trimmed.clear();
        CHECK(after_set(deck, "SCF", "A", value) ==
              "refused: Value cannot be read back: " + trimmed);
        CHECK(after_set(deck, "SCF", "NEW", value) ==
              "refused: Value cannot be read back: " + trimmed);
    }
}

TEST_CASE("A quoted value may hold what a bare one may not") {
    CHECK(after_set(" $SCF A=1 $END\n", "SCF", "A", "'a b=c, d'") == " $SCF A='a b=c, d' $END\n");
}

TEST_CASE("A name that would not be read back is refused") {
    const std::string deck = " $SCF A=1 $END\n";
    for (const char* const key : {"A B", "1A", "A=", "A!", "!A", "$A", "A(1", "A,B", "A\nB"}) {
        CAPTURE(key);
        const std::string answer = after_set(deck, "SCF", key, "1");
        if (std::string{key} == "A(1") {
            CHECK(answer == " $SCF A=1 A(1=1 $END\n");
        } else {
            CHECK(answer == "refused: Keyword cannot be read back: " + std::string{key});
        }
    }
    for (const char* const section : {"S F", "S$F", "END", "ENDING", "S\n $DATA"}) {
        CAPTURE(section);
        CHECK(after_set(deck, section, "A", "1") ==
              "refused: Section cannot be read back: " + std::string{section});
    }
}

TEST_CASE("Blank names are refused") {
    for (const char* const blank : {"", " ", "\t\n"}) {
        CHECK(after_set(" $SCF A=1 $END\n", blank, "A", "1") ==
              "refused: Section name and keyword must be non-empty");
        CHECK(after_set(" $SCF A=1 $END\n", "SCF", blank, "1") ==
              "refused: Section name and keyword must be non-empty");
    }
    CHECK(after_set("", "$", "A", "1") == "refused: Section name and keyword must be non-empty");
}

TEST_CASE("Groups without keywords are refused, there or not") {
    const std::string deck =
        " $BASIS BASNAM(1)=H $END\n $DATA\nt\nC1\n $END\n $VEC\n $END\n $H\nN31 6\n\n $END\n";
    CHECK(after_set(deck, "DATA", "A", "1") == "refused: $DATA does not support key=value editing");
    CHECK(after_set(deck, "vec", "A", "1") == "refused: $VEC does not support key=value editing");
    CHECK(after_set(deck, "H", "A", "1") == "refused: $H does not support key=value editing");
    CHECK(after_set(deck, "HESS", "A", "1") == "refused: $HESS does not support key=value editing");
}

TEST_CASE("A keyword is not added to a group that is not closed") {
    CHECK(after_set(" $SCF A=1\n $DATA\n $END\n", "SCF", "B", "1") ==
          "refused: Section is not closed by $END: SCF");
}

TEST_CASE("add_keyword leaves a keyword that is there alone unless told to replace it") {
    Deck deck{" $SCF A=1 $END\n"};
    CHECK_FALSE(deck.add_keyword("SCF", "A", "2", false));
    CHECK(deck.text() == " $SCF A=1 $END\n");
    CHECK(deck.add_keyword("SCF", "A", "2", true));
    CHECK(deck.add_keyword("SCF", "B", "3", false));
    CHECK(deck.text() == " $SCF A=2 B=3 $END\n");
}

TEST_CASE("Lines of up to 80 columns are left alone, whatever follows $END") {
    const std::string filler = " B=" + std::string(63, '1');
    check_settings({
        {"a line that gets too long", " $SCF A=1" + filler + " $END\n", "A", "22",
         " $SCF A=22" + filler + "\n $END\n"},
        {"80 columns and a note", " $SCF A=1" + filler + " $END note\n", "A", "2",
         " $SCF A=2" + filler + " $END note\n"},
        {"a short line and a long note", " $SCF A=1 $END " + std::string(70, 'x') + "\n", "A", "2",
         " $SCF A=2 $END " + std::string(70, 'x') + "\n"},
    });
}

TEST_CASE("A value that a quote further on would change is refused") {
    CHECK(after_set(" $SCF A=1 = 'x $END\n", "SCF", "A", "'") ==
          "refused: Value cannot be read back: '");
}

TEST_CASE("Values are the same when their words are, and the commas between them") {
    CHECK(same_value("1, 2", "1,2"));
    CHECK(same_value("1  2", "1 2"));
    CHECK_FALSE(same_value("1 2", "1,2"));
    CHECK_FALSE(same_value("12", "1 2"));
    CHECK_FALSE(same_value("12", "1,2"));
}

}  // namespace nurl::input::gamess::source
