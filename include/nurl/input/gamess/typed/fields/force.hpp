/// @file
/// The keywords of `$FORCE`, one row each, in the order of writing.
#pragma once

#include "nurl/input/gamess/typed/field.hpp"
#include "nurl/input/gamess/typed/force.hpp"

namespace nurl::input::gamess::typed::detail {

/// The name of the group.
template <>
inline constexpr std::string_view group_of<ForceSection> = "FORCE";

// clang-format off
/// The keywords, one row each, with the member that holds the value.
template <>
inline constexpr auto typed_fields<ForceSection> = std::to_array<TypedField<ForceSection>>({
    {"METHOD", &ForceSection::method},
    {"RDHESS", &ForceSection::rdhess},
    {"PURIFY", &ForceSection::purify},
    {"PRTIFC", &ForceSection::prtifc},
    {"HSSTYP", &ForceSection::hsstyp},
    {"NVIB", &ForceSection::nvib},
    {"VIBSIZ", WithoutIndex{&ForceSection::vibsiz}},
    {"NPRT", &ForceSection::nprt},
    {"NPUN", &ForceSection::npun},
    {"NPRHSS", &ForceSection::nprhss},
    {"NZPHA", &ForceSection::nzpha},
    {"JACTAT(1)", &ForceSection::jactat},
    {"VDOSPA", &ForceSection::vdospa},
    {"VIBANL", &ForceSection::vibanl},
    {"SCLFAC", &ForceSection::sclfac},
    {"TEMP(1)", &ForceSection::temp},
    {"FREQ(1)", &ForceSection::freq},
    {"PRTSCN", &ForceSection::prtscn},
    {"DECOMP", &ForceSection::decomp},
    {"PROJCT", &ForceSection::projct},
});
// clang-format on

static_assert(are_written_as_their_kind(typed_fields<ForceSection>));

}  // namespace nurl::input::gamess::typed::detail
