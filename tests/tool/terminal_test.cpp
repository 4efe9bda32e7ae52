#include "terminal.hpp"

#include <doctest/doctest.h>

using gms_inp::escape_controls;
using gms_inp::Keep;

TEST_CASE("Every control byte is escaped, also those of eight bits, and no other byte is") {
    for (int byte = 0; byte < 256; ++byte) {
        CAPTURE(byte);
        const std::string text(1, static_cast<char>(byte));
        const bool control = byte < 0x20 || (byte >= 0x7F && byte <= 0x9F);
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

TEST_CASE("Bytes of characters of UTF-8 are no control characters, those of broken ones are") {
    for (const std::string text : {"\xC3\x9B", "\xE2\x82\x9B", "\xF0\x9F\x98\x80"}) {
        CAPTURE(text);
        CHECK(escape_controls(text, Keep::Nothing) == text);
    }
    CHECK(escape_controls("\xC3 \x9B", Keep::Nothing) == "\xC3 \\x9B");
    CHECK(escape_controls("\xE2\x9B", Keep::Nothing) == "\xE2\\x9B");
    CHECK(escape_controls("\xE2\x9B[", Keep::Nothing) == "\xE2\\x9B[");
    CHECK(escape_controls("\xC1\x9B\xF5\x80\x80\x80", Keep::Nothing) ==
          "\xC1\\x9B\xF5\\x80\\x80\\x80");
}

TEST_CASE("Newlines and tabs stay in text of several lines") {
    CHECK(escape_controls("a\tb\nc\rd\a", Keep::LineEnds) == "a\tb\nc\\x0Dd\\x07");
}
