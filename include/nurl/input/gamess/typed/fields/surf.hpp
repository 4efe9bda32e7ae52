/// @file
/// The keywords of `$SURF`, one row each, in the order of writing.
#pragma once

#include "nurl/input/gamess/typed/field.hpp"
#include "nurl/input/gamess/typed/surf.hpp"

namespace nurl::input::gamess::typed::detail {

/// The name of the group.
template <>
inline constexpr std::string_view group_of<SurfSection> = "SURF";

// clang-format off
/// The keywords, one row each, with the member that holds the value.
template <>
inline constexpr auto typed_fields<SurfSection> = std::to_array<TypedField<SurfSection>>({
    {"RUNTP1", &SurfSection::runtp1},
    {"RUNTP2", &SurfSection::runtp2},
    {"SCFTP1", &SurfSection::scftp1},
    {"SCFTP2", &SurfSection::scftp2},
    {"CITYP1", &SurfSection::cityp1},
    {"CITYP2", &SurfSection::cityp2},
    {"MPLEV1", &SurfSection::mplev1},
    {"MPLEV2", &SurfSection::mplev2},
    {"CCTYP1", &SurfSection::cctyp1},
    {"CCTYP2", &SurfSection::cctyp2},
    {"DFTYP1", &SurfSection::dftyp1},
    {"DFTYP2", &SurfSection::dftyp2},
    {"IVEC1(1)", &SurfSection::ivec1},
    {"IGRP1(1)", &SurfSection::igrp1},
    {"ORIG1", &SurfSection::orig1},
    {"DISP1", &SurfSection::disp1},
    {"NDISP1", &SurfSection::ndisp1},
    {"GRID1(1)", &SurfSection::grid1},
    {"IVEC2(1)", &SurfSection::ivec2},
    {"IGRP2(1)", &SurfSection::igrp2},
    {"ORIG2", &SurfSection::orig2},
    {"DISP2", &SurfSection::disp2},
    {"NDISP2", &SurfSection::ndisp2},
    {"GRID2(1)", &SurfSection::grid2},
});
// clang-format on

static_assert(are_written_as_their_kind(typed_fields<SurfSection>));

}  // namespace nurl::input::gamess::typed::detail
