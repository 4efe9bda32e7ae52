#include "line_table.hpp"

#include <doctest/doctest.h>

using gms_inp::LineTable;
using nurl::input::gamess::source::Position;

TEST_CASE("Lines end at LF, CR LF and a lone CR") {
    const LineTable lines{"a\nbc\r\nd\r\re"};
    CHECK(lines.at(0) == Position{1, 1});
    CHECK(lines.at(1) == Position{1, 2});
    CHECK(lines.at(2) == Position{2, 1});
    CHECK(lines.at(5) == Position{2, 4});
    CHECK(lines.at(6) == Position{3, 1});
    CHECK(lines.at(8) == Position{4, 1});
    CHECK(lines.at(9) == Position{5, 1});
    CHECK(lines.line(1) == "a");
    CHECK(lines.line(2) == "bc");
    CHECK(lines.line(3) == "d");
    CHECK(lines.line(4).empty());
    CHECK(lines.line(5) == "e");
}

TEST_CASE("The end of the text has a place, and what is beyond it has the same") {
    const LineTable lines{"ab\n"};
    CHECK(lines.at(3) == Position{2, 1});
    CHECK(lines.at(99) == Position{2, 1});
    CHECK(lines.line(2).empty());
    const LineTable empty{""};
    CHECK(empty.at(0) == Position{1, 1});
    CHECK(empty.line(1).empty());
}

TEST_CASE("The table agrees with the deck on every byte") {
    const std::string text = "x\r\n $SCF A=1\r B=2\n\n $END\n\r $PCM $END";
    const nurl::input::gamess::source::Deck deck{text};
    const LineTable lines{text};
    for (std::size_t offset = 0; offset <= text.size() + 1; ++offset) {
        CAPTURE(offset);
        CHECK(lines.at(offset) == deck.location(offset));
    }
}
