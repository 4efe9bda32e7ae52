/// @file
/// `$PCM` as a typed record: the polarizable continuum model of a solvent.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "nurl/input/gamess/export.hpp"
#include "nurl/input/gamess/model.hpp"

namespace nurl::input::gamess::typed {

/// `$PCM`: the polarizable continuum model of a solvent.
///
/// An absent optional and an empty list mean that the deck does not set the keyword. Tokens are
/// held in upper case.
struct PcmSection {
    /// `SOLVNT`: name of the solvent; INPUT takes its constants from the deck
    std::optional<std::string> solvnt;
    std::optional<double> eps;           ///< `EPS`: static dielectric constant
    std::optional<double> epsinf;        ///< `EPSINF`: optical dielectric constant
    std::optional<std::string> icomp;    ///< `ICOMP`: compensation of escaped charge
    std::optional<std::int32_t> idisp;   ///< `IDISP`: dispersion and repulsion terms: 0 off, 1 on
    std::optional<std::int32_t> ifield;  ///< `IFIELD`: output of the reaction field
    std::optional<std::int32_t> icav;    ///< `ICAV`: cavitation energy: 0 off, 1 on
    std::optional<double> rinfx;         ///< `RINFX`: scale of the cavity radii
    std::optional<double> rsolv;         ///< `RSOLV`: radius of a solvent molecule, in angstrom
    /// `NTSANG`: tesserae per square angstrom of the cavity surface
    std::optional<std::int32_t> ntsang;
    std::vector<KeyValue> extra_entries;  ///< unknown keywords, and values that did not convert
    std::vector<std::string> raw_lines;   ///< text of the group that is no keyword entry

    bool operator==(const PcmSection&) const = default;
};

/// Reads a group as `$PCM`, whatever its name. What does not fit a member is kept in
/// `extra_entries`, and nothing is thrown for content. Linear in the size of the group.
[[nodiscard]] NURL_GMS_INP_EXPORT PcmSection as_pcm_section(const NamedSection& section);

/// Writes a record as the group `PCM`: its members in their order, then `extra_entries`, then
/// `raw_lines`. A default record gives a group without keywords.
[[nodiscard]] NURL_GMS_INP_EXPORT NamedSection to_named_section(const PcmSection& record);

/// Reads the `$PCM` of a document. @return nothing when the document has no such group
[[nodiscard]] NURL_GMS_INP_EXPORT std::optional<PcmSection> get_pcm_section(
    const GamessInput& input);

/// Replaces the `$PCM` of a document as a whole, keeping its place, or adds it where
/// `GamessInput::upsert_section` adds groups. The document is as it was when memory runs out.
NURL_GMS_INP_EXPORT void set_pcm_section(GamessInput& input, const PcmSection& record);

}  // namespace nurl::input::gamess::typed
