/// @file
/// `$TDDFT` as a typed record: excited states by time-dependent density functional theory.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "nurl/input/gamess/export.hpp"
#include "nurl/input/gamess/model.hpp"

namespace nurl::input::gamess::typed {

/// `$TDDFT`: excited states by time-dependent density functional theory.
///
/// An absent optional and an empty list mean that the deck does not set the keyword. Tokens are
/// held in upper case.
struct TddftSection {
    /// `NSTATE`: number of states to find; one number, or one for each irreducible representation
    /// (a later entry replaces an earlier one)
    std::vector<std::int32_t> nstate;
    /// `IROOT`: state whose properties or gradient are wanted; one number, or several (a later
    /// entry replaces an earlier one)
    std::vector<std::int32_t> iroot;
    std::optional<std::int32_t> mult;  ///< `MULT`: spin multiplicity of the excited states
    std::optional<bool> tdprp;         ///< `TDPRP`: properties of the excited state are computed
    std::optional<bool> unrlx;         ///< `UNRLX`: unrelaxed densities are used
    std::optional<bool> altrn;         ///< `ALTRN`: alternative treatment of transitions
    std::optional<bool> trnsd;         ///< `TRNSD`: transition densities are computed
    /// `IFEDAT`: atoms of the fragments of the fragment excitation difference
    std::vector<std::int32_t> ifedat;
    std::optional<bool> fed;    ///< `FED`: fragment excitation differences are computed
    std::optional<bool> tpa;    ///< `TPA`: two-photon absorption cross sections are computed
    std::optional<bool> tammd;  ///< `TAMMD`: Tamm-Dancoff approximation
    std::optional<bool> noneq;  ///< `NONEQ`: non-equilibrium solvation of the vertical excitation
    std::optional<std::int32_t> modtd;  ///< `MODTD`: mode of the calculation, a sum of option bits
    /// `MREKT`: ionisation by the extended Koopmans theorem, mixed-reference form
    std::optional<bool> mrekt;
    std::optional<bool> mrdea;  ///< `MRDEA`: double electron attachment, mixed-reference form
    std::optional<bool> alpha;  ///< `ALPHA`: frequency-dependent polarisability is computed
    /// `BETA`: frequency-dependent first hyperpolarisability is computed
    std::optional<bool> beta;
    std::vector<double> pfreq;           ///< `PFREQ`: frequencies of the applied fields, in hartree
    std::optional<std::int32_t> nrad;    ///< `NRAD`: radial points of the integration grid
    std::optional<std::int32_t> nleb;    ///< `NLEB`: angular points of the Lebedev grid
    std::optional<std::int32_t> nthe;    ///< `NTHE`: angular points in theta
    std::optional<std::int32_t> nphi;    ///< `NPHI`: angular points in phi
    std::optional<bool> sg1;             ///< `SG1`: the SG1 pruned grid is used
    std::optional<double> cnvtol;        ///< `CNVTOL`: convergence threshold of the states
    std::optional<std::int32_t> maxvec;  ///< `MAXVEC`: largest number of expansion vectors
    std::optional<std::int32_t> ntrial;  ///< `NTRIAL`: number of trial vectors at the start
    std::optional<double> zvtol;       ///< `ZVTOL`: convergence threshold of the Z-vector equations
    std::vector<std::int32_t> ixcore;  ///< `IXCORE`: orbitals from which core excitations start
    std::vector<KeyValue> extra_entries;  ///< unknown keywords, and values that did not convert
    std::vector<std::string> raw_lines;   ///< text of the group that is no keyword entry

    bool operator==(const TddftSection&) const = default;
};

/// Reads a group as `$TDDFT`, whatever its name. What does not fit a member is kept in
/// `extra_entries`, and nothing is thrown for content. Linear in the size of the group.
[[nodiscard]] NURL_GMS_INP_EXPORT TddftSection as_tddft_section(const NamedSection& section);

/// Writes a record as the group `TDDFT`: its members in their order, then `extra_entries`, then
/// `raw_lines`. A default record gives a group without keywords.
[[nodiscard]] NURL_GMS_INP_EXPORT NamedSection to_named_section(const TddftSection& record);

/// Reads the `$TDDFT` of a document. @return nothing when the document has no such group
[[nodiscard]] NURL_GMS_INP_EXPORT std::optional<TddftSection> get_tddft_section(
    const GamessInput& input);

/// Replaces the `$TDDFT` of a document as a whole, keeping its place, or adds it where
/// `GamessInput::upsert_section` adds groups. The document is as it was when memory runs out.
NURL_GMS_INP_EXPORT void set_tddft_section(GamessInput& input, const TddftSection& record);

}  // namespace nurl::input::gamess::typed
