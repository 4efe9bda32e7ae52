#include "second_reading/plain_text.hpp"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <system_error>

namespace nurl::test::plain {

namespace {

/// Moves `at` over digits. @return how many there are
std::size_t count_digits(const std::string& text, std::size_t& at) {
    const std::size_t begin = at;
    while (at < text.size() && is_digit(text[at])) ++at;
    return at - begin;
}

bool is_sign(const std::string& text, std::size_t at) {
    return at < text.size() && (text[at] == '+' || text[at] == '-');
}

bool is_one_of(const std::string& text, std::size_t at, const std::string& characters) {
    return at < text.size() && characters.find(text[at]) != std::string::npos;
}

bool has_form_of_real(const std::string& text) {
    std::size_t at = is_sign(text, 0) ? 1 : 0;
    std::size_t digits = count_digits(text, at);
    if (is_one_of(text, at, ".")) {
        ++at;
        digits += count_digits(text, at);
    }
    if (digits == 0) return false;
    if (at == text.size()) return true;
    if (!is_one_of(text, at, "eEdD")) return false;
    ++at;
    if (is_sign(text, at)) ++at;
    return count_digits(text, at) > 0 && at == text.size();
}

/// Whether a number that no `double` holds is too small for one, and not too large: its first
/// digit that counts stands behind the point once the exponent has moved it.
bool is_tiny(const std::string& number) {
    const std::size_t letter = number.find('e');
    const std::string mantissa = number.substr(number[0] == '-' ? 1 : 0, letter);
    if (letter != std::string::npos && number.size() > letter + 9) return number[letter + 1] == '-';
    long exponent = 0;
    if (letter != std::string::npos)
        std::from_chars(number.data() + letter + 1, number.data() + number.size(), exponent);
    const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
    const std::size_t first = mantissa.find_first_of("123456789");
    return static_cast<long>(point) - static_cast<long>(first) + exponent < 0;
}

}  // namespace

bool is_blank(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\v' || c == '\f' || c == '\r';
}

bool is_letter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

bool is_digit(char c) { return c >= '0' && c <= '9'; }

std::string trimmed(const std::string& text, const std::string& blanks) {
    std::string rest = text;
    while (!rest.empty() && blanks.find(rest.front()) != std::string::npos) rest.erase(0, 1);
    while (!rest.empty() && blanks.find(rest.back()) != std::string::npos) rest.pop_back();
    return rest;
}

std::string upper(const std::string& text) {
    std::string copy;
    for (const char c : text) copy += c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    return copy;
}

Lines lines_of(const std::string& text) {
    Lines lines;
    std::string line;
    bool is_open = false;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool is_end = text[at] == '\n' || text[at] == '\r';
        is_open = !is_end;
        if (!is_end) line += text[at];
        if (!is_end) continue;
        if (text[at] == '\r' && at + 1 < text.size() && text[at + 1] == '\n') ++at;
        lines.push_back(line);
        line = "";
    }
    if (is_open) lines.push_back(line);
    return lines;
}

Lines words_of(const std::string& text) {
    Lines words;
    std::string word;
    for (const char c : text + " ") {
        if (!is_blank(c)) word += c;
        if (!is_blank(c) || word.empty()) continue;
        words.push_back(word);
        word = "";
    }
    return words;
}

std::optional<std::int32_t> integer_of(const std::string& text) {
    std::size_t at = is_sign(text, 0) ? 1 : 0;
    if (at == text.size()) return std::nullopt;
    std::int64_t value = 0;
    for (; at < text.size(); ++at) {
        if (!is_digit(text[at])) return std::nullopt;
        value = value * 10 + (text[at] - '0');
        if (value > 2147483648) return std::nullopt;
    }
    if (text[0] == '-') value = -value;
    if (value == 2147483648) return std::nullopt;
    return static_cast<std::int32_t>(value);
}

std::optional<double> real_of(const std::string& text) {
    if (!has_form_of_real(text)) return std::nullopt;
    std::string number;
    for (const char c : text) {
        if (c == '+') continue;
        number += is_letter(c) ? 'e' : c;
    }
    double value = 0.0;
    const auto [stop, error] = std::from_chars(number.data(), number.data() + number.size(), value);
    if (error == std::errc{}) return value;
    if (!is_tiny(number)) return std::nullopt;
    return number[0] == '-' ? -0.0 : 0.0;
}

}  // namespace nurl::test::plain
