/// @file
/// Findings for programs.
#pragma once

#include <span>

#include <nlohmann/json_fwd.hpp>

#include "line_table.hpp"
#include "nurl/input/gamess/source/check.hpp"

namespace gms_inp {

/// A list of objects with `rule`, `severity`, `line`, `column`, `end_line`, `end_column` (behind
/// the last byte), `offset`, `length` (in bytes), `message`, `hint` (may be empty) and `fixable`.
///
/// @param lines  of the text that the findings are about
[[nodiscard]] nlohmann::ordered_json json_of(
    std::span<const nurl::input::gamess::source::Finding> findings, const LineTable& lines);

}  // namespace gms_inp
