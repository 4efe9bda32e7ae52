/// @file
/// The keywords of the ten typed records as the format documents them, for comparison with the
/// library's tables.
#pragma once

#include <string_view>
#include <vector>

#include "nurl/input/gamess/typed.hpp"

namespace nurl::input::gamess::test {

/// A keyword as it is written, and the kind of its value.
struct ExpectedRow {
    std::string_view keyword;
    std::string_view kind;
};

/// The keywords of a record in the order of writing.
template <class Record>
inline const std::vector<ExpectedRow> expected_rows{};

template <>
inline const std::vector<ExpectedRow> expected_rows<typed::TddftSection>{
    {"NSTATE(1)", "replaced integers"},
    {"IROOT(1)", "replaced integers"},
    {"MULT", "integer"},
    {"TDPRP", "logical"},
    {"UNRLX", "logical"},
    {"ALTRN", "logical"},
    {"TRNSD", "logical"},
    {"IFEDAT(1)", "integers"},
    {"FED", "logical"},
    {"TPA", "logical"},
    {"TAMMD", "logical"},
    {"NONEQ", "logical"},
    {"MODTD", "integer"},
    {"MREKT", "logical"},
    {"MRDEA", "logical"},
    {"ALPHA", "logical"},
    {"BETA", "logical"},
    {"PFREQ(1)", "reals"},
    {"NRAD", "integer"},
    {"NLEB", "integer"},
    {"NTHE", "integer"},
    {"NPHI", "integer"},
    {"SG1", "logical"},
    {"CNVTOL", "real"},
    {"MAXVEC", "integer"},
    {"NTRIAL", "integer"},
    {"ZVTOL", "real"},
    {"IXCORE(1)", "integers"},
};

template <>
inline const std::vector<ExpectedRow> expected_rows<typed::StatptSection>{
    {"METHOD", "token"},       {"OPTTOL", "real"},        {"NSTEP", "integer"},
    {"KDIAGH", "integer"},     {"NPRICO", "integer"},     {"DXMAX", "real"},
    {"TRUPD", "logical"},      {"TRMAX", "real"},         {"TRMIN", "real"},
    {"IFOLOW", "integer"},     {"STPT", "logical"},       {"STSTEP", "real"},
    {"IFREEZ(1)", "integers"}, {"IFCART(1)", "integers"}, {"IACTAT(1)", "integers"},
    {"HESS", "token"},         {"IHREP", "integer"},      {"HSSEND", "logical"},
    {"NPRT", "integer"},       {"NPUN", "integer"},       {"IHMCON(1)", "integers"},
    {"SHMCON(1)", "reals"},    {"FHMCON(1)", "reals"},    {"PURIFY", "logical"},
    {"PROJCT", "logical"},     {"ITBMAT", "integer"},     {"UPHESS", "token"},
    {"NNEG", "integer"},       {"RMIN", "real"},          {"RMAX", "real"},
    {"RLIM", "real"},
};

template <>
inline const std::vector<ExpectedRow> expected_rows<typed::ForceSection>{
    {"METHOD", "token"},
    {"RDHESS", "logical"},
    {"PURIFY", "logical"},
    {"PRTIFC", "logical"},
    {"HSSTYP", "token"},
    {"NVIB", "integer"},
    {"VIBSIZ", "reals without index"},
    {"NPRT", "integer"},
    {"NPUN", "integer"},
    {"NPRHSS", "integer"},
    {"NZPHA", "integer"},
    {"JACTAT(1)", "integers"},
    {"VDOSPA", "real"},
    {"VIBANL", "logical"},
    {"SCLFAC", "real"},
    {"TEMP(1)", "reals"},
    {"FREQ(1)", "reals"},
    {"PRTSCN", "logical"},
    {"DECOMP", "logical"},
    {"PROJCT", "logical"},
};

template <>
inline const std::vector<ExpectedRow> expected_rows<typed::PcmSection>{
    {"SOLVNT", "token"},  {"EPS", "real"},       {"EPSINF", "real"},  {"ICOMP", "token"},
    {"IDISP", "integer"}, {"IFIELD", "integer"}, {"ICAV", "integer"}, {"RINFX", "real"},
    {"RSOLV", "real"},    {"NTSANG", "integer"},
};

template <>
inline const std::vector<ExpectedRow> expected_rows<typed::FmoSection>{
    {"NFRAG", "integer"},    {"NBODY", "integer"},  {"RCORSD", "real"},
    {"RCORBS", "real"},      {"MODFD", "integer"},  {"MODGS", "integer"},
    {"NBUFFMO", "integer"},  {"RESDIM", "integer"}, {"ICHARG(1)", "integers"},
    {"MULT(1)", "integers"},
};

template <>
inline const std::vector<ExpectedRow> expected_rows<typed::SurfSection>{
    {"RUNTP1", "token"},      {"RUNTP2", "token"},      {"SCFTP1", "token"},
    {"SCFTP2", "token"},      {"CITYP1", "token"},      {"CITYP2", "token"},
    {"MPLEV1", "integer"},    {"MPLEV2", "integer"},    {"CCTYP1", "token"},
    {"CCTYP2", "token"},      {"DFTYP1", "token"},      {"DFTYP2", "token"},
    {"IVEC1(1)", "integers"}, {"IGRP1(1)", "integers"}, {"ORIG1", "real"},
    {"DISP1", "real"},        {"NDISP1", "integer"},    {"GRID1(1)", "reals"},
    {"IVEC2(1)", "integers"}, {"IGRP2(1)", "integers"}, {"ORIG2", "real"},
    {"DISP2", "real"},        {"NDISP2", "integer"},    {"GRID2(1)", "reals"},
};

template <>
inline const std::vector<ExpectedRow> expected_rows<typed::CcinpSection>{
    {"NCORE", "integer"},  {"NFZV", "integer"},   {"MAXCC", "integer"},  {"ICONV", "integer"},
    {"NACTO", "integer"},  {"NACTU", "integer"},  {"SHIFT", "real"},     {"ACP(1)", "reals"},
    {"CCPRP", "logical"},  {"MAXCCL", "integer"}, {"NWORD", "integer"},  {"IREST", "integer"},
    {"MXDIIS", "integer"}, {"AMPTSH", "real"},    {"CCERI", "token"},    {"MULT", "integer"},
    {"IOPMET", "integer"}, {"KREST", "integer"},  {"KMICRO", "integer"}, {"LREST", "integer"},
    {"LMICRO", "integer"}, {"IOSIZE", "integer"},
};

template <>
inline const std::vector<ExpectedRow> expected_rows<typed::EominpSection>{
    {"MULT", "integer"},      {"GROUP", "token"},        {"NSTATE(1)", "integers"},
    {"IROOT(1)", "integers"}, {"ISELCT(1)", "integers"}, {"MTRIP", "integer"},
    {"IEOMTP", "integer"},    {"NACT", "integer"},       {"CCPRPE", "logical"},
    {"MEOM", "integer"},      {"MCI", "integer"},        {"MINIT", "integer"},
    {"MACT", "integer"},      {"NOACT", "integer"},      {"NUACT", "integer"},
    {"MOACT(1)", "integers"}, {"JREST", "integer"},      {"CVGEOM", "real"},
    {"MAXEOM", "integer"},    {"MICEOM", "integer"},     {"CVGCI", "real"},
    {"MAXCI", "integer"},     {"MICCI", "integer"},      {"NREF", "integer"},
    {"NSAVE", "integer"},
};

template <>
inline const std::vector<ExpectedRow> expected_rows<typed::MdSection>{
    {"MDINT", "token"},     {"DT", "real"},         {"NVTNH", "integer"},
    {"NSTEPS", "integer"},  {"TTOTAL", "real"},     {"BATHT(1)", "reals"},
    {"RSTEMP", "logical"},  {"DTEMP", "real"},      {"RSRAND", "logical"},
    {"NRAND", "integer"},   {"NVTOFF", "integer"},  {"JEVERY", "integer"},
    {"KEVERY", "integer"},  {"PROD", "logical"},    {"DELR", "real"},
    {"NPROP", "integer"},   {"PBCOUT", "logical"},  {"SSBP", "logical"},
    {"SFORCE", "real"},     {"CCMS", "logical"},    {"CFORCE", "real"},
    {"DROFF(1)", "reals"},  {"USAMP", "logical"},   {"UFORCE", "real"},
    {"RZERO(1)", "reals"},  {"IUSTYP", "integer"},  {"IPAIR(1)", "integers"},
    {"PRVEC(1)", "reals"},  {"MREMD", "integer"},   {"MODFLU", "integer"},
    {"LEVERY", "integer"},  {"TRJFMT", "text"},     {"IRATTL(1)", "integers"},
    {"RATLEN(1)", "reals"}, {"RATTOL(1)", "reals"}, {"IRATIT", "integer"},
    {"NAMD", "logical"},    {"NDTLF", "integer"},   {"THRSHE", "real"},
    {"NDRST", "logical"},   {"NEWRND", "logical"},  {"MBT", "logical"},
    {"MBR", "logical"},     {"QRAND", "logical"},   {"READ", "logical"},
    {"TVELQM(1)", "reals"}, {"TVEL(1)", "reals"},   {"RVEL(1)", "reals"},
    {"RMOM(1)", "reals"},   {"QUAT(1)", "reals"},   {"QUAT1D(1)", "reals"},
    {"QUAT2D(1)", "reals"},
};

template <>
inline const std::vector<ExpectedRow> expected_rows<typed::DftbSection>{
    {"NDFTB", "integer"},      {"LCDFTB", "logical"},   {"EMU", "real"},
    {"DAMPXH", "logical"},     {"DAMPEX", "real"},      {"SRSCC", "logical"},
    {"ITYPMX", "integer"},     {"ETEMP", "real"},       {"OCCTHR", "real"},
    {"MAXINT", "integer"},     {"DISP", "token"},       {"DISPPR(1)", "reals"},
    {"HUBDER(1)", "reals"},    {"MAXANG(1)", "tokens"}, {"QREF(1)", "reals"},
    {"SPNCST(1)", "reals"},    {"PARAM", "token"},      {"ISPDMP(1)", "integers"},
    {"MODESD", "integer"},     {"MODGAM", "integer"},   {"CPCONV", "real"},
    {"MXCPIT", "integer"},     {"DEGTHR(1)", "reals"},  {"ARAMAN", "logical"},
    {"ICUT", "integer"},       {"PBCBOX(1)", "reals"},  {"EWALPH", "real"},
    {"THREW", "real"},         {"THREWD", "real"},      {"LATOPT", "integer"},
    {"LATOPA(1)", "integers"}, {"NSPILL", "integer"},
};

}  // namespace nurl::input::gamess::test
