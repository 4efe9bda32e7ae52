/// @file
/// `$STATPT` as a typed record: the search for a stationary point: minimum or saddle point.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "nurl/input/gamess/export.hpp"
#include "nurl/input/gamess/model.hpp"

namespace nurl::input::gamess::typed {

/// `$STATPT`: the search for a stationary point: minimum or saddle point.
///
/// An absent optional and an empty list mean that the deck does not set the keyword. Tokens are
/// held in upper case.
struct StatptSection {
    std::optional<std::string> method;  ///< `METHOD`: algorithm of the search, such as QA or RFO
    /// `OPTTOL`: convergence threshold of the gradient, in hartree/bohr
    std::optional<double> opttol;
    std::optional<std::int32_t> nstep;   ///< `NSTEP`: largest number of steps
    std::optional<std::int32_t> kdiagh;  ///< `KDIAGH`: way of diagonalising the Hessian
    std::optional<std::int32_t> nprico;  ///< `NPRICO`: printing of internal coordinates
    std::optional<double> dxmax;         ///< `DXMAX`: largest length of the first step, in bohr
    std::optional<bool> trupd;           ///< `TRUPD`: the trust radius is updated during the search
    std::optional<double> trmax;         ///< `TRMAX`: upper limit of the trust radius, in bohr
    std::optional<double> trmin;         ///< `TRMIN`: lower limit of the trust radius, in bohr
    /// `IFOLOW`: number of the mode to follow uphill in a saddle-point search
    std::optional<std::int32_t> ifolow;
    std::optional<bool> stpt;  ///< `STPT`: the start is a stationary point, to be left along a mode
    std::optional<double> ststep;  ///< `STSTEP`: length of the step that leaves it, in bohr amu^1/2
    std::vector<std::int32_t> ifreez;  ///< `IFREEZ`: internal coordinates to keep fixed
    /// `IFCART`: Cartesian coordinates to keep fixed, three for each atom
    std::vector<std::int32_t> ifcart;
    /// `IACTAT`: atoms that may move; a negative number closes a range
    std::vector<std::int32_t> iactat;
    /// `HESS`: where the starting Hessian comes from, such as GUESS, READ or CALC
    std::optional<std::string> hess;
    /// `IHREP`: steps after which the Hessian is computed anew; 0 for never
    std::optional<std::int32_t> ihrep;
    std::optional<bool> hssend;  ///< `HSSEND`: vibrational frequencies are computed at the end
    std::optional<std::int32_t> nprt;  ///< `NPRT`: amount of printing
    std::optional<std::int32_t> npun;  ///< `NPUN`: amount of punching
    /// `IHMCON`: internal coordinates held by harmonic restraints
    std::vector<std::int32_t> ihmcon;
    std::vector<double> shmcon;  ///< `SHMCON`: equilibrium values of the restraints
    std::vector<double> fhmcon;  ///< `FHMCON`: force constants of the restraints
    /// `PURIFY`: translations and rotations are removed from the Hessian
    std::optional<bool> purify;
    /// `PROJCT`: translations and rotations are removed from the steps
    std::optional<bool> projct;
    /// `ITBMAT`: iterations of the transformation from internal to Cartesian steps
    std::optional<std::int32_t> itbmat;
    std::optional<std::string> uphess;  ///< `UPHESS`: update of the Hessian, such as BFGS or POWELL
    /// `NNEG`: number of negative eigenvalues the Hessian is made to have
    std::optional<std::int32_t> nneg;
    /// `RMIN`: lower limit of the ratio of predicted and found energy change
    std::optional<double> rmin;
    /// `RMAX`: upper limit of the ratio of predicted and found energy change
    std::optional<double> rmax;
    /// `RLIM`: limit that keeps the step of a saddle-point search to its mode
    std::optional<double> rlim;
    std::vector<KeyValue> extra_entries;  ///< unknown keywords, and values that did not convert
    std::vector<std::string> raw_lines;   ///< text of the group that is no keyword entry

    bool operator==(const StatptSection&) const = default;
};

/// Reads a group as `$STATPT`, whatever its name. What does not fit a member is kept in
/// `extra_entries`, and nothing is thrown for content. Linear in the size of the group.
[[nodiscard]] NURL_GMS_INP_EXPORT StatptSection as_statpt_section(const NamedSection& section);

/// Writes a record as the group `STATPT`: its members in their order, then `extra_entries`, then
/// `raw_lines`. A default record gives a group without keywords.
[[nodiscard]] NURL_GMS_INP_EXPORT NamedSection to_named_section(const StatptSection& record);

/// Reads the `$STATPT` of a document. @return nothing when the document has no such group
[[nodiscard]] NURL_GMS_INP_EXPORT std::optional<StatptSection> get_statpt_section(
    const GamessInput& input);

/// Replaces the `$STATPT` of a document as a whole, keeping its place, or adds it where
/// `GamessInput::upsert_section` adds groups. The document is as it was when memory runs out.
NURL_GMS_INP_EXPORT void set_statpt_section(GamessInput& input, const StatptSection& record);

}  // namespace nurl::input::gamess::typed
