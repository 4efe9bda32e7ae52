/// @file
/// The keywords of `$PCM`, one row each, in the order of writing.
#pragma once

#include "nurl/input/gamess/typed/field.hpp"
#include "nurl/input/gamess/typed/pcm.hpp"

namespace nurl::input::gamess::typed::detail {

/// The name of the group.
template <>
inline constexpr std::string_view group_of<PcmSection> = "PCM";

// clang-format off
/// The keywords, one row each, with the member that holds the value.
template <>
inline constexpr auto typed_fields<PcmSection> = std::to_array<TypedField<PcmSection>>({
    {"SOLVNT", &PcmSection::solvnt},
    {"EPS", &PcmSection::eps},
    {"EPSINF", &PcmSection::epsinf},
    {"ICOMP", &PcmSection::icomp},
    {"IDISP", &PcmSection::idisp},
    {"IFIELD", &PcmSection::ifield},
    {"ICAV", &PcmSection::icav},
    {"RINFX", &PcmSection::rinfx},
    {"RSOLV", &PcmSection::rsolv},
    {"NTSANG", &PcmSection::ntsang},
});
// clang-format on

static_assert(are_written_as_their_kind(typed_fields<PcmSection>));

}  // namespace nurl::input::gamess::typed::detail
