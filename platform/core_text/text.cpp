#include "nurl/core/text.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <limits>
#include <system_error>

namespace nurl::core::text {

namespace {

constexpr bool is_white_space(char c) noexcept { return c == ' ' || (c >= '\t' && c <= '\r'); }

constexpr bool is_digit(char c) noexcept { return c >= '0' && c <= '9'; }

constexpr char to_upper(char c) noexcept {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

constexpr char to_lower(char c) noexcept {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// std::from_chars knows no plus sign. One in front of a minus sign stays, to be rejected there.
std::string_view without_plus(std::string_view text) noexcept {
    if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
    return text;
}

/// Tells digits from the names of infinities and NaNs, which std::from_chars reads as well.
bool starts_as_number(std::string_view number) noexcept {
    if (number.starts_with('-')) number.remove_prefix(1);
    return !number.empty() && (is_digit(number.front()) || number.front() == '.');
}

/// The value of an exponent such as "+12". One of any length is cut to a range that leaves room
/// for adding the length of a text.
std::int64_t exponent_value(std::string_view digits) noexcept {
    constexpr std::int64_t limit = std::numeric_limits<std::int64_t>::max() / 4;
    const std::string_view number = without_plus(digits);
    std::int64_t value = number.starts_with('-') ? -limit : limit;
    std::from_chars(number.data(), number.data() + number.size(), value);
    return std::clamp(value, -limit, limit);
}

/// Tells underflow from overflow, given a number of valid form that is not zero and out of range.
bool is_below_one(std::string_view number) noexcept {
    const std::size_t mark = std::min(number.find_first_of("eE"), number.size());
    const std::string_view digits = number.substr(0, mark);
    const std::size_t point = std::min(digits.find('.'), digits.size());
    const std::size_t first = digits.find_first_of("123456789");
    const auto digits_before_point =
        static_cast<std::int64_t>(point) - static_cast<std::int64_t>(first);
    const std::int64_t exponent =
        mark < number.size() ? exponent_value(number.substr(mark + 1)) : 0;
    return digits_before_point + exponent < 0;
}

/// Reads a number, not an empty text, whose exponent, if any, is marked by `e` or `E`.
bool read_number(std::string_view number, double& value) noexcept {
    const char* const end = number.data() + number.size();
    double parsed = 0.0;
    const auto [stop, error] = std::from_chars(number.data(), end, parsed);
    if (stop != end) return false;
    if (error == std::errc::result_out_of_range) {
        if (!is_below_one(number)) return false;
        parsed = number.starts_with('-') ? -0.0 : 0.0;
    }
    value = parsed;
    return true;
}

/// Reads a number whose exponent is marked by the letter at `mark`, in a copy that says `e` there.
bool read_fortran_number(std::string_view number, std::size_t mark, double& value) {
    std::array<char, 64> buffer{};
    if (number.size() > buffer.size()) {
        std::string copy(number);
        copy[mark] = 'e';
        return read_number(copy, value);
    }
    number.copy(buffer.data(), buffer.size());
    buffer.at(mark) = 'e';
    return read_number({buffer.data(), number.size()}, value);
}

}  // namespace

std::string trim(std::string_view text) {
    while (!text.empty() && is_white_space(text.front())) text.remove_prefix(1);
    while (!text.empty() && is_white_space(text.back())) text.remove_suffix(1);
    return std::string(text);
}

std::string to_upper_copy(std::string_view text) {
    std::string copy(text);
    for (char& c : copy) c = to_upper(c);
    return copy;
}

std::string to_lower_copy(std::string_view text) {
    std::string copy(text);
    for (char& c : copy) c = to_lower(c);
    return copy;
}

std::vector<std::string> split_lines(std::string_view text) {
    std::vector<std::string> lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
        lines.emplace_back(text.substr(0, end));
        text.remove_prefix(end);
        if (!text.empty()) text.remove_prefix(text.starts_with("\r\n") ? 2 : 1);
    }
    return lines;
}

bool try_parse_int(std::string_view text, std::int32_t& value) noexcept {
    const std::string_view number = without_plus(text);
    const char* const end = number.data() + number.size();
    std::int32_t parsed = 0;
    const auto [stop, error] = std::from_chars(number.data(), end, parsed);
    if (error != std::errc{} || stop != end) return false;
    value = parsed;
    return true;
}

bool try_parse_double(std::string_view text, double& value) {
    const std::string_view number = without_plus(text);
    if (!starts_as_number(number)) return false;
    if (read_number(number, value)) return true;
    const std::size_t mark = number.find_first_of("dD");
    return mark != std::string_view::npos && read_fortran_number(number, mark, value);
}

}  // namespace nurl::core::text
