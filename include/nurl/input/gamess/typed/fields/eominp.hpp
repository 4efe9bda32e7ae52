/// @file
/// The keywords of `$EOMINP`, one row each, in the order of writing.
#pragma once

#include "nurl/input/gamess/typed/eominp.hpp"
#include "nurl/input/gamess/typed/field.hpp"

namespace nurl::input::gamess::typed::detail {

/// The name of the group.
template <>
inline constexpr std::string_view group_of<EominpSection> = "EOMINP";

// clang-format off
/// The keywords, one row each, with the member that holds the value.
template <>
inline constexpr auto typed_fields<EominpSection> = std::to_array<TypedField<EominpSection>>({
    {"MULT", &EominpSection::mult},
    {"GROUP", &EominpSection::group},
    {"NSTATE(1)", &EominpSection::nstate},
    {"IROOT(1)", &EominpSection::iroot},
    {"ISELCT(1)", &EominpSection::iselct},
    {"MTRIP", &EominpSection::mtrip},
    {"IEOMTP", &EominpSection::ieomtp},
    {"NACT", &EominpSection::nact},
    {"CCPRPE", &EominpSection::ccprpe},
    {"MEOM", &EominpSection::meom},
    {"MCI", &EominpSection::mci},
    {"MINIT", &EominpSection::minit},
    {"MACT", &EominpSection::mact},
    {"NOACT", &EominpSection::noact},
    {"NUACT", &EominpSection::nuact},
    {"MOACT(1)", &EominpSection::moact},
    {"JREST", &EominpSection::jrest},
    {"CVGEOM", &EominpSection::cvgeom},
    {"MAXEOM", &EominpSection::maxeom},
    {"MICEOM", &EominpSection::miceom},
    {"CVGCI", &EominpSection::cvgci},
    {"MAXCI", &EominpSection::maxci},
    {"MICCI", &EominpSection::micci},
    {"NREF", &EominpSection::nref},
    {"NSAVE", &EominpSection::nsave},
});
// clang-format on

static_assert(are_written_as_their_kind(typed_fields<EominpSection>));

}  // namespace nurl::input::gamess::typed::detail
