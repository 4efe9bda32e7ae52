#include <string>
#include <string_view>

#include <doctest/doctest.h>

#include "reader/reading.hpp"

using namespace nurl::input::gamess;
using namespace nurl::test;

namespace {

constexpr std::string_view mark = "\xEF\xBB\xBF";

/// A deck with groups of every kind and some faults, with `line_end` behind each line.
std::string deck_with(std::string_view line_end) {
    const Lines lines{
        "! comment",
        " $CONTRL words SCFTYP=UHF",
        "  RUNTYP=OPTIMIZE $END text",
        "",
        " $PCM free text",
        " $VEC",
        "1 1 0.5",
        "  ",
        " $END",
        " $DATA",
        "Water",
        "CNV 2",
        "",
        "O 8.0 0.0 0.0 0.1",
        "  S 3",
        "   ",
        " $END",
        " $SCF DIIS=.T.",
    };
    std::string text;
    for (const std::string& line : lines) text.append(line).append(line_end);
    return text;
}

}  // namespace

TEST_CASE("The kind of line end does not matter") {
    const ParseResult expected = read(deck_with("\n"));
    CHECK(expected.warnings.size() == 3);
    CHECK(expected.input.sections.size() == 4);
    CHECK(read(deck_with("\r\n")) == expected);
    CHECK(read(deck_with("\r")) == expected);
}

TEST_CASE("No carriage return gets into the document") {
    const GamessInput deck = read_silently(
        "$PCM words\r\n A=1\r\n $END\r\n$DATA\r\nTitle\r\nC1\r\n\r\n  \r\n S 3\r\n$END\r\n");
    CHECK(deck.sections == Sections{{"PCM", {{"A", "1"}}, {"words"}}});
    CHECK(deck.title == "Title");
    CHECK(deck.point_group == "C1");
    CHECK(deck.data_lines == Lines{"  ", " S 3"});
}

TEST_CASE("Line ends may be mixed") {
    CHECK(read_silently("$PCM\rA=1\nB=2\r\nC=3\r$END").sections ==
          Sections{{"PCM", {{"A", "1"}, {"B", "2"}, {"C", "3"}}, {}}});
}

TEST_CASE("The last line needs no line end") {
    CHECK(read_silently("$PCM A=1\n$END") == read_silently("$PCM A=1\n$END\n"));
    CHECK(read("$PCM A=1") == read("$PCM A=1\n"));
}

TEST_CASE("Vertical tab and form feed end no line") {
    CHECK(read_silently("$PCM A=1\v$SCF DIIS=.T. $END").sections ==
          Sections{{"PCM", {{"A", "1"}, {"DIIS", ".T."}}, {"$SCF"}}});
}

TEST_CASE("A byte-order mark at the very start is skipped") {
    const std::string text = deck_with("\n");
    CHECK(read(std::string{mark} + text) == read(text));
    CHECK(read_silently(std::string{mark} + "$PCM $END").sections == Sections{{"PCM", {}, {}}});
}

TEST_CASE("A byte-order mark elsewhere is text") {
    CHECK_FALSE(parse_string(std::string{mark} + std::string{mark} + "$PCM $END").ok);
    CHECK_FALSE(parse_string("\n" + std::string{mark} + "$PCM $END").ok);
    CHECK_FALSE(parse_string(" " + std::string{mark} + "$PCM $END").ok);
    CHECK(read_group("$PCM\n" + std::string{mark} + "\n$END").raw_lines ==
          Lines{std::string{mark}});
}
