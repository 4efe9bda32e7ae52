/// @file
/// The keywords of `$TDDFT`, one row each, in the order of writing.
#pragma once

#include "nurl/input/gamess/typed/field.hpp"
#include "nurl/input/gamess/typed/tddft.hpp"

namespace nurl::input::gamess::typed::detail {

/// The name of the group.
template <>
inline constexpr std::string_view group_of<TddftSection> = "TDDFT";

// clang-format off
/// The keywords, one row each, with the member that holds the value.
template <>
inline constexpr auto typed_fields<TddftSection> = std::to_array<TypedField<TddftSection>>({
    {"NSTATE(1)", ReplacedOnReading{&TddftSection::nstate}},
    {"IROOT(1)", ReplacedOnReading{&TddftSection::iroot}},
    {"MULT", &TddftSection::mult},
    {"TDPRP", &TddftSection::tdprp},
    {"UNRLX", &TddftSection::unrlx},
    {"ALTRN", &TddftSection::altrn},
    {"TRNSD", &TddftSection::trnsd},
    {"IFEDAT(1)", &TddftSection::ifedat},
    {"FED", &TddftSection::fed},
    {"TPA", &TddftSection::tpa},
    {"TAMMD", &TddftSection::tammd},
    {"NONEQ", &TddftSection::noneq},
    {"MODTD", &TddftSection::modtd},
    {"MREKT", &TddftSection::mrekt},
    {"MRDEA", &TddftSection::mrdea},
    {"ALPHA", &TddftSection::alpha},
    {"BETA", &TddftSection::beta},
    {"PFREQ(1)", &TddftSection::pfreq},
    {"NRAD", &TddftSection::nrad},
    {"NLEB", &TddftSection::nleb},
    {"NTHE", &TddftSection::nthe},
    {"NPHI", &TddftSection::nphi},
    {"SG1", &TddftSection::sg1},
    {"CNVTOL", &TddftSection::cnvtol},
    {"MAXVEC", &TddftSection::maxvec},
    {"NTRIAL", &TddftSection::ntrial},
    {"ZVTOL", &TddftSection::zvtol},
    {"IXCORE(1)", &TddftSection::ixcore},
});
// clang-format on

static_assert(are_written_as_their_kind(typed_fields<TddftSection>));

}  // namespace nurl::input::gamess::typed::detail
