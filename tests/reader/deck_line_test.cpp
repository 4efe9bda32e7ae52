#include "reader/deck_line.hpp"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <doctest/doctest.h>

#include "model/printing.hpp"

using namespace std::string_literals;  // texts with NUL bytes
using nurl::input::gamess::detail::cut_at_end;
using nurl::input::gamess::detail::read_header;

TEST_CASE("A header is a dollar sign and a name as the first text of a line") {
    struct Row {
        std::string line;
        std::string name;
        std::string remainder;
    };
    const std::vector<Row> rows{
        {"$CONTRL", "CONTRL", ""},
        {" \t\v\f\r$CONTRL \t\v\f\r", "CONTRL", ""},
        {"$contrl scftyp=rhf", "contrl", " scftyp=rhf"},
        {"$CONTRL\tMULT=1 \r", "CONTRL", "\tMULT=1"},
        {"$CONTRL\vMULT=1", "CONTRL", "\vMULT=1"},
        {"$scf$end", "scf", "$end"},
        {"$SCF $END text", "SCF", " $END text"},
        {"$A$B C", "A", "$B C"},
        {"$SCF=1", "SCF=1", ""},
        {"$EN", "EN", ""},
        {"$EN$END", "EN", "$END"},
        {"$XEND", "XEND", ""},
        {"$1", "1", ""},
        {"$!x", "!x", ""},
        {"$A\0B"s, "A\0B"s, ""},
        {"$\xC3\x84 x", "\xC3\x84", " x"},
    };
    for (const auto& row : rows) {
        CAPTURE(row.line);
        const auto header = read_header(row.line);
        REQUIRE(header.has_value());
        CHECK(header->name == row.name);
        CHECK(header->remainder == row.remainder);
    }
}

TEST_CASE("A line of any other form opens no group") {
    const std::vector<std::string> lines{
        "",
        " \t",
        "CONTRL",
        "A=1 $SCF",
        "! $SCF",
        "$",
        " $ ",
        "$ SCF",
        "$\tSCF",
        "$$SCF",
        "$$",
        "$END",
        " $end ",
        "$EnD",
        "$ENDX",
        "$END of data",
        "$endfoo A=1",
        "$END$SCF",
        "\xA0$SCF",
        "\xEF\xBB\xBF$SCF",
        "\0$SCF"s,
    };
    for (const std::string& line : lines) {
        CAPTURE(line);
        CHECK_FALSE(read_header(line).has_value());
    }
}

TEST_CASE("A line is cut at its first end marker in any case") {
    struct Row {
        std::string line;
        std::string text;
        bool has_end;
    };
    const std::vector<Row> rows{
        {"", "", false},
        {" A=1 ", " A=1 ", false},
        {"$END", "", true},
        {" $end", " ", true},
        {"A=1 $END B=2", "A=1 ", true},
        {"A=1$eNdX", "A=1", true},
        {"a $End b $END", "a ", true},
        {"$$END", "$", true},
        {"$EN$END", "$EN", true},
        {"$EN", "$EN", false},
        {"$ END", "$ END", false},
        {"END", "END", false},
        {"$E\0ND"s, "$E\0ND"s, false},
        {"a\0$END"s, "a\0"s, true},
    };
    for (const auto& row : rows) {
        CAPTURE(row.line);
        const auto cut = cut_at_end(row.line);
        CHECK(cut.text == row.text);
        CHECK(cut.has_end == row.has_end);
    }
}
