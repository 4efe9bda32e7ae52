#include "model/logical.hpp"

#include <algorithm>
#include <array>

#include "model/text_view.hpp"

namespace nurl::input::gamess::detail {

namespace {

constexpr std::array<std::string_view, 5> true_words{".T.", "T", "TRUE", "YES", "1"};
constexpr std::array<std::string_view, 4> false_words{".F.", "F", "FALSE", "NO"};

}  // namespace

std::optional<bool> parse_logical(std::string_view trimmed, ZeroText zero) noexcept {
    const auto is_spelled = [trimmed](std::string_view word) {
        return equal_ignoring_case(trimmed, word);
    };
    if (std::ranges::any_of(true_words, is_spelled)) return true;
    if (std::ranges::any_of(false_words, is_spelled)) return false;
    if (trimmed == "0" && zero == ZeroText::IsFalse) return false;
    return std::nullopt;
}

}  // namespace nurl::input::gamess::detail
