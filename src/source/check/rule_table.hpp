/// @file
/// All rules in one table.
#pragma once

#include <span>

#include "source/check/rule_row.hpp"

namespace nurl::input::gamess::source::checks {

/// The rules of all rooms with what looks for their cases, by name in ascending order.
[[nodiscard]] std::span<const RuleRow> rule_rows() noexcept;

}  // namespace nurl::input::gamess::source::checks
