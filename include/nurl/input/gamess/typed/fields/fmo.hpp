/// @file
/// The keywords of `$FMO`, one row each, in the order of writing.
#pragma once

#include "nurl/input/gamess/typed/field.hpp"
#include "nurl/input/gamess/typed/fmo.hpp"

namespace nurl::input::gamess::typed::detail {

/// The name of the group.
template <>
inline constexpr std::string_view group_of<FmoSection> = "FMO";

// clang-format off
/// The keywords, one row each, with the member that holds the value.
template <>
inline constexpr auto typed_fields<FmoSection> = std::to_array<TypedField<FmoSection>>({
    {"NFRAG", &FmoSection::nfrag},
    {"NBODY", &FmoSection::nbody},
    {"RCORSD", &FmoSection::rcorsd},
    {"RCORBS", &FmoSection::rcorbs},
    {"MODFD", &FmoSection::modfd},
    {"MODGS", &FmoSection::modgs},
    {"NBUFFMO", &FmoSection::nbuffmo},
    {"RESDIM", &FmoSection::resdim},
    {"ICHARG(1)", &FmoSection::icharg},
    {"MULT(1)", &FmoSection::mult},
});
// clang-format on

static_assert(are_written_as_their_kind(typed_fields<FmoSection>));

}  // namespace nurl::input::gamess::typed::detail
