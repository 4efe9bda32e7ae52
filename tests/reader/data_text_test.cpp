// Title, point group, other lines and the end of `$DATA`.
#include <string>
#include <vector>

#include <doctest/doctest.h>

#include "reader/reading.hpp"

using namespace nurl::input::gamess;
using namespace nurl::test;

namespace {

const AtomRecord hydrogen{"H", 1.0, 0.0, 0.0, 0.7};

/// The lines kept of `$DATA` whose title and point group are followed by `text`.
Lines kept_lines(const std::string& text) {
    return read_silently("$DATA\nTitle\nC1\n" + text).data_lines;
}

}  // namespace

TEST_CASE("DATA gives title and point group and atoms and is no generic group") {
    GamessInput expected;
    expected.has_data = true;
    expected.title = "Hydrogen";
    expected.point_group = "Cnv 2";
    expected.atoms = {hydrogen};
    CHECK(read_silently(" $data\nHydrogen\nCnv 2\nH 1.0 0.0 0.0 0.7\n$end\n") == expected);
}

TEST_CASE("DATA alone makes a deck") {
    GamessInput expected;
    expected.has_data = true;
    CHECK(read_silently("$DATA $END") == expected);
    CHECK(read_silently("$DATA$END") == expected);
    CHECK(read_silently("$DATA\n$END") == expected);
    CHECK(read_silently("$DATA\n\n  \n $END") == expected);
}

TEST_CASE("The title is the text on the header or else the first line that is not blank") {
    struct Row {
        std::string text;
        std::string title;
        std::string point_group;
    };
    const std::vector<Row> rows{
        {"$DATA\n  My  title \t\nC1\n$END", "My  title", "C1"},
        {"$DATA\n\n \t \n My title\n\n  \n Cs \n$END", "My title", "Cs"},
        {"$DATA  My title \nC1\n$END", "My title", "C1"},
        {"$DATA My title\n\n  \nC1\n$END", "My title", "C1"},
        {"$DATA$ title\nC1\n$END", "$ title", "C1"},
        {"$DATA My title $END", "My title", ""},
        {"$DATA\nMy title $END", "My title", ""},
        {"$DATA\nMy title\nDnh 2 $END", "My title", "Dnh 2"},
        {"$DATA My title\nC1 $END", "My title", "C1"},
        {"$DATA\nH 1.0 0.0 0.0 0.7\n! C1\n$END", "H 1.0 0.0 0.0 0.7", "! C1"},
        {"$DATA\nA=1\nB=2\n$END", "A=1", "B=2"},
        {"$DATA\n\xC3\xA4\nC1\n$END", "\xC3\xA4", "C1"},
    };
    for (const auto& row : rows) {
        CAPTURE(row.text);
        GamessInput expected;
        expected.has_data = true;
        expected.title = row.title;
        expected.point_group = row.point_group;
        CHECK(read_silently(row.text) == expected);
    }
}

TEST_CASE("DATA that ends on its header is complete there") {
    const GamessInput deck = read_silently("$DATA $END\nTitle\nC1\nH 1.0 0.0 0.0 0.7\n $END\n");
    CHECK(deck.title.empty());
    CHECK(deck.point_group.empty());
    CHECK(deck.atoms.empty());
    CHECK(read_silently("$DATA Title $END\nC1\n$END\n").point_group.empty());
}

TEST_CASE("Other lines are kept in order as they stand") {
    CHECK(kept_lines("  X axis\nO 8.0\n   S   3\n\t1 130.7 0.15\n! comment\nA=1  \n$END") ==
          Lines{"  X axis", "O 8.0", "   S   3", "\t1 130.7 0.15", "! comment", "A=1  "});
}

TEST_CASE("Behind the point group a line of blanks is kept and an empty one is not") {
    CHECK(kept_lines("\n\n$END") == Lines{});
    CHECK(kept_lines(" \n\n\t \n$END") == Lines{" ", "\t "});
    CHECK(kept_lines("\v\f\n$END") == Lines{"\v\f"});
    CHECK(kept_lines("a\n\n  \nb\n$END") == Lines{"a", "  ", "b"});
}

TEST_CASE("Blanks in front of the end marker are a line of blanks") {
    CHECK(kept_lines("$END") == Lines{});
    CHECK(kept_lines(" $END") == Lines{" "});
    CHECK(kept_lines("\t  $end text") == Lines{"\t  "});
    CHECK(read_silently("$DATA\nTitle\n $END").data_lines == Lines{});
    CHECK(read_silently("$DATA\n $END").data_lines == Lines{});
}

TEST_CASE("Text in front of the end marker is a line like any other") {
    CHECK(kept_lines("  S 3 $END") == Lines{"  S 3 "});
    CHECK(kept_lines("S 3$ENDX") == Lines{"S 3"});
    CHECK(read_silently("$DATA\nTitle\nC1\nH 1.0 0.0 0.0 0.7 $END").atoms ==
          std::vector<AtomRecord>{hydrogen});
    CHECK(read_silently("$DATA\nTitle\nC1\nH 1.0 0.0 0.0 0.7$END").atoms ==
          std::vector<AtomRecord>{hydrogen});
}

TEST_CASE("Text behind the end marker and the lines after it do not belong to DATA") {
    CHECK(kept_lines("$END H 1.0 0.0 0.0 0.7\nmore\n$END\n") == Lines{});
}

TEST_CASE("A dollar sign without a name is a line of DATA") {
    CHECK(kept_lines("$\n  $ text\n $$SCF\n$END") == Lines{"$", "  $ text", " $$SCF"});
}

TEST_CASE("Another header ends DATA without a warning and is read") {
    const GamessInput deck = read_silently("$DATA\nTitle\nC1\nS 3\n $PCM A=1 $END\nmore\n");
    CHECK(deck.data_lines == Lines{"S 3"});
    CHECK(deck.sections == Sections{{"PCM", {{"A", "1"}}, {}}});
    CHECK(read_silently("$DATA\n$PCM $END").title.empty());
    CHECK(read_silently("$DATA Title\n$PCM $END").title == "Title");
}

TEST_CASE("The end of the text in DATA keeps what was read and gives a warning") {
    for (const std::string text :
         {"$DATA", "$DATA Title", "$DATA\nTitle\nC1\nH 1.0 0.0 0.0 0.7\n", "$DATA\n\n"}) {
        CAPTURE(text);
        CHECK(read(text).warnings == Lines{"$DATA reached end-of-file without $END"});
    }
    const GamessInput deck = read("$DATA\nTitle\nC1\nH 1.0 0.0 0.0 0.7\nS 3\n  ").input;
    CHECK(deck.title == "Title");
    CHECK(deck.atoms == std::vector<AtomRecord>{hydrogen});
    CHECK(deck.data_lines == Lines{"S 3", "  "});
}

TEST_CASE("A second DATA goes on filling the document") {
    const GamessInput deck = read_silently(
        "$DATA\nTitle\nC1\nH 1.0 0.0 0.0 0.7\nS 3\n$END\n"
        "$DATA\nSecond\nCs\n\n \nO 8.0 1.0 2.0 3.0\n$END\n");
    CHECK(deck.title == "Title");
    CHECK(deck.point_group == "C1");
    CHECK(deck.atoms == std::vector<AtomRecord>{hydrogen, {"O", 8.0, 1.0, 2.0, 3.0}});
    CHECK(deck.data_lines == Lines{"S 3", "Second", "Cs", " "});
}

TEST_CASE("A second DATA fills title and point group while they are empty") {
    const GamessInput title = read_silently("$DATA $END\n$DATA\nTitle\nC1\n$END\n");
    CHECK(title.title == "Title");
    CHECK(title.point_group == "C1");
    const GamessInput point_group = read_silently("$DATA Title $END\n$DATA\n\nC1\nS 3\n$END\n");
    CHECK(point_group.title == "Title");
    CHECK(point_group.point_group == "C1");
    CHECK(point_group.data_lines == Lines{"S 3"});
}

TEST_CASE("Text on the header of a second DATA is its first line") {
    CHECK(read_silently("$DATA Title $END\n$DATA  C1 \nS 3\n$END\n").point_group == "C1");
    const std::string first = "$DATA\nTitle\nC1\n$END\n";
    CHECK(read_silently(first + "$DATA H 1.0 0.0 0.0 0.7\n$END\n").atoms ==
          std::vector<AtomRecord>{hydrogen});
    CHECK(read_silently(first + "$DATA S 3 $END\n").data_lines == Lines{"S 3"});
    CHECK(read_silently(first + "$DATA  \n$END\n").data_lines == Lines{});
    CHECK(read_silently(first + "$DATA $END\n").data_lines == Lines{});
}
