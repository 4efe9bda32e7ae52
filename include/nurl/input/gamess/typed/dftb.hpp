/// @file
/// `$DFTB` as a typed record: density-functional tight binding.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "nurl/input/gamess/export.hpp"
#include "nurl/input/gamess/model.hpp"

namespace nurl::input::gamess::typed {

/// `$DFTB`: density-functional tight binding.
///
/// An absent optional and an empty list mean that the deck does not set the keyword. Tokens are
/// held in upper case.
struct DftbSection {
    std::optional<std::int32_t> ndftb;  ///< `NDFTB`: order of the expansion: 1, 2 or 3
    std::optional<bool> lcdftb;         ///< `LCDFTB`: long-range correction
    /// `EMU`: range-separation parameter of the long-range correction, in bohr^-1
    std::optional<double> emu;
    std::optional<bool> dampxh;          ///< `DAMPXH`: damping of interactions with hydrogen
    std::optional<double> dampex;        ///< `DAMPEX`: exponent of that damping
    std::optional<bool> srscc;           ///< `SRSCC`: shell-resolved charges
    std::optional<std::int32_t> itypmx;  ///< `ITYPMX`: way of mixing charges between iterations
    std::optional<double> etemp;   ///< `ETEMP`: electronic temperature of the occupation, in kelvin
    std::optional<double> occthr;  ///< `OCCTHR`: occupation below which an orbital counts as empty
    /// `MAXINT`: largest number of interpolation points in the parameter tables
    std::optional<std::int32_t> maxint;
    std::optional<std::string> disp;  ///< `DISP`: dispersion model, such as UFF or SK
    std::vector<double> disppr;       ///< `DISPPR`: parameters of the dispersion model
    std::vector<double> hubder;       ///< `HUBDER`: Hubbard derivatives of each element
    /// `MAXANG`: highest angular momentum of each element, as words
    std::vector<std::string> maxang;
    std::vector<double> qref;            ///< `QREF`: reference charges
    std::vector<double> spncst;          ///< `SPNCST`: spin constants
    std::optional<std::string> param;    ///< `PARAM`: name of a built-in parameter set
    std::vector<std::int32_t> ispdmp;    ///< `ISPDMP`: elements to which damping applies
    std::optional<std::int32_t> modesd;  ///< `MODESD`: print mode, a sum of option bits
    std::optional<std::int32_t> modgam;  ///< `MODGAM`: mode of the gamma function
    /// `CPCONV`: convergence threshold of the coupled-perturbed equations
    std::optional<double> cpconv;
    std::optional<std::int32_t> mxcpit;  ///< `MXCPIT`: largest number of their iterations
    std::vector<double> degthr;          ///< `DEGTHR`: thresholds of degeneracy
    std::optional<bool> araman;          ///< `ARAMAN`: analytic Raman activities
    std::optional<std::int32_t> icut;    ///< `ICUT`: integral cutoff, as the exponent n of 10^-n
    std::vector<double> pbcbox;          ///< `PBCBOX`: vectors of the periodic box, in angstrom
    std::optional<double> ewalph;        ///< `EWALPH`: exponent of the Ewald sum
    std::optional<double> threw;         ///< `THREW`: threshold of the Ewald sum
    std::optional<double> threwd;  ///< `THREWD`: threshold of the derivatives of the Ewald sum
    std::optional<std::int32_t> latopt;  ///< `LATOPT`: optimisation of the lattice: mode
    std::vector<std::int32_t> latopa;    ///< `LATOPA`: lattice parameters to keep or change
    /// `NSPILL`: pieces in which arrays are kept outside memory
    std::optional<std::int32_t> nspill;
    std::vector<KeyValue> extra_entries;  ///< unknown keywords, and values that did not convert
    std::vector<std::string> raw_lines;   ///< text of the group that is no keyword entry

    bool operator==(const DftbSection&) const = default;
};

/// Reads a group as `$DFTB`, whatever its name. What does not fit a member is kept in
/// `extra_entries`, and nothing is thrown for content. Linear in the size of the group.
[[nodiscard]] NURL_GMS_INP_EXPORT DftbSection as_dftb_section(const NamedSection& section);

/// Writes a record as the group `DFTB`: its members in their order, then `extra_entries`, then
/// `raw_lines`. A default record gives a group without keywords.
[[nodiscard]] NURL_GMS_INP_EXPORT NamedSection to_named_section(const DftbSection& record);

/// Reads the `$DFTB` of a document. @return nothing when the document has no such group
[[nodiscard]] NURL_GMS_INP_EXPORT std::optional<DftbSection> get_dftb_section(
    const GamessInput& input);

/// Replaces the `$DFTB` of a document as a whole, keeping its place, or adds it where
/// `GamessInput::upsert_section` adds groups. The document is as it was when memory runs out.
NURL_GMS_INP_EXPORT void set_dftb_section(GamessInput& input, const DftbSection& record);

}  // namespace nurl::input::gamess::typed
