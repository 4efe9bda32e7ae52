/// @file
/// The keywords of `$DFTB`, one row each, in the order of writing.
#pragma once

#include "nurl/input/gamess/typed/dftb.hpp"
#include "nurl/input/gamess/typed/field.hpp"

namespace nurl::input::gamess::typed::detail {

/// The name of the group.
template <>
inline constexpr std::string_view group_of<DftbSection> = "DFTB";

// clang-format off
/// The keywords, one row each, with the member that holds the value.
template <>
inline constexpr auto typed_fields<DftbSection> = std::to_array<TypedField<DftbSection>>({
    {"NDFTB", &DftbSection::ndftb},
    {"LCDFTB", &DftbSection::lcdftb},
    {"EMU", &DftbSection::emu},
    {"DAMPXH", &DftbSection::dampxh},
    {"DAMPEX", &DftbSection::dampex},
    {"SRSCC", &DftbSection::srscc},
    {"ITYPMX", &DftbSection::itypmx},
    {"ETEMP", &DftbSection::etemp},
    {"OCCTHR", &DftbSection::occthr},
    {"MAXINT", &DftbSection::maxint},
    {"DISP", &DftbSection::disp},
    {"DISPPR(1)", &DftbSection::disppr},
    {"HUBDER(1)", &DftbSection::hubder},
    {"MAXANG(1)", &DftbSection::maxang},
    {"QREF(1)", &DftbSection::qref},
    {"SPNCST(1)", &DftbSection::spncst},
    {"PARAM", &DftbSection::param},
    {"ISPDMP(1)", &DftbSection::ispdmp},
    {"MODESD", &DftbSection::modesd},
    {"MODGAM", &DftbSection::modgam},
    {"CPCONV", &DftbSection::cpconv},
    {"MXCPIT", &DftbSection::mxcpit},
    {"DEGTHR(1)", &DftbSection::degthr},
    {"ARAMAN", &DftbSection::araman},
    {"ICUT", &DftbSection::icut},
    {"PBCBOX(1)", &DftbSection::pbcbox},
    {"EWALPH", &DftbSection::ewalph},
    {"THREW", &DftbSection::threw},
    {"THREWD", &DftbSection::threwd},
    {"LATOPT", &DftbSection::latopt},
    {"LATOPA(1)", &DftbSection::latopa},
    {"NSPILL", &DftbSection::nspill},
});
// clang-format on

static_assert(are_written_as_their_kind(typed_fields<DftbSection>));

}  // namespace nurl::input::gamess::typed::detail
