// Which lines of `$DATA` are atoms.
#include <string>
#include <vector>

#include <doctest/doctest.h>

#include "reader/reading.hpp"

using namespace nurl::input::gamess;
using namespace nurl::test;

namespace {

GamessInput read_line(const std::string& line) {
    return read_silently("$DATA\nTitle\nC1\n" + line + "\n$END\n");
}

}  // namespace

TEST_CASE("An atom line has a label and a charge and three coordinates") {
    struct Row {
        std::string line;
        AtomRecord atom;
    };
    const std::vector<Row> rows{
        {"H 1.0 0.0 0.0 0.7", {"H", 1.0, 0.0, 0.0, 0.7}},
        {"H 1 0 0 1", {"H", 1.0, 0.0, 0.0, 1.0}},
        {"  \tCL\t17.0   -1.5 2.25\t10  ", {"CL", 17.0, -1.5, 2.25, 10.0}},
        {"hydrogen 1.0 1. .5 -.5", {"hydrogen", 1.0, 1.0, 0.5, -0.5}},
        {"X -1.0 +1.0 -0.0 1E1", {"X", -1.0, 1.0, 0.0, 10.0}},
        {"O 8.0D+00 1.5D-1 2d1 -3.0E+0", {"O", 8.0, 0.15, 20.0, -3.0}},
        {"O 8.0 1e-400 0 0", {"O", 8.0, 0.0, 0.0, 0.0}},
        {"O1* 8.0 0 0 0", {"O1*", 8.0, 0.0, 0.0, 0.0}},
        {"A=1 8.0 0 0 0", {"A=1", 8.0, 0.0, 0.0, 0.0}},
        {"1.5 8.0 0 0 0", {"1.5", 8.0, 0.0, 0.0, 0.0}},
        {"2147483648 8.0 0 0 0", {"2147483648", 8.0, 0.0, 0.0, 0.0}},
        {"\xC3\xA4 8.0 0 0 0", {"\xC3\xA4", 8.0, 0.0, 0.0, 0.0}},
    };
    for (const auto& row : rows) {
        CAPTURE(row.line);
        const GamessInput deck = read_line(row.line);
        CHECK(deck.atoms == std::vector<AtomRecord>{row.atom});
        CHECK(deck.data_lines == Lines{});
    }
}

TEST_CASE("An integer in front of the label is an index and is skipped") {
    struct Row {
        std::string line;
        AtomRecord atom;
    };
    const std::vector<Row> rows{
        {"1 H 1.0 0.0 0.0 0.7", {"H", 1.0, 0.0, 0.0, 0.7}},
        {"0012 H 1.0 0.0 0.0 0.7", {"H", 1.0, 0.0, 0.0, 0.7}},
        {"+3 H 1.0 0.0 0.0 0.7", {"H", 1.0, 0.0, 0.0, 0.7}},
        {"-3 H 1.0 0.0 0.0 0.7", {"H", 1.0, 0.0, 0.0, 0.7}},
        {"2147483647 H 1.0 0.0 0.0 0.7", {"H", 1.0, 0.0, 0.0, 0.7}},
        {"1 2 3 4 5 6", {"2", 3.0, 4.0, 5.0, 6.0}},
    };
    for (const auto& row : rows) {
        CAPTURE(row.line);
        CHECK(read_line(row.line).atoms == std::vector<AtomRecord>{row.atom});
    }
}

TEST_CASE("Words behind the coordinates are ignored") {
    CHECK(read_line("H 1.0 0.0 0.0 0.7 6-31G words").atoms ==
          std::vector<AtomRecord>{{"H", 1.0, 0.0, 0.0, 0.7}});
    CHECK(read_line("1 H 1.0 0.0 0.0 0.7 ! comment").atoms ==
          std::vector<AtomRecord>{{"H", 1.0, 0.0, 0.0, 0.7}});
    CHECK(read_line("H 1.0 0.0 0.0 0.7 x").data_lines == Lines{});
}

TEST_CASE("A line that is no complete atom is kept as it stands") {
    const std::vector<std::string> lines{
        "O",
        "O 8.0",
        "O 8.0 0.0",
        "O 8.0 0.0 0.0",
        "1 8.0 0.0 0.0",
        "1 1.0 0.0 0.0 0.7",
        "  1   0.5  0.2  0.3  0.1",
        "O eight 0.0 0.0 0.7",
        "O 8.0 x 0.0 0.7",
        "O 8.0 0.0 x 0.7",
        "O 8.0 0.0 0.0 x",
        "1 O eight 0.0 0.0 0.7",
        "1 O 8.0 x 0.0 0.7",
        "1 O 8.0 0.0 x 0.7",
        "1 O 8.0 0.0 0.0 x",
        "1 O 8.0 0.0 0.0 x 0.7",
        "1.0 O 8.0 0.0 0.0 0.7",
        "2147483648 O 8.0 0.0 0.0 0.7",
        "O 8.0, 0.0, 0.0, 0.7",
        "O 8.0 0.0 0.0 .",
        "O 8.0 0.0 0.0 1.0F0",
        "O 8.0 0.0 0.0 1.0D",
        "O 8.0 0.0 0.0 0x1",
        "O 8.0 0.0 0.0 inf",
        "O 8.0 0.0 0.0 nan",
        "O 8.0 0.0 0.0 1e400",
        "O 8.0 0.0 0.0 --1",
        "! O 8.0 0.0 0.0 0.7",
    };
    for (const std::string& line : lines) {
        CAPTURE(line);
        const GamessInput deck = read_line(line);
        CHECK(deck.atoms == std::vector<AtomRecord>{});
        CHECK(deck.data_lines == Lines{line});
    }
}

TEST_CASE("Atoms and other lines keep their own order") {
    const GamessInput deck = read_silently(
        "$DATA\nTitle\nC1\n"
        "O 8.0 0.0 0.0 0.1\n   N31 6\n \n"
        "H 1.0 0.0 0.0 0.7\n   N31 6\n \n"
        "$END\n");
    CHECK(deck.atoms ==
          std::vector<AtomRecord>{{"O", 8.0, 0.0, 0.0, 0.1}, {"H", 1.0, 0.0, 0.0, 0.7}});
    CHECK(deck.data_lines == Lines{"   N31 6", " ", "   N31 6", " "});
}

TEST_CASE("The unit of the coordinates does not change them") {
    CHECK(read_silently("$CONTRL UNITS=BOHR $END\n$DATA\nT\nC1\nH 1.0 0.0 0.0 0.7\n$END\n").atoms ==
          std::vector<AtomRecord>{{"H", 1.0, 0.0, 0.0, 0.7}});
}
