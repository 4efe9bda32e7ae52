/// @file
/// The keywords of `$MD`, one row each, in the order of writing.
#pragma once

#include "nurl/input/gamess/typed/field.hpp"
#include "nurl/input/gamess/typed/md.hpp"

namespace nurl::input::gamess::typed::detail {

/// The name of the group.
template <>
inline constexpr std::string_view group_of<MdSection> = "MD";

// clang-format off
/// The keywords, one row each, with the member that holds the value.
template <>
inline constexpr auto typed_fields<MdSection> = std::to_array<TypedField<MdSection>>({
    {"MDINT", &MdSection::mdint},
    {"DT", &MdSection::dt},
    {"NVTNH", &MdSection::nvtnh},
    {"NSTEPS", &MdSection::nsteps},
    {"TTOTAL", &MdSection::ttotal},
    {"BATHT(1)", &MdSection::batht},
    {"RSTEMP", &MdSection::rstemp},
    {"DTEMP", &MdSection::dtemp},
    {"RSRAND", &MdSection::rsrand},
    {"NRAND", &MdSection::nrand},
    {"NVTOFF", &MdSection::nvtoff},
    {"JEVERY", &MdSection::jevery},
    {"KEVERY", &MdSection::kevery},
    {"PROD", &MdSection::prod},
    {"DELR", &MdSection::delr},
    {"NPROP", &MdSection::nprop},
    {"PBCOUT", &MdSection::pbcout},
    {"SSBP", &MdSection::ssbp},
    {"SFORCE", &MdSection::sforce},
    {"CCMS", &MdSection::ccms},
    {"CFORCE", &MdSection::cforce},
    {"DROFF(1)", &MdSection::droff},
    {"USAMP", &MdSection::usamp},
    {"UFORCE", &MdSection::uforce},
    {"RZERO(1)", &MdSection::rzero},
    {"IUSTYP", &MdSection::iustyp},
    {"IPAIR(1)", &MdSection::ipair},
    {"PRVEC(1)", &MdSection::prvec},
    {"MREMD", &MdSection::mremd},
    {"MODFLU", &MdSection::modflu},
    {"LEVERY", &MdSection::levery},
    {"TRJFMT", CaseKept{&MdSection::trjfmt}},
    {"IRATTL(1)", &MdSection::irattl},
    {"RATLEN(1)", &MdSection::ratlen},
    {"RATTOL(1)", &MdSection::rattol},
    {"IRATIT", &MdSection::iratit},
    {"NAMD", &MdSection::namd},
    {"NDTLF", &MdSection::ndtlf},
    {"THRSHE", &MdSection::thrshe},
    {"NDRST", &MdSection::ndrst},
    {"NEWRND", &MdSection::newrnd},
    {"MBT", &MdSection::mbt},
    {"MBR", &MdSection::mbr},
    {"QRAND", &MdSection::qrand},
    {"READ", &MdSection::read},
    {"TVELQM(1)", &MdSection::tvelqm},
    {"TVEL(1)", &MdSection::tvel},
    {"RVEL(1)", &MdSection::rvel},
    {"RMOM(1)", &MdSection::rmom},
    {"QUAT(1)", &MdSection::quat},
    {"QUAT1D(1)", &MdSection::quat1d},
    {"QUAT2D(1)", &MdSection::quat2d},
});
// clang-format on

static_assert(are_written_as_their_kind(typed_fields<MdSection>));

}  // namespace nurl::input::gamess::typed::detail
