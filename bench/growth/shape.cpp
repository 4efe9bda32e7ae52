#include "growth/shape.hpp"

#include <array>

namespace nurl::bench::growth {

namespace {

void append_number(std::size_t number, std::string& text) {
    std::array<char, 7> digits{};
    for (std::size_t i = digits.size(); i-- > 0; number /= 10)
        digits.at(i) = static_cast<char>('0' + number % 10);
    text.append(digits.data(), digits.size());
}

/// Appends a unit, cut at each `%` into pieces.
void append_unit(std::string_view unit, std::size_t number, std::string& text) {
    for (std::size_t at = unit.find('%'); at != std::string_view::npos; at = unit.find('%')) {
        text += unit.substr(0, at);
        append_number(number, text);
        unit.remove_prefix(at + 1);
    }
    text += unit;
}

void append_units(std::string_view unit, std::size_t n, std::string& text) {
    if (unit.size() == 1)
        text.append(n, unit.front());
    else
        for (std::size_t i = 0; i < n; ++i) append_unit(unit, i, text);
}

}  // namespace

std::string text_of(const Shape& shape, std::size_t n) {
    std::string text{shape.head};
    append_units(shape.unit, n, text);
    text += shape.tail;
    append_units(shape.second_unit, n, text);
    text += shape.end;
    return text;
}

}  // namespace nurl::bench::growth
