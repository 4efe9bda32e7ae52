/// @file
/// Symbols and atomic numbers of the chemical elements 1 to 118.
///
/// Source: IUPAC, periodic table of the elements. Only these symbols are known; older provisional
/// ones, symbols of isotopes (`D`, `T`) and labels such as `C1` or `X` are not. The calls keep no
/// state, may be made from any thread, and throw only on memory exhaustion.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace nurl::chem::elements {

/// Gives an element symbol its canonical spelling.
///
/// @param symbol  in any letter case; white space around it is ignored
/// @return        the symbol with a capital and, where it has two letters, a small letter. A text
///                that is no element symbol comes back as it was, without the white space around
///                it.
///
///     normalize_symbol(" cL ");  // "Cl"
///     normalize_symbol(" xQ1 "); // "xQ1"
[[nodiscard]] std::string normalize_symbol(std::string_view symbol);

/// Looks up the atomic number of an element.
///
/// @param symbol  in any letter case; white space around it is ignored
/// @return        1 to 118; nothing when the text is no element symbol
///
///     atomic_number_from_symbol("fe");  // 26
[[nodiscard]] std::optional<int> atomic_number_from_symbol(std::string_view symbol);

}  // namespace nurl::chem::elements
