#include <string>
#include <vector>

#include <doctest/doctest.h>

#include "model/entries.hpp"
#include "support/groups.hpp"
#include "support/show_model.hpp"
#include "writer/group_block.hpp"

using nurl::input::gamess::KeyValue;
using nurl::input::gamess::detail::append_entry;
using nurl::input::gamess::detail::append_group_block;
using nurl::test::deck_of;
using nurl::test::Entries;
using nurl::test::group;
using nurl::test::Lines;

namespace {

/// The text of a deck that holds one group named "G".
std::string text_of(const Entries& entries, const Lines& raw_lines = {}) {
    return deck_of({group("G", entries, raw_lines)}).to_string();
}

}  // namespace

TEST_CASE("A group without entries and raw lines is a header and its end") {
    CHECK(text_of({}) == " $G $END\n");
}

TEST_CASE("Entries stand behind the header in their order") {
    CHECK(text_of({{"B", "1"}, {"A", "2"}, {"C(3)", "x"}}) == " $G B=1 A=2 C(3)=x $END\n");
}

TEST_CASE("Keys are trimmed and in upper case") {
    CHECK(text_of({{"scftyp", "rhf"}, {" \t\n\v\f\rMult(1)\r\f\v\n\t ", "1"}}) ==
          " $G SCFTYP=rhf MULT(1)=1 $END\n");
    CHECK(text_of({{"\xC3\xA9x", "1"}}) == " $G \xC3\xA9X=1 $END\n");
}

TEST_CASE("Values are trimmed and keep their case and their inner blanks") {
    CHECK(text_of({{"K", " \t\n\v\f\rTwo  words\tHere\r\f\v\n\t "}}) ==
          " $G K=Two  words\tHere $END\n");
}

TEST_CASE("Values are written as they are, whatever they mean") {
    CHECK(text_of({{"A", "'b c'"}, {"D", "$END"}, {"E", "f=g"}, {"H", "\xFF\x80"}}) ==
          " $G A='b c' D=$END E=f=g H=\xFF\x80 $END\n");
    const std::string with_nul("a\0b", 3);
    CHECK(text_of({{"K", with_nul}}) == " $G K=" + with_nul + " $END\n");
}

TEST_CASE("Entries with a blank key or a blank value are dropped") {
    CHECK(text_of({{"", "1"}, {" \t\v", "2"}, {"A", ""}, {"B", " \n\f\r"}, {"", ""}, {"C", "3"}}) ==
          " $G C=3 $END\n");
    CHECK(text_of({{"A", ""}}) == " $G $END\n");
}

TEST_CASE("Duplicates are written in their order") {
    CHECK(text_of({{"scftyp", "RHF"}, {"X", "1"}, {"Scftyp", "UHF"}, {"X", "1"}}) ==
          " $G SCFTYP=RHF X=1 SCFTYP=UHF X=1 $END\n");
}

TEST_CASE("A very long group stays on one line") {
    Entries entries;
    std::string expected = " $G";
    for (int i = 0; i < 2000; ++i) {
        entries.push_back({"KEY" + std::to_string(i), "value"});
        expected += " KEY" + std::to_string(i) + "=value";
    }
    CHECK(text_of(entries) == expected + " $END\n");
}

TEST_CASE("Raw lines stand as they are between the entries and the end") {
    CHECK(text_of({{"A", "1"}}, {"  one  ", "two\t"}) == " $G A=1\n  one  \ntwo\t\n $END\n");
    CHECK(text_of({}, {"one"}) == " $G\none\n $END\n");
}

TEST_CASE("Blank raw lines are written when another raw line is not blank") {
    CHECK(text_of({}, {"", "x", "  ", "\v"}) == " $G\n\nx\n  \n\v\n $END\n");
    CHECK(text_of({{"A", "1"}}, {"x", ""}) == " $G A=1\nx\n\n $END\n");
}

TEST_CASE("Raw lines that are all blank are left out") {
    CHECK(text_of({{"A", "1"}}, {""}) == " $G A=1 $END\n");
    CHECK(text_of({}, {" ", "", "\t\n\v\f\r"}) == " $G $END\n");
}

TEST_CASE("An entry is taken with its key in upper case and both texts trimmed") {
    Entries entries{{"first", " kept "}};
    append_entry(entries, "\v key\f", " Some value\r");
    append_entry(entries, " ", "1");
    append_entry(entries, "A", "\t");
    append_entry(entries, "", "");
    CHECK(entries == Entries{{"first", " kept "}, {"KEY", "Some value"}});
}

TEST_CASE("A block is appended without a final newline under the header given") {
    std::string text = "before";
    append_group_block("$$Any", Entries{{"a", "1"}}, {}, text);
    CHECK(text == "before $$Any A=1 $END");
    append_group_block("$B", {}, Lines{"x"}, text);
    CHECK(text == "before $$Any A=1 $END $B\nx\n $END");
}
