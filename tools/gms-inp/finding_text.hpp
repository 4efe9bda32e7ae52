/// @file
/// Findings for people.
#pragma once

#include <string>

#include "diagnostics.hpp"
#include "nurl/input/gamess/source/check.hpp"

namespace gms_inp {

/// The weight of a finding.
[[nodiscard]] Weight weight_of(nurl::input::gamess::validation::Severity severity) noexcept;

/// The message of a finding with its hint behind it.
[[nodiscard]] std::string message_of(const nurl::input::gamess::source::Finding& finding);

/// The same with the name of the rule behind it, `message; hint [rule]`.
[[nodiscard]] std::string ruled_message_of(const nurl::input::gamess::source::Finding& finding);

/// A finding as one line, `name:line:column: weight: message; hint [rule]`, and a newline.
[[nodiscard]] std::string line_of(const std::string& name, Weight weight,
                                  const nurl::input::gamess::source::Finding& finding,
                                  Colour colour);

}  // namespace gms_inp
