/// @file
/// The document model as JSON.
#pragma once

#include <string>

#include <nlohmann/json_fwd.hpp>

#include "nurl/input/gamess/model.hpp"

namespace gms_inp {

/// A document as nested JSON, every member under its own name, in the order of declaration.
///
/// Optional members that are absent are null; `units` is the text of the keyword. The reserved
/// flag of `ControlSection`, which means nothing, is left out.
[[nodiscard]] nlohmann::ordered_json json_of(const nurl::input::gamess::GamessInput& input);

/// JSON as lines `path = value`, with the values in JSON, ASCII only.
///
/// Empty lists stand as `path = []`. Bytes that are not UTF-8 become U+FFFD.
///
///     atoms[0].symbol = "O"
[[nodiscard]] std::string flatten(const nlohmann::ordered_json& json);

}  // namespace gms_inp
