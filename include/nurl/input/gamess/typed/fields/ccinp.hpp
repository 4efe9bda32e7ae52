/// @file
/// The keywords of `$CCINP`, one row each, in the order of writing.
#pragma once

#include "nurl/input/gamess/typed/ccinp.hpp"
#include "nurl/input/gamess/typed/field.hpp"

namespace nurl::input::gamess::typed::detail {

/// The name of the group.
template <>
inline constexpr std::string_view group_of<CcinpSection> = "CCINP";

// clang-format off
/// The keywords, one row each, with the member that holds the value.
template <>
inline constexpr auto typed_fields<CcinpSection> = std::to_array<TypedField<CcinpSection>>({
    {"NCORE", &CcinpSection::ncore},
    {"NFZV", &CcinpSection::nfzv},
    {"MAXCC", &CcinpSection::maxcc},
    {"ICONV", &CcinpSection::iconv},
    {"NACTO", &CcinpSection::nacto},
    {"NACTU", &CcinpSection::nactu},
    {"SHIFT", &CcinpSection::shift},
    {"ACP(1)", &CcinpSection::acp},
    {"CCPRP", &CcinpSection::ccprp},
    {"MAXCCL", &CcinpSection::maxccl},
    {"NWORD", &CcinpSection::nword},
    {"IREST", &CcinpSection::irest},
    {"MXDIIS", &CcinpSection::mxdiis},
    {"AMPTSH", &CcinpSection::amptsh},
    {"CCERI", &CcinpSection::cceri},
    {"MULT", &CcinpSection::mult},
    {"IOPMET", &CcinpSection::iopmet},
    {"KREST", &CcinpSection::krest},
    {"KMICRO", &CcinpSection::kmicro},
    {"LREST", &CcinpSection::lrest},
    {"LMICRO", &CcinpSection::lmicro},
    {"IOSIZE", &CcinpSection::iosize},
});
// clang-format on

static_assert(are_written_as_their_kind(typed_fields<CcinpSection>));

}  // namespace nurl::input::gamess::typed::detail
