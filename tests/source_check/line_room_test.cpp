#include "source/check/line_room.hpp"

#include <doctest/doctest.h>

namespace nurl::input::gamess::source::checks {

TEST_CASE("A line has room up to column 80, blanks at its end not counted") {
    const Deck deck{std::string(78, 'x') + " \t\n  \n"};
    CHECK(fits(deck, line_around(deck, 0), 2));
    CHECK_FALSE(fits(deck, line_around(deck, 0), 3));
    CHECK(fits(deck, line_around(deck, 81), 80));
    CHECK_FALSE(fits(deck, line_around(deck, 81), 81));
    CHECK_FALSE(fits(Deck{"a   "}, {2, 4}, 81));
}

TEST_CASE("A line is found from any of its bytes") {
    const Deck deck{"ab\r\ncd"};
    CHECK(line_around(deck, 1) == Span{0, 2});
    CHECK(line_around(deck, 4) == Span{4, 6});
    CHECK(line_around(deck, 6) == Span{4, 6});
}

TEST_CASE("Blanks and a byte-order mark may stand before what is first on its line") {
    const Deck deck{"\xEF\xBB\xBF a\n\tb c\rd"};
    CHECK(is_first_on_line(deck, 4));
    CHECK(is_first_on_line(deck, 7));
    CHECK_FALSE(is_first_on_line(deck, 9));
    CHECK(is_first_on_line(deck, 11));
}

TEST_CASE("The line end before a line is the one that stands there") {
    CHECK(line_end_before(Deck{"a\r\nb\n"}, 3) == "\r\n");
    CHECK(line_end_before(Deck{"a\nb\r\n"}, 2) == "\n");
    CHECK(line_end_before(Deck{"a\rb\n"}, 2) == "\r");
    CHECK(line_end_before(Deck{"\nb\r\n"}, 1) == "\n");
    CHECK(line_end_before(Deck{"\r\nb\n"}, 2) == "\r\n");
    CHECK(line_end_before(Deck{"\n\nb"}, 2) == "\n");
    CHECK(line_end_before(Deck{"a\r\rb"}, 3) == "\r");
}

TEST_CASE("The line end before the first line is that of the deck") {
    CHECK(line_end_before(Deck{"a\r\nb\n"}, 0) == "\r\n");
    CHECK(line_end_before(Deck{"\nb\r\n"}, 0) == "\n");
    CHECK(line_end_before(Deck{"a"}, 0) == "\n");
}

}  // namespace nurl::input::gamess::source::checks
