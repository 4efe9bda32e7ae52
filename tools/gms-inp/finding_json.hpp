/// @file
/// Findings as JSON.
#pragma once

#include <span>

#include <nlohmann/json.hpp>

#include "findings.hpp"

namespace gms_inp {

/// A list of objects with `severity`, `section`, `key`, `message`, `line` (null when not known) and
/// `count`.
[[nodiscard]] nlohmann::ordered_json json_of(std::span<const Finding> findings);

}  // namespace gms_inp
