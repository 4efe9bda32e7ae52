#include "model/logical.hpp"

#include <array>
#include <optional>
#include <string_view>

#include <doctest/doctest.h>

#include "model/printing.hpp"

using nurl::input::gamess::detail::parse_logical;
using nurl::input::gamess::detail::ZeroText;

namespace {

struct SpellingRow {
    std::string_view text;
    std::optional<bool> value;
};

constexpr std::array<SpellingRow, 34> rows{{
    {".T.", true},
    {".t.", true},
    {"T", true},
    {"t", true},
    {"TRUE", true},
    {"true", true},
    {"True", true},
    {"YES", true},
    {"yes", true},
    {"1", true},
    {".F.", false},
    {".f.", false},
    {"F", false},
    {"f", false},
    {"FALSE", false},
    {"false", false},
    {"NO", false},
    {"no", false},
    {"No", false},
    {"", std::nullopt},
    {".TRUE.", std::nullopt},
    {".FALSE.", std::nullopt},
    {".T", std::nullopt},
    {"F.", std::nullopt},
    {"Y", std::nullopt},
    {"N", std::nullopt},
    {"ON", std::nullopt},
    {"OFF", std::nullopt},
    {"2", std::nullopt},
    {"01", std::nullopt},
    {"+1", std::nullopt},
    {"00", std::nullopt},
    {"-0", std::nullopt},
    {"T F", std::nullopt},
}};

}  // namespace

TEST_CASE("A logical value has nine words in any case and no others") {
    for (const auto& row : rows) {
        CAPTURE(row.text);
        CHECK(parse_logical(row.text, ZeroText::IsFalse) == row.value);
        CHECK(parse_logical(row.text, ZeroText::IsNoLogical) == row.value);
    }
}

TEST_CASE("The text 0 is false only where the caller takes it") {
    CHECK(parse_logical("0", ZeroText::IsFalse) == false);
    CHECK(parse_logical("0", ZeroText::IsNoLogical) == std::nullopt);
}
