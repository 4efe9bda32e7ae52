/// @file
/// `$EOMINP` as a typed record: excited states by equation-of-motion coupled cluster.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "nurl/input/gamess/export.hpp"
#include "nurl/input/gamess/model.hpp"

namespace nurl::input::gamess::typed {

/// `$EOMINP`: excited states by equation-of-motion coupled cluster.
///
/// An absent optional and an empty list mean that the deck does not set the keyword. Tokens are
/// held in upper case.
struct EominpSection {
    /// `MULT`: spin multiplicity of the states; -1 for singlets and triplets alike
    std::optional<std::int32_t> mult;
    std::optional<std::string> group;  ///< `GROUP`: point group used for the states
    /// `NSTATE`: number of states of each irreducible representation
    std::vector<std::int32_t> nstate;
    /// `IROOT`: representation and number of the state whose properties are wanted
    std::vector<std::int32_t> iroot;
    std::vector<std::int32_t> iselct;    ///< `ISELCT`: states of interest
    std::optional<std::int32_t> mtrip;   ///< `MTRIP`: treatment of triple excitations
    std::optional<std::int32_t> ieomtp;  ///< `IEOMTP`: kind of equation-of-motion calculation
    std::optional<std::int32_t> nact;    ///< `NACT`: number of active orbitals of the initial guess
    std::optional<bool> ccprpe;        ///< `CCPRPE`: properties of the excited states are computed
    std::optional<std::int32_t> meom;  ///< `MEOM`: algorithm of the iterations
    std::optional<std::int32_t> mci;  ///< `MCI`: algorithm of the initial configuration interaction
    std::optional<std::int32_t> minit;   ///< `MINIT`: kind of the initial guess
    std::optional<std::int32_t> mact;    ///< `MACT`: way in which active orbitals are chosen
    std::optional<std::int32_t> noact;   ///< `NOACT`: number of active occupied orbitals
    std::optional<std::int32_t> nuact;   ///< `NUACT`: number of active unoccupied orbitals
    std::vector<std::int32_t> moact;     ///< `MOACT`: numbers of the active orbitals
    std::optional<std::int32_t> jrest;   ///< `JREST`: restart: 0 no, 1 yes
    std::optional<double> cvgeom;        ///< `CVGEOM`: convergence threshold of the states
    std::optional<std::int32_t> maxeom;  ///< `MAXEOM`: largest number of iterations for each state
    /// `MICEOM`: largest number of expansion vectors for each state
    std::optional<std::int32_t> miceom;
    /// `CVGCI`: convergence threshold of the initial configuration interaction
    std::optional<double> cvgci;
    std::optional<std::int32_t> maxci;    ///< `MAXCI`: largest number of its iterations
    std::optional<std::int32_t> micci;    ///< `MICCI`: largest number of its expansion vectors
    std::optional<std::int32_t> nref;     ///< `NREF`: number of reference states
    std::optional<std::int32_t> nsave;    ///< `NSAVE`: number of saved vectors
    std::vector<KeyValue> extra_entries;  ///< unknown keywords, and values that did not convert
    std::vector<std::string> raw_lines;   ///< text of the group that is no keyword entry

    bool operator==(const EominpSection&) const = default;
};

/// Reads a group as `$EOMINP`, whatever its name. What does not fit a member is kept in
/// `extra_entries`, and nothing is thrown for content. Linear in the size of the group.
[[nodiscard]] NURL_GMS_INP_EXPORT EominpSection as_eominp_section(const NamedSection& section);

/// Writes a record as the group `EOMINP`: its members in their order, then `extra_entries`, then
/// `raw_lines`. A default record gives a group without keywords.
[[nodiscard]] NURL_GMS_INP_EXPORT NamedSection to_named_section(const EominpSection& record);

/// Reads the `$EOMINP` of a document. @return nothing when the document has no such group
[[nodiscard]] NURL_GMS_INP_EXPORT std::optional<EominpSection> get_eominp_section(
    const GamessInput& input);

/// Replaces the `$EOMINP` of a document as a whole, keeping its place, or adds it where
/// `GamessInput::upsert_section` adds groups. The document is as it was when memory runs out.
NURL_GMS_INP_EXPORT void set_eominp_section(GamessInput& input, const EominpSection& record);

}  // namespace nurl::input::gamess::typed
