#include "excerpt.hpp"

#include <doctest/doctest.h>

using gms_inp::excerpt;

TEST_CASE("The line stands behind its number, a caret and tildes below the place") {
    CHECK(excerpt({.line = " $CONTRL SCFTPY=UHF $END", .number = 12, .column = 10, .length = 6}) ==
          "   12 |  $CONTRL SCFTPY=UHF $END\n"
          "      |          ^~~~~~\n");
}

TEST_CASE("A place without length is marked, at the end of the line, too") {
    CHECK(excerpt({.line = "abc", .number = 1, .column = 2, .length = 0}) ==
          "    1 | abc\n"
          "      |  ^\n");
    CHECK(excerpt({.line = "abc", .number = 1, .column = 4, .length = 0}) ==
          "    1 | abc\n"
          "      |    ^\n");
    CHECK(excerpt({.line = "", .number = 1, .column = 1, .length = 5}) ==
          "    1 | \n"
          "      | ^\n");
}

TEST_CASE("What reaches beyond the line is not marked") {
    CHECK(excerpt({.line = "abc", .number = 1, .column = 2, .length = 50}) ==
          "    1 | abc\n"
          "      |  ^~\n");
    CHECK(excerpt({.line = "abc", .number = 1, .column = 9, .length = 1}) ==
          "    1 | abc\n"
          "      |    ^\n");
}

TEST_CASE("Tabs in front of the place are kept in both lines") {
    CHECK(excerpt({.line = "\tA\tB", .number = 1, .column = 4, .length = 1}) ==
          "    1 | \tA\tB\n"
          "      | \t \t^\n");
}

TEST_CASE("Control characters are escaped and the mark moves with them") {
    CHECK(excerpt({.line = "\033[31mX\a", .number = 1, .column = 6, .length = 2}) ==
          "    1 | \\x1B[31mX\\x07\n"
          "      |         ^~~~~\n");
}

TEST_CASE("A character of several bytes is one column wide") {
    CHECK(excerpt({.line = "\xC3\xA9\xE2\x82\xAC x", .number = 1, .column = 7, .length = 1}) ==
          "    1 | \xC3\xA9\xE2\x82\xAC x\n"
          "      |    ^\n");
}

TEST_CASE("Of a long line the surroundings of the place are shown") {
    const std::string line = std::string(200, 'a') + 'X' + std::string(200, 'b');
    CHECK(excerpt({.line = line, .number = 1, .column = 201, .length = 1}) ==
          "    1 | ..." + std::string(40, 'a') + 'X' + std::string(59, 'b') + "...\n" +
              "      |    " + std::string(40, ' ') + "^\n");
    CHECK(excerpt({.line = line, .number = 1, .column = 1, .length = 1}) ==
          "    1 | " + std::string(100, 'a') + "...\n" + "      | ^\n");
    CHECK(excerpt({.line = line, .number = 1, .column = 401, .length = 1}) ==
          "    1 | ..." + std::string(100, 'b') + '\n' + "      |    " + std::string(99, ' ') +
              "^\n");
    CHECK(excerpt({.line = line, .number = 1, .column = 402, .length = 1}) ==
          "    1 | ..." + std::string(100, 'b') + '\n' + "      |    " + std::string(100, ' ') +
              "^\n");
}

TEST_CASE("A cut does not tear a character apart") {
    std::string line;
    for (int i = 0; i < 200; ++i) line += "\xC3\xA9";
    const std::string text = excerpt({.line = line, .number = 1, .column = 202, .length = 0});
    CHECK(text.substr(0, text.find("\xC3")) == "    1 | ...");
    const std::string end = "\xC3\xA9...\n";
    CHECK(text.substr(0, text.find('\n') + 1).ends_with(end));
}

TEST_CASE("A large number widens the margin of both lines") {
    CHECK(excerpt({.line = "x", .number = 1234567, .column = 1, .length = 1}) ==
          "1234567 | x\n"
          "        | ^\n");
}
