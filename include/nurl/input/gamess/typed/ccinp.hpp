/// @file
/// `$CCINP` as a typed record: coupled-cluster calculations of the ground state.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "nurl/input/gamess/export.hpp"
#include "nurl/input/gamess/model.hpp"

namespace nurl::input::gamess::typed {

/// `$CCINP`: coupled-cluster calculations of the ground state.
///
/// An absent optional and an empty list mean that the deck does not set the keyword. Tokens are
/// held in upper case.
struct CcinpSection {
    std::optional<std::int32_t> ncore;  ///< `NCORE`: number of frozen core orbitals
    std::optional<std::int32_t> nfzv;   ///< `NFZV`: number of frozen virtual orbitals
    std::optional<std::int32_t> maxcc;  ///< `MAXCC`: largest number of iterations
    /// `ICONV`: convergence threshold of the amplitudes, as the exponent n of 10^-n
    std::optional<std::int32_t> iconv;
    std::optional<std::int32_t> nacto;  ///< `NACTO`: number of active occupied orbitals
    std::optional<std::int32_t> nactu;  ///< `NACTU`: number of active unoccupied orbitals
    std::optional<double> shift;        ///< `SHIFT`: shift of orbital energies, in hartree
    std::vector<double> acp;    ///< `ACP`: coefficients of the approximate coupled-pair terms
    std::optional<bool> ccprp;  ///< `CCPRP`: properties of the ground state are computed
    /// `MAXCCL`: largest number of iterations of the left equations
    std::optional<std::int32_t> maxccl;
    /// `NWORD`: limit of memory, in words of 8 bytes; 0 for all there is
    std::optional<std::int32_t> nword;
    std::optional<std::int32_t> irest;  ///< `IREST`: restart: the iteration to go on from
    /// `MXDIIS`: number of vectors kept for convergence acceleration
    std::optional<std::int32_t> mxdiis;
    std::optional<double> amptsh;      ///< `AMPTSH`: threshold for printing amplitudes
    std::optional<std::string> cceri;  ///< `CCERI`: kind of two-electron integrals: STANDARD or RI
    std::optional<std::int32_t> mult;  ///< `MULT`: spin multiplicity
    std::optional<std::int32_t> iopmet;  ///< `IOPMET`: method of the open-shell program
    std::optional<std::int32_t> krest;   ///< `KREST`: restart of the right equations: 0 no, 1 yes
    /// `KMICRO`: iterations between two extrapolations of the right equations
    std::optional<std::int32_t> kmicro;
    std::optional<std::int32_t> lrest;  ///< `LREST`: restart of the left equations: 0 no, 1 yes
    /// `LMICRO`: iterations between two extrapolations of the left equations
    std::optional<std::int32_t> lmicro;
    std::optional<std::int32_t> iosize;   ///< `IOSIZE`: size of blocks on disk
    std::vector<KeyValue> extra_entries;  ///< unknown keywords, and values that did not convert
    std::vector<std::string> raw_lines;   ///< text of the group that is no keyword entry

    bool operator==(const CcinpSection&) const = default;
};

/// Reads a group as `$CCINP`, whatever its name. What does not fit a member is kept in
/// `extra_entries`, and nothing is thrown for content. Linear in the size of the group.
[[nodiscard]] NURL_GMS_INP_EXPORT CcinpSection as_ccinp_section(const NamedSection& section);

/// Writes a record as the group `CCINP`: its members in their order, then `extra_entries`, then
/// `raw_lines`. A default record gives a group without keywords.
[[nodiscard]] NURL_GMS_INP_EXPORT NamedSection to_named_section(const CcinpSection& record);

/// Reads the `$CCINP` of a document. @return nothing when the document has no such group
[[nodiscard]] NURL_GMS_INP_EXPORT std::optional<CcinpSection> get_ccinp_section(
    const GamessInput& input);

/// Replaces the `$CCINP` of a document as a whole, keeping its place, or adds it where
/// `GamessInput::upsert_section` adds groups. The document is as it was when memory runs out.
NURL_GMS_INP_EXPORT void set_ccinp_section(GamessInput& input, const CcinpSection& record);

}  // namespace nurl::input::gamess::typed
