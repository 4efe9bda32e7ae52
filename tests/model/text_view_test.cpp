#include "model/text_view.hpp"

#include <string>
#include <string_view>

#include <doctest/doctest.h>

#include "model/printing.hpp"

using namespace std::string_literals;  // texts with NUL bytes
using namespace nurl::input::gamess::detail;

namespace {

constexpr std::string_view capitals = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
constexpr std::string_view small_letters = "abcdefghijklmnopqrstuvwxyz";
constexpr std::string_view digits = "0123456789";

bool is_in(std::string_view characters, char c) {
    return characters.find(c) != std::string_view::npos;
}

}  // namespace

TEST_CASE("Every byte has one class whatever the locale") {
    for (int byte = 0; byte < 256; ++byte) {
        CAPTURE(byte);
        const char c = static_cast<char>(byte);
        const bool is_any_letter = is_in(capitals, c) || is_in(small_letters, c);
        CHECK(is_blank(c) == is_in(" \t\n\v\f\r", c));
        CHECK(is_letter(c) == is_any_letter);
        CHECK(is_name_character(c) == (is_any_letter || is_in(digits, c) || c == '_'));
        CHECK(to_upper(c) == (is_in(small_letters, c) ? capitals[small_letters.find(c)] : c));
    }
}

TEST_CASE("Trimming a view drops white space at both ends") {
    CHECK(trim_view(" \t\n\v\f\ra  b\r\f\v\n\t ") == "a  b");
    CHECK(trim_view(" \t\n\v\f\r").empty());
    CHECK(trim_view("").empty());
    CHECK(trim_view(" \0 "s) == "\0"s);
    CHECK(trim_view("\xA0x") == "\xA0x");
    CHECK(is_blank_text(""));
    CHECK(is_blank_text(" \t\n\v\f\r"));
    CHECK_FALSE(is_blank_text(" . "));
    CHECK_FALSE(is_blank_text("\0"s));
}

TEST_CASE("One leading dollar sign is dropped and no other") {
    CHECK(without_dollar("$SCF") == "SCF");
    CHECK(without_dollar("$$SCF") == "$SCF");
    CHECK(without_dollar("SCF$") == "SCF$");
    CHECK(without_dollar("$").empty());
    CHECK(without_dollar("").empty());
}

TEST_CASE("One byte-order mark is dropped at the start and nowhere else") {
    CHECK(without_byte_order_mark("\xEF\xBB\xBFx") == "x");
    CHECK(without_byte_order_mark("\xEF\xBB\xBF\xEF\xBB\xBFx") == "\xEF\xBB\xBFx");
    CHECK(without_byte_order_mark(" \xEF\xBB\xBFx") == " \xEF\xBB\xBFx");
    CHECK(without_byte_order_mark("\xEF\xBBx") == "\xEF\xBBx");
    CHECK(without_byte_order_mark("").empty());
}

TEST_CASE("Texts are compared without regard to the case of ASCII letters") {
    CHECK(equal_ignoring_case("sCf_1", "ScF_1"));
    CHECK_FALSE(equal_ignoring_case("SCF", "SCF1"));
    CHECK_FALSE(equal_ignoring_case("@", "`"));
    CHECK_FALSE(equal_ignoring_case("[", "{"));
    CHECK_FALSE(equal_ignoring_case("\xC4", "\xE4"));
    CHECK(starts_with_ignoring_case("$enDX", "$END"));
    CHECK_FALSE(starts_with_ignoring_case("$EN", "$END"));
    CHECK(starts_with_ignoring_case("x", ""));
}

TEST_CASE("Free text is a comment when it begins with an exclamation mark or a hash") {
    CHECK(is_comment("! text"));
    CHECK(is_comment("#"));
    CHECK_FALSE(is_comment(""));
    CHECK_FALSE(is_comment("text ! comment"));
    CHECK_FALSE(is_comment("* text"));
}
