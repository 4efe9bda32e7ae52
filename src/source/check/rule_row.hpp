/// @file
/// A rule together with what looks for its cases.
#pragma once

#include "nurl/input/gamess/source/check.hpp"
#include "source/check/context.hpp"
#include "source/check/findings.hpp"

namespace nurl::input::gamess::source::checks {

/// A row of the tables of rules.
struct RuleRow {
    Rule rule;                                                           ///< what is told about it
    void (*find)(const Context& context, Findings& findings) = nullptr;  ///< adds its findings
};

}  // namespace nurl::input::gamess::source::checks
