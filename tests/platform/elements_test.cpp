#include "nurl/chem/elements.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include <doctest/doctest.h>

#include "nurl/core/text.hpp"

using nurl::chem::elements::atomic_number_from_symbol;
using nurl::chem::elements::normalize_symbol;

namespace {

struct Period {
    int first_number;
    std::string_view symbols;  // separated by single blanks
};

constexpr std::array<Period, 7> periods{{
    {1, "H He"},
    {3, "Li Be B C N O F Ne"},
    {11, "Na Mg Al Si P S Cl Ar"},
    {19, "K Ca Sc Ti V Cr Mn Fe Co Ni Cu Zn Ga Ge As Se Br Kr"},
    {37, "Rb Sr Y Zr Nb Mo Tc Ru Rh Pd Ag Cd In Sn Sb Te I Xe"},
    {55,
     "Cs Ba La Ce Pr Nd Pm Sm Eu Gd Tb Dy Ho Er Tm Yb Lu Hf Ta W Re Os Ir Pt Au Hg Tl Pb Bi Po At "
     "Rn"},
    {87,
     "Fr Ra Ac Th Pa U Np Pu Am Cm Bk Cf Es Fm Md No Lr Rf Db Sg Bh Hs Mt Ds Rg Cn Nh Fl Mc Lv Ts "
     "Og"},
}};

template <class Visit>
void for_each_element(Visit visit) {
    for (const Period& period : periods) {
        int number = period.first_number;
        for (std::string_view rest = period.symbols; !rest.empty(); ++number) {
            const std::size_t end = std::min(rest.find(' '), rest.size());
            visit(number, std::string(rest.substr(0, end)));
            rest.remove_prefix(std::min(end + 1, rest.size()));
        }
    }
}

constexpr std::array<std::string_view, 25> not_elements{
    "",   " ",  "D",  "T",   "X",   "Q",    "Xx",  "Bq", "Uuo", "Uub",      "C1",       "1",  "C-",
    ".C", "C.", "H2", "He4", "O H", "Carb", "CL1", "J",  "Zz",  "\xC3\x89", "Hydrogen", "Cl-"};

}  // namespace

TEST_CASE("Every element is known by its symbol in any letter case") {
    int count = 0;
    for_each_element([&](int number, const std::string& symbol) {
        CAPTURE(symbol);
        ++count;
        const std::string upper = nurl::core::text::to_upper_copy(symbol);
        const std::string lower = nurl::core::text::to_lower_copy(symbol);
        std::string reversed = lower;
        if (reversed.size() == 2) reversed[1] = upper[1];
        for (const std::string& spelling : {symbol, upper, lower, reversed}) {
            CAPTURE(spelling);
            CHECK(atomic_number_from_symbol(spelling) == number);
            CHECK(normalize_symbol(spelling) == symbol);
        }
    });
    CHECK(count == 118);
}

TEST_CASE("White space around a symbol is ignored") {
    CHECK(normalize_symbol(" cL ") == "Cl");
    CHECK(normalize_symbol("\t\r\n\v\f FE\n") == "Fe");
    CHECK(atomic_number_from_symbol("  u\t") == 92);
}

TEST_CASE("A text that is no element symbol has no number and comes back trimmed") {
    for (const std::string_view text : not_elements) {
        CAPTURE(text);
        CHECK(atomic_number_from_symbol(text) == std::nullopt);
        CHECK(normalize_symbol(text) == nurl::core::text::trim(text));
    }
    CHECK(normalize_symbol(" xQ1 ") == "xQ1");
    CHECK(normalize_symbol("\tdummy Atom ") == "dummy Atom");
    CHECK(normalize_symbol(" \n") == "");
    CHECK(normalize_symbol(std::string_view("H\0", 2)) == std::string_view("H\0", 2));
}

TEST_CASE("Of all texts of two bytes only spellings of symbols have a number") {
    int known = 0;
    for (int first = 0; first < 256; ++first) {
        for (int second = 0; second < 256; ++second) {
            const std::string text{static_cast<char>(first), static_cast<char>(second)};
            const bool has_number = atomic_number_from_symbol(text).has_value();
            if (has_number) ++known;
            if (!has_number) CHECK(normalize_symbol(text) == nurl::core::text::trim(text));
        }
    }
    constexpr int two_letters = 104 * 2 * 2;    // each letter small or capital
    constexpr int one_letter = 14 * 2 * 6 * 2;  // one white-space character on either side
    CHECK(known == two_letters + one_letter);
}
