/// @file
/// Typed records as JSON.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include <nlohmann/json_fwd.hpp>

#include "nurl/input/gamess/model.hpp"

namespace gms_inp {

/// The typed record of a group as JSON: every member under its own name, absent ones as null.
///
/// @param group  upper case, without `$`
/// @return       nothing when the deck does not have the group
/// @throws std::runtime_error when no record is made for that group; the message names those that
///         there are
[[nodiscard]] std::optional<nlohmann::ordered_json> typed_json(
    const nurl::input::gamess::GamessInput& input, std::string_view group);

}  // namespace gms_inp
