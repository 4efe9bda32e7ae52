#include "nurl/core/text.hpp"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include <doctest/doctest.h>
#include <rapidcheck.h>

using namespace std::string_literals;  // texts with NUL bytes
using nurl::core::text::split_lines;
using nurl::core::text::to_lower_copy;
using nurl::core::text::to_upper_copy;
using nurl::core::text::trim;
using Lines = std::vector<std::string>;

namespace {

constexpr std::string_view capitals = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
constexpr std::string_view small_letters = "abcdefghijklmnopqrstuvwxyz";

template <class Visit>
void for_each_byte(Visit visit) {
    for (int byte = 0; byte < 256; ++byte) visit(static_cast<char>(byte));
}

/// What `c` becomes when it is in `from`: the character at the same place of `to`.
std::string replaced(char c, std::string_view from, std::string_view to) {
    const std::size_t place = from.find(c);
    return {place == std::string_view::npos ? c : to[place]};
}

/// Line splitting in three plain steps: all terminators become LF, then each LF ends a line.
Lines split_by_steps(const std::string& text) {
    std::string unified;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') continue;
        unified += text[i] == '\r' ? '\n' : text[i];
    }
    Lines lines;
    std::string line;
    for (const char c : unified) {
        if (c == '\n') {
            lines.push_back(line);
            line.clear();
        } else {
            line += c;
        }
    }
    if (!line.empty()) lines.push_back(line);
    return lines;
}

struct SplitRow {
    std::string name;
    std::string text;
    Lines lines;
};

const std::array<SplitRow, 20>& split_rows() {
    static const std::array<SplitRow, 20> rows{{
        {"empty text", "", {}},
        {"no terminator", "a", {"a"}},
        {"blanks only", "  ", {"  "}},
        {"final LF", "a\n", {"a"}},
        {"final CR LF", "a\r\n", {"a"}},
        {"final CR", "a\r", {"a"}},
        {"LF alone", "\n", {""}},
        {"CR LF alone", "\r\n", {""}},
        {"CR alone", "\r", {""}},
        {"two LF", "\n\n", {"", ""}},
        {"two CR", "\r\r", {"", ""}},
        {"LF then CR", "\n\r", {"", ""}},
        {"CR then CR LF", "a\r\r\nb", {"a", "", "b"}},
        {"CR LF then LF", "a\r\n\nb\n", {"a", "", "b"}},
        {"three kinds", "a\nb\r\nc\rd", {"a", "b", "c", "d"}},
        {"empty first line", "\na", {"", "a"}},
        {"blanks kept", " a \n\tb\t\n", {" a ", "\tb\t"}},
        {"other white space ends no line", "a\vb\fc\n", {"a\vb\fc"}},
        {"NUL bytes", "a\0b\n\0\n"s, {"a\0b"s, "\0"s}},
        {"bytes above ASCII", "\xC2\x85\n\xE2\x80\xA8", {"\xC2\x85", "\xE2\x80\xA8"}},
    }};
    return rows;
}

}  // namespace

TEST_CASE("Trimming drops the six white-space characters and no other byte") {
    constexpr std::string_view white_space = " \t\n\v\f\r";
    for_each_byte([&](char c) {
        CAPTURE(static_cast<int>(c));
        const bool is_white = white_space.find(c) != std::string_view::npos;
        const std::string around = std::string{c} + "a" + c + "b" + c;
        CHECK(trim(around) == (is_white ? std::string{'a', c, 'b'} : around));
        CHECK(trim(std::string(3, c)) == (is_white ? "" : std::string(3, c)));
    });
}

TEST_CASE("Trimming keeps inner white space and takes all of it at the ends") {
    CHECK(trim("").empty());
    CHECK(trim(" two  words\r\n") == "two  words");
    CHECK(trim(" \t\r\n\v\fx") == "x");
    CHECK(trim("x \t\r\n\v\f") == "x");
    CHECK(trim(" \t\r\n\v\f").empty());
    CHECK(trim(" \0 "s) == "\0"s);
    CHECK(trim("\xC2\xA0x") == "\xC2\xA0x");
}

TEST_CASE("Upper case changes the letters a to z and no other byte") {
    for_each_byte([](char c) {
        CAPTURE(static_cast<int>(c));
        CHECK(to_upper_copy(std::string{c}) == replaced(c, small_letters, capitals));
    });
    CHECK(to_upper_copy("c1 {x}") == "C1 {X}");
    CHECK(to_upper_copy("a\0b"s) == "A\0B"s);
    CHECK(to_upper_copy("").empty());
}

TEST_CASE("Lower case changes the letters A to Z and no other byte") {
    for_each_byte([](char c) {
        CAPTURE(static_cast<int>(c));
        CHECK(to_lower_copy(std::string{c}) == replaced(c, capitals, small_letters));
    });
    CHECK(to_lower_copy("C1 {X}") == "c1 {x}");
    CHECK(to_lower_copy("A\0B"s) == "a\0b"s);
    CHECK(to_lower_copy("").empty());
}

TEST_CASE("Lines end at LF and CR LF and a lone CR") {
    for (const SplitRow& row : split_rows()) {
        CAPTURE(row.name);
        CHECK(split_lines(row.text) == row.lines);
    }
}

TEST_CASE("Splitting agrees with a plain splitter on every mixture of terminators") {
    CHECK(rc::check("split_lines", [] {
        const auto text = *rc::gen::container<std::string>(rc::gen::element('a', ' ', '\r', '\n'));
        RC_ASSERT(split_lines(text) == split_by_steps(text));
    }));
}

TEST_CASE("Text changes hold for every text") {
    CHECK(rc::check("trimming and case changes are stable", [](const std::string& text) {
        RC_ASSERT(trim(trim(text)) == trim(text));
        RC_ASSERT(trim(" \t" + text + "\r\n") == trim(text));
        RC_ASSERT(to_upper_copy(to_lower_copy(text)) == to_upper_copy(text));
        RC_ASSERT(to_lower_copy(to_upper_copy(text)) == to_lower_copy(text));
        RC_ASSERT(to_upper_copy(text).size() == text.size());
    }));
}
