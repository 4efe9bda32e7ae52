#include "terminal.hpp"

#include <doctest/doctest.h>

using gms_inp::escape_controls;
using gms_inp::Keep;

TEST_CASE("Every control byte is escaped and no other byte is") {
    for (int byte = 0; byte < 256; ++byte) {
        CAPTURE(byte);
        const std::string text(1, static_cast<char>(byte));
        const bool control = byte < 0x20 || byte == 0x7F;
        CHECK((escape_controls(text, Keep::Nothing) == text) == !control);
    }
}

TEST_CASE("Escapes have two upper-case hexadecimal digits") {
    CHECK(escape_controls("a\x1B[0m\x7F", Keep::Nothing) == "a\\x1B[0m\\x7F");
    CHECK(escape_controls(std::string_view{"\0\n", 2}, Keep::Nothing) == "\\x00\\x0A");
}

TEST_CASE("Control characters beyond ASCII are escaped in UTF-8") {
    CHECK(escape_controls("\xC2\x80 \xC2\x9B \xC2\x9F", Keep::Nothing) ==
          "\\xC2\\x80 \\xC2\\x9B \\xC2\\x9F");
    CHECK(escape_controls("\xC2\xA0 \xC3\x9B \xC2", Keep::Nothing) == "\xC2\xA0 \xC3\x9B \xC2");
}

TEST_CASE("Newlines and tabs stay in text of several lines") {
    CHECK(escape_controls("a\tb\nc\rd\a", Keep::LineEnds) == "a\tb\nc\\x0Dd\\x07");
}
