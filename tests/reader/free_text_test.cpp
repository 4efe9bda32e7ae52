// Text inside a group that is part of no pair.
#include <string>
#include <vector>

#include <doctest/doctest.h>

#include "reader/reading.hpp"

using namespace nurl::input::gamess;
using namespace nurl::test;

namespace {

const std::string header_kept =
    "Section $CONTRL preserved non-keyword text from its header as raw text";
const std::string body_kept = "Section $CONTRL preserved non-keyword body text as raw text";

}  // namespace

TEST_CASE("Free text on the header of a structured group is kept with a warning") {
    const ParseResult result = read("$CONTRL some words SCFTYP=RHF $END");
    CHECK(result.input.sections == Sections{{"CONTRL", {{"SCFTYP", "RHF"}}, {"some words"}}});
    CHECK(result.warnings == Lines{header_kept});
    CHECK(result.input.control.scftyp == "RHF");
    CHECK(result.input.control.extra.empty());
}

TEST_CASE("Free text in the body of a structured group is kept with a warning for each line") {
    const ParseResult result = read("$CONTRL\n one SCFTYP=RHF\n two words\n three $END");
    CHECK(result.input.sections ==
          Sections{{"CONTRL", {{"SCFTYP", "RHF"}}, {"one", "two words", "three"}}});
    CHECK(result.warnings == Lines{body_kept, body_kept, body_kept});
}

TEST_CASE("Free text in another group is kept without a warning") {
    CHECK(read_silently("$PCM some words SOLVNT=WATER\n more words\n $END").sections ==
          Sections{{"PCM", {{"SOLVNT", "WATER"}}, {"some words", "more words"}}});
}

TEST_CASE("A comment in a structured group is kept without a warning") {
    CHECK(read_silently("$CONTRL ! comment\n $END").sections ==
          Sections{{"CONTRL", {}, {"! comment"}}});
    CHECK(read_silently("$CONTRL # comment\n $END").sections ==
          Sections{{"CONTRL", {}, {"# comment"}}});
    CHECK(read_silently("$CONTRL\n  ! one\n# two\n\t!three $END").sections ==
          Sections{{"CONTRL", {}, {"! one", "# two", "!three"}}});
}

TEST_CASE("Free text that only goes on with a comment is worth a warning") {
    const ParseResult result = read("$CONTRL words ! comment\n * comment\n $END");
    CHECK(result.input.sections == Sections{{"CONTRL", {}, {"words ! comment", "* comment"}}});
    CHECK(result.warnings == Lines{header_kept, body_kept});
}

TEST_CASE("A comment behind a value belongs to the value") {
    CHECK(read_silently("$CONTRL SCFTYP=RHF ! comment\n $END").sections ==
          Sections{{"CONTRL", {{"SCFTYP", "RHF ! comment"}}, {}}});
}

TEST_CASE("A pair inside a comment counts as a pair") {
    const GamessInput deck = read_silently("$CONTRL\n ! once SCFTYP=UHF\n!MULT=3\n $END");
    CHECK(deck.sections ==
          Sections{{"CONTRL", {{"SCFTYP", "UHF"}, {"MULT", "3"}}, {"! once", "!"}}});
    CHECK(deck.control.scftyp == "UHF");
    CHECK(deck.control.mult == 3);
}

TEST_CASE("Free text of one line is joined without separators and trimmed") {
    struct Row {
        std::string line;
        Entries entries;
        Lines raw_lines;
    };
    const std::vector<Row> rows{
        {"one A=1", {{"A", "1"}}, {"one"}},
        {"  one  two  A=1 B=2", {{"A", "1"}, {"B", "2"}}, {"one  two"}},
        {"A=1 B=2", {{"A", "1"}, {"B", "2"}}, {}},
        {"A=1   B=2  ", {{"A", "1"}, {"B", "2"}}, {}},
        {"A=1$two", {{"A", "1"}}, {"$two"}},
        {"one A=1$two B=2$three", {{"A", "1"}, {"B", "2"}}, {"one $two $three"}},
        {"A=1 $two B=2 $three ", {{"A", "1"}, {"B", "2"}}, {"$two  $three"}},
        {"12A=1", {{"A", "1"}}, {"12"}},
        {"'A=1", {{"A", "1"}}, {"'"}},
        {"A= $B", {}, {"A= $B"}},
        {"A=$B=2", {{"B", "2"}}, {"A=$"}},
        {"A(1=2", {}, {"A(1=2"}},
        {"A (1)=2", {}, {"A (1)=2"}},
        {"\vone\f", {}, {"one"}},
        {"\xC3\xA4 A=1", {{"A", "1"}}, {"\xC3\xA4"}},
    };
    for (const auto& row : rows) {
        CAPTURE(row.line);
        const NamedSection expected{"PCM", row.entries, row.raw_lines};
        CHECK(read_group("$PCM\n" + row.line + "\n$END") == expected);
        CHECK(read_group("$PCM " + row.line + " $END") == expected);
        CHECK(read_group("$PCM\n" + row.line + "$END") == expected);
    }
}

TEST_CASE("Each line of free text becomes one raw line in order") {
    CHECK(read_group("$PCM header\nsecond\n\n  third  \nA=1\nfourth $END").raw_lines ==
          Lines{"header", "second", "third", "fourth"});
}

TEST_CASE("A dollar sign without a name is body text inside a group") {
    CHECK(read_silently("$PCM\n$\n $ \nA=1\n$END").sections ==
          Sections{{"PCM", {{"A", "1"}}, {"$", "$"}}});
    CHECK(read_silently("$PCM\n $ words\n $$SCF\n$END").sections ==
          Sections{{"PCM", {}, {"$ words", "$$SCF"}}});
    CHECK(read_silently("$PCM\n $ A=1\n$END").sections == Sections{{"PCM", {{"A", "1"}}, {"$"}}});
    const ParseResult structured = read("$CONTRL\n$\n$END");
    CHECK(structured.input.sections == Sections{{"CONTRL", {}, {"$"}}});
    CHECK(structured.warnings == Lines{body_kept});
}

TEST_CASE("Bytes outside ASCII and NUL are free text like any other") {
    const std::string text{"$PCM \0 \xFF\n A=x\0y\n $END", 21};
    CHECK(read_group(text) ==
          NamedSection{"PCM", {{"A", std::string{"x\0y", 3}}}, {std::string{"\0 \xFF", 3}}});
}
