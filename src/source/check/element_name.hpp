/// @file
/// Elements by the names that atoms have.
#pragma once

#include <optional>
#include <string_view>

namespace nurl::input::gamess::source::checks {

/// The letters with which a name begins.
[[nodiscard]] std::string_view leading_letters(std::string_view name) noexcept;

/// Whether a name is one or two letters, and digits behind them or nothing: `H`, `C12`, `CA`.
[[nodiscard]] bool is_plain_label(std::string_view name) noexcept;

/// The atomic number of the element whose symbol the letters of a name are, in any case.
[[nodiscard]] std::optional<int> element_of(std::string_view name);

/// Whether a plain label may stand for the element of a charge: by all its letters, or by the first
/// one, as `CA` does for a carbon.
[[nodiscard]] bool names_element(std::string_view name, double charge);

}  // namespace nurl::input::gamess::source::checks
