/// @file
/// The keywords of `$STATPT`, one row each, in the order of writing.
#pragma once

#include "nurl/input/gamess/typed/field.hpp"
#include "nurl/input/gamess/typed/statpt.hpp"

namespace nurl::input::gamess::typed::detail {

/// The name of the group.
template <>
inline constexpr std::string_view group_of<StatptSection> = "STATPT";

// clang-format off
/// The keywords, one row each, with the member that holds the value.
template <>
inline constexpr auto typed_fields<StatptSection> = std::to_array<TypedField<StatptSection>>({
    {"METHOD", &StatptSection::method},
    {"OPTTOL", &StatptSection::opttol},
    {"NSTEP", &StatptSection::nstep},
    {"KDIAGH", &StatptSection::kdiagh},
    {"NPRICO", &StatptSection::nprico},
    {"DXMAX", &StatptSection::dxmax},
    {"TRUPD", &StatptSection::trupd},
    {"TRMAX", &StatptSection::trmax},
    {"TRMIN", &StatptSection::trmin},
    {"IFOLOW", &StatptSection::ifolow},
    {"STPT", &StatptSection::stpt},
    {"STSTEP", &StatptSection::ststep},
    {"IFREEZ(1)", &StatptSection::ifreez},
    {"IFCART(1)", &StatptSection::ifcart},
    {"IACTAT(1)", &StatptSection::iactat},
    {"HESS", &StatptSection::hess},
    {"IHREP", &StatptSection::ihrep},
    {"HSSEND", &StatptSection::hssend},
    {"NPRT", &StatptSection::nprt},
    {"NPUN", &StatptSection::npun},
    {"IHMCON(1)", &StatptSection::ihmcon},
    {"SHMCON(1)", &StatptSection::shmcon},
    {"FHMCON(1)", &StatptSection::fhmcon},
    {"PURIFY", &StatptSection::purify},
    {"PROJCT", &StatptSection::projct},
    {"ITBMAT", &StatptSection::itbmat},
    {"UPHESS", &StatptSection::uphess},
    {"NNEG", &StatptSection::nneg},
    {"RMIN", &StatptSection::rmin},
    {"RMAX", &StatptSection::rmax},
    {"RLIM", &StatptSection::rlim},
});
// clang-format on

static_assert(are_written_as_their_kind(typed_fields<StatptSection>));

}  // namespace nurl::input::gamess::typed::detail
