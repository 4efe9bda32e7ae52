#include "source/check/element_name.hpp"

#include <algorithm>

#include "model/text_view.hpp"
#include "nurl/chem/elements.hpp"

namespace nurl::input::gamess::source::checks {

namespace {

/// Whether a symbol is that of the element with a charge.
bool is_symbol_of(std::string_view symbol, double charge) {
    const auto number = chem::elements::atomic_number_from_symbol(symbol);
    return number && *number == charge;
}

}  // namespace

std::string_view leading_letters(std::string_view name) noexcept {
    const auto* const end = std::ranges::find_if_not(name, detail::is_letter);
    return {name.begin(), end};
}

bool is_plain_label(std::string_view name) noexcept {
    const std::string_view letters = leading_letters(name);
    const std::string_view behind = name.substr(letters.size());
    return !letters.empty() && letters.size() <= 2 &&
           std::ranges::all_of(behind, [](char c) { return c >= '0' && c <= '9'; });
}

std::optional<int> element_of(std::string_view name) {
    return chem::elements::atomic_number_from_symbol(leading_letters(name));
}

bool names_element(std::string_view name, double charge) {
    if (!is_plain_label(name)) return false;
    const std::string_view letters = leading_letters(name);
    return is_symbol_of(letters, charge) || is_symbol_of(letters.substr(0, 1), charge);
}

}  // namespace nurl::input::gamess::source::checks
