#include "source/word_value.hpp"

#include <algorithm>
#include <charconv>
#include <system_error>

#include "model/text_view.hpp"
#include "nurl/core/text.hpp"

namespace nurl::input::gamess::source {

namespace {

constexpr bool is_digit(char c) noexcept { return c >= '0' && c <= '9'; }

constexpr bool is_quoted(std::string_view word) noexcept {
    return word.starts_with('\'') || word.starts_with('"');
}

/// An integer of any length: its sign and its digits without leading zeros.
struct LongInteger {
    bool negative = false;
    std::string_view digits;

    bool operator==(const LongInteger&) const = default;
};

/// Digits behind an optional sign; nothing for every other word.
std::optional<LongInteger> long_integer_of(std::string_view word) noexcept {
    const bool negative = word.starts_with('-');
    if (negative || word.starts_with('+')) word.remove_prefix(1);
    if (word.empty() || !std::ranges::all_of(word, is_digit)) return std::nullopt;
    const std::size_t first = std::min(word.find_first_not_of('0'), word.size());
    return LongInteger{negative && first < word.size(), word.substr(first)};
}

}  // namespace

std::optional<bool> logical_of(std::string_view word) noexcept {
    const auto is = [word](std::string_view spelling) {
        return detail::equal_ignoring_case(word, spelling);
    };
    if (is(".TRUE.") || is(".T.")) return true;
    if (is(".FALSE.") || is(".F.")) return false;
    return std::nullopt;
}

std::optional<std::int64_t> integer_of(std::string_view word) noexcept {
    if (!long_integer_of(word)) return std::nullopt;
    if (word.starts_with('+')) word.remove_prefix(1);
    std::int64_t value = 0;
    const auto [stop, error] = std::from_chars(word.data(), word.data() + word.size(), value);
    if (error != std::errc{}) return std::nullopt;
    return value;
}

std::optional<double> real_of(std::string_view word) {
    double value = 0.0;
    if (!core::text::try_parse_double(word, value)) return std::nullopt;
    return value;
}

bool same_word(std::string_view a, std::string_view b) {
    if (is_quoted(a) || is_quoted(b)) return a == b;
    if (detail::equal_ignoring_case(a, b)) return true;
    if (const auto value = logical_of(a)) return value == logical_of(b);
    // Integers are compared by their digits: a double does not hold all of a long one.
    const auto integer = long_integer_of(a);
    const auto other_integer = long_integer_of(b);
    if (integer && other_integer) return integer == other_integer;
    const auto real = real_of(a);
    return real && real == real_of(b);
}

}  // namespace nurl::input::gamess::source
