#include "reader/line_cursor.hpp"

#include <string>
#include <string_view>
#include <vector>

#include <doctest/doctest.h>
#include <rapidcheck.h>

#include "model/printing.hpp"
#include "nurl/core/text.hpp"

using namespace std::string_literals;  // texts with NUL bytes
using nurl::core::text::split_lines;
using nurl::input::gamess::detail::LineCursor;
using Lines = std::vector<std::string>;

namespace {

Lines walk(std::string_view text) {
    Lines lines;
    for (LineCursor cursor(text); !cursor.at_end(); cursor.advance())
        lines.emplace_back(cursor.line());
    return lines;
}

}  // namespace

TEST_CASE("A text without characters has no lines") {
    CHECK(LineCursor("").at_end());
    CHECK(LineCursor(std::string_view{}).at_end());
}

TEST_CASE("Lines end at LF and CR LF and a lone CR and a last terminator opens none") {
    CHECK(walk("a") == Lines{"a"});
    CHECK(walk("a\n") == Lines{"a"});
    CHECK(walk("a\r\n") == Lines{"a"});
    CHECK(walk("a\r") == Lines{"a"});
    CHECK(walk("\n") == Lines{""});
    CHECK(walk("\r") == Lines{""});
    CHECK(walk("\r\n") == Lines{""});
    CHECK(walk("\n\r") == Lines{"", ""});
    CHECK(walk("\r\r\n") == Lines{"", ""});
    CHECK(walk("\n\n") == Lines{"", ""});
    CHECK(walk("a\nb\r\nc\rd") == Lines{"a", "b", "c", "d"});
    CHECK(walk("a\r\r\nb\n\nc") == Lines{"a", "", "b", "", "c"});
    CHECK(walk(" a \v\f\n") == Lines{" a \v\f"});
    CHECK(walk("\0\n\xC2\x85"s) == Lines{"\0"s, "\xC2\x85"});
}

TEST_CASE("The lines are views into the text") {
    const std::string_view text = "first\r\nsecond";
    LineCursor cursor(text);
    CHECK(cursor.line().data() == text.data());
    cursor.advance();
    CHECK(cursor.line().data() == text.data() + 7);
    CHECK(cursor.line().size() == 6);
    cursor.advance();
    CHECK(cursor.at_end());
}

TEST_CASE("Walking gives the lines that splitting gives") {
    CHECK(rc::check("mixtures of terminators", [] {
        const auto text =
            *rc::gen::container<std::string>(rc::gen::element('a', ' ', '\r', '\n', '\r', '\n'));
        RC_ASSERT(walk(text) == split_lines(text));
    }));
    CHECK(rc::check("any bytes",
                    [](const std::string& text) { RC_ASSERT(walk(text) == split_lines(text)); }));
}
