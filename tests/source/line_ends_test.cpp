#include "source/line_ends.hpp"

#include <string>

#include <doctest/doctest.h>

namespace nurl::input::gamess::source {

TEST_CASE("LF, CR LF and a lone CR each end one line") {
    const std::string text = "a\nb\r\nc\rd\r\r\n\n";
    CHECK(count_line_ends(text, {0, text.size()}) == 6);
    CHECK(count_line_ends(text, {0, 4}) == 1);
    CHECK(count_line_ends(text, {0, 5}) == 2);
    CHECK(count_line_ends("", {0, 0}) == 0);
    CHECK(count_line_ends("a\r", {0, 2}) == 1);
    CHECK(count_line_ends("a\r\n", {0, 2}) == 0);
}

TEST_CASE("Line ends are counted in texts of every length") {
    std::string text;
    for (std::size_t lines = 0; lines < 700; ++lines) {
        CHECK(count_line_ends(text, {0, text.size()}) == lines);
        text += lines % 3 == 0 ? "\n" : lines % 3 == 1 ? "x\r\n" : "yz\rw";
    }
}

TEST_CASE("Every byte of a text may end a line") {
    const std::string text(1000, '\n');
    CHECK(count_line_ends(text, {0, text.size()}) == 1000);
}

TEST_CASE("Lines begin behind a line end and end in front of one") {
    const std::string text = "ab\r\ncd\re";
    CHECK(line_begin(text, 1) == 0);
    CHECK(line_begin(text, 5) == 4);
    CHECK(line_begin(text, 8) == 7);
    CHECK(line_end(text, 0) == 2);
    CHECK(line_end(text, 4) == 6);
    CHECK(line_end(text, 7) == 8);
    CHECK(next_line(text, 0) == 4);
    CHECK(next_line(text, 4) == 7);
    CHECK(next_line(text, 7) == 8);
}

TEST_CASE("A new line end is like its neighbour") {
    CHECK(line_end_near("a\r\nb", 0) == "\r\n");
    CHECK(line_end_near("a\r\nb", 3) == "\r\n");
    CHECK(line_end_near("a\rb", 2) == "\r");
    CHECK(line_end_near("a\r\rb", 3) == "\r");
    CHECK(line_end_near("a\nb", 2) == "\n");
    CHECK(line_end_near("a\r\n\nb", 4) == "\n");
    CHECK(line_end_near("\na", 1) == "\n");
    CHECK(line_end_near("\r\na", 2) == "\r\n");
    CHECK(line_end_near("a", 0) == "\n");
    CHECK(line_end_near("", 0) == "\n");
}

TEST_CASE("Padding is blanks of one line") {
    CHECK(skip_padding("a \t\v\fb", 1) == 5);
    CHECK(skip_padding("a \n b", 1) == 2);
    CHECK(skip_padding("a, b", 1) == 1);
    CHECK(skip_padding("a  ", 1) == 3);
    CHECK(is_separator(','));
    CHECK_FALSE(is_separator(';'));
}

}  // namespace nurl::input::gamess::source
