#include "nurl/chem/elements.hpp"

#include <algorithm>
#include <array>
#include <cstddef>

#include "nurl/core/text.hpp"

namespace nurl::chem::elements {

namespace {

/// The symbols by atomic number, less one.
constexpr std::array<std::string_view, 118> symbols{
    "H",  "He", "Li", "Be", "B",  "C",  "N",  "O",  "F",  "Ne", "Na", "Mg", "Al", "Si", "P",
    "S",  "Cl", "Ar", "K",  "Ca", "Sc", "Ti", "V",  "Cr", "Mn", "Fe", "Co", "Ni", "Cu", "Zn",
    "Ga", "Ge", "As", "Se", "Br", "Kr", "Rb", "Sr", "Y",  "Zr", "Nb", "Mo", "Tc", "Ru", "Rh",
    "Pd", "Ag", "Cd", "In", "Sn", "Sb", "Te", "I",  "Xe", "Cs", "Ba", "La", "Ce", "Pr", "Nd",
    "Pm", "Sm", "Eu", "Gd", "Tb", "Dy", "Ho", "Er", "Tm", "Yb", "Lu", "Hf", "Ta", "W",  "Re",
    "Os", "Ir", "Pt", "Au", "Hg", "Tl", "Pb", "Bi", "Po", "At", "Rn", "Fr", "Ra", "Ac", "Th",
    "Pa", "U",  "Np", "Pu", "Am", "Cm", "Bk", "Cf", "Es", "Fm", "Md", "No", "Lr", "Rf", "Db",
    "Sg", "Bh", "Hs", "Mt", "Ds", "Rg", "Cn", "Nh", "Fl", "Mc", "Lv", "Ts", "Og"};

/// Spells a text, which is not empty, as the table does.
std::string with_capital(std::string_view text) {
    return core::text::to_upper_copy(text.substr(0, 1)) + core::text::to_lower_copy(text.substr(1));
}

std::optional<std::size_t> table_index(std::string_view trimmed) {
    if (trimmed.empty()) return std::nullopt;
    const auto* const found = std::ranges::find(symbols, with_capital(trimmed));
    if (found == symbols.end()) return std::nullopt;
    return static_cast<std::size_t>(found - symbols.begin());
}

}  // namespace

std::string normalize_symbol(std::string_view symbol) {
    std::string trimmed = core::text::trim(symbol);
    const std::optional<std::size_t> index = table_index(trimmed);
    if (!index) return trimmed;
    return std::string(symbols.at(*index));
}

std::optional<int> atomic_number_from_symbol(std::string_view symbol) {
    const std::optional<std::size_t> index = table_index(core::text::trim(symbol));
    return index ? std::optional(static_cast<int>(*index) + 1) : std::nullopt;
}

}  // namespace nurl::chem::elements
